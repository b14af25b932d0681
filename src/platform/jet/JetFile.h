#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/db/Value.h"
#include "platform/jet/Definition.h"
#include "platform/jet/Pages.h"

namespace kvr5::jet {

/// What a column that is asked for has to be.
enum class Wanted {
  Counter,  ///< a 32-bit number in each row, never twice
  Integer,  ///< a whole number of 8, 16 or 32 bits
  Text,
  Time,  ///< a date, of which the time of day is taken, as "HH:MM:SS"
};

/// A column that is asked for.
struct WantedColumn {
  const char* Name;
  Wanted Kind;
};

/// A failure and the table or column that it is about ("List", "List.Alias"; "" for the file).
struct Trouble {
  Fault What = Fault::None;
  std::string Where{};

  explicit operator bool() const { return What != Fault::None; }
};

/// Takes a row's values, in the order in which its columns were asked for; false ends the reading.
using TakeRow = std::function<bool(const std::vector<DbValue>& row)>;

/// A database file of the Jet 4 engine, for reading. Nothing in it is trusted: each place is looked
/// at before it is used, no loop of pages or rows is followed twice, and what is kept in memory is
/// a few bytes for a page and for a row.
class JetFile {
 public:
  /// Opens a file and reads its catalogue (the table that page 2 defines) to its end.
  Trouble Open(FileSystem& files, std::string_view path);

  /// Hands over the rows of a table as they lie in the file. A table is trusted when the columns
  /// are there and of their types, its rows are as many as its definition says, and its counters
  /// differ; otherwise it is trouble, which may be found only after rows were handed over.
  Trouble Read(std::string_view table, std::span<const WantedColumn> columns, const TakeRow& take);

 private:
  class Reading;

  /// Why a page isn't as it should be.
  Fault Broken() const { return pages_.Unreadable() ? Fault::Unreadable : Fault::Damaged; }

  Trouble Walk(const Definition& definition, std::span<const WantedColumn> columns,
               const std::string& name, const TakeRow& take);

  /// Looks through the catalogue; how many tables have this name, and the page of the last.
  Trouble Look(std::string_view table, std::size_t& found, std::uint32_t& page);

  Pages pages_;
  Definition catalogue_;
};

}  // namespace kvr5::jet
