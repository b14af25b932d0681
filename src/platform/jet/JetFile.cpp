#include "platform/jet/JetFile.h"

#include <algorithm>
#include <array>

#include "platform/Fold.h"
#include "platform/jet/Bytes.h"
#include "platform/jet/Row.h"
#include "platform/jet/Slots.h"
#include "platform/jet/UsageMap.h"

namespace kvr5::jet {
namespace {

bool Suits(const Column& column, Wanted kind) {
  const auto type = static_cast<Type>(column.Kind);
  switch (kind) {
    case Wanted::Counter:
      return type == Type::Int32 && column.IsFixed;
    case Wanted::Integer:
      return (type == Type::Byte || type == Type::Int16 || type == Type::Int32) && column.IsFixed;
    case Wanted::Text:
      return type == Type::Text && !column.IsFixed;
    case Wanted::Time:
      return type == Type::Date && column.IsFixed;
  }
  return false;
}

/// A table can hold rows without variable columns; then they lack their places too.
bool HasPieces(const Definition& definition) {
  return std::ranges::any_of(definition.Columns, [](const Column& each) { return !each.IsFixed; });
}

}  // namespace

/// One reading of a table.
class JetFile::Reading {
 public:
  Reading(const Definition& definition, std::span<const WantedColumn> wanted, std::string table)
      : definition_(definition), wanted_(wanted), table_(std::move(table)) {}

  Trouble FindColumns() {
    for (const WantedColumn& each : wanted_) {
      const Column* column = definition_.Find(each.Name);
      if (column == nullptr || !Suits(*column, each.Kind)) {
        return {Fault::NoColumn, table_ + "." + each.Name};
      }
      columns_.push_back(column);
    }
    return {};
  }

  /// False for a row that contradicts itself.
  bool Take(std::span<const unsigned char> row, const TakeRow& take, bool& goOn) {
    if (rows_ == definition_.Rows) return false;
    if (!ReadRow(row, columns_, hasPieces_, values_) || !NoteCounters(values_)) return false;
    ++rows_;
    goOn = take(values_);
    return true;
  }

  /// Whether all rows were there, and each once.
  bool IsWhole() {
    std::ranges::sort(counters_);
    return rows_ == definition_.Rows && std::ranges::adjacent_find(counters_) == counters_.end();
  }

 private:
  bool NoteCounters(const std::vector<DbValue>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (wanted_[i].Kind != Wanted::Counter) continue;
      if (IsNull(values[i])) return false;
      counters_.push_back(static_cast<std::int32_t>(std::get<std::int64_t>(values[i])));
    }
    return true;
  }

  const Definition& definition_;
  std::span<const WantedColumn> wanted_;
  std::string table_;
  std::vector<const Column*> columns_;
  bool hasPieces_ = HasPieces(definition_);
  std::uint32_t rows_ = 0;
  std::vector<std::int32_t> counters_;
  std::vector<DbValue> values_;
};

Trouble JetFile::Open(FileSystem& files, std::string_view path) {
  constexpr std::uint32_t kCatalogue = 2;
  if (const Fault fault = pages_.Open(files, path); fault != Fault::None) return {fault};
  const Fault fault = ReadDefinition(pages_, kCatalogue, catalogue_);
  if (fault != Fault::None) return {fault};
  std::size_t found = 0;
  std::uint32_t page = 0;
  Trouble trouble = Look({}, found, page);
  if (trouble.What == Fault::NoColumn) trouble.What = Fault::Damaged;
  return trouble;
}

Trouble JetFile::Look(std::string_view table, std::size_t& found, std::uint32_t& page) {
  static constexpr std::int64_t kTable = 1;
  static constexpr std::uint32_t kPageOfId = 0xFFFFFF;
  constexpr std::array<WantedColumn, 3> kColumns{
      {{"Id", Wanted::Integer}, {"Name", Wanted::Text}, {"Type", Wanted::Integer}}};
  found = 0;
  return Walk(catalogue_, kColumns, {}, [&](const std::vector<DbValue>& row) {
    const auto* id = std::get_if<std::int64_t>(&row[0]);
    const auto* name = std::get_if<std::string>(&row[1]);
    if (id != nullptr && name != nullptr && row[2] == DbValue(kTable) && EqualFold(*name, table)) {
      ++found;
      page = static_cast<std::uint32_t>(*id) & kPageOfId;
    }
    return true;
  });
}

Trouble JetFile::Read(std::string_view table, std::span<const WantedColumn> columns,
                      const TakeRow& take) {
  const std::string name(table);
  std::size_t found = 0;
  std::uint32_t page = 0;
  if (Trouble trouble = Look(table, found, page)) return trouble;
  if (found != 1) return {found == 0 ? Fault::NoTable : Fault::Damaged, name};
  Definition definition;
  const Fault fault = ReadDefinition(pages_, page, definition);
  if (fault != Fault::None) return {fault, name};
  return Walk(definition, columns, name, take);
}

Trouble JetFile::Walk(const Definition& definition, std::span<const WantedColumn> columns,
                      const std::string& name, const TakeRow& take) {
  Reading reading(definition, columns, name);
  if (Trouble trouble = reading.FindColumns()) return trouble;
  std::vector<std::uint32_t> owned;
  if (const Fault fault = ReadUsageMap(pages_, definition.Owned, owned); fault != Fault::None) {
    return {fault, name};
  }
  Slots slots(pages_, definition.Page);
  for (const std::uint32_t number : owned) {
    bool goOn = true;
    if (!slots.Open(number)) return {Broken(), name};
    while (const auto row = slots.Next()) {
      if (!reading.Take(*row, take, goOn)) return {Fault::Damaged, name};
      if (!goOn) return {};
    }
    if (slots.Spoilt()) return {Broken(), name};
  }
  return {reading.IsWhole() ? Fault::None : Fault::Damaged, name};
}

}  // namespace kvr5::jet
