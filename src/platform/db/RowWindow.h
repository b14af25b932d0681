#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Error.h"
#include "platform/db/Database.h"
#include "platform/db/Keyset.h"
#include "platform/db/Value.h"

namespace kvr5 {

/// The values of a row, by column.
using RowValues = std::vector<DbValue>;

/// Reads the row on which a statement stands.
void ReadRow(sqlite3_stmt* statement, RowValues& row);

/// Reads rows by their keys, and in a walk some rows ahead: each look at the file costs a dozen
/// calls of the host, far more than a row. What was read ahead counts only as long as the file is
/// the same.
class RowWindow {
 public:
  /// `sql` reads the row whose key is its parameter.
  RowWindow(Database& database, std::string sql) : database_(database), sql_(std::move(sql)) {}

  /// Forgets what was read, for other rows.
  void Clear() { slots_.clear(); }
  /// Has rows that were read before another program's change read again.
  void Refresh();
  /// The values of a living row, valid until the next call; null when the table has it no more.
  /// They are read again only after Refresh or a change by this connection.
  Result<const RowValues*> Read(const Keyset& rows, std::size_t slot);

 private:
  const RowValues* Known(std::size_t slot) const;
  bool IsBehind(const Keyset& rows, std::size_t slot) const;
  Error Fill(const Keyset& rows, std::size_t slot);

  Database& database_;
  std::string sql_;
  std::vector<std::size_t> slots_;  ///< of the rows that are known, in order
  std::vector<RowValues> values_;   ///< theirs; as long as the largest window was
  int ahead_ = 1;                   ///< rows to read at once
  std::uint64_t changes_ = 0;
  std::optional<std::uint32_t> version_;
};

}  // namespace kvr5
