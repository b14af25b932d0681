#include "schedule/SlotSpot.h"

#include <algorithm>

namespace kvr5 {

SlotSpot AggiornaSlotSpot(int spot, int segmenti, bool playerEsterno) {
  SlotSpot slots;
  const int used = std::min(spot, SlotSpot::kPosti);
  for (int i = 0; i < used; ++i) {
    slots.Slot.at(static_cast<std::size_t>(i)) = {.picPlay = true,
                                                  .picStop = !playerEsterno,
                                                  .picAggiungiSpot = true,
                                                  .picRimuoviSpot = true,
                                                  .UpDownFile = true};
  }
  // The first free position offers adding.
  if (used < SlotSpot::kPosti) {
    slots.Slot.at(static_cast<std::size_t>(used)).picAggiungiSpot = true;
  }
  if (used < 2) slots.Slot.front().UpDownFile = false;  // there is nothing to change places with
  if (used > 1) slots.CopriDown = used - 1;
  slots.picDettaglio = segmenti > 0;
  return slots;
}

}  // namespace kvr5
