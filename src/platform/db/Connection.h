#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/FileSystem.h"

struct sqlite3;

namespace kvr5 {

class Database;

/// One open project database: a SQLite file named `*.mdb` that leaves no side file once closed.
///
/// Rollback journal, full synchronisation, no trusted schema. Text is compared by the collation
/// `KVR5NOCASE` (without regard to case, accented letters included). Recordsets of a closed or
/// destroyed connection are closed.
class Connection {
 public:
  /// `files` maps the system's paths to the host's.
  explicit Connection(const FileSystem& files);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Opens an existing database; -2147467259 when the file is missing, a folder, no database (a
  /// file of no length or of zeros included), one without our tables, or locked by another
  /// program. Never makes a file. A file that can't be written is opened for reading; changes
  /// then fail. What was open before is closed in any case.
  Error Open(std::string_view path);
  /// The system's path of the last Open that succeeded; kept over Close.
  const std::string& Path() const { return path_; }
  bool IsOpen() const { return database_ != nullptr; }
  /// Closes; a transaction under way is committed.
  void Close();

  /// Runs one statement that returns no records (see JetSql.h): -2147217900 on a bad one, 3704
  /// when closed, -2147467259 when the file is locked, can't be written or is damaged. A
  /// statement that fails changes nothing.
  Error Execute(std::string_view statement);

  /// Leaves it to the host when changes get onto the device: for a copy that is thrown away after a
  /// crash, and whose changes shouldn't wait for a slow disk. Lasts until it is closed.
  void DontFlush();

  /// For a new file that counts only once it is whole: no journal beside it, nothing flushed. Lasts
  /// until it is closed; the file is to be flushed then.
  void BuildNew();

  /// The SQLite handle, for the tests; null when closed.
  sqlite3* Handle() const;
  /// The open file, for Recordset and Transaction; null when closed.
  const std::shared_ptr<Database>& Base() const { return database_; }

 private:
  const FileSystem& files_;
  std::string path_;
  std::shared_ptr<Database> database_;
};

/// A run of changes as one transaction. One that is begun while another is under way joins it.
/// What a run did is never rolled back: the destructor commits. Where the file is locked or can't
/// be written there is none, and each change fails by itself.
class Transaction {
 public:
  explicit Transaction(Connection& connection);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// Commits at once what the destructor would, and tells the outcome; -2147467259 when the
  /// device took it not, and all of it is undone. Nothing to do in a run that joined another.
  Error End();

 private:
  std::shared_ptr<Database> database_;  ///< null in a run that joined another
};

/// Makes an empty project database (`source.mdb`) at a path of the host, by the statements of the
/// schema. 58 when a file is there, -2147467259 when it can't be made; then none is left behind.
Error CreateProjectDatabase(const std::string& hostPath, const std::string& schemaSql);

}  // namespace kvr5
