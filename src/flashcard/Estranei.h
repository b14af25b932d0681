#pragma once

#include <cstddef>
#include <string>

#include "core/Contesto.h"

namespace kvr5 {

/// How many files lie in the root `scheda` (system form) that a recording of the open project
/// wouldn't put there: a recording leaves what an earlier project has left, and the player may play
/// it. Hidden and system files don't count, nor folders, nor MP3 files while a database of the
/// project can't be read to its end. 0 where the card can't be listed.
std::size_t ContaEstranei(Contesto& contesto, const std::string& scheda);

}  // namespace kvr5
