#pragma once

#include <QLabel>
#include <QTableView>
#include <optional>
#include <string>

#include "core/FinestraProgresso.h"
#include "core/Schermata.h"
#include "core/screens/CasellaCerca.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"
#include "projects/screens/ListaProgetti.h"

namespace kvr5 {

/// The list of the projects, and the ways to those that lie elsewhere.
class frmCaricaProgetto : public Form {
 public:
  /// `progresso` is the window that every long operation shares.
  frmCaricaProgetto(Ambiente& ambiente, FinestraProgresso& progresso);

  /// The screen that is shown when this one goes back.
  Schermata FormChiamante = Schermata::Nessuna;
  /// The folder to open; empty when none.
  std::string CartellaScelta;
  /// 1 from the disk, 2 from a card.
  std::int16_t ModoScelto = 0;

  QLabel* lblPrjInDefaultDir;
  CasellaCerca* txtCerca;
  QTableView* lstProgetti;
  QLabel* lblElencoVuoto;
  Coppia* picOpen;
  QLabel* lblLoadSelected;
  Coppia* picindietro;
  QLabel* lblIndietro;
  Coppia* picLoad;
  QLabel* lblCaricaDaDisco;
  Coppia* picLoadFlash;
  QLabel* lblCaricaDaFlash;
  Coppia* picHelp;

 protected:
  void AlCaricamento() override;
  void AlloScarico() override;

 private:
  void Costruisci();
  void CostruisciElenco();
  void Collega();
  void ApriScelto();
  void ApriAltraCartella();
  /// Brings the project of a card into a folder of its own and opens that.
  void CaricaDaFlash();
  void ApriProgetto();
  /// True when the hub stands.
  bool Apre();
  void Cerca();
  void CercaProssimo();
  void MostraTrovato(std::optional<std::size_t> riga);
  void Indietro();

  FinestraProgresso& progresso_;
  ListaProgetti lista_;
  /// A folder is being picked or opened: events run then, and a second press among them must do
  /// nothing. Stays on once the hub stands.
  bool apre_ = false;
};

}  // namespace kvr5
