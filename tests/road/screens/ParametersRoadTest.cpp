#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>

#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/frmSiNo.h"
#include "playerconfig/ConfigTxt.h"
#include "road/screens/BancoProgramma.h"
#include "support/screens/Scelte.h"

// The screens of parameters in the whole program: every control of each is changed by mouse and
// keys and saved; what was saved is there when the screen is opened again.

namespace kvr5 {
namespace {

using namespace test;
using Names = std::vector<std::string>;

class ParametersRoad : public BancoProgramma {
 protected:
  frmPlayerConfig& Hub(bool playlist = false) {
    ScriviImpostazioni();
    Avvia();
    PassaLoSplash();
    Clicca(*Attendi<frmMain>().picNuovoProgetto);
    auto& wizard = Attendi<frmWizardPanel1>();
    Riscrivi(*wizard.txtNomeProgetto, QStringLiteral("Bar"));
    if (playlist) Clicca(wizard, "optPanel_2");
    Clicca(*wizard.picGoOn);
    return Attendi<frmPlayerConfig>();
  }
  static frmPlayerConfig& BackAtTheHub() {
    frmPlayerConfig* hub = Vista<frmPlayerConfig>();
    if (hub == nullptr) throw std::logic_error("the hub isn't there");
    EXPECT_EQ(Viste(), Names{"frmPlayerConfig"});
    hub->activateWindow();
    EXPECT_TRUE(Pronta(*hub));
    return *hub;
  }
  /// Presses a button of the hub, and has `act` work on the screen that comes.
  template <class T>
  void On(QAbstractButton& button, const std::function<void(T&)>& act) {
    const Pilota<T> user(act);
    button.click();
    BackAtTheHub();
  }
  /// The same on the serial screen, which begins with a notice.
  void OnSerial(QAbstractButton& button, const std::function<void(frmConfig485&)>& act) {
    const Pilota<frmSiNo> notice([](frmSiNo& box) { Clicca(*box.cmdSi); });
    On<frmConfig485>(button, act);
  }
  std::string Key(const char* key) { return LeggiChiaveConfig(programma->C(), key); }
  std::string Config() const { return b.Cartella.Read("program/Projects/Bar/Config.txt"); }

  static void Pick(QComboBox& list, int index) {
    ScegliVoce(list, list.itemText(index).toStdString());
  }
};

TEST_F(ParametersRoad, TheFadesThatWereSavedAreThereAgain) {
  frmPlayerConfig& hub = Hub();
  On<frmTempiFade>(*hub.Opzioni->picConfiguraFade, [](frmTempiFade& form) {
    for (QSlider* slider : {form.sliLMP3, form.sliLLIN, form.sliLLI2}) {
      QTest::keyClick(slider, Qt::Key_PageDown);
    }
    QTest::keyClick(form.sliLLI2, Qt::Key_Home);
    Riscrivi(*form.txtTFOU, QStringLiteral("12"));
    Riscrivi(*form.txtTFIN, QStringLiteral("99"));
    Clicca(*form.u_dTADU_su);
    Pick(*form.cmbTAVC, 4);
    Clicca(*form.picSave);
  });
  EXPECT_EQ(Key("TFIN"), "30");
  On<frmTempiFade>(*hub.Opzioni->picConfiguraFade, [](frmTempiFade& form) {
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

TEST_F(ParametersRoad, TheExtrasThatWereSavedAreThereAgain) {
  frmPlayerConfig& hub = Hub();
  On<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, [](frmPanelExtra& form) {
    Clicca(*form.chkPonte);
    Pick(*form.cmbMomd, 1);
    Pick(*form.cmbPYDT, 1);
    Pick(*form.cmbPYDL, 12);
    Pick(*form.cmbTAPL, 8);
    Pick(*form.cmbRSPL, 49);
    Clicca(*form.picSave);
  });
  for (const auto& [key, value] : {std::pair{"OMON", "1"},
                                   {"INVR", "1"},
                                   {"MOMD", "1"},
                                   {"PYDT", "1"},
                                   {"PYDL", "240"},
                                   {"TAPL", "18"},
                                   {"RSPL", "50"}}) {
    EXPECT_EQ(Key(key), value) << key;
  }
  On<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, [](frmPanelExtra& form) {
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
  On<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, [](frmPanelExtra& form) {
    EXPECT_FALSE(form.picIR->isVisible());
    Tasto(form, Qt::Key_Escape);
  });
}

TEST_F(ParametersRoad, TheSerialLinkThatWasSavedIsThereAgainAndTakesItsInputs) {
  frmPlayerConfig& hub = Hub();
  OnSerial(*hub.Seriali->picConfig485, [](frmConfig485& form) {
    for (QComboBox* list : {form.cmbCMAD, form.cmbCMCK, form.cmbCMCL, form.cmbCMBR, form.cmbCMPR,
                            form.cmbCMSB, form.cmbCMDB, form.cmbCMDR}) {
      Pick(*list, list->currentIndex() == 0 ? 1 : 0);
    }
    Clicca(*form.chkUse485);
    Clicca(*form.picSave);
  });
  EXPECT_TRUE(S().Usa485);
  EXPECT_FALSE(hub.fraIngressiLogici->chkIn[4]->isEnabled()) << "the link takes IN5";
  EXPECT_FALSE(hub.fraIngressiLogici->chkIn[5]->isEnabled());
  const std::string saved = Config();
  OnSerial(*hub.Seriali->cmdConfigure232, [](frmConfig485& form) {
    EXPECT_EQ(form.windowTitle(), "RS-232 link");
    EXPECT_FALSE(form.cmbCMAD->isVisible());
    EXPECT_EQ(form.cmbCMBR->currentIndex(), 0);
    EXPECT_TRUE(form.chkUse485->isChecked());
    Clicca(*form.chkUse485);
    Clicca(*form.picSave);
  });
  EXPECT_EQ(Config(), saved) << "the address too";
  EXPECT_EQ(Key("CMAD"), "0");
  EXPECT_TRUE(hub.fraIngressiLogici->chkIn[4]->isEnabled());
}

TEST_F(ParametersRoad, ASaveLeavesTheHubsOwnChangesAndItsSignAlone) {
  frmPlayerConfig& hub = Hub();
  QTest::keyClick(hub.fraOutputLevel->sliVolume, Qt::Key_Up);
  ASSERT_TRUE(hub.lblNonSalvato->isVisible());
  On<frmTempiFade>(*hub.Opzioni->picConfiguraFade, [](frmTempiFade& form) {
    QTest::keyClick(form.sliLMP3, Qt::Key_Up);
    Clicca(*form.picSave);
  });
  EXPECT_EQ(Key("LMP3"), "15");
  EXPECT_EQ(Key("LOUT"), "14") << "that is kept by the project's own save";
  EXPECT_EQ(hub.fraOutputLevel->sliVolume->value(), 15);
  EXPECT_TRUE(hub.lblNonSalvato->isVisible());
}

}  // namespace
}  // namespace kvr5
