#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/Schermata.h"

namespace kvr5 {

/// How a screen hands over to another one without knowing it: the composition root knows them all.
/// A screen that isn't loaded is loaded by being shown.
class Navigazione {
 public:
  virtual ~Navigazione() = default;
  /// Shows a screen, not modally; Nessuna does nothing.
  virtual void Mostra(Schermata schermata) = 0;
  /// Shows frmCaricaProgetto, which comes back to `chiamante`.
  virtual void MostraElencoProgetti(Schermata chiamante) = 0;
  /// Shows frmPlayerConfig for the open project: 0 just made, 1 from the disk, 2 from a card.
  virtual void ApriConfigurazione(std::int16_t apreDaFlash) = 0;
  /// Shows frmPlaylistEditor, which comes back to `chiamante`.
  virtual void ApriPlaylist(Schermata chiamante) = 0;
  /// Shows frmPalinsesto, which comes back to `chiamante`.
  virtual void ApriPalinsesto(Schermata chiamante) = 0;
  /// Shows frmSelectFlash modally for `chiamante`.
  virtual void ScegliScheda(Schermata chiamante) = 0;
  /// Shows frmRichiestaNomeForm modally for `chiamante`, to give another name than `nome`, which a
  /// project has: ProjectName is the name that was given, or empty.
  virtual void ChiediNomeProgetto(Schermata chiamante, const std::string& nome) = 0;
  /// Has frmPlayerConfig show the chosen card anew.
  virtual void AggiornaPercorsoMemoryCard() = 0;
  /// Shows frmTempiFade, frmPanelExtra or frmConfig485 modally over the hub.
  virtual void ApriTempiFade() = 0;
  virtual void ApriPanelExtra() = 0;
  virtual void ApriConfig485(bool modoRS232) = 0;
  /// Shows frmSalva modally for `chiamante`, and hands its answer to `annulla`: true is cancel.
  virtual void ChiediSalvataggio(Schermata chiamante, std::function<void(bool)> annulla) = 0;
  /// Runs Main once more, as every visit to the settings ends.
  virtual void RiavviaMain() = 0;
  /// Ends the whole program, whatever screens are loaded.
  virtual void TerminaProgramma() = 0;
};

}  // namespace kvr5
