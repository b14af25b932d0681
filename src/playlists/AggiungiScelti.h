#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "mp3/GiudizioFile.h"
#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// What came of adding several files.
struct EsitoScelti {
  std::size_t Aggiunti = 0;
  std::vector<FileNonPreso> NonPresi;
};

/// Adds files that were picked together, or dropped, to the current playlist: each as
/// cmdAggiungiFile adds one, if the panel would pass it. A playlist that is full ends it (told).
/// The paths may be of the host's form. Events run between the files.
EsitoScelti AggiungiScelti(EditorPlaylist& editor, modMp3Infos& lettore,
                           const std::vector<std::string>& file);

}  // namespace kvr5
