// Words, names and expressions of the dialect; its statements are in JetStatements.cpp.

#include "platform/db/JetGrammar.h"

namespace kvr5::jet {
namespace {

using Names = std::span<const std::string_view>;

constexpr std::array<std::string_view, 2> kTables{"List", "HEAD"};
constexpr std::array<std::string_view, 5> kAggregates{"COUNT", "MAX", "MIN", "SUM", "AVG"};
constexpr std::array<std::string_view, 24> kKeywords{
    "SELECT", "DISTINCT", "TOP",  "FROM", "INNER",  "JOIN",   "ON",     "WHERE",
    "ORDER",  "BY",       "ASC",  "DESC", "AS",     "AND",    "OR",     "NOT",
    "IS",     "NULL",     "INTO", "SET",  "INSERT", "VALUES", "UPDATE", "DELETE"};
/// SQLite's own names for the row number, which no table of ours has as columns.
constexpr std::array<std::string_view, 3> kRowNumbers{"rowid", "oid", "_rowid_"};
/// Parentheses, NOT and signs within each other; far more than any statement has.
constexpr int kDeepest = 40;

}  // namespace

std::string Enclosed(std::string_view text, char quote) {
  std::string enclosed(1, quote);
  for (const char c : text) {
    if (c == quote) enclosed += quote;
    enclosed += c;
  }
  return enclosed += quote;
}

// ---- words

Token Parser::Take() {
  Token token = tokens_[at_];
  if (token.Kind != TokenKind::End) ++at_;
  return token;
}

bool Parser::IsWord(std::string_view word) const {
  return Peek().Kind == TokenKind::Word && SameName(Peek().Value, word);
}

bool Parser::IsSymbol(std::string_view symbol) const {
  return Peek().Kind == TokenKind::Symbol && Peek().Value == symbol;
}

bool Parser::IsCall() const {
  return Peek().Kind == TokenKind::Word && tokens_[at_ + 1].Kind == TokenKind::Symbol &&
         tokens_[at_ + 1].Value == "(";
}

bool Parser::Accept(std::string_view expected) {
  if (!IsWord(expected) && !IsSymbol(expected)) return false;
  ++at_;
  return true;
}

bool Parser::Expect(std::string_view expected) {
  if (Accept(expected)) return true;
  Fail(std::string(expected) + " expected");
  return false;
}

std::nullopt_t Parser::Fail(std::string_view reason) {
  if (reason_.empty()) reason_ = reason;
  return std::nullopt;
}

// ---- names

std::optional<std::string> Parser::Name() {
  const bool word = Peek().Kind == TokenKind::Word && !IsOneOf(Peek().Value, kKeywords);
  if (!word && Peek().Kind != TokenKind::Name) return Fail("name expected");
  std::string name = Take().Value;
  if (IsOneOf(name, kRowNumbers)) return Fail("unknown column");
  return name;
}

std::optional<std::string> Parser::Table() {
  const std::optional<std::string> name = Name();
  if (!name) return std::nullopt;
  for (const std::string_view table : kTables) {
    if (SameName(*name, table)) return std::string(table);
  }
  return Fail("unknown table");
}

Parsed Parser::Column() {
  std::optional<std::string> name = Name();
  if (!name) return std::nullopt;
  std::string sql = QuotedName(*name);
  if (Accept(".")) {
    name = Name();
    if (!name) return std::nullopt;
    sql += "." + QuotedName(*name);
  }
  return Piece{std::move(sql), Piece::Shape::Column, std::move(*name)};
}

std::optional<std::string> Parser::Target() {
  const std::optional<std::string> name = Name();
  if (!name) return std::nullopt;
  if (SameName(*name, kCounter)) return Fail("the counter is given by the database");
  return QuotedName(*name);
}

// ---- expressions

Parsed Parser::Condition() {
  Parsed left = Conjunction();
  while (left && Accept("OR")) left = Joined(*left, " OR ", Conjunction());
  return left;
}

Parsed Parser::Conjunction() {
  Parsed left = Negation();
  while (left && Accept("AND")) left = Joined(*left, " AND ", Negation());
  return left;
}

Parsed Parser::Negation() {
  if (!Accept("NOT")) return Comparison();
  if (++depth_ > kDeepest) return Fail("too deep");
  const Parsed inner = Negation();
  --depth_;
  if (!inner) return std::nullopt;
  return Piece{"(NOT " + inner->Sql + ")"};
}

Parsed Parser::Comparison() {
  Parsed left = Sum();
  while (left) {
    if (Accept("IS")) {
      const bool negated = Accept("NOT");
      if (!Expect("NULL")) return std::nullopt;
      left = Piece{"(" + left->Sql + (negated ? " IS NOT NULL)" : " IS NULL)")};
    } else if (Peek().Kind == TokenKind::Symbol && IsOneOf(Peek().Value, kComparisons)) {
      left = Compared(*left);
    } else {
      break;
    }
  }
  return left;
}

Parsed Parser::Compared(const Piece& left) {
  const std::string comparison = Take().Value;
  const Parsed right = Sum();
  const bool text = right && right->What == Piece::Shape::Text;
  if (text && comparison == "=" && SameName(left.Name, "FileName")) byFileName_ = true;
  return Joined(left, " " + comparison + " ", right);
}

Parsed Parser::Sum() {
  Parsed left = Product();
  while (left && (IsSymbol("+") || IsSymbol("-"))) {
    const std::string sign = Take().Value;
    left = Calculated(*left, sign, Product());
  }
  return left;
}

Parsed Parser::Product() {
  Parsed left = Signed();
  while (left && Accept("*")) left = Calculated(*left, "*", Signed());
  return left;
}

Parsed Parser::Signed() {
  if (!Accept("-")) return Operand();
  if (++depth_ > kDeepest) return Fail("too deep");
  const Parsed inner = Signed();
  --depth_;
  if (!inner) return std::nullopt;
  if (inner->What == Piece::Shape::Text) return Fail("calculating with a text");
  return Piece{"(- " + inner->Sql + ")"};
}

Parsed Parser::Joined(const Piece& left, std::string_view sign, const Parsed& right) {
  if (!right) return std::nullopt;
  return Piece{"(" + left.Sql + std::string(sign) + right->Sql + ")"};
}

Parsed Parser::Calculated(const Piece& left, std::string_view sign, const Parsed& right) {
  if (left.What == Piece::Shape::Text || (right && right->What == Piece::Shape::Text)) {
    return Fail("calculating with a text");
  }
  return Joined(left, " " + std::string(sign) + " ", right);
}

Parsed Parser::Operand() {
  switch (Peek().Kind) {
    case TokenKind::Text:
    case TokenKind::Time:
      return Piece{Enclosed(Take().Value, '\''), Piece::Shape::Text};
    case TokenKind::Number:
      return Piece{Take().Value};
    case TokenKind::Symbol:
      return Parenthesis();
    case TokenKind::Word:
      if (Accept("NULL")) return Piece{"NULL"};
      if (IsCall()) return Function();
      break;
    case TokenKind::Name:
    case TokenKind::End:
      break;
  }
  Parsed column = Column();
  if (selection_ != nullptr && !insideAggregate_) selection_->Bare = true;
  return column;
}

Parsed Parser::Parenthesis() {
  if (!Expect("(")) return std::nullopt;
  if (++depth_ > kDeepest) return Fail("too deep");
  Parsed inner;
  if (Accept("SELECT")) {
    const std::optional<Selection> subselect = Select();
    if (subselect) inner = Piece{subselect->Sql()};
  } else {
    inner = Condition();
  }
  --depth_;
  if (!inner || !Expect(")")) return std::nullopt;
  // A column in parentheses is an expression: it has no name of its own in a result.
  const bool text = inner->What == Piece::Shape::Text;
  return Piece{"(" + inner->Sql + ")", text ? Piece::Shape::Text : Piece::Shape::Other,
               std::move(inner->Name)};
}

Parsed Parser::Function() {
  const std::string name = Take().Value;
  if (SameName(name, "ISNULL")) {
    const Parsed inner = Parenthesis();
    if (!inner) return std::nullopt;
    return Piece{"(" + inner->Sql + " IS NULL)"};
  }
  if (!IsOneOf(name, kAggregates)) return Fail("unknown function");
  return Aggregate(name);
}

Parsed Parser::Aggregate(const std::string& name) {
  if (selection_ == nullptr || insideAggregate_) return Fail("an aggregate has no place here");
  selection_->Aggregate = true;
  Take();  // the parenthesis
  if (SameName(name, "COUNT") && Accept("*")) {
    if (!Expect(")")) return std::nullopt;
    return Piece{"COUNT(*)"};
  }
  insideAggregate_ = true;
  const Parsed inner = Condition();
  insideAggregate_ = false;
  if (!inner || !Expect(")")) return std::nullopt;
  return Piece{name + "(" + inner->Sql + ")"};
}

}  // namespace kvr5::jet
