// Texts to numbers, as the classic runtime's IsNumeric and its conversions take them.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

#include "platform/Digit.h"
#include "platform/Locale.h"

namespace kvr5 {
namespace {

struct Parsed {
  double Value = 0;
  bool Overflow = false;
};

/// Reads one number off a text, piece by piece; each piece is taken if it is there.
class NumberReader {
 public:
  NumberReader(std::string_view text, const Locale& locale) : rest_(text), locale_(locale) {}

  std::optional<Parsed> Parse() {
    TakePrefix();
    std::optional<Parsed> number;
    if (TakeEither("&H", "&h")) {
      number = TakeWhole(16);
    } else if (TakeEither("&O", "&o")) {
      number = TakeWhole(8);
    } else {
      number = TakeReal();
    }
    if (!number || !TakeSuffix()) return std::nullopt;
    if (negative_) number->Value = -number->Value;
    return number;
  }

 private:
  bool Take(std::string_view piece) {
    if (piece.empty() || !rest_.starts_with(piece)) return false;
    rest_.remove_prefix(piece.size());
    return true;
  }

  bool TakeEither(std::string_view a, std::string_view b) { return Take(a) || Take(b); }

  void TakeBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\n\v\f\r"), rest_.size()));
  }

  bool TakeSign() {
    if (Take("+")) return true;
    if (!Take("-")) return false;
    negative_ = true;
    return true;
  }

  void TakePrefix() {
    TakeBlanks();
    signed_ = TakeSign();
    if (!signed_ && Take("(")) parenthesis_ = negative_ = true;
    TakeBlanks();
  }

  /// What may follow the digits: blanks, a sign where none stood in front, the parenthesis.
  bool TakeSuffix() {
    TakeBlanks();
    if (parenthesis_ && !Take(")")) return false;
    if (!parenthesis_ && !signed_) TakeSign();
    TakeBlanks();
    return rest_.empty();
  }

  /// Digits of base 16 or 8; up to FFFF they are a 16-bit number, up to FFFFFFFF one of 32 bits,
  /// with its sign in the highest bit.
  std::optional<Parsed> TakeWhole(unsigned base) {
    const char* const end = rest_.data() + rest_.size();
    std::uint32_t bits = 0;
    const auto [stop, error] = std::from_chars(rest_.data(), end, bits, static_cast<int>(base));
    if (error == std::errc::invalid_argument) return std::nullopt;
    rest_.remove_prefix(static_cast<std::size_t>(stop - rest_.data()));
    if (error != std::errc()) return Parsed{0, true};
    if (bits <= 0xFFFF) return Parsed{static_cast<double>(static_cast<std::int16_t>(bits)), false};
    return Parsed{static_cast<double>(static_cast<std::int32_t>(bits)), false};
  }

  std::optional<Parsed> TakeReal() {
    std::string digits = TakeIntegerPart();
    const std::size_t integerDigits = digits.size();
    if (Take(locale_.DecimalMark)) TakeDigits(digits);
    if (digits.empty()) return std::nullopt;
    long exponent = 0;
    if (TakeEither("E", "e") || TakeEither("D", "d")) {
      const auto taken = TakeExponent();
      if (!taken) return std::nullopt;
      exponent = *taken;
    }
    // The mark is left out of `digits`; the exponent makes up for it.
    return Assemble(digits, exponent - static_cast<long>(digits.size() - integerDigits));
  }

  void TakeDigits(std::string& digits) {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsDigit);
    const auto count = static_cast<std::size_t>(end - rest_.begin());
    digits.append(rest_.substr(0, count));
    rest_.remove_prefix(count);
  }

  /// Group marks may stand anywhere behind the first digit, as the runtime has it.
  std::string TakeIntegerPart() {
    std::string digits;
    do {
      TakeDigits(digits);
    } while (!digits.empty() && TakeGroupMark());
    return digits;
  }

  bool TakeGroupMark() {
    const std::string& mark = locale_.GroupMark;
    if (mark.empty() || mark == locale_.DecimalMark) return false;
    if (mark == "\u2019" || mark == "'") return TakeEither("\u2019", "'");
    if (mark != "\u202F" && mark != "\u00A0" && mark != " ") return Take(mark);
    // The narrow blanks aren't on keyboards: any blank will do, if a digit follows.
    for (const std::string_view blank : {"\u202F", "\u00A0", " "}) {
      const bool follows = rest_.size() > blank.size() && IsDigit(rest_[blank.size()]);
      if (follows && Take(blank)) return true;
    }
    return false;
  }

  std::optional<long> TakeExponent() {
    const bool down = Take("-");
    if (!down) Take("+");
    std::string digits;
    TakeDigits(digits);
    if (digits.empty()) return std::nullopt;
    constexpr long kBeyondAll = 1'000'000'000;
    long exponent = kBeyondAll;
    std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    exponent = std::min(exponent, kBeyondAll);
    return down ? -exponent : exponent;
  }

  /// `digits` (at least one) times ten to the `exponent`.
  static Parsed Assemble(const std::string& digits, long exponent) {
    const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
    if (zeros == digits.size()) return {};
    const std::string text = digits.substr(zeros) + "e" + std::to_string(exponent);
    Parsed parsed;
    const auto outcome = std::from_chars(text.data(), text.data() + text.size(), parsed.Value);
    if (outcome.ec != std::errc()) {
      // Too large is an error, too small is zero.
      parsed.Overflow = static_cast<long>(digits.size() - zeros) + exponent > 0;
      parsed.Value = 0;
    }
    return parsed;
  }

  std::string_view rest_;
  const Locale& locale_;
  bool signed_ = false;
  bool negative_ = false;
  bool parenthesis_ = false;
};

template <typename Integer>
Result<Integer> ToInteger(std::string_view text, const Locale& locale) {
  const auto parsed = NumberReader(text, locale).Parse();
  if (!parsed) return Error(errors::TypeMismatch);
  const double rounded = ArrotondaPari(parsed->Value);
  if (parsed->Overflow || rounded < std::numeric_limits<Integer>::min() ||
      rounded > std::numeric_limits<Integer>::max()) {
    return Error(errors::Overflow);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

// The floating-point environment's standing mode is to the even neighbour; nobody changes it.
double ArrotondaPari(double value) {
  return std::nearbyint(value);
}

std::optional<double> TextToNumber(std::string_view text, const Locale& locale) {
  const auto parsed = NumberReader(text, locale).Parse();
  if (!parsed || parsed->Overflow) return std::nullopt;
  return parsed->Value;
}

Result<std::int16_t> TextToInt16(std::string_view text, const Locale& locale) {
  return ToInteger<std::int16_t>(text, locale);
}

Result<std::int32_t> TextToInt32(std::string_view text, const Locale& locale) {
  return ToInteger<std::int32_t>(text, locale);
}

}  // namespace kvr5
