#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Error.h"

namespace kvr5 {

/// What the host's locale means to the program.
struct Locale {
  std::uint32_t Lcid = 1033;      ///< the user's default locale identifier; 1040 is Italian (Italy)
  int AnsiCodePage = 1252;        ///< code page of the system's text files
  std::string DecimalMark = ".";  ///< UTF-8
  std::string GroupMark = ",";    ///< UTF-8; may be empty

  /// The locale that the usual variables name: LC_MESSAGES for the language, LC_NUMERIC for the
  /// marks, LC_CTYPE for the code page, each after LC_ALL and before LANG. "C" and "POSIX" count
  /// as English (US). `variable` gives the value of a variable, or "" (tests pass their own).
  static Locale FromEnvironment(const std::function<std::string(const std::string&)>& variable);
  /// The same from the process's own environment.
  static Locale Host();
};

/// Rounds to the nearest integer, halves to the even neighbour.
double ArrotondaPari(double value);

/// The number that a text stands for where `IsNumeric` takes it: blanks around, a sign in front or
/// behind (or parentheses for a negative one), digits with the locale's marks, an exponent, "&H"
/// and "&O". Nothing when it isn't numeric or too large.
std::optional<double> TextToNumber(std::string_view text, const Locale& locale);

/// A text converted to a 16-bit integer: 13 when it isn't numeric, 6 when it doesn't fit; halves
/// go to the even neighbour.
Result<std::int16_t> TextToInt16(std::string_view text, const Locale& locale);
/// The same for a 32-bit integer.
Result<std::int32_t> TextToInt32(std::string_view text, const Locale& locale);

/// A number in the picture "00", "000" or "0000": `digits` digits at least, halves away from
/// zero, a negative value with its sign in front of the picture.
std::string FormatDigits(double value, int digits);
/// A number in the picture "#,##0" with the locale's group mark.
std::string FormatGrouped(double value, const Locale& locale);
/// A number in the picture "0.00" with the locale's decimal mark.
std::string FormatTwoDecimals(double value, const Locale& locale);
/// A number as the runtime joins it into a text: up to 15 significant digits, no trailing zeros,
/// the locale's decimal mark, no group marks.
std::string NumberToText(double value, const Locale& locale);

}  // namespace kvr5
