#pragma once

#include <string>
#include <vector>

#include "core/Contesto.h"
#include "mp3/EtichetteMp3.h"
#include "mp3/modMp3Infos.h"

namespace kvr5 {

/// What the editors of playlists and schedule think of a file.

/// The panel after the analysis of a file, and what is against the file.
struct GiudizioFile {
  PannelloMp3 Pannello;
  std::string Perche;  ///< in the user's language; "" for a file that is good
};
GiudizioFile GiudicaFile(Contesto& contesto, modMp3Infos& lettore, const std::string& percorso);

/// A file that was picked or dropped.
struct FileOfferto {
  std::string Percorso;  ///< system form, with the spelling of the disk; "" where there is none
  std::string Nome;
  std::string Perche;  ///< why it isn't taken, in the user's language; "" for one that is
};
/// Looks at a file whose path may be of the host's form.
FileOfferto EsaminaFile(Contesto& contesto, modMp3Infos& lettore, const std::string& dato);

/// A file that wasn't taken.
struct FileNonPreso {
  std::string Nome;
  std::string Motivo;  ///< in the user's language
};
/// "Not taken: gong.wav. The player can't play this file... (+2)"; "" where all were taken.
std::string ParoleNonPresi(Contesto& contesto, const std::vector<FileNonPreso>& file);

}  // namespace kvr5
