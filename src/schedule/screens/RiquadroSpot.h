#pragma once

#include <QLabel>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Riquadro.h"
#include "core/screens/TabellaEditor.h"
#include "schedule/screens/CampoOra.h"
#include "schedule/screens/FrecceSpot.h"
#include "schedule/screens/ModelloSpot.h"

namespace kvr5 {

/// picDettaglio: the selected segment, its start and its eight slots. Files that are dropped on a
/// slot are handed on.
class RiquadroSpot : public Riquadro {
 public:
  static constexpr std::size_t kPosti = SlotSpot::kPosti;

  RiquadroSpot(Contesto& contesto, ModelloSpot& modello, QWidget* padre);

  QLabel *lblDettaglioPalinsesto, *lblOrario, *lblDuePunti;
  CampoOra *txtOre, *txtMin;
  QLabel* lblTotaleSpot;  ///< the time of all spots
  TabellaEditor* grdDettaglio;
  std::array<QLabel*, kPosti> lblPos{};
  std::array<Coppia*, kPosti> picPlay{}, picStop{}, picAggiungiSpot{}, picRimuoviSpot{};
  std::array<FrecceSpot*, kPosti> UpDownFile{};
  EtichettaAvviso* lblEsito;  ///< files that were not taken

  /// Shows and hides the controls of the slots.
  void MostraSlot(const SlotSpot& slot);
  /// Whether a control that has the keyboard is among those that these slots hide or cover.
  bool Perde(const QWidget& controllo, const SlotSpot& slot) const;
  /// Says what was not taken; "" takes that away.
  void MostraEsito(const QString& testo);
  /// The stop buttons take room only where this program plays.
  void Disponi(bool playerEsterno, bool oreBloccate);
  void Localizza(bool playerEsterno, bool oreBloccate);

  /// Called with the slot on which files were dropped, from 0, and the files in the host's form.
  std::function<void(int slot, std::vector<std::string> file)> SuFile;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QLayout* CostruisciOrario();
  QLayout* CostruisciSlot();
  /// The slot at a height of the frame, 0 to 7: the nearest one that takes a file.
  int SlotA(int y) const;
  void Sopra(int slot);

  Contesto& contesto_;
  SlotSpot slot_;
  int sopra_ = -1;  ///< the slot over which files are being dragged
};

}  // namespace kvr5
