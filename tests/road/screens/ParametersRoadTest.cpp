#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>

#include "road/screens/StradaParametri.h"

// The screens of parameters in the whole program: every control of each is changed by mouse and
// keys and saved; what was saved is there when the screen is opened again.

namespace kvr5 {
namespace {

using namespace test;

class ParametersRoad : public StradaParametri {};

TEST_F(ParametersRoad, TheFadesThatWereSavedAreThereAgain) {
  frmPlayerConfig& hub = Hub();
  Su<frmTempiFade>(*hub.Opzioni->picConfiguraFade, [](frmTempiFade& form) {
    for (QSlider* slider : {form.sliLMP3, form.sliLLIN, form.sliLLI2}) {
      QTest::keyClick(slider, Qt::Key_PageDown);
    }
    QTest::keyClick(form.sliLLI2, Qt::Key_Home);
    Riscrivi(*form.txtTFOU, QStringLiteral("12"));
    Riscrivi(*form.txtTFIN, QStringLiteral("99"));
    Clicca(*form.u_dTADU_su);
    Scegli(*form.cmbTAVC, 4);
    Clicca(*form.picSave);
  });
  EXPECT_EQ(Chiave("TFIN"), "30");
  Su<frmTempiFade>(*hub.Opzioni->picConfiguraFade, [](frmTempiFade& form) {
    EXPECT_EQ(form.sliLMP3->value(), 10);
    EXPECT_EQ(form.lblLMP3_DB->text(), "56%");
    EXPECT_EQ(form.sliLLIN->value(), 10);
    EXPECT_EQ(form.sliLLI2->value(), 0);
    EXPECT_EQ(form.lblLLI2_DB->text(), "OFF");
    EXPECT_EQ(form.txtTFOU->text(), "12");
    EXPECT_EQ(form.txtTFIN->text(), "30");
    EXPECT_EQ(form.txtTADU->text(), "6");
    EXPECT_EQ(form.cmbTAVC->currentText(), "8 seconds");
    form.close();
  });
}

TEST_F(ParametersRoad, ASecondPressWhileTheNoticeStandsOpensNothing) {
  QAbstractButton& serial = *Hub().Seriali->cmdConfigure232;
  bool answered = false;
  const Pilota<frmSiNo> notice([&](frmSiNo& box) {
    serial.click();
    answered = true;
    Clicca(*box.cmdSi);
  });
  Su<frmConfig485>(serial, [&](frmConfig485& form) {
    EXPECT_TRUE(answered);
    Clicca(*form.picCancel);
  });
}

TEST_F(ParametersRoad, TheExtrasThatWereSavedAreThereAgain) {
  frmPlayerConfig& hub = Hub();
  Su<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, [](frmPanelExtra& form) {
    Clicca(*form.chkPonte);
    Scegli(*form.cmbMomd, 1);
    Scegli(*form.cmbPYDT, 1);
    Scegli(*form.cmbPYDL, 12);
    Scegli(*form.cmbTAPL, 8);
    Scegli(*form.cmbRSPL, 49);
    Clicca(*form.picSave);
  });
  for (const auto& [key, value] : {std::pair{"OMON", "1"},
                                   {"INVR", "1"},
                                   {"MOMD", "1"},
                                   {"PYDT", "1"},
                                   {"PYDL", "240"},
                                   {"TAPL", "18"},
                                   {"RSPL", "50"}}) {
    EXPECT_EQ(Chiave(key), value) << key;
  }
  Su<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, [](frmPanelExtra& form) {
    EXPECT_TRUE(form.chkPonte->isChecked());
    EXPECT_FALSE(form.cmbOMON->isEnabled());
    EXPECT_EQ(form.cmbOMON->currentIndex(), 1);
    EXPECT_EQ(form.cmbMomd->currentIndex(), 1);
    EXPECT_EQ(form.cmbPYDT->currentIndex(), 1);
    EXPECT_EQ(form.cmbPYDL->currentText(), "240 seconds");
    EXPECT_EQ(form.cmbTAPL->currentText(), "18 seconds");
    EXPECT_EQ(form.cmbRSPL->currentText(), "50 detections");
    Clicca(*form.picCancel);
  });
}

TEST_F(ParametersRoad, TheExtrasOfAScheduleHaveNoSensor) {
  frmPlayerConfig& hub = Hub(true);
  Su<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, [](frmPanelExtra& form) {
    EXPECT_FALSE(form.picIR->isVisible());
    Tasto(form, Qt::Key_Escape);
  });
}

TEST_F(ParametersRoad, TheSerialLinkThatWasSavedIsThereAgainAndTakesItsInputs) {
  frmPlayerConfig& hub = Hub();
  SuSeriale(*hub.Seriali->picConfig485, [](frmConfig485& form) {
    for (QComboBox* list : {form.cmbCMAD, form.cmbCMCK, form.cmbCMCL, form.cmbCMBR, form.cmbCMPR,
                            form.cmbCMSB, form.cmbCMDB, form.cmbCMDR}) {
      Scegli(*list, list->currentIndex() == 0 ? 1 : 0);
    }
    Clicca(*form.chkUse485);
    Clicca(*form.picSave);
  });
  EXPECT_TRUE(S().Usa485);
  EXPECT_FALSE(hub.fraIngressiLogici->chkIn[4]->isEnabled()) << "the link takes IN5";
  EXPECT_FALSE(hub.fraIngressiLogici->chkIn[5]->isEnabled());
  const std::string saved = Config();
  SuSeriale(*hub.Seriali->cmdConfigure232, [](frmConfig485& form) {
    EXPECT_EQ(form.windowTitle(), "RS-232 link");
    EXPECT_FALSE(form.cmbCMAD->isVisible());
    EXPECT_EQ(form.cmbCMBR->currentIndex(), 0);
    EXPECT_TRUE(form.chkUse485->isChecked());
    Clicca(*form.chkUse485);
    Clicca(*form.picSave);
  });
  EXPECT_EQ(Config(), saved) << "the address too";
  EXPECT_EQ(Chiave("CMAD"), "0");
  EXPECT_TRUE(hub.fraIngressiLogici->chkIn[4]->isEnabled());
}

TEST_F(ParametersRoad, ASaveLeavesTheHubsOwnChangesAndItsSignAlone) {
  frmPlayerConfig& hub = Hub();
  QTest::keyClick(hub.fraOutputLevel->sliVolume, Qt::Key_Up);
  ASSERT_TRUE(hub.lblNonSalvato->isVisible());
  Su<frmTempiFade>(*hub.Opzioni->picConfiguraFade, [](frmTempiFade& form) {
    QTest::keyClick(form.sliLMP3, Qt::Key_Up);
    Clicca(*form.picSave);
  });
  EXPECT_EQ(Chiave("LMP3"), "15");
  EXPECT_EQ(Chiave("LOUT"), "14") << "that is kept by the project's own save";
  EXPECT_EQ(hub.fraOutputLevel->sliVolume->value(), 15);
  EXPECT_TRUE(hub.lblNonSalvato->isVisible());
}

}  // namespace
}  // namespace kvr5
