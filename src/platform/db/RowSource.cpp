#include "platform/db/RowSource.h"

#include "platform/db/DbError.h"
#include "platform/db/JetGrammar.h"
#include "platform/db/Names.h"
#include "platform/db/Statement.h"

namespace kvr5 {
namespace {

std::string Parameter(std::size_t number) {
  return "?" + std::to_string(number);
}

std::string WhereKey(std::size_t parameter) {
  return " WHERE " + jet::QuotedName(jet::kCounter) + "=" + Parameter(parameter);
}

}  // namespace

RowSource::RowSource(std::shared_ptr<Database> database, JetStatement query)
    : database_(std::move(database)),
      query_(std::move(query)),
      readOne_("SELECT " + query_.Columns + " FROM " + jet::QuotedName(query_.Table) + WhereKey(1)),
      window_(*database_, readOne_) {}

Result<std::unique_ptr<RowSource>> RowSource::Open(std::shared_ptr<Database> database,
                                                   JetStatement query) {
  std::unique_ptr<RowSource> source(new RowSource(std::move(database), std::move(query)));
  if (Error error = source->ReadColumns()) return error;
  if (Error error = source->Load()) return error;
  return source;
}

Error RowSource::ReadColumns() {
  const std::string& sql = IsUpdatable() ? readOne_ : query_.Sql;
  const Result<StatementPtr> statement = database_->Prepare(sql);
  if (!statement) return statement.Err();
  sqlite3_stmt* const raw = statement.Value().get();
  for (int i = 0; i < sqlite3_column_count(raw); ++i) {
    const char* const name = sqlite3_column_name(raw, i);
    columns_.push_back({name, KindOf(name, sqlite3_column_decltype(raw, i))});
  }
  return {};
}

std::optional<std::size_t> RowSource::Find(std::string_view column) const {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (SameName(columns_[i].Name, column)) return i;
  }
  return std::nullopt;
}

Error RowSource::Load() {
  const Result<StatementPtr> statement = database_->Prepare(
      IsUpdatable() ? "SELECT " + jet::QuotedName(jet::kCounter) + query_.Rest : query_.Sql);
  if (!statement) return statement.Err();
  sqlite3_stmt* const raw = statement.Value().get();
  Keyset rows;
  std::vector<RowValues> copies;
  int outcome = sqlite3_step(raw);
  for (; outcome == SQLITE_ROW; outcome = sqlite3_step(raw)) {
    if (IsUpdatable()) {
      rows.Append(sqlite3_column_int64(raw, 0));
    } else {
      rows.Append(static_cast<std::int64_t>(copies.size()));
      ReadRow(raw, copies.emplace_back());
    }
  }
  if (outcome != SQLITE_DONE) return database_->Failure();
  rows_ = std::move(rows);
  window_.Clear();
  copies_ = std::move(copies);
  return {};
}

Result<const RowValues*> RowSource::Read(std::size_t slot) {
  if (!IsUpdatable()) return &copies_[slot];
  Result<const RowValues*> row = window_.Read(rows_, slot);
  if (row && row.Value() == nullptr) rows_.Remove(slot);
  return row;
}

Error RowSource::ChangeRow(std::size_t slot, const std::string& sql, const RowChanges& values) {
  sqlite3_stmt* const statement = database_->Prepared(sql);
  if (statement == nullptr) return database_->Failure();
  const ResetAtEnd reset(statement);
  int parameter = 0;
  for (const auto& [column, value] : values) BindValue(statement, ++parameter, value);
  sqlite3_bind_int64(statement, ++parameter, rows_.Key(slot));
  if (Error error = database_->Change(statement)) return error;
  if (sqlite3_changes(database_->Handle()) > 0) return {};
  rows_.Remove(slot);
  return Error(errors::NoCurrentRecord);
}

Error RowSource::Store(std::size_t slot, const RowChanges& changes) {
  std::string sql;
  std::size_t parameter = 0;
  for (const auto& [column, value] : changes) {
    sql += sql.empty() ? "UPDATE " + jet::QuotedName(query_.Table) + " SET " : ", ";
    sql += jet::QuotedName(columns_[column].Name) + "=" + Parameter(++parameter);
  }
  return ChangeRow(slot, sql + WhereKey(parameter + 1), changes);
}

Result<std::size_t> RowSource::Add(const RowChanges& values) {
  std::string names;
  std::string parameters;
  for (const auto& [column, value] : values) {
    if (!names.empty()) {
      names += ", ";
      parameters += ", ";
    }
    names += jet::QuotedName(columns_[column].Name);
    parameters += "?";
  }
  const std::string sql =
      "INSERT INTO " + jet::QuotedName(query_.Table) +
      (names.empty() ? " DEFAULT VALUES" : " (" + names + ") VALUES (" + parameters + ")");
  sqlite3_stmt* const statement = database_->Prepared(sql);
  if (statement == nullptr) return database_->Failure();
  const ResetAtEnd reset(statement);
  int parameter = 0;
  for (const auto& [column, value] : values) BindValue(statement, ++parameter, value);
  if (Error error = database_->Change(statement)) return error;
  rows_.Append(sqlite3_last_insert_rowid(database_->Handle()));
  return rows_.LastSlot();
}

Error RowSource::Erase(std::size_t slot) {
  const std::string sql = "DELETE FROM " + jet::QuotedName(query_.Table) + WhereKey(1);
  if (Error error = ChangeRow(slot, sql, {})) return error;
  rows_.Remove(slot);
  return {};
}

}  // namespace kvr5
