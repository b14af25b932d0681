#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace kvr5 {

/// What the reader tells of one MP3 file. When `Valid` is false every other field is zero.
struct InfoMp3 {
  bool Valid = false;             ///< the first sync in reach is an acceptable frame header
  std::int32_t Version = 0;       ///< raw bits: 0 MPEG 2.5, 2 MPEG 2, 3 MPEG 1
  std::uint8_t Layer = 0;         ///< 1, 2 or 3
  std::int32_t Bitrate = 0;       ///< bits per second; of a VBR file the average, in whole 1000
  std::int32_t SampleRate = 0;    ///< Hz
  std::uint8_t Channels = 0;      ///< 1 or 2
  std::int32_t ChannelMode = 0;   ///< raw bits: 0 stereo, 1 joint stereo, 2 dual, 3 single channel
  std::int32_t Emphasis = 0;      ///< raw bits, 0 to 3
  bool IsVbr = false;             ///< judged variable bit rate
  bool HasId3v1 = false;          ///< "TAG" stands at the 128th byte from the end
  bool HasId3v2 = false;          ///< "ID3" stands at the very start
  bool Private = false;           ///< private bit of the header
  bool Original = false;          ///< original bit of the header
  std::int32_t Frames = 0;        ///< from the VBR tag, or estimated
  std::int32_t FileBytes = 0;     ///< audio bytes from the VBR tag, or from the file's length
  std::int32_t Duration = 0;      ///< whole seconds
  std::int32_t HeaderOffset = 0;  ///< offset of the first header in the file, from 0

  bool operator==(const InfoMp3&) const = default;
};

/// A failure that the reader passed over.
struct ErroreMp3 {
  std::string_view Luogo;  ///< the statement that was skipped, such as "LeggiTagVbr.Duration"
  int Numero = 0;          ///< number of the classic runtime, see `errors`

  bool operator==(const ErroreMp3&) const = default;
};

/// The failures of one analysis in the order in which they happened.
using ErroriMp3 = std::vector<ErroreMp3>;

/// Where the search for the first frame ended: tells why a file was refused, decides nothing.
struct RicercaMp3 {
  /// Offset in the file of the only candidate for a header, or -1 when no sync was in reach.
  std::int32_t Sincronia = -1;
  /// Length in bytes of the ID3v2 tag at the start, its header included; 0 without one.
  std::int32_t LunghezzaId3v2 = 0;
};

}  // namespace kvr5
