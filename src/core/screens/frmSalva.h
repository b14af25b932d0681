#pragma once

#include <QCheckBox>
#include <QLabel>
#include <functional>

#include "core/Schermata.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// The question of a save: whether the MP3 files of the inputs are copied into the project too.
class frmSalva : public Form {
 public:
  explicit frmSalva(Ambiente& ambiente);

  /// The screen that asked, shown again at the end, and its flag AnnullaSalvataggio.
  Schermata FormChiamante = Schermata::Nessuna;
  std::function<void(bool)> AnnullaSalvataggio;

  QCheckBox* chkSaveMp3Inputs;
  QLabel* lblSaveMp3Inputs;
  QLabel* lblNota;
  QLabel* lblSalvaprogetto;
  Coppia* picGoBack;
  QLabel* lblIndietro;
  Coppia* picSalva;
  QLabel* lblSalva;
  Coppia* picHelp;

 protected:
  void AlCaricamento() override;
  bool PuoChiudere(Causa causa) override;
  void AlloScarico() override;

 private:
  void Finisci(bool annulla);
};

}  // namespace kvr5
