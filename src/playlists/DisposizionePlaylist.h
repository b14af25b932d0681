#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Contesto.h"

namespace kvr5 {

/// An entry of cmbPlaylist.
struct VocePlaylist {
  std::string Testo;
  std::int32_t ItemData = 0;  ///< the number of a named list; elsewhere of no effect
  bool operator==(const VocePlaylist&) const = default;
};

/// What the editor of playlists shows for a model and mode, and the list on which it comes up.
struct DisposizionePlaylist {
  bool PlaylistMultiple = true;       ///< one list file per number, else the one PLAYLIST.* set
  std::int32_t PlaylistCorrente = 0;  ///< before the selector has its say
  bool picfraSelezionePlaylist = false;
  bool picFraIngresso = false;
  bool picfraAddRemovePL = false;
  bool NomiDaHead = false;         ///< the entries are the names of the named lists
  std::vector<VocePlaylist> Voci;  ///< else these
};

/// Tells it for any project, whatever the hub offers.
DisposizionePlaylist DisposizionePlaylistDi(Contesto& contesto, std::int16_t playerType,
                                            std::int16_t playerMode);

/// Whether a click on cmbPlaylist adds 1 to the index for the list's number: modes 5, 6, 7 and 9.
/// The model isn't looked at.
bool IndiceDaUno(std::int16_t playerMode);

}  // namespace kvr5
