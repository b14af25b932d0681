#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "core/Schermata.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// The one screen through which a new project comes into being: its name and what drives the
/// player.
class frmWizardPanel1 : public Form {
 public:
  explicit frmWizardPanel1(Ambiente& ambiente);

  /// The screen that is shown when this one goes.
  Schermata FormSuccessivo = Schermata::Nessuna;

  QLabel* lblNomeProgetto;
  QLineEdit* txtNomeProgetto;
  EtichettaAvviso* lblNota;
  QLabel* lblCartella;  ///< the folder that the name leads to, or why there is none
  QLabel* lblSelectType;
  QRadioButton* optPanel_1;
  QRadioButton* optPanel_2;
  QRadioButton* optPanel_21;
  QComboBox* cmbPlaylist;
  Coppia* picGoOn;
  QLabel* lblOn;
  Coppia* picGoBack;
  QLabel* lblIndietro;
  Coppia* picHelp;

 protected:
  void AlCaricamento() override;
  bool PuoChiudere(Causa causa) override;
  void AlloScarico() override;

 private:
  void Costruisci();
  QWidget* CostruisciTipi();
  void Collega();
  void Localizza();
  void CambiaNome();
  void CreaProgetto();
  void Indietro();
  /// Sets PlayerMode from the options.
  void LeggiModoPannello();

  QButtonGroup tipi_;
  std::vector<QLabel*> suggerimenti_;
};

}  // namespace kvr5
