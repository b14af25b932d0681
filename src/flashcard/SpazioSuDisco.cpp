#include "flashcard/SpazioSuDisco.h"

#include <cstdint>

namespace kvr5 {
namespace {

std::string Line(std::string_view heading, std::uint64_t bytes, const Locale& locale) {
  constexpr double kGigabyte = 1024.0 * 1024.0 * 1024.0;
  return std::string(heading) + std::to_string(bytes) + " bytes (" +
         FormatTwoDecimals(static_cast<double>(bytes) / kGigabyte, locale) + " G) ";
}

}  // namespace

std::string SpazioSuDisco(const Contesto& contesto, std::string_view percorso) {
  const auto asked = contesto.Files.Space(percorso);
  const VolumeSpace space = asked ? asked.Value() : VolumeSpace{};
  const Locale& locale = contesto.Luogo;
  return Line("Available Space:  ", space.Available, locale) + "\r\n" +
         Line("Total Space:      ", space.Total, locale) + "\r\n" +
         Line("Free Space:       ", space.Free, locale);
}

}  // namespace kvr5
