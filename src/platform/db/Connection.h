#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/FileSystem.h"

struct sqlite3;

namespace kvr5 {

/// One open project database: a SQLite file named `*.mdb` that leaves no side file once closed.
///
/// Rollback journal, full synchronisation, no trusted schema. Text is compared by the collation
/// `KVR5NOCASE` (without regard to case, accented letters included). A connection outlives its
/// recordsets' use: recordsets of a closed connection are closed.
class Connection {
 public:
  /// `files` maps the system's paths to the host's.
  explicit Connection(FileSystem& files);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Opens an existing database; -2147467259 when the file is missing, a folder, or no database
  /// (a file of no length or of zeros included). Never makes a file.
  Error Open(std::string_view path);
  /// The system's path of the last Open that succeeded; kept over Close.
  const std::string& Path() const;
  bool IsOpen() const;
  void Close();

  /// Runs one statement that returns no records; -2147217900 on a bad one, 3704 when closed.
  Error Execute(std::string_view statement);

  /// The SQLite handle, for Recordset and the tests.
  sqlite3* Handle() const;
  /// Grows by one at each Close, so that a recordset knows that its connection is gone.
  unsigned Generation() const;

 private:
  friend class Transaction;
  struct Body;
  std::unique_ptr<Body> body_;
};

/// A run of changes as one transaction. One that is begun while another is under way joins it.
/// What a run did is never rolled back: the destructor commits.
class Transaction {
 public:
  explicit Transaction(Connection& connection);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

 private:
  Connection& connection_;
  bool outermost_ = false;
};

/// Makes an empty project database with the tables `List` and `HEAD` at a path of the host
/// (`source.mdb`). 58 when a file is there.
Error CreateProjectDatabase(const std::string& hostPath);

}  // namespace kvr5
