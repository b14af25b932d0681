#pragma once

#include "core/Contesto.h"
#include "core/Esecutore.h"

namespace kvr5 {

/// Opens the help document of the current language, from picHelp and F1 of every screen. Where the
/// language names none, the folder Help is opened. Whether it opens is not looked at.
void ApriAiuto(Contesto& contesto, Esecutore& esecutore);

}  // namespace kvr5
