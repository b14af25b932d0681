#pragma once

#include <string>
#include <vector>

#include "mp3/GiudizioFile.h"
#include "schedule/EditorPalinsesto.h"

namespace kvr5 {

/// Adds files that were picked together, or dropped on a slot, to the selected segment: the first
/// comes into the slot, or in the place of its spot, the others into the free slots. Each as
/// picAggiungiSpot adds one, if the panel would pass it. A day that is full ends it (told). The
/// paths may be of the host's form. Comes back with what wasn't taken.
std::vector<FileNonPreso> AggiungiSpotScelti(EditorPalinsesto& editor, modMp3Infos& lettore,
                                             int slot, const std::vector<std::string>& file);

/// The first slot that takes a spot; SlotSpot::kPosti where all are used.
int PrimoSlotLibero(EditorPalinsesto& editor);

}  // namespace kvr5
