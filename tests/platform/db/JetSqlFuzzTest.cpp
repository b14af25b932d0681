// Random statements made of the dialect's own words: whatever is taken must be harmless to SQLite.

#include <sqlite3.h>

#include <array>
#include <random>

#include "DatabaseTest.h"
#include "platform/db/JetSql.h"

namespace kvr5::test {
namespace {

constexpr std::array<std::string_view, 58> kWords{
    "SELECT", "SELECT", "SELECT",  "FROM",  "FROM",   "[List]", "[List]", "[HEAD]",   "WHERE",
    "WHERE",  "ORDER",  "BY",      "ASC",   "DESC",   "TOP",    "1",      "DISTINCT", "*",
    "*",      "(",      ")",       "(",     ")",      ",",      ",",      "=",        "=",
    "<>",     "<=",     "AND",     "OR",    "NOT",    "IS",     "NULL",   "ISNULL",   "INSERT",
    "INTO",   "VALUES", "UPDATE",  "SET",   "DELETE", "[Pos]",  "Alias",  "ID",       "[HEAD].[ID]",
    "'a'",    "\"b\"",  "#12.30#", "COUNT", "MAX",    "AS",     "INNER",  "JOIN",     "ON",
    "-",      "+",      "'",       ";"};

/// The beginnings without which next to nothing would be taken.
constexpr std::array<std::string_view, 6> kStarts{
    "SELECT * FROM [List] WHERE ", "SELECT ",
    "UPDATE [List] SET [Alias]=",  "DELETE * FROM [HEAD] WHERE ",
    "SELECT ID,(SELECT ",          "INSERT INTO [List] ([Pos]) VALUES ("};

class JetSqlFuzz : public DatabaseTest {};

TEST_F(JetSqlFuzz, TakesNothingThatSqliteRunsOtherwise) {
  std::mt19937 random(4711);
  int taken = 0;
  int prepared = 0;
  for (int round = 0; round < 60000; ++round) {
    std::string statement(kStarts[random() % kStarts.size()]);
    const bool query = statement.starts_with("SELECT");
    for (auto left = 1 + random() % 8; left > 0; --left) {
      statement.append(kWords[random() % kWords.size()]).append(random() % 4 == 0 ? "" : " ");
    }
    const Result<std::string> sql = TranslateJetSql(statement);
    if (!sql) {
      ASSERT_EQ(sql.Err().Number(), errors::BadStatement) << statement;
      continue;
    }
    ++taken;
    sqlite3_stmt* raw = nullptr;
    const char* rest = nullptr;
    const int outcome =
        sqlite3_prepare_v2(connection.Handle(), sql.Value().c_str(), -1, &raw, &rest);
    ASSERT_TRUE(outcome == SQLITE_OK || outcome == SQLITE_ERROR) << statement;
    if (outcome == SQLITE_OK) {
      ++prepared;
      EXPECT_EQ(std::string_view(rest), "") << statement;
      EXPECT_EQ(sqlite3_stmt_readonly(raw) != 0, query) << statement;
    } else {
      // Taken are only statements that name what isn't there, never such that SQLite can't read.
      const std::string words = sqlite3_errmsg(connection.Handle());
      EXPECT_EQ(words.find("syntax error"), std::string::npos) << statement << '\n' << sql.Value();
      EXPECT_EQ(words.find("unrecognized"), std::string::npos) << statement << '\n' << sql.Value();
    }
    sqlite3_finalize(raw);
  }
  EXPECT_GT(taken, 1000);
  EXPECT_GT(prepared, 500);
}

}  // namespace
}  // namespace kvr5::test
