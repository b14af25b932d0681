#pragma once

#include <QLabel>
#include <QLineEdit>

#include "core/Schermata.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// Asks for a project's name alone; with SoloNome false it also makes a project of any model.
class frmRichiestaNomeForm : public Form {
 public:
  explicit frmRichiestaNomeForm(Ambiente& ambiente);

  /// The screen that is shown when this one goes, and the calling one.
  Schermata FormSuccessivo = Schermata::Nessuna;
  /// The name and the folder are left in the state, and nothing is made.
  bool SoloNome = false;

  QLabel* lblDigitareNomeProgetto;
  QLineEdit* txtNomeProgetto;
  EtichettaAvviso* lblNota;
  QLabel* lblCartella;  ///< the folder that the name leads to, or why there is none
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
  void Collega();
  void CambiaNome();
  void Avanti();

  bool dato_ = false;  ///< a name was taken
};

}  // namespace kvr5
