#include "playerconfig/Scale.h"

#include <array>
#include <cstddef>

namespace kvr5 {
namespace {

using Scale = std::array<std::string_view, 21>;

constexpr Scale kOutput{"OFF",    "-55 dB", "-35 dB", "-28 dB", "-23 dB", "-20 dB", "-17 dB",
                        "-14 dB", "-12 dB", "-10 dB", "-8 dB",  "-6 dB",  "-4 dB",  "-2 dB",
                        "0 dB",   "+2 dB",  "+4 dB",  "+6 dB",  "+8 dB",  "+10 dB", "+12 dB"};

constexpr Scale kLoudness{"0 dB",   "+0.5 dB", "+1 dB",  "+1.5 dB", "+2 dB",  "+2.5 dB", "+3 dB",
                          "+4 dB",  "+5 dB",   "+6 dB",  "+7 dB",   "+8 dB",  "+9 dB",   "+10 dB",
                          "+11 dB", "+12 dB",  "+13 dB", "+14 dB",  "+15 dB", "+16 dB",  "+17 dB"};

constexpr Scale kTone{"-12",   "-10 dB", "-8 dB", "-7 dB", "-6 dB", "-5 dB",  "-4 dB",
                      "-3 dB", "-2 dB",  "-1 dB", "0 dB",  "+1 dB", "+2 dB",  "+3 dB",
                      "+4 dB", "+5 dB",  "+6 dB", "+7 dB", "+8 dB", "+10 dB", "+12 dB"};

constexpr Scale kPercent{"OFF",  "2%",   "5%",   "9%",   "14%",  "20%",  "26%",
                         "33%",  "40%",  "48%",  "56%",  "66%",  "77%",  "88%",
                         "100%", "112%", "128%", "144%", "161%", "178%", "200%"};

std::string_view StepOf(const Scale& scale, int index) {
  const bool inside = index >= 0 && index < static_cast<int>(scale.size());
  return scale[inside ? static_cast<std::size_t>(index) : 0];
}

}  // namespace

std::string_view TestoScalaVolume(int indice) {
  return StepOf(kOutput, indice);
}
std::string_view TestoScalaLoudness(int indice) {
  return StepOf(kLoudness, indice);
}
std::string_view TestoScalaToni(int indice) {
  return StepOf(kTone, indice);
}
std::string_view TestoScalaPercento(int indice) {
  return StepOf(kPercent, indice);
}

}  // namespace kvr5
