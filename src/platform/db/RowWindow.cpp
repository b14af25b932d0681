#include "platform/db/RowWindow.h"

#include <algorithm>

#include "platform/db/Statement.h"

namespace kvr5 {
namespace {

/// Rows read ahead at most.
constexpr int kFarthest = 64;

}  // namespace

void ReadRow(sqlite3_stmt* statement, RowValues& row) {
  row.resize(static_cast<std::size_t>(sqlite3_column_count(statement)));
  for (std::size_t i = 0; i < row.size(); ++i) ReadValue(statement, static_cast<int>(i), row[i]);
}

void RowWindow::Refresh() {
  if (!slots_.empty() && (!version_ || database_.FileVersion() != version_)) slots_.clear();
}

Result<const RowValues*> RowWindow::Read(const Keyset& rows, std::size_t slot) {
  if (changes_ != database_.Changes()) slots_.clear();
  if (const RowValues* const known = Known(slot)) return known;
  ahead_ = IsBehind(rows, slot) ? std::min(ahead_ * 2, kFarthest) : 1;
  if (Error error = Fill(rows, slot)) return error;
  return slots_.empty() ? nullptr : &values_.front();
}

const RowValues* RowWindow::Known(std::size_t slot) const {
  const auto known = std::lower_bound(slots_.begin(), slots_.end(), slot);
  if (known == slots_.end() || *known != slot) return nullptr;
  return &values_[static_cast<std::size_t>(known - slots_.begin())];
}

/// True when `slot` is that of the next row behind the known ones.
bool RowWindow::IsBehind(const Keyset& rows, std::size_t slot) const {
  return !slots_.empty() && slot > slots_.back() &&
         rows.PlaceOf(slot) == rows.PlaceOf(slots_.back()) + 1;
}

Error RowWindow::Fill(const Keyset& rows, std::size_t slot) {
  slots_.clear();
  const ReadScope scope(database_);
  sqlite3_stmt* const statement = database_.Prepared(sql_);
  if (statement == nullptr) return database_.Failure();
  const int place = rows.PlaceOf(slot);
  const int end = std::min(place + ahead_, rows.Living() + 1);
  for (int i = place; i < end; ++i) {
    const std::size_t next = i == place ? slot : rows.SlotAt(i);
    const ResetAtEnd reset(statement);
    sqlite3_bind_int64(statement, 1, rows.Key(next));
    const int outcome = sqlite3_step(statement);
    // What can't be read ahead is told when it is visited.
    if (outcome != SQLITE_ROW && outcome != SQLITE_DONE && i == place) return database_.Failure();
    if (outcome != SQLITE_ROW) break;
    if (values_.size() == slots_.size()) values_.emplace_back();
    ReadRow(statement, values_[slots_.size()]);
    slots_.push_back(next);
  }
  changes_ = database_.Changes();
  version_ = database_.FileVersion();
  return {};
}

}  // namespace kvr5
