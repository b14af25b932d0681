#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "core/ModelloImpostazioni.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Coppia.h"
#include "core/screens/Form.h"

namespace kvr5 {

/// The settings of the program. Going away from here runs Main again, which is how a change takes
/// effect.
class frmConfig : public Form {
 public:
  explicit frmConfig(Ambiente& ambiente);

  QLabel* lblTitolo;
  QLabel* lblMp3_Dir;
  QLineEdit* txtProjectDir;
  Coppia* cmdSelPrjDir;
  QLabel* lblLanguage;
  QComboBox* cmbLanguage;
  QLabel* lblPlayer;
  QRadioButton* optInternal;
  QRadioButton* optExternal;
  EtichettaAvviso* lblNota;  ///< what of the choices may surprise; empty where nothing
  Coppia* cmdSave;
  QLabel* lblSave;
  Coppia* cmdExit;
  QLabel* lblEsci;
  Coppia* picHelp;

 protected:
  void AlCaricamento() override;
  void AllAttivazione() override;
  bool PuoChiudere(Causa causa) override;
  void AlloScarico() override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Costruisci();
  void Collega();
  void MostraCartella();
  void MostraModificato();
  void MostraNota();

  ModelloImpostazioni modello_;
  bool uscitaChiesta_ = false;
};

}  // namespace kvr5
