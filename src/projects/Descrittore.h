#pragma once

#include "core/Contesto.h"

namespace kvr5 {

/// Writes Config.cfg of the open project from the state: "[CONFIG]" and its seven keys, in the
/// ANSI code page, lines ended by CR LF. An old file is deleted first and never added to; whatever
/// else it held, Use485 among it, is gone. An empty ProjectName becomes the folder's last
/// component, in the state too. A failure is the pending error; the result is always true.
bool SalvaDescrittoreProgetto(Contesto& contesto);

/// Reads Config.cfg of the open project into the state. The stored PlayerName is never read: the
/// model number alone counts. A number that is missing or no number leaves its variable as it was.
void LeggiDescrittore(Contesto& contesto);

/// Reads Use485 of the open project's Config.cfg: true when the number equals 1.
bool LeggiUse485(Contesto& contesto);

}  // namespace kvr5
