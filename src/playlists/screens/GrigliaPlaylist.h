#pragma once

#include <cstdint>
#include <vector>

#include "core/screens/TabellaEditor.h"
#include "playlists/screens/ModelloBrani.h"

namespace kvr5 {

/// grdPlaylist: the current playlist, of which several rows may be selected.
class GrigliaPlaylist : public TabellaEditor {
 public:
  GrigliaPlaylist(ModelloBrani& modello, QWidget* padre);

  /// The selected rows from the top; the current one where none is.
  std::vector<std::int64_t> Scelti() const;
  /// Selects these rows and makes one of them current, in view; calls nobody.
  void Seleziona(const std::vector<std::int64_t>& id, std::int64_t corrente);
  /// Gives the columns the room that their words need.
  void Misura();

 private:
  ModelloBrani& modello_;
};

}  // namespace kvr5
