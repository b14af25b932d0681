#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "platform/Error.h"
#include "platform/db/Connection.h"
#include "platform/db/Value.h"

namespace kvr5 {

/// Whole rows of a table of an open connection, with their keys: added and compared by statements
/// that are prepared once. The first of the columns is the key.
class TableRows {
 public:
  TableRows(Connection& connection, const std::string& table,
            const std::vector<std::string>& columns);

  /// Adds a row with values for all columns; -2147467259 where its key is taken.
  Error Add(const std::vector<DbValue>& values);
  /// Whether the row of the first value's key has exactly these values.
  bool Holds(const std::vector<DbValue>& values);
  /// How many rows the table has; -1 where it can't be read.
  std::int64_t Count();

 private:
  std::shared_ptr<Database> database_;
  std::string insert_, select_, count_;
};

}  // namespace kvr5
