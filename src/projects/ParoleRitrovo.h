#pragma once

#include "core/Contesto.h"
#include "core/Dialoghi.h"
#include "core/FinestraProgresso.h"
#include "projects/RitrovaFile.h"

namespace kvr5 {

/// The box that tells of a search.
Messaggio BoxRitrovo(Contesto& contesto, const EsitoRitrovo& esito);

/// Asks for a folder, looks in it for the missing files of the open project (RitrovaFile) with the
/// progress window, whose cancel ends the search, and tells what was found. Nothing happens where
/// no folder is chosen.
void RitrovaEDillo(Contesto& contesto, FinestraProgresso& progresso);

}  // namespace kvr5
