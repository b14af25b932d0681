#pragma once

#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Riquadro.h"
#include "projects/ContoProgetto.h"

namespace kvr5 {

/// The button that looks for missing files, hidden.
Coppia* NuovoTrova(const char* nome, const char* etichetta, QWidget* padre);
/// Shows or hides it; the keyboard doesn't go on to what happens to stand next.
void OffriTrova(Coppia& trova, bool offre);

/// The field of a project that isn't on inputs: the drawing of its player, its mode, what its lists
/// hold, and the button that leads to them.
class PannelloModo : public Riquadro {
 public:
  explicit PannelloModo(QWidget* padre);

  QWidget* picPanel;
  QLabel* lblModoPanelBig;
  QLabel* lblSommario;
  EtichettaAvviso* lblMancanti;
  Coppia* picTrovaBrani;  ///< looks for the files that are missing; there only where some are

  /// The drawing of a model, 1 to 4.
  void ImpostaModello(std::int16_t tipo);
  /// Takes a button of the command bar over.
  void Accogli(Coppia* pulsante);
  /// The figures of its lists, or of its schedule.
  void Mostra(Contesto& contesto, const CifreProgetto& cifre, bool palinsesto);
};

}  // namespace kvr5
