#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "mp3/modMp3Infos.h"
#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// A file that wasn't added.
struct FileNonPreso {
  std::string Nome;
  std::string Motivo;  ///< in the user's language
};

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

/// "Not taken: gong.wav. The player can't play this file... And 2 more."; "" where all were taken.
std::string ParoleEsito(Contesto& contesto, const EsitoScelti& esito);

}  // namespace kvr5
