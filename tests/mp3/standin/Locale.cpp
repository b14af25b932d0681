// Linked only until the platform's own number texts are there (see the CMake file): the plain
// cases of four of its functions.
#include "platform/Locale.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace kvr5 {

double ArrotondaPari(double value) {
  return std::nearbyint(value);
}

std::string FormatDigits(double value, int digits) {
  std::array<char, 400> text{};
  const int size =
      std::snprintf(text.data(), text.size(), "%0*.0f", digits, std::round(std::fabs(value)));
  std::string result(value < 0 ? "-" : "");
  return result.append(text.data(), static_cast<std::size_t>(size));
}

std::string FormatGrouped(double value, const Locale& locale) {
  std::string text = FormatDigits(value, 1);
  const std::size_t first = text.starts_with('-') ? 1 : 0;
  for (std::size_t at = text.size(); at > first + 3;) {
    at -= 3;
    text.insert(at, locale.GroupMark);
  }
  return text;
}

std::string NumberToText(double value, const Locale& locale) {
  std::array<char, 64> text{};
  const int size = std::snprintf(text.data(), text.size(), "%.15g", value);
  std::string result(text.data(), static_cast<std::size_t>(size));
  if (const auto mark = result.find('.'); mark != std::string::npos) {
    result.replace(mark, 1, locale.DecimalMark);
  }
  return result;
}

}  // namespace kvr5
