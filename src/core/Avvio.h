#pragma once

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

/// True when the projects folder holds a folder, as that of a project is.
bool HaCartelleDiProgetti(const Contesto& contesto);

}  // namespace kvr5
