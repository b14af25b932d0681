#pragma once

#include <array>

#include "playerconfig/screens/GraficoFade.h"
#include "playerconfig/screens/SchermoParametri.h"

class QLineEdit;
class QSlider;
class QToolButton;

namespace kvr5 {

/// How the line input and the MP3 files mix: three levels, three times in seconds and the reaction
/// time of the automatic volume control.
class frmTempiFade : public SchermoParametri {
 public:
  explicit frmTempiFade(Ambiente& ambiente);

  GraficoFade* picGrafico;
  QSlider *sliLMP3, *sliLLIN, *sliLLI2;
  QLabel *lblLMP3_DB, *lblLLIN_DB, *lblLLI2_DB;
  QLabel *lblLMP3, *lblLLIN, *lblLLI2;
  QLineEdit *txtTFOU, *txtTFIN, *txtTADU;
  QToolButton *u_dTFOU_su, *u_dTFOU_giu, *u_dTFIN_su, *u_dTFIN_giu, *u_dTADU_su, *u_dTADU_giu;
  QLabel *lbl_TFOU, *lbl_TFIN, *lbl_TADU, *lbl_TAVC;
  QLabel *lblTFOU, *lblTFIN, *lblTADU, *lblTAVC;
  std::array<QLabel*, 3> lblMillisecondi{};
  QComboBox* cmbTAVC;

 protected:
  void AlCaricamento() override;

 private:
  QWidget* CostruisciLivelli(QWidget* corpo);
  QWidget* CostruisciTempi(QWidget* corpo);
  CasellaCifre* NuovoTempo(std::size_t posto, QGridLayout& griglia, QWidget* padre);

  std::array<CasellaCifre*, 3> tempi_{};
};

}  // namespace kvr5
