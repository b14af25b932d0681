#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "mp3/InfoMp3.h"

namespace kvr5 {

/// The fields of an MPEG audio frame header as raw numbers (ISO/IEC 11172-3, 2.4.1.3).
struct Intestazione {
  std::uint8_t Version = 0;
  std::uint8_t LayerBits = 0;
  std::uint8_t Protection = 0;
  std::uint8_t BitrateIndex = 0;
  std::uint8_t SampleRateIndex = 0;
  std::uint8_t Padding = 0;
  std::uint8_t Private = 0;
  std::uint8_t ChannelMode = 0;
  std::uint8_t ModeExtension = 0;
  std::uint8_t Copyright = 0;
  std::uint8_t Original = 0;
  std::uint8_t Emphasis = 0;

  /// Decodes the header whose first byte is `buffer[index]`. A field whose byte lies past the
  /// buffer keeps its value, and an error 9 is added to `failures` for it.
  void Decodifica(std::span<const char> buffer, std::size_t index, ErroriMp3& failures);

  /// True for a header that the reader takes: no reserved version, layer, bit rate or sample rate.
  /// Free format passes.
  bool Accettabile() const;

  std::int32_t Bitrate() const;     ///< bits per second, 0 for free format
  std::int32_t SampleRate() const;  ///< Hz; may be 0 for MPEG 2.5, see FrequenzaCampionamento
  std::int32_t Campioni() const;    ///< samples of the frame, for each channel
};

/// The frame's length in bytes, header included: rounded half to even, not truncated as decoders
/// do; 4 more for a padded frame of Layer 1, 1 more in the others. 0 when a rate is unknown.
std::int32_t LunghezzaFrame(const Intestazione& header);

/// True when two bytes begin an MPEG audio header.
constexpr bool IsSincronia(char first, char second) {
  return static_cast<unsigned char>(first) == 0xFF &&
         (static_cast<unsigned char>(second) & 0xE0) == 0xE0;
}

}  // namespace kvr5
