#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Error.h"
#include "platform/db/Column.h"
#include "platform/db/Database.h"
#include "platform/db/JetParser.h"
#include "platform/db/Keyset.h"
#include "platform/db/RowWindow.h"
#include "platform/db/Value.h"

namespace kvr5 {

/// New values of a row, by column.
using RowChanges = std::vector<std::pair<std::size_t, DbValue>>;

/// The rows of a query: what a Recordset moves over.
///
/// The rows of one table are known by their keys, read one by one when they are wanted, and can be
/// changed. Those of any other query are a copy of what it gave.
class RowSource {
 public:
  /// Of a SELECT; -2147217900 when the table lacks a column.
  static Result<std::unique_ptr<RowSource>> Open(std::shared_ptr<Database> database,
                                                 JetStatement query);

  bool IsOpen() const { return database_->IsOpen(); }
  bool IsUpdatable() const { return query_.Updatable; }
  Database& Base() { return *database_; }
  const std::vector<Column>& Columns() const { return columns_; }
  /// A column by its name, whose case doesn't count.
  std::optional<std::size_t> Find(std::string_view column) const;
  const Keyset& Rows() const { return rows_; }

  /// Runs the query; the order of the rows is fixed from then on.
  Error Load();
  /// Has a row be as the file has it now when it is read next.
  void Refresh() { window_.Refresh(); }
  /// The values of a living row, valid until the next call; null when the row turned out to be
  /// gone, which it is for the keyset from then on. A row once read is read again only after
  /// Refresh or a change by this connection.
  Result<const RowValues*> Read(std::size_t slot);

  /// Writes to a row; 3021 when it is gone.
  Error Store(std::size_t slot, const RowChanges& changes);
  /// Adds a row behind all others and gives its slot.
  Result<std::size_t> Add(const RowChanges& values);
  /// Deletes a row; 3021 when it is gone already.
  Error Erase(std::size_t slot);

 private:
  RowSource(std::shared_ptr<Database> database, JetStatement query);
  Error ReadColumns();
  /// Runs a change of rows; its error, or 3021 when the row isn't there.
  Error ChangeRow(std::size_t slot, const std::string& sql, const RowChanges& values);

  std::shared_ptr<Database> database_;
  JetStatement query_;
  std::string readOne_;  ///< reads a row by its key
  RowWindow window_;
  std::vector<Column> columns_;
  Keyset rows_;
  std::vector<RowValues> copies_;  ///< the rows themselves, where they have no key
};

}  // namespace kvr5
