#pragma once

#include <array>
#include <cstddef>

namespace kvr5 {

/// What one of the eight slots of a segment shows.
struct UnoSlot {
  bool picPlay = false;
  bool picStop = false;
  bool picAggiungiSpot = false;
  bool picRimuoviSpot = false;
  bool UpDownFile = false;
  bool operator==(const UnoSlot&) const = default;
};

/// The eight slots of the selected segment: slot i, from 0, holds the spot at Pos i + 1.
struct SlotSpot {
  static constexpr int kPosti = 8;

  std::array<UnoSlot, kPosti> Slot;
  /// The slot whose down arrow picCopriDown covers: the last spot has none behind it. -1: none.
  int CopriDown = -1;
  /// The detail of a segment: hidden on a day without segments.
  bool picDettaglio = false;

  const UnoSlot& operator[](int i) const { return Slot.at(static_cast<std::size_t>(i)); }
  bool operator==(const SlotSpot&) const = default;
};

/// The slots of a segment of `spot` spots, on a day of `segmenti` segments.
SlotSpot AggiornaSlotSpot(int spot, int segmenti, bool playerEsterno);

}  // namespace kvr5
