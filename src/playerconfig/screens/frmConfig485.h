#pragma once

#include "playerconfig/screens/SchermoParametri.h"

class QCheckBox;
class QStackedLayout;

namespace kvr5 {

/// The parameters of the player's serial port. In its RS-232 form there is no device address; on a
/// KVR5 it decides, too, whether the project uses RS-485, which takes two of its inputs.
class frmConfig485 : public SchermoParametri {
 public:
  explicit frmConfig485(Ambiente& ambiente);

  /// Set by the caller before the screen is shown: true for RS-232, false for RS-485.
  bool ModoRS232 = false;

  QLabel* lblFunzionamento;
  QWidget* picUse485;
  QCheckBox* chkUse485;
  QLabel* lblDescrizione;
  /// The first page; cmbCMAD stands above it.
  QWidget* picContenitore;
  QComboBox *cmbCMAD, *cmbCMCK, *cmbCMCL, *cmbCMBR, *cmbCMPR, *cmbCMSB, *cmbCMDB, *cmbCMDR;
  /// The second page.
  QWidget* picRele;
  QComboBox *cmbCMI3, *cmbORI3;
  QWidget* picPagina2;
  Coppia* imgPagina2;
  QLabel* lblCambiaPagina;
  Coppia* picDefaults;
  QLabel* lblDefaults;

 protected:
  void AlCaricamento() override;
  void SalvaAltro() override;

 private:
  QWidget* CostruisciUso(QWidget* corpo);
  QWidget* CostruisciPagine(QWidget* corpo);
  QWidget* CostruisciPrima(QWidget* cornice);
  QWidget* CostruisciSeconda(QWidget* cornice);
  void CambiaPagina();

  QWidget* indirizzo_ = nullptr;  ///< the row of cmbCMAD
  QStackedLayout* pagine_ = nullptr;
};

}  // namespace kvr5
