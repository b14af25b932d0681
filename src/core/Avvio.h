#pragma once

#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// What every start does before a screen is of use: the language, the log, the options, the
/// projects folder. May end the program.
void AvviaSenzaSchermate(Contesto& contesto);

/// The same with the language file already chosen.
void AvviaConLingua(Contesto& contesto);

/// Makes the projects folder where it is missing; a failure is ignored, and the program goes on
/// with an empty project list.
void AssicuraCartellaProgetti(Contesto& contesto);

/// True when a folder is that of a project: it holds both config.txt and config.cfg.
bool CartellaDiProgetto(const Contesto& contesto, std::string_view cartella);

/// True when the projects folder holds the folder of a project, hidden or not; looks no further
/// than the first.
bool HaProgetti(const Contesto& contesto);

}  // namespace kvr5
