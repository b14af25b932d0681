#include "mp3/Intestazione.h"

#include <array>

#include "mp3/TabelleMp3.h"
#include "platform/Error.h"
#include "platform/Locale.h"

namespace kvr5 {
namespace {

/// Where a field of the header lies, and under which name its failure is told.
struct Campo {
  std::uint8_t Intestazione::*Field;
  std::uint8_t Byte;
  std::uint8_t Shift;
  std::uint8_t Mask;
  std::string_view Luogo;
};

constexpr std::array kCampi{
    Campo{&Intestazione::Version, 1, 3, 0x03, "LeggiIntestazione.Version"},
    Campo{&Intestazione::LayerBits, 1, 1, 0x03, "LeggiIntestazione.LayerBits"},
    Campo{&Intestazione::Protection, 1, 0, 0x01, "LeggiIntestazione.Protection"},
    Campo{&Intestazione::BitrateIndex, 2, 4, 0x0F, "LeggiIntestazione.BitrateIndex"},
    Campo{&Intestazione::SampleRateIndex, 2, 2, 0x03, "LeggiIntestazione.SampleRateIndex"},
    Campo{&Intestazione::Padding, 2, 1, 0x01, "LeggiIntestazione.Padding"},
    Campo{&Intestazione::Private, 2, 0, 0x01, "LeggiIntestazione.Private"},
    Campo{&Intestazione::ChannelMode, 3, 6, 0x03, "LeggiIntestazione.ChannelMode"},
    Campo{&Intestazione::ModeExtension, 3, 4, 0x03, "LeggiIntestazione.ModeExtension"},
    Campo{&Intestazione::Copyright, 3, 3, 0x01, "LeggiIntestazione.Copyright"},
    Campo{&Intestazione::Original, 3, 2, 0x01, "LeggiIntestazione.Original"},
    Campo{&Intestazione::Emphasis, 3, 0, 0x03, "LeggiIntestazione.Emphasis"},
};

}  // namespace

void Intestazione::Decodifica(std::span<const char> buffer, std::size_t index,
                              ErroriMp3& failures) {
  for (const Campo& campo : kCampi) {
    const std::size_t at = index + campo.Byte;
    if (at >= buffer.size()) {
      failures.push_back({campo.Luogo, errors::SubscriptOutOfRange});
      continue;
    }
    const unsigned byte = static_cast<unsigned char>(buffer[at]);
    this->*campo.Field = static_cast<std::uint8_t>((byte >> campo.Shift) & campo.Mask);
  }
}

bool Intestazione::Accettabile() const {
  return Version != versione_mpeg::Riservata && BitrateIndex != 15 && SampleRateIndex < 3 &&
         LayerBits != 0;
}

std::int32_t Intestazione::Bitrate() const {
  return BitrateFrame(Version, LayerBits, BitrateIndex);
}

std::int32_t Intestazione::SampleRate() const {
  return FrequenzaCampionamento(Version, BitrateIndex, SampleRateIndex);
}

std::int32_t Intestazione::Campioni() const {
  return CampioniPerFrame(Version, LayerBits);
}

std::int32_t LunghezzaFrame(const Intestazione& header) {
  const std::int32_t bitrate = header.Bitrate();
  const std::int32_t sampleRate = header.SampleRate();
  if (bitrate == 0 || sampleRate == 0) return 0;
  const double length = ArrotondaPari(header.Campioni() / 8.0 * bitrate / sampleRate);
  const int padding = StratoMpeg(header.LayerBits) == 1 ? 4 : 1;
  return static_cast<std::int32_t>(length) + (header.Padding != 0 ? padding : 0);
}

}  // namespace kvr5
