#pragma once

#include "schedule/AvvisiPalinsesto.h"

namespace kvr5 {

/// Gives each spot whose file gets onto the card under the name of another spot alone a file of its
/// own: a copy in the project's folder, "gong (2).mp3". One copy operation, with its window and
/// cancel; a file that is missing, or a copy that wasn't made, leaves its spot as it is.
void CopiaRipetuti(EditorPalinsesto& editor, const AvvisiPalinsesto& avvisi);

}  // namespace kvr5
