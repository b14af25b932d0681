// The statements of the dialect; words, names and expressions are in JetExpressions.cpp.

#include <utility>

#include "platform/db/JetGrammar.h"

namespace kvr5 {
namespace jet {
namespace {

/// Adds an element to a list with commas.
void Append(std::string& list, std::string_view element) {
  if (!list.empty()) list += ", ";
  list += element;
}

}  // namespace

Result<JetStatement> Parser::Run() {
  std::optional<JetStatement> statement = Statement();
  if (statement && Peek().Kind != TokenKind::End) {
    Fail("more than a statement");
    statement.reset();
  }
  if (!statement) return BadStatement(reason_);
  return std::move(*statement);
}

std::optional<JetStatement> Parser::Statement() {
  if (Accept("SELECT")) return SelectStatement();
  if (Accept("INSERT")) return InsertStatement();
  if (Accept("UPDATE")) return UpdateStatement();
  if (Accept("DELETE")) return DeleteStatement();
  return Fail("SELECT, INSERT, UPDATE or DELETE expected");
}

std::optional<JetStatement> Parser::SelectStatement() {
  std::optional<Selection> selection = Select();
  if (!selection) return std::nullopt;
  JetStatement statement;
  statement.Sql = selection->Sql();
  statement.Updatable = selection->Plain && !selection->Distinct && selection->Tables.size() == 1;
  statement.Table = selection->Tables.front();
  statement.Columns = std::move(selection->Columns);
  statement.Rest = std::move(selection->Rest);
  return statement;
}

/// Behind the word SELECT.
std::optional<Selection> Parser::Select() {
  Selection selection;
  selection.Distinct = Accept("DISTINCT");
  std::string limit;
  if (!Top(limit)) return std::nullopt;
  // Aggregates belong to the columns of this SELECT, not to its conditions nor to those around it.
  Selection* const outer = std::exchange(selection_, &selection);
  const bool outerInside = std::exchange(insideAggregate_, false);
  const bool columns = SelectColumns(selection);
  selection_ = nullptr;
  const bool whole = columns && From(selection) && Where(selection.Rest) && OrderBy(selection);
  selection_ = outer;
  insideAggregate_ = outerInside;
  if (!whole) return std::nullopt;
  if (selection.Aggregate && selection.Bare) return Fail("a column beside an aggregate");
  selection.Rest += limit;
  return selection;
}

bool Parser::Top(std::string& limit) {
  if (!Accept("TOP")) return true;
  const bool whole = Peek().Kind == TokenKind::Number && Peek().Value.size() < 10 &&
                     Peek().Value.find('.') == std::string::npos;
  if (!whole) {
    Fail("TOP without a number");
    return false;
  }
  limit = " LIMIT " + Take().Value;
  return true;
}

bool Parser::SelectColumns(Selection& selection) {
  if (Accept("*")) {
    selection.Columns = "*";
    return true;
  }
  do {
    if (!SelectColumn(selection)) return false;
  } while (Accept(","));
  return true;
}

bool Parser::SelectColumn(Selection& selection) {
  const Parsed column = Condition();
  if (!column) return false;
  std::string name = column->What == Piece::Shape::Column ? column->Name : "";
  if (name.empty()) selection.Plain = false;
  if (Accept("AS")) {
    selection.Plain = false;
    std::optional<std::string> given = Name();
    if (!given) return false;
    name = std::move(*given);
  }
  Append(selection.Columns, column->Sql);
  if (!name.empty()) selection.Columns += " AS " + QuotedName(name);
  return true;
}

bool Parser::From(Selection& selection) {
  if (!Expect("FROM")) return false;
  std::optional<std::string> table = Table();
  if (!table) return false;
  selection.Rest = " FROM " + QuotedName(*table);
  selection.Tables.push_back(std::move(*table));
  while (Accept("INNER")) {
    if (!Expect("JOIN")) return false;
    table = Table();
    if (!table || !Expect("ON")) return false;
    const Parsed condition = Condition();
    if (!condition) return false;
    selection.Rest += " INNER JOIN " + QuotedName(*table) + " ON " + condition->Sql;
    selection.Tables.push_back(std::move(*table));
  }
  return true;
}

bool Parser::Where(std::string& sql) {
  if (!Accept("WHERE")) return true;
  const Parsed condition = Condition();
  if (!condition) return false;
  sql += " WHERE " + condition->Sql;
  return true;
}

bool Parser::OrderBy(Selection& selection) {
  std::string order;
  if (Accept("ORDER")) {
    if (!Expect("BY")) return false;
    if (selection.Aggregate) {
      Fail("an aggregate in order");
      return false;
    }
    do {
      const Parsed column = Column();
      if (!column) return false;
      Append(order, column->Sql);
      if (Accept("DESC")) {
        order += " DESC";
      } else {
        Accept("ASC");
      }
    } while (Accept(","));
  }
  // Rows that are equal so far come as they were added, the same on each run and host.
  if (!selection.Aggregate && !selection.Distinct) {
    for (const std::string& table : selection.Tables) {
      Append(order, QuotedName(table) + "." + QuotedName(kCounter));
    }
  }
  if (!order.empty()) selection.Rest += " ORDER BY " + order;
  return true;
}

std::optional<JetStatement> Parser::InsertStatement() {
  if (!Expect("INTO")) return std::nullopt;
  const std::optional<std::string> table = Table();
  if (!table || !Expect("(")) return std::nullopt;
  std::string columns;
  do {
    const std::optional<std::string> column = Target();
    if (!column) return std::nullopt;
    Append(columns, *column);
  } while (Accept(","));
  if (!Expect(")") || !Expect("VALUES") || !Expect("(")) return std::nullopt;
  std::string values;
  do {
    const Parsed value = Condition();
    if (!value) return std::nullopt;
    Append(values, value->Sql);
  } while (Accept(","));
  if (!Expect(")")) return std::nullopt;
  return Change(JetStatement::Verb::Insert,
                "INSERT INTO " + QuotedName(*table) + " (" + columns + ") VALUES (" + values + ")");
}

std::optional<JetStatement> Parser::UpdateStatement() {
  const std::optional<std::string> table = Table();
  if (!table || !Expect("SET")) return std::nullopt;
  std::string changes;
  do {
    const std::optional<std::string> column = Target();
    if (!column || !Expect("=")) return std::nullopt;
    const Parsed value = Condition();
    if (!value) return std::nullopt;
    Append(changes, *column + " = " + value->Sql);
  } while (Accept(","));
  std::string sql = "UPDATE " + QuotedName(*table) + " SET " + changes;
  if (!Where(sql)) return std::nullopt;
  return Change(JetStatement::Verb::Update, std::move(sql));
}

std::optional<JetStatement> Parser::DeleteStatement() {
  Accept("*");
  if (!Expect("FROM")) return std::nullopt;
  const std::optional<std::string> table = Table();
  if (!table) return std::nullopt;
  std::string sql = "DELETE FROM " + QuotedName(*table);
  if (!Where(sql)) return std::nullopt;
  return Change(JetStatement::Verb::Delete, std::move(sql));
}

JetStatement Parser::Change(JetStatement::Verb verb, std::string sql) const {
  JetStatement statement;
  statement.What = verb;
  statement.Sql = std::move(sql);
  statement.ByFileName = byFileName_;
  return statement;
}

}  // namespace jet

Result<JetStatement> ParseJetSql(std::string_view statement) {
  Result<std::vector<Token>> tokens = TokenizeJetSql(statement);
  if (!tokens) return tokens.Err();
  return jet::Parser(std::move(tokens.Value())).Run();
}

}  // namespace kvr5
