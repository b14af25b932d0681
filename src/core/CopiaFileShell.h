#pragma once

#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "platform/ShellCopy.h"

namespace kvr5 {

/// The pairs of two lists of paths with "|" between (and, if they like, before) them; an
/// empty path ends its list. Lists of different length give nothing (a copy that failed, see
/// below), unless there is one destination for all.
std::vector<CopyPair> CoppieDaListe(std::string_view sorgente, std::string_view destinazione);

/// What the cancel of the copy window does.
enum class AnnulloCopia { Ferma, Nulla };

/// Copies one file, a wildcard or many pairs in one operation with the copy window, overwriting
/// without a question, and lets events run. A cancel sets AnnullatoDaUtente, which callers clear
/// before; any other failure was told by the copy window and is not reported here.
/// The outcome is for counting only.
CopyOutcome CopiaFileShell(Contesto& contesto, std::string_view sorgente,
                           std::string_view destinazione,
                           AnnulloCopia annullo = AnnulloCopia::Ferma);

}  // namespace kvr5
