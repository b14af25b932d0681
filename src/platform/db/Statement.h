#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

#include "platform/db/Value.h"

namespace kvr5 {

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

/// A prepared statement for one use; gone before its database is closed.
using StatementPtr = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// Puts a prepared statement back to its start at the end of a scope, its locks given up.
class ResetAtEnd {
 public:
  explicit ResetAtEnd(sqlite3_stmt* statement) : statement_(statement) {}
  ~ResetAtEnd() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
  }
  ResetAtEnd(const ResetAtEnd&) = delete;
  ResetAtEnd& operator=(const ResetAtEnd&) = delete;

 private:
  sqlite3_stmt* statement_;
};

/// Sets a parameter, counted from 1.
void BindValue(sqlite3_stmt* statement, int parameter, const DbValue& value);

/// Reads a column, counted from 0, of the row on which the statement stands.
void ReadValue(sqlite3_stmt* statement, int column, DbValue& value);

}  // namespace kvr5
