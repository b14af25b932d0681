#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/jet/Pages.h"

namespace kvr5::jet {

/// The types of columns that we know, by the engine's numbers.
enum class Type : std::uint8_t { Byte = 2, Int16 = 3, Int32 = 4, Date = 8, Text = 10 };

/// A column of a table.
struct Column {
  std::string Name;  ///< UTF-8
  std::uint8_t Kind = 0;
  std::uint16_t Number = 0;    ///< its bit in a row's null mask
  bool IsFixed = false;        ///< it has a place of its own in each row
  std::uint16_t Offset = 0;    ///< of a fixed one: its place after the row's number of columns
  std::uint16_t Variable = 0;  ///< of another: which of the row's pieces it is
};

/// A table as its definition page and those that go on with it tell.
struct Definition {
  std::uint32_t Page = 0;
  std::uint32_t Rows = 0;
  std::uint32_t Owned = 0;  ///< where the map of its pages is, page << 8 | slot
  std::vector<Column> Columns;

  /// The column of a name, without regard to case; null where there is none.
  const Column* Find(std::string_view name) const;
};

/// Reads the definition that begins on a page. Damaged where it isn't one.
///
/// (First page: the next one at 4, rows at 16, columns that there ever were at 41, those without a
/// fixed place at 43, columns at 45, indexes at 51, the map of its pages at 55; from 63 on 12 bytes
/// an index, then 25 bytes a column, then the names. A page that goes on does so from its byte 8
/// on.)
Fault ReadDefinition(Pages& pages, std::uint32_t page, Definition& definition);

}  // namespace kvr5::jet
