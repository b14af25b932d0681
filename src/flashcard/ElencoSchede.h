#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "core/Esecutore.h"
#include "flashcard/SorgenteDrive.h"

namespace kvr5 {

/// An item of cmdFlash.
struct SchedaTrovata {
  std::string Radice;            ///< "E:\", the item's text
  std::optional<Drive> Fatti{};  ///< shown beside it; nothing where the host tells nothing
  bool Uscita = false;           ///< it was there when the list was made, and is no more

  bool operator==(const SchedaTrovata&) const = default;
};

/// frmSelectFlash without its pixels: the scan for cards and the choice of one.
class ElencoSchede {
 public:
  ElencoSchede(Contesto& contesto, SorgenteDrive& drive) : contesto_(contesto), drive_(drive) {}

  /// Load: clears SelezioneFlashAnnullata and looks for the cards; the first one is selected.
  /// False when there is none: that was told by frmSiNo, and the dialog has to go.
  bool Carica();
  /// Looks for the cards, without a word; the first one is selected.
  void Cerca();
  const std::vector<SchedaTrovata>& Schede() const { return schede_; }
  std::size_t Scelta() const { return scelta_; }
  /// Selects an item; past the items nothing happens.
  void Scegli(std::size_t indice);
  /// The text of cmdFlash: the selected root, or "".
  std::string Testo() const;

  /// Looks at the host's drives once more: a card that was put in joins the list, one that was
  /// taken out leaves it, and the facts of the others are as they are now. The chosen card stays
  /// chosen whatever happens to it. True when anything of this has changed.
  bool Aggiorna();

  /// picOk: the text becomes PercorsoMemoryCard. True when the calling form, by its name, shows
  /// the path and has to run its AggiornaPercorsoMemoryCard.
  bool Conferma(std::string_view formChiamante);
  /// picCancel: raises SelezioneFlashAnnullata; the card that was chosen before stays.
  void Annulla();
  /// picOpen: the selected card in the host's file browser.
  void Esplora(Esecutore& esecutore) const;

 private:
  bool Candidata(const std::string& radice);
  std::vector<SchedaTrovata> CheRestano(const std::vector<Drive>& drives) const;
  void AggiungiNuove(const std::vector<Drive>& drives, std::vector<SchedaTrovata>& cards);
  void DiciNessuna();

  Contesto& contesto_;
  SorgenteDrive& drive_;
  std::vector<SchedaTrovata> schede_;
  std::size_t scelta_ = 0;
};

}  // namespace kvr5
