#pragma once

#include "core/Contesto.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// Gives the files of a project that came from a card their own names back, when the hub opens it:
/// "5.mp3" becomes the FileName of its row of the inputs, unless the project has no input block.
///
/// Then, on models 2 and 4 in any mode but 1, the same is tried for the rows of playlist 1 under
/// "P01-0001.mp3". No save writes such names (they have three digits), so these files keep their
/// aliases; that is how it stands.
///
/// Nothing is overwritten: where the name is taken the file keeps its alias. A name that leads out
/// of the project's folder is passed over. No failure is told or left pending, a missing database
/// among them. The cursor of `ingressi` is moved.
void RientroDaScheda(Contesto& contesto, TabellaIngressi& ingressi);

}  // namespace kvr5
