#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"
#include "platform/db/JetParser.h"
#include "platform/db/JetTokens.h"
#include "platform/db/Names.h"

namespace kvr5::jet {

inline constexpr std::array<std::string_view, 6> kComparisons{"=", "<>", "<", ">", "<=", ">="};
/// The column that counts the rows of each table.
inline constexpr std::string_view kCounter = "ID";

inline bool IsOneOf(std::string_view name, std::span<const std::string_view> names) {
  for (const std::string_view other : names) {
    if (SameName(name, other)) return true;
  }
  return false;
}

/// The text between quotes of this kind, with those inside doubled.
std::string Enclosed(std::string_view text, char quote);

inline std::string QuotedName(std::string_view name) {
  return Enclosed(name, '"');
}

/// A part of an expression in SQLite's words.
struct Piece {
  enum class Shape { Column, Text, Other };

  std::string Sql;
  Shape What = Shape::Other;
  std::string Name = {};  ///< of a column
};

using Parsed = std::optional<Piece>;

/// A SELECT in the making.
struct Selection {
  bool Distinct = false;
  bool Aggregate = false;  ///< an aggregate is among the columns
  bool Bare = false;       ///< so is a column outside of one
  bool Plain = true;       ///< nothing but columns under their own names
  std::string Columns;
  std::string Rest;
  std::vector<std::string> Tables;

  std::string Sql() const { return (Distinct ? "SELECT DISTINCT " : "SELECT ") + Columns + Rest; }
};

/// Recursive descent over the words of one statement. Each method either takes what it is named
/// after and returns it in SQLite's words, or notes the reason and returns nothing.
class Parser {
 public:
  explicit Parser(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

  Result<JetStatement> Run();

 private:
  // Words
  const Token& Peek() const { return tokens_[at_]; }
  Token Take();
  bool IsWord(std::string_view word) const;
  bool IsSymbol(std::string_view symbol) const;
  bool IsCall() const;
  /// Takes the next word if it is this one.
  bool Accept(std::string_view expected);
  bool Expect(std::string_view expected);
  /// Keeps the first reason.
  std::nullopt_t Fail(std::string_view reason);

  // Names
  std::optional<std::string> Name();
  /// A table's name as the schema spells it.
  std::optional<std::string> Table();
  Parsed Column();
  /// The name of a column that a statement may write to.
  std::optional<std::string> Target();

  // Expressions, from the loosest operator to the tightest
  Parsed Condition();
  Parsed Conjunction();
  Parsed Negation();
  Parsed Comparison();
  Parsed Compared(const Piece& left);
  Parsed Sum();
  Parsed Product();
  Parsed Signed();
  Parsed Operand();
  /// An expression or a subselect in parentheses.
  Parsed Parenthesis();
  Parsed Function();
  Parsed Aggregate(const std::string& name);
  static Parsed Joined(const Piece& left, std::string_view sign, const Parsed& right);
  /// As Joined; texts have no place in sums and products.
  Parsed Calculated(const Piece& left, std::string_view sign, const Parsed& right);

  // Statements
  std::optional<JetStatement> Statement();
  std::optional<JetStatement> SelectStatement();
  std::optional<JetStatement> InsertStatement();
  std::optional<JetStatement> UpdateStatement();
  std::optional<JetStatement> DeleteStatement();
  JetStatement Change(JetStatement::Verb verb, std::string sql) const;

  // Parts of statements
  std::optional<Selection> Select();
  bool Top(std::string& limit);
  bool SelectColumns(Selection& selection);
  bool SelectColumn(Selection& selection);
  bool From(Selection& selection);
  bool Where(std::string& sql);
  bool OrderBy(Selection& selection);

  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  int depth_ = 0;
  Selection* selection_ = nullptr;  ///< the SELECT whose columns are being read
  bool insideAggregate_ = false;
  bool byFileName_ = false;
  std::string reason_;
};

}  // namespace kvr5::jet
