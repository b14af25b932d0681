#pragma once

namespace kvr5 {

/// A screen, as the one that goes away names the next one.
enum class Schermata {
  Nessuna,
  Splash,
  Menu,
  Impostazioni,
  Wizard,
  ElencoProgetti,
  Configurazione,
  EditorPlaylist,
  Palinsesto,
};

}  // namespace kvr5
