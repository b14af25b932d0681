#pragma once

#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// Adds a line "HH:mm:ss message" to today's log, Logs\YYYYMMdd.log beside the program. The folder
/// is made if needed; a failure is silent. The file is open for this one line only, so that a
/// crash loses nothing.
void ScriviLog(Contesto& contesto, std::string_view messaggio);

/// Obeys EnableDebug at start: with "1" the folder Logs appears. DebugAbilitato stays false either
/// way, on purpose.
void InizializzaLog(Contesto& contesto);

}  // namespace kvr5
