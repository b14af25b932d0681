#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QLabel>
#include <QSet>
#include <QTableView>
#include <QTimer>
#include <functional>
#include <string>

#include "core/Schermata.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Barra.h"
#include "core/screens/Coppia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Form.h"
#include "flashcard/Verifica.h"
#include "flashcard/screens/ModelloRiscontri.h"

namespace kvr5 {

/// Compares the chosen card with the open project and lists what it finds, with what to do. It
/// begins when it is shown; nothing on the card is changed.
class frmVerifica : public Form, private OsservatoreVerifica {
 public:
  explicit frmVerifica(Ambiente& ambiente);

  /// The screen that opened it, shown again at its end.
  Schermata FormChiamante = Schermata::Nessuna;
  /// Whether the host has the card still; the folder that it was mounted at may outlive it.
  std::function<bool()> SchedaPresente = [] { return true; };

  EtichettaElisa* lblTitolo;
  EtichettaElisa* lblFile;  ///< the file at work
  QLabel* lblQuanto;
  Barra* picAvanzamento;
  QLabel* lblBuono;           ///< all is well
  EtichettaAvviso* lblEsito;  ///< or how much isn't
  QTableView* grdRiscontri;
  Coppia* picRipeti;
  QLabel* lblRipeti;
  Coppia* picChiudi;  ///< stops the work, then closes
  QLabel* lblChiudi;
  Coppia* picHelp;

 protected:
  void AlCaricamento() override;
  void AlloScarico() override;
  void showEvent(QShowEvent* event) override;

 private:
  void Costruisci();
  void Verifica();
  void Chiudi();
  void MostraLavoro(bool lavora);
  void MostraEsito(const EsitoVerifica& esito);
  bool Avanza(const CopyState& stato) override;
  void Trovato(const Riscontro& riscontro) override;
  bool Presente() override { return SchedaPresente(); }
  void ScriviStato(const CopyState& stato);
  /// Gives each new row the height that its remedy needs.
  void AdattaRighe();
  /// Makes the column of the findings wide enough for that of a row.
  void MostraIntera(int riga);
  /// The height that a row needs for its remedy, pixels.
  int AltezzaDi(int riga);

  ModelloRiscontri modello_;
  QTimer adatta_;
  int adattate_ = 0;             ///< rows that stand right
  bool daCapo_ = false;          ///< they have another width now
  QHash<QString, int> altezze_;  ///< of rows with this remedy, pixels
  QSet<QString> misurati_;       ///< findings that the column has room for
  QElapsedTimer scritto_;        ///< since the state was written last
  std::string quanto_, ferma_, chiudi_;
  bool lavora_ = false;
  bool fermata_ = false;
};

}  // namespace kvr5
