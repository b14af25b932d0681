#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "mp3/Aritmetica.h"
#include "mp3/InfoMp3.h"
#include "mp3/Intestazione.h"
#include "mp3/TagVbr.h"
#include "platform/FileSystem.h"

namespace kvr5 {

/// The system's knowledge of the MP3 format.
///
/// It finds the first MPEG audio header in the first 16 KB of a file, looks for a VBR tag in that
/// frame, and tells length and rate from the tag or from the file's length; it never walks the
/// frames. It is deliberately simpler than a decoder's parser: the first sync pattern is the only
/// candidate, an ID3v2 tag is searched like any other bytes, and frame lengths are rounded. What
/// the player takes is decided by these very figures.
///
/// One instance serves the whole program. Its state outlives a call on purpose: a figure that
/// can't be computed keeps the value that the file before it left. Not reentrant.
class modMp3Infos {
 public:
  explicit modMp3Infos(FileSystem& files);

  /// Analyses one file. A missing file, a folder, a hidden or system file, one that can't be read
  /// or has no acceptable first sync gives the record all zero. Nothing is ever created, and the
  /// file is closed again on return. Of any file at most 16 KB, one frame and 3 bytes near the end
  /// are read; only a header across the end of the 16 KB has as much read again.
  ///
  /// A file of 2 GiB or more has no length in the 32 bits that the figures are made of: what
  /// hangs on the length fails with an overflow, and its figures stay as they stood.
  InfoMp3 LeggiInfoMp3(std::string_view path);

  /// What the last call passed over; a run over a whole list refuses a file that left any.
  const ErroriMp3& Errori() const { return failures_; }

  /// Where the last call's search ended, to tell the user why a file was refused.
  RicercaMp3 Ricerca() const;

 private:
  static constexpr std::size_t kBufferSize = 16384;
  static constexpr std::size_t kFirstStep = 4096;
  static constexpr std::size_t kHeaderSize = 4;
  static constexpr std::size_t kId3HeaderSize = 10;

  bool ApriFile(std::string_view path);
  void CaricaInizio();
  void CaricaFino(std::size_t count);
  bool CercaSincronia();
  bool SincroniaATraversoIlBordo();
  bool TrovaIntestazione();
  bool LeggiIntestazione(std::size_t index, std::int32_t position);
  void DimensionaPrimoFrame();
  void RilevaTagId3();
  void LeggiTagVbr();
  void ValutaTagVbr(bool vbri);
  void CalcolaCbr();
  Calcolo<std::int32_t> ByteAlSecondo(std::int32_t frames, std::int32_t fileBytes) const;
  Calcolo<std::int32_t> BitrateMedio() const;
  Calcolo<std::int32_t> LunghezzaFile() const { return InTrentadueBit(fileLength_); }
  InfoMp3 Record() const;

  auto BufferAt(std::size_t at) { return buffer_.begin() + static_cast<std::ptrdiff_t>(at); }
  std::size_t LeggiByte(std::int64_t offset, std::span<char> target, std::string_view luogo);
  std::size_t LeggiDalFile(std::int64_t offset, std::span<char> target, std::string_view luogo);
  void Assegna(std::int32_t& target, Calcolo<std::int32_t> value, std::string_view luogo);
  void Annota(std::string_view luogo, int number) { failures_.push_back({luogo, number}); }

  FileSystem& files_;
  std::unique_ptr<File> file_;
  std::int64_t fileLength_ = 0;
  ErroriMp3 failures_;

  std::array<char, kBufferSize> buffer_{};
  std::size_t bufferBytes_ = 0;    // how many of them came from the file
  bool fileEnds_ = false;          // true: there are no more; false: there may be
  std::int32_t bufferOffset_ = 0;  // where in the file they begin
  std::size_t PosizioneBuffer_ = 0;
  std::array<char, kId3HeaderSize> start_{};
  std::int32_t sync_ = -1;

  Intestazione header_;
  std::uint8_t SyncShift_ = 0;
  std::vector<char> PrimoFrame_;
  std::int32_t HeaderPosition_ = 0;  // from 1
  bool IsVbr_ = false;
  bool HasId3v1_ = false;
  bool HasId3v2_ = false;
  std::int32_t Frames_ = 0;
  std::int32_t FileBytes_ = 0;
  std::int32_t Duration_ = 0;
  std::int32_t Bitrate_ = 0;
};

}  // namespace kvr5
