#include "platform/db/Criterion.h"

#include <charconv>
#include <compare>
#include <optional>
#include <vector>

#include "platform/db/Collation.h"
#include "platform/db/DbError.h"
#include "platform/db/JetGrammar.h"

namespace kvr5 {
namespace {

std::optional<DbValue> NumberValue(const std::string& digits, bool negative) {
  const std::string text = (negative ? "-" : "") + digits;
  const char* const end = text.data() + text.size();
  std::int64_t whole = 0;
  const auto asWhole = std::from_chars(text.data(), end, whole);
  if (asWhole.ec == std::errc() && asWhole.ptr == end) return DbValue(whole);
  double real = 0;
  const auto asReal = std::from_chars(text.data(), end, real);
  if (asReal.ec == std::errc() && asReal.ptr == end) return DbValue(real);
  return std::nullopt;
}

std::optional<DbValue> OperandValue(Token& operand, bool negative) {
  if (operand.Kind == TokenKind::Number) return NumberValue(operand.Value, negative);
  if (negative) return std::nullopt;
  if (operand.Kind != TokenKind::Text && operand.Kind != TokenKind::Time) return std::nullopt;
  return DbValue(std::move(operand.Value));
}

double AsReal(const DbValue& number) {
  if (const auto* whole = std::get_if<std::int64_t>(&number)) return static_cast<double>(*whole);
  return std::get<double>(number);
}

/// How two values stand to each other; unordered when one is Null or they are of two kinds.
std::partial_ordering Compare(const DbValue& a, const DbValue& b) {
  if (IsNull(a) || IsNull(b)) return std::partial_ordering::unordered;
  const auto* const textA = std::get_if<std::string>(&a);
  const auto* const textB = std::get_if<std::string>(&b);
  if (textA != nullptr && textB != nullptr) return CompareNoCase(*textA, *textB) <=> 0;
  if (textA != nullptr || textB != nullptr) return std::partial_ordering::unordered;
  const auto* const wholeA = std::get_if<std::int64_t>(&a);
  const auto* const wholeB = std::get_if<std::int64_t>(&b);
  if (wholeA != nullptr && wholeB != nullptr) return *wholeA <=> *wholeB;
  return AsReal(a) <=> AsReal(b);
}

}  // namespace

bool Criterion::IsMetBy(const DbValue& value) const {
  const std::partial_ordering order = Compare(value, Operand);
  if (order == std::partial_ordering::unordered) return false;
  if (std::is_lt(order)) return Comparison.front() == '<';
  if (std::is_gt(order)) return Comparison == ">" || Comparison == ">=" || Comparison == "<>";
  return Comparison.back() == '=';
}

bool Criterion::Suits(const Column& column) const {
  const bool text = std::holds_alternative<std::string>(Operand);
  switch (column.Type) {
    case Column::Kind::Whole:
      return !text;
    case Column::Kind::Text:
    case Column::Kind::Time:
      return text;
    case Column::Kind::Other:
      break;
  }
  return true;
}

Result<Criterion> ParseCriterion(std::string_view criterion) {
  const Error bad = DbError(errors::BadCriterion);
  Result<std::vector<Token>> words = TokenizeJetSql(criterion);
  if (!words) return bad;
  std::vector<Token>& tokens = words.Value();
  const bool negative =
      tokens.size() > 2 && tokens[2].Kind == TokenKind::Symbol && tokens[2].Value == "-";
  const std::size_t operand = negative ? 3 : 2;
  if (tokens.size() != operand + 2) return bad;
  if (tokens[0].Kind != TokenKind::Word && tokens[0].Kind != TokenKind::Name) return bad;
  if (tokens[1].Kind != TokenKind::Symbol || !jet::IsOneOf(tokens[1].Value, jet::kComparisons)) {
    return bad;
  }
  std::optional<DbValue> value = OperandValue(tokens[operand], negative);
  if (!value) return bad;
  return Criterion{std::move(tokens[0].Value), std::move(tokens[1].Value), std::move(*value)};
}

}  // namespace kvr5
