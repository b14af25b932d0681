#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// The folder that DirDirectoryMp3 starts in, by the way the project was opened: 0 (a new project)
/// the one that was chosen last (LastMp3Dir of the settings), 1 (the list or a folder) and 2 (a
/// card) the project's own. It always exists: of a folder that is gone, or cut short by the 99
/// characters that a setting holds, it is the nearest parent that is there, "C:\" at the last.
std::string CartellaIniziale(Contesto& contesto, std::int16_t apreDaFlash);

/// The answer of the folder browser, in either form: where it names an existing folder it is kept
/// as LastMp3Dir and comes back from "C:\", with the spelling of the disk. Nothing (and nothing is
/// kept) for a blank answer or one that is no folder. A setting that can't be written is the
/// pending error.
std::optional<std::string> ScegliCartella(Contesto& contesto, std::string_view scelta);

/// Keeps a folder (system form) as LastMp3Dir.
void TieniCartella(Contesto& contesto, std::string_view cartella);

}  // namespace kvr5
