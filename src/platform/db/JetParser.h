#pragma once

#include <string>
#include <string_view>

#include "platform/Error.h"

namespace kvr5 {

/// One statement in SQLite's words, and what a recordset has to know of it.
struct JetStatement {
  enum class Verb { Select, Insert, Update, Delete };

  Verb What = Verb::Select;
  std::string Sql;
  /// A change of the rows that have a certain file name.
  bool ByFileName = false;

  // Of a SELECT only:
  std::string Columns;  ///< what stands between SELECT and FROM
  std::string Rest;     ///< from FROM on
  std::string Table;    ///< the first table
  /// One table, whole rows or plain columns of it: rows can be told apart and changed.
  bool Updatable = false;
};

/// Reads a statement of the dialect (see JetSql.h); -2147217900 when it isn't one.
Result<JetStatement> ParseJetSql(std::string_view statement);

}  // namespace kvr5
