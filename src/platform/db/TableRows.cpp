#include "platform/db/TableRows.h"

#include "platform/db/Database.h"
#include "platform/db/Statement.h"

namespace kvr5 {

TableRows::TableRows(Connection& connection, const std::string& table,
                     const std::vector<std::string>& columns)
    : database_(connection.Base()), count_("SELECT COUNT(*) FROM " + table) {
  std::string names;
  std::string marks;
  for (const std::string& column : columns) {
    names += (names.empty() ? "" : ",") + column;
    marks += marks.empty() ? "?" : ",?";
  }
  insert_ = "INSERT INTO " + table + "(" + names + ") VALUES(" + marks + ")";
  select_ = "SELECT " + names + " FROM " + table + " WHERE " + columns.front() + "=?";
}

Error TableRows::Add(const std::vector<DbValue>& values) {
  sqlite3_stmt* const statement = database_ ? database_->Prepared(insert_) : nullptr;
  if (statement == nullptr) return Error(errors::CannotOpen);
  const ResetAtEnd reset(statement);
  for (std::size_t i = 0; i < values.size(); ++i) {
    BindValue(statement, static_cast<int>(i + 1), values[i]);
  }
  return database_->Change(statement);
}

bool TableRows::Holds(const std::vector<DbValue>& values) {
  sqlite3_stmt* const statement = database_ ? database_->Prepared(select_) : nullptr;
  if (statement == nullptr) return false;
  const ResetAtEnd reset(statement);
  BindValue(statement, 1, values.front());
  if (sqlite3_step(statement) != SQLITE_ROW) return false;
  DbValue stored;
  for (std::size_t i = 0; i < values.size(); ++i) {
    ReadValue(statement, static_cast<int>(i), stored);
    if (stored != values[i]) return false;
  }
  return true;
}

std::int64_t TableRows::Count() {
  sqlite3_stmt* const statement = database_ ? database_->Prepared(count_) : nullptr;
  if (statement == nullptr) return -1;
  const ResetAtEnd reset(statement);
  return sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int64(statement, 0) : -1;
}

}  // namespace kvr5
