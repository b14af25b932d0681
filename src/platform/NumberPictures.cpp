// Numbers to texts, in the classic runtime's pictures.

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "platform/Locale.h"

namespace kvr5 {
namespace {

constexpr int kSignificant = 15;

/// A number of at least 0 as the runtime sees it: d.dd... times ten to the exponent.
struct Decimal {
  std::string Digits;  ///< 15 of them
  int Exponent;
};

Decimal ToDecimal(double magnitude) {
  std::array<char, 32> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                     std::chars_format::scientific, kSignificant - 1);
  const std::string_view text(buffer.data(), written.ptr);
  const std::size_t mark = text.find('e');
  Decimal decimal{std::string(text.substr(0, mark)), 0};
  decimal.Digits.erase(1, 1);
  const std::size_t exponent = text[mark + 1] == '+' ? mark + 2 : mark + 1;
  std::from_chars(text.data() + exponent, written.ptr, decimal.Exponent);
  return decimal;
}

std::string Padded(std::string digits, int length) {
  const auto wanted = static_cast<std::size_t>(std::max(length, 0));
  if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), '0');
  return digits;
}

void Increment(std::string& digits) {
  for (std::size_t i = digits.size(); i > 0; --i) {
    char& digit = digits[i - 1];
    if (digit != '9') {
      ++digit;
      return;
    }
    digit = '0';
  }
  digits.insert(0, 1, '1');
}

/// The digits of a number with `decimals` places and no mark; halves go away from zero. Rounding
/// works on the 15 digits that a person would see, so that 1.005 is 1.01.
std::string Rounded(double magnitude, int decimals) {
  const Decimal decimal = ToDecimal(magnitude);
  const int kept = decimal.Exponent + 1 + decimals;
  std::string digits;
  if (kept >= kSignificant) {
    digits = decimal.Digits + std::string(static_cast<std::size_t>(kept - kSignificant), '0');
  } else if (kept >= 0) {
    const auto count = static_cast<std::size_t>(kept);
    digits = decimal.Digits.substr(0, count);
    if (decimal.Digits[count] >= '5') Increment(digits);
  }
  return Padded(digits, decimals + 1);
}

/// Numbers without digits, in the runtime's words.
std::string NoNumber(double value) {
  if (std::isnan(value)) return "-1.#IND";
  return value < 0 ? "-1.#INF" : "1.#INF";
}

std::string Sign(double value) {
  return value < 0 ? "-" : "";
}

std::string WholeDigits(double value) {
  return Rounded(std::round(std::abs(value)), 0);
}

std::string Exponential(const std::string& digits, int exponent, const Locale& locale) {
  std::string text = digits.substr(0, 1);
  if (digits.size() > 1) text += locale.DecimalMark + digits.substr(1);
  text += exponent < 0 ? "E-" : "E+";
  return text + Padded(std::to_string(std::abs(exponent)), 2);
}

}  // namespace

std::string FormatDigits(double value, int digits) {
  if (!std::isfinite(value)) return NoNumber(value);
  return Sign(value) + Padded(WholeDigits(value), digits);
}

std::string FormatGrouped(double value, const Locale& locale) {
  if (!std::isfinite(value)) return NoNumber(value);
  const std::string digits = WholeDigits(value);
  std::string text = Sign(value);
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += locale.GroupMark;
    text += digits[i];
  }
  return text;
}

std::string FormatTwoDecimals(double value, const Locale& locale) {
  if (!std::isfinite(value)) return NoNumber(value);
  const std::string digits = Rounded(std::abs(value), 2);
  const std::size_t whole = digits.size() - 2;
  return Sign(value) + digits.substr(0, whole) + locale.DecimalMark + digits.substr(whole);
}

std::string NumberToText(double value, const Locale& locale) {
  if (!std::isfinite(value)) return NoNumber(value);
  if (value == 0) return "0";
  Decimal decimal = ToDecimal(std::abs(value));
  std::string& digits = decimal.Digits;
  digits.erase(digits.find_last_not_of('0') + 1);
  const int count = static_cast<int>(digits.size());
  const int exponent = decimal.Exponent;
  // The runtime shows at most 15 digits before the mark, and at most 15 behind it.
  if (exponent >= kSignificant || count - 1 - exponent > kSignificant) {
    return Sign(value) + Exponential(digits, exponent, locale);
  }
  if (exponent < 0) digits.insert(0, static_cast<std::size_t>(-exponent), '0');
  const auto whole = static_cast<std::size_t>(std::max(exponent, 0)) + 1;
  if (digits.size() <= whole) {
    return Sign(value) + digits + std::string(whole - digits.size(), '0');
  }
  return Sign(value) + digits.substr(0, whole) + locale.DecimalMark + digits.substr(whole);
}

}  // namespace kvr5
