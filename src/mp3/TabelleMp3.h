#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kvr5 {

/// The tables of the MPEG audio header (ISO/IEC 11172-3, 13818-3 and the unofficial MPEG 2.5), by
/// the raw bits of its fields. Values that no table holds give 0 or an empty text.

/// Raw version bits.
namespace versione_mpeg {
inline constexpr int Mpeg25 = 0;
inline constexpr int Riservata = 1;
inline constexpr int Mpeg2 = 2;
inline constexpr int Mpeg1 = 3;
}  // namespace versione_mpeg

/// The emphasis by its raw bits; 2 is reserved.
inline constexpr std::array<std::string_view, 4> NomiEnfasi{"No Emphasis", "50/15 ms", "",
                                                            "CCIT J.17"};

/// The channel mode's name.
constexpr std::string_view NomeModoCanale(std::int32_t mode) {
  constexpr std::array<std::string_view, 4> kNames{"Stereo", "Joint Stereo", "Dual Channel",
                                                   "Single Channel"};
  return mode >= 0 && mode <= 3 ? kNames.at(static_cast<std::size_t>(mode)) : std::string_view();
}

/// The version's name.
constexpr std::string_view NomeVersioneMpeg(std::int32_t version) {
  switch (version) {
    case versione_mpeg::Mpeg25:
      return "MPEG 2.5";
    case versione_mpeg::Mpeg2:
      return "MPEG 2";
    case versione_mpeg::Mpeg1:
      return "MPEG 1";
    default:
      return {};
  }
}

/// The layer as a number, from bits that count backwards.
constexpr std::uint8_t StratoMpeg(int layerBits) {
  return layerBits >= 1 && layerBits <= 3 ? static_cast<std::uint8_t>(4 - layerBits) : 0;
}

constexpr std::uint8_t NumeroCanali(int channelMode) {
  if (channelMode < 0 || channelMode > 3) return 0;
  return channelMode == 3 ? 1 : 2;
}

/// Samples that one frame decodes to, for each channel.
constexpr std::int32_t CampioniPerFrame(int version, int layerBits) {
  switch (StratoMpeg(layerBits)) {
    case 1:
      return 384;
    case 2:
      return 1152;
    case 3:
      return version == versione_mpeg::Mpeg1 ? 1152 : 576;
    default:
      return 0;
  }
}

/// Bits per second of a frame; index 0 (free format) gives 0.
constexpr std::int32_t BitrateFrame(int version, int layerBits, int bitrateIndex) {
  using Column = std::array<std::int16_t, 15>;  // kbit/s by index
  constexpr std::array<Column, 3> kMpeg1{
      Column{0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
      Column{0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
      Column{0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}};
  constexpr std::array<Column, 3> kMpeg2{
      Column{0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
      Column{0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},
      Column{0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}};
  const std::uint8_t layer = StratoMpeg(layerBits);
  if (layer == 0 || bitrateIndex < 0 || bitrateIndex > 14) return 0;
  const auto& columns = version == versione_mpeg::Mpeg1 ? kMpeg1 : kMpeg2;
  return columns.at(layer - 1U).at(static_cast<std::size_t>(bitrateIndex)) * 1000;
}

/// Hz of a frame. Of MPEG 2.5 the rate is picked by the *bit-rate* index: the figures that the
/// system has always shown for these files, and that keep them off the player, depend on it.
constexpr std::int32_t FrequenzaCampionamento(int version, int bitrateIndex, int sampleRateIndex) {
  using Row = std::array<std::int32_t, 3>;
  constexpr Row kMpeg1{44100, 48000, 32000};
  constexpr Row kMpeg2{22050, 24000, 16000};
  constexpr Row kMpeg25{11025, 12000, 8000};
  const int index = version == versione_mpeg::Mpeg25 ? bitrateIndex : sampleRateIndex;
  if (index < 0 || index > 2) return 0;
  const auto at = static_cast<std::size_t>(index);
  switch (version) {
    case versione_mpeg::Mpeg1:
      return kMpeg1.at(at);
    case versione_mpeg::Mpeg2:
      return kMpeg2.at(at);
    case versione_mpeg::Mpeg25:
      return kMpeg25.at(at);
    default:
      return 0;
  }
}

/// A 32-bit value with its four bytes in the opposite order.
constexpr std::uint32_t InvertiByte(std::uint32_t value) {
  return (value >> 24) | ((value >> 8) & 0xFF00U) | ((value << 8) & 0xFF0000U) | (value << 24);
}

}  // namespace kvr5
