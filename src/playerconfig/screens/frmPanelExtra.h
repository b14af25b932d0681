#pragma once

#include "playerconfig/Ponte.h"
#include "playerconfig/screens/SchermoParametri.h"

class QCheckBox;

namespace kvr5 {

/// The parameters of the KVR5 that have no place on the hub: bridge mode, output, and in mode 1 the
/// infra-red motion sensor.
class frmPanelExtra : public SchermoParametri {
 public:
  explicit frmPanelExtra(Ambiente& ambiente);

  QCheckBox* chkPonte;
  QLabel* lblPonte;
  QComboBox *cmbOMON, *cmbMomd;
  QWidget* picIR;
  QLabel* lblParametriIR;
  QComboBox *cmbPYDT, *cmbPYDL, *cmbTAPL, *cmbRSPL;
  Coppia* picDefaults;
  QLabel* lblDefaults;

 protected:
  void AlCaricamento() override;

 private:
  QWidget* CostruisciUscita(QWidget* corpo);
  QWidget* CostruisciSensore(QWidget* corpo);
  void Collega();
  /// Shows what bridge mode makes of the list that it holds.
  void MostraPonte();

  Ponte ponte_{false, 0};
};

}  // namespace kvr5
