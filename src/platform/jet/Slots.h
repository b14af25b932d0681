#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_set>

#include "platform/jet/Pages.h"

namespace kvr5::jet {

/// Where the row of a slot lies in its page, and what else its slot says.
struct Place {
  bool Deleted = false;  ///< or moved to here
  bool Moved = false;    ///< to another page
  std::size_t Begin = 0;
  std::size_t End = 0;
};

/// Whether a data page's slots fit in it, and its rows lie one before the other, as they do in all
/// pages of the engine: so no two of them share a byte.
bool RowsAreApart(Page page);

/// The place of a slot of a data page; nothing where the page has no such slot, or no room for it.
std::optional<Place> PlaceOf(Page page, std::size_t slot);

/// The rows of a table's data pages that aren't deleted, one page after another, with those of them
/// that have moved to another page. No row is reached twice, so that what a file gives is never
/// more than what it holds.
///
/// (At 4 the page of the table's definition, at 12 the number of slots, from 14 on one u16 a slot:
/// the row's place in the low 13 bits; 0x8000 deleted, or moved to here; 0x4000 moved from here:
/// four bytes tell the slot, and above it the page, where it is now. A row ends where that of the
/// slot before begins, the first at the page's end.)
class Slots {
 public:
  Slots(Pages& pages, std::uint32_t definition) : pages_(pages), definition_(definition) {}

  /// Goes to a page; one that holds no rows of the table has none. False where it contradicts
  /// itself or can't be read.
  bool Open(std::uint32_t page);
  /// The next row, good until the next call; nothing at the end, or where the page is spoilt.
  std::optional<std::span<const unsigned char>> Next();
  bool Spoilt() const { return spoilt_; }

 private:
  std::optional<Page> Load(std::uint32_t number) const;
  std::optional<std::span<const unsigned char>> Follow(std::uint32_t pointer);

  Pages& pages_;
  std::uint32_t definition_;
  std::array<unsigned char, kPageSize> page_{};   ///< the page whose slots these are
  std::array<unsigned char, kPageSize> moved_{};  ///< the page of a row that has moved
  std::uint16_t count_ = 0;
  std::uint16_t next_ = 0;
  bool spoilt_ = false;
  std::unordered_set<std::uint32_t> reached_;  ///< where rows have moved to
};

}  // namespace kvr5::jet
