#include "platform/db/Column.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "platform/db/Names.h"
#include "platform/db/TimeOfDay.h"

namespace kvr5 {
namespace {

bool Contains(std::string_view type, std::string_view part) {
  for (std::size_t at = 0; at + part.size() <= type.size(); ++at) {
    if (SameName(type.substr(at, part.size()), part)) return true;
  }
  return false;
}

Result<std::int64_t> FromDigits(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return Error(errors::TypeMismatch);
  text = text.substr(first, text.find_last_not_of(' ') + 1 - first);
  std::int64_t whole = 0;
  const auto [end, outcome] = std::from_chars(text.data(), text.data() + text.size(), whole);
  if (outcome == std::errc::result_out_of_range) return Error(errors::Overflow);
  if (outcome != std::errc() || end != text.data() + text.size()) {
    return Error(errors::TypeMismatch);
  }
  return whole;
}

Result<std::int64_t> Rounded(double real) {
  constexpr double kBeyond = 9223372036854775808.0;
  const double rounded = std::nearbyint(real);
  if (!(rounded >= -kBeyond && rounded < kBeyond)) return Error(errors::Overflow);
  return static_cast<std::int64_t>(rounded);
}

}  // namespace

Column::Kind KindOf(std::string_view name, const char* declaredType) {
  if (declaredType == nullptr) return Column::Kind::Other;
  if (SameName(name, "StartTime")) return Column::Kind::Time;
  if (Contains(declaredType, "INT")) return Column::Kind::Whole;
  if (Contains(declaredType, "CHAR") || Contains(declaredType, "TEXT")) return Column::Kind::Text;
  return Column::Kind::Other;
}

Result<DbValue> Fitted(const Column& column, DbValue value) {
  if (IsNull(value)) return value;
  switch (column.Type) {
    case Column::Kind::Whole: {
      const Result<std::int64_t> whole = WholeNumber(value);
      if (!whole) return whole.Err();
      return DbValue(whole.Value());
    }
    case Column::Kind::Time: {
      const auto* const text = std::get_if<std::string>(&value);
      const std::optional<std::string> time = text != nullptr ? StoredTime(*text) : std::nullopt;
      if (!time) return Error(errors::TypeMismatch);
      return DbValue(*time);
    }
    case Column::Kind::Text:
      return DbValue(ValueText(value));
    case Column::Kind::Other:
      break;
  }
  return value;
}

Result<std::int64_t> WholeNumber(const DbValue& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
  if (const auto* real = std::get_if<double>(&value)) return Rounded(*real);
  if (const auto* text = std::get_if<std::string>(&value)) return FromDigits(*text);
  return Error(errors::TypeMismatch);
}

std::string ValueText(const DbValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (IsNull(value)) return "";
  std::array<char, 32> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), std::get<double>(value));
  return {digits.data(), end.ptr};
}

}  // namespace kvr5
