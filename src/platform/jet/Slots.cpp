#include "platform/jet/Slots.h"

#include <algorithm>

#include "platform/jet/Bytes.h"

namespace kvr5::jet {
namespace {

constexpr std::size_t kOwner = 4;
constexpr std::size_t kCount = 12;
constexpr std::size_t kFirst = 14;
constexpr unsigned kDeleted = 0x8000;
constexpr unsigned kMoved = 0x4000;
constexpr unsigned kPlace = 0x1FFF;
constexpr int kMostMoves = 64;  // the engine itself leaves one

std::size_t AfterSlots(Page page) {
  return kFirst + std::size_t{2} * Bytes(page).U16(kCount);
}

}  // namespace

bool RowsAreApart(Page page) {
  const std::size_t least = AfterSlots(page);
  Bytes bytes(page);
  std::size_t end = kPageSize;
  for (std::size_t at = kFirst; at < std::min(least, kPageSize); at += 2) {
    const std::size_t begin = bytes.U16(at) & kPlace;
    if (begin > end) return false;
    end = begin;
  }
  return least <= end;
}

std::optional<Place> PlaceOf(Page page, std::size_t slot) {
  Bytes bytes(page);
  const std::size_t slots = bytes.U16(kCount);
  if (slot >= slots) return {};
  const unsigned entry = bytes.U16(kFirst + 2 * slot);
  const std::size_t begin = entry & kPlace;
  const std::size_t end =
      slot == 0 ? kPageSize : bytes.U16(kFirst + 2 * (slot - 1)) & std::size_t{kPlace};
  if (begin < kFirst + 2 * slots || begin > end || end > kPageSize) return {};
  return Place{(entry & kDeleted) != 0, (entry & kMoved) != 0, begin, end};
}

bool Slots::Open(std::uint32_t page) {
  const auto content = Load(page);
  count_ = next_ = 0;
  spoilt_ = pages_.Unreadable();
  if (!content) return !spoilt_;
  std::ranges::copy(*content, page_.begin());
  count_ = Bytes(page_).U16(kCount);
  spoilt_ = !RowsAreApart(page_);
  return !spoilt_;
}

/// A data page of the table; nothing where it is another. (The engine leaves pages that a table
/// gave away in its map.)
std::optional<Page> Slots::Load(std::uint32_t number) const {
  const Page page = pages_.At(number);
  if (page.empty() || page[0] != kDataPage || Bytes(page).U32(kOwner) != definition_) return {};
  return page;
}

std::optional<std::span<const unsigned char>> Slots::Next() {
  while (next_ < count_) {
    const auto place = PlaceOf(page_, next_++);
    if (!place) {
      spoilt_ = true;
      return {};
    }
    if (place->Deleted) continue;
    const auto row =
        std::span<const unsigned char>(page_).subspan(place->Begin, place->End - place->Begin);
    if (!place->Moved) return row;
    Bytes pointer(row);
    const auto moved = Follow(pointer.U32(0));
    spoilt_ = pointer.Spoilt() || !moved;
    return spoilt_ ? std::nullopt : moved;
  }
  return {};
}

/// The row that a pointer leads to, by way of as many others as it has moved; nothing where that is
/// a circle, another row's, or a longer way than any row goes.
std::optional<std::span<const unsigned char>> Slots::Follow(std::uint32_t pointer) {
  for (int moves = 0; moves < kMostMoves && reached_.insert(pointer).second; ++moves) {
    const auto content = Load(pointer >> 8U);
    const std::size_t slot = pointer & 0xFFU;
    if (!content || !RowsAreApart(*content)) return {};
    std::ranges::copy(*content, moved_.begin());
    const auto place = PlaceOf(moved_, slot);
    if (!place || !place->Deleted) return {};  // nobody moved to here
    const auto row =
        std::span<const unsigned char>(moved_).subspan(place->Begin, place->End - place->Begin);
    if (!place->Moved) return row;
    Bytes next(row);
    pointer = next.U32(0);
    if (next.Spoilt()) return {};
  }
  return {};
}

}  // namespace kvr5::jet
