#pragma once

#include <QLabel>
#include <QMenu>

#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Riquadro.h"
#include "schedule/screens/GrigliaSegmenti.h"

namespace kvr5 {

/// The segments of the current day, and what is done with them.
class RiquadroSegmenti : public Riquadro {
 public:
  RiquadroSegmenti(Contesto& contesto, ModelloSegmenti& modello, QWidget* padre);

  QLabel* lblVociInElenco;
  GrigliaSegmenti* grdSegmenti;
  EtichettaAvviso* lblAvvisi;  ///< what a recording would do wrong
  Coppia* picNomiCopie;        ///< gives the copies in the project their own names
  Coppia* picCopiaRipetuti;    ///< gives spots that share a file each its own
  Coppia *picAggiungiSegmento, *picCopiaSegmento, *picRimuoviSegmento;
  QLabel *lblAggiungi, *lblDuplicaSegmento, *lblRimuovi;
  QMenu mnuOpzioni;  ///< of the grid
  QAction* mnuDuplicaRiga;

  /// What a recording would do wrong, "" for nothing, and which remedies there are.
  void MostraAvvisi(const QString& testo, bool senzaNome, bool ripetuti);
  /// What the buttons of a segment do, or why they can't where there is none.
  void SpiegaPulsanti(bool segmento);
  void Localizza();

 private:
  Contesto& contesto_;
};

}  // namespace kvr5
