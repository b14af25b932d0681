#include "platform/db/Connection.h"

#include <utility>

#include "platform/db/Database.h"

namespace kvr5 {

Connection::Connection(const FileSystem& files) : files_(files) {}

Connection::~Connection() {
  Close();
}

Error Connection::Open(std::string_view path) {
  Close();
  Result<std::shared_ptr<Database>> opened = Database::Open(files_.HostPath(path));
  if (!opened) return opened.Err();
  database_ = std::move(opened.Value());
  path_ = path;
  return {};
}

void Connection::Close() {
  if (!database_) return;
  database_->Close();
  database_.reset();
}

Error Connection::Execute(std::string_view statement) {
  if (!IsOpen()) return Error(errors::ObjectClosed);
  const Result<JetStatement> parsed = ParseJetSql(statement);
  if (!parsed) return parsed.Err();
  if (parsed.Value().What == JetStatement::Verb::Select) {
    return {errors::BadStatement, "The statement returns records"};
  }
  return database_->Execute(parsed.Value());
}

void Connection::DontFlush() {
  if (IsOpen()) database_->DontFlush();
}

void Connection::BuildNew() {
  if (IsOpen()) database_->BuildNew();
}

sqlite3* Connection::Handle() const {
  return database_ ? database_->Handle() : nullptr;
}

Transaction::Transaction(Connection& connection) {
  const std::shared_ptr<Database>& database = connection.Base();
  if (database && !database->InTransaction() && database->Begin()) database_ = database;
}

Transaction::~Transaction() {
  Ignora(End());
}

Error Transaction::End() {
  const std::shared_ptr<Database> database = std::exchange(database_, nullptr);
  if (!database || !database->IsOpen()) return {};  // a close has ended it
  // A full disk undoes a run by itself.
  if (!database->InTransaction()) return Error(errors::CannotOpen);
  return database->CommitRun();
}

}  // namespace kvr5
