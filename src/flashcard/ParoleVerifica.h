#pragma once

#include <string>

#include "core/Contesto.h"
#include "flashcard/Verifica.h"

namespace kvr5 {

/// What is wrong with a file, in a word or two.
std::string DifettoInParole(Contesto& contesto, Difetto difetto);

/// What to do about it.
std::string RimedioInParole(Contesto& contesto, const Riscontro& riscontro);

/// "The card is as the project: 143 files, 512 MB", or how many findings there are, or why nothing
/// can be said.
/// `mostrati`: how many of the findings are shown.
std::string EsitoInParole(Contesto& contesto, const EsitoVerifica& esito, std::size_t mostrati);

}  // namespace kvr5
