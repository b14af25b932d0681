#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "platform/Error.h"
#include "platform/db/JetParser.h"
#include "platform/db/Statement.h"

namespace kvr5 {

/// One SQLite file while it is open: its settings, prepared statements and transactions. A
/// Connection and its recordsets share it; once closed it stays closed, which is how the
/// recordsets know.
class Database {
 public:
  /// Opens an existing project database, for reading only where it can't be written; see
  /// Connection::Open.
  static Result<std::shared_ptr<Database>> Open(const std::string& hostPath);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  sqlite3* Handle() const { return handle_; }
  bool IsOpen() const { return handle_ != nullptr; }
  /// Commits what is under way and closes; prepared statements are gone then.
  void Close();

  /// See Connection::DontFlush.
  void DontFlush() { Step("PRAGMA synchronous=OFF"); }
  /// See Connection::BuildNew.
  void BuildNew() {
    DontFlush();
    Step("PRAGMA journal_mode=MEMORY");
  }

  /// A statement for one use: -2147217900 when it names what isn't there.
  Result<StatementPtr> Prepare(const std::string& sql);
  /// A statement that stays prepared until Close; null when SQLite refuses it.
  sqlite3_stmt* Prepared(const std::string& sql);
  /// Runs a statement that changes rows, in a transaction of its own unless one is under way.
  /// What it did is undone if it fails.
  Error Change(sqlite3_stmt* statement);
  /// Runs a translated INSERT, UPDATE or DELETE.
  Error Execute(const JetStatement& statement);

  bool InTransaction() const;
  /// Starts a transaction for changes; false when the file is locked or can't be written.
  bool Begin();
  /// Ends the transaction that is under way; -2147467259 when it had to be undone.
  Error Commit();
  /// The same for a transaction of many changes: has more patience with other programs' locks.
  Error CommitRun();

  /// Differs from an earlier value when this connection changed a row in between.
  std::uint64_t Changes() const;
  /// Differs from an earlier value when any program has committed a change in between; costs a
  /// single read of the file, without its locks. Nothing when that failed.
  std::optional<std::uint32_t> FileVersion() const;
  /// The last failure of SQLite, in its words: -2147467259.
  Error Failure() const;

 private:
  friend class ReadScope;
  Database() = default;
  bool Configure();
  bool LeavesWalMode();
  bool HasTables() const;
  bool IsWhole(const std::filesystem::path& path);
  bool Step(const char* sql);
  DbValue Value(const char* sql);
  void IndexFileNames();
  void DropFileNameIndex();

  sqlite3* handle_ = nullptr;
  std::unordered_map<std::string, sqlite3_stmt*> prepared_;
  std::uint64_t undone_ = 0;  ///< transactions that were rolled back
  int fileNameLookUps_ = 0;   ///< in the transaction under way
  bool fileNameIndex_ = false;
};

/// Reads within it see one state of the file and share the cost of its locks.
class ReadScope {
 public:
  explicit ReadScope(Database& database);
  ~ReadScope();
  ReadScope(const ReadScope&) = delete;
  ReadScope& operator=(const ReadScope&) = delete;

 private:
  Database& database_;
  bool own_;
};

}  // namespace kvr5
