#pragma once

#include <string>

#include "core/Contesto.h"

namespace kvr5 {

/// What came of opening a folder as a project.
enum class EsitoApertura {
  Aperto,
  NessunaCartella,  ///< the name is blank or no folder; nothing was changed or said
  FileMancante,     ///< told by the missing-file box; CartellaProgetto names the refused folder
};

/// Opens a folder as a project: checks its files and reads the descriptor into the state. The
/// databases of playlists and schedule are not checked: their screens tell.
EsitoApertura ApriProgetto(Contesto& contesto, const std::string& cartella);

}  // namespace kvr5
