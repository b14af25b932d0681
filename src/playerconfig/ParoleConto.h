#pragma once

#include <cstddef>
#include <string>

#include "projects/ContoProgetto.h"

namespace kvr5 {

/// "2 missing" in the user's language.
std::string ParoleMancanti(Contesto& contesto, std::size_t quanti);

/// What is wrong with a project: a database that can't be read, else files that are missing, else
/// "".
std::string AvvisoConto(Contesto& contesto, const CifreProgetto& cifre);

/// What the hub's field says of a project that isn't on inputs: "7 lists, 143 tracks, 512 MB", or
/// of one with a schedule "12 segments, 40 spots, 310 MB"; the megabytes once every file has been
/// looked for.
std::string ParoleConto(Contesto& contesto, const CifreProgetto& cifre, bool palinsesto);

}  // namespace kvr5
