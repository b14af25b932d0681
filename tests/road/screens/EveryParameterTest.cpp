#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>
#include <algorithm>

#include "road/screens/StradaParametri.h"
#include "support/screens/Cursori.h"

// Every control of the screens of parameters in the whole program, changed by the mouse and by the
// keys: what a save left is on all controls at the next opening, and a cancel leaves nothing.

namespace kvr5 {
namespace {

using namespace test;

class EveryParameter : public StradaParametri {
 protected:
  using Names = std::vector<std::string>;
  template <class T>
  using Acts = std::vector<std::function<void(T&)>>;

  /// Opens a screen once for each act, does it, and saves; each opening shows what the one before
  /// it saved, and each act changes all controls but `kept`. Then all once more with a cancel.
  template <class T>
  void SaveEach(QAbstractButton& button, const Acts<T>& acts, const Names& kept = {}) {
    Mostrati last;
    for (const auto& act : acts) {
      Su<T>(button, [&](T& form) {
        const Mostrati before = ControlliDi(form);
        EXPECT_EQ(before, last.empty() ? before : last) << "as it was saved";
        act(form);
        last = ControlliDi(form);
        ExpectAllChanged(before, last, kept);
        Clicca(*form.picSave);
      });
    }
    const std::string saved = Config();
    for (const auto& act : acts) {
      Su<T>(button, [&](T& form) {
        EXPECT_EQ(ControlliDi(form), last);
        act(form);
        Clicca(*form.picCancel);
      });
      EXPECT_EQ(Config(), saved) << "a cancel";
    }
  }
  static void ExpectAllChanged(const Mostrati& before, const Mostrati& after, const Names& kept) {
    for (const auto& [name, what] : before) {
      const bool stays = std::ranges::find(kept, name) != kept.end();
      EXPECT_EQ(after.at(name) == what, stays) << name << " " << what;
    }
  }
  /// To the next item of each list, from the last one to the first; every other one by the mouse.
  static void PickTheNextOfEach(std::initializer_list<QComboBox*> lists) {
    bool mouse = false;
    for (QComboBox* list : lists) {
      mouse = !mouse;
      const int next = (list->currentIndex() + 1) % list->count();
      mouse ? ScegliColMouse(*list, next) : Scegli(*list, next);
    }
  }
};

TEST_F(EveryParameter, OfTheFadesIsThereAgain) {
  frmPlayerConfig& hub = Hub();
  SaveEach<frmTempiFade>(
      *hub.Opzioni->picConfiguraFade,
      {[](frmTempiFade& form) {
         Trascina(*form.sliLMP3, -15);
         Trascina(*form.sliLLIN, 20);
         Trascina(*form.sliLLI2, 60);
         for (QToolButton* up : {form.u_dTFOU_su, form.u_dTFIN_su, form.u_dTADU_su}) {
           for (int i = 0; i < 3; ++i) Clicca(*up);
         }
         ScegliColMouse(*form.cmbTAVC, 3);
       },
       [](frmTempiFade& form) {
         for (QSlider* slider : {form.sliLMP3, form.sliLLIN, form.sliLLI2}) {
           slider->value() < 10 ? CliccaSopra(*slider) : CliccaSotto(*slider);
         }
         for (QToolButton* down : {form.u_dTFOU_giu, form.u_dTFIN_giu, form.u_dTADU_giu}) {
           Clicca(*down);
         }
         Scegli(*form.cmbTAVC, 4);
       },
       [](frmTempiFade& form) {
         QTest::keyClick(form.sliLMP3, Qt::Key_Up);
         QTest::keyClick(form.sliLLIN, Qt::Key_Home);
         QTest::keyClick(form.sliLLI2, Qt::Key_End);
         Riscrivi(*form.txtTFOU, QStringLiteral("30"));
         Riscrivi(*form.txtTFIN, QStringLiteral("0"));
         QTest::keyClick(form.txtTFIN, Qt::Key_Return);
         Riscrivi(*form.txtTADU, QStringLiteral("21"));
         QTest::keyClick(form.txtTADU, Qt::Key_Down);
         ScegliColMouse(*form.cmbTAVC, 0);
       }});
  EXPECT_EQ(Chiave("LLIN"), "0");
  EXPECT_EQ(Chiave("LLI2"), "20");
  EXPECT_EQ(Chiave("TFOU"), "30");
  EXPECT_EQ(Chiave("TFIN"), "1");
  EXPECT_EQ(Chiave("TADU"), "20");
  EXPECT_EQ(Chiave("TAVC"), "0");
}

TEST_F(EveryParameter, OfTheExtrasIsThereAgain) {
  frmPlayerConfig& hub = Hub();
  const auto change = [](frmPanelExtra& form) {
    PickTheNextOfEach(
        {form.cmbOMON, form.cmbMomd, form.cmbPYDT, form.cmbPYDL, form.cmbTAPL, form.cmbRSPL});
  };
  const std::string omon = Chiave("OMON");
  SaveEach<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, {change}, {"chkPonte"});
  EXPECT_EQ(Chiave("OMON"), omon == "1" ? "0" : "1") << "chosen by the user";
  SaveEach<frmPanelExtra>(*hub.Opzioni->cmdConfigureExtra, {change, change, change}, {"chkPonte"});
}

TEST_F(EveryParameter, OfTheExtrasIsThereAgainInBridgeModeAndAfterIt) {
  frmPlayerConfig& hub = Hub();
  QAbstractButton& button = *hub.Opzioni->cmdConfigureExtra;
  Su<frmPanelExtra>(button, [](frmPanelExtra& form) {
    Scegli(*form.cmbOMON, 0);
    Clicca(*form.lblPonte);
    EXPECT_EQ(form.cmbOMON->currentIndex(), 1);
    Clicca(*form.picSave);
  });
  Su<frmPanelExtra>(button, [](frmPanelExtra& form) {
    EXPECT_TRUE(form.chkPonte->isChecked());
    EXPECT_EQ(form.cmbOMON->currentIndex(), 1);
    EXPECT_FALSE(form.cmbOMON->isEnabled());
    Clicca(*form.chkPonte);
    ScegliColMouse(*form.cmbOMON, 0);
    Clicca(*form.picSave);
  });
  Su<frmPanelExtra>(button, [](frmPanelExtra& form) {
    EXPECT_FALSE(form.chkPonte->isChecked());
    EXPECT_EQ(form.cmbOMON->currentIndex(), 0);
    EXPECT_TRUE(form.cmbOMON->isEnabled());
    form.close();
  });
}

TEST_F(EveryParameter, OfTheExtrasGoesBackToItsDefaultAndIsThereAgain) {
  frmPlayerConfig& hub = Hub();
  QAbstractButton& button = *hub.Opzioni->cmdConfigureExtra;
  Su<frmPanelExtra>(button, [](frmPanelExtra& form) {
    for (QComboBox* list :
         {form.cmbOMON, form.cmbMomd, form.cmbPYDT, form.cmbPYDL, form.cmbTAPL, form.cmbRSPL}) {
      Scegli(*list, list->count() - 1);
    }
    Clicca(*form.chkPonte);
    Clicca(*form.picSave);
  });
  Mostrati defaults;
  Su<frmPanelExtra>(button, [&defaults](frmPanelExtra& form) {
    const Mostrati before = ControlliDi(form);
    Clicca(*form.picDefaults);
    defaults = ControlliDi(form);
    ExpectAllChanged(before, defaults, {});
    Clicca(*form.picSave);
  });
  Su<frmPanelExtra>(button, [&defaults](frmPanelExtra& form) {
    EXPECT_EQ(ControlliDi(form), defaults);
    for (const QComboBox* list : form.findChildren<QComboBox*>()) {
      EXPECT_EQ(list->currentIndex(), 0) << list->objectName().toStdString();
    }
    EXPECT_FALSE(form.chkPonte->isChecked());
    EXPECT_TRUE(form.cmbOMON->isEnabled());
    Clicca(*form.picCancel);
  });
}

/// An Ostrel, whose serial screen has two pages and no notice.
class EveryParameterOfAnOstrel : public EveryParameter {
 protected:
  static void ChangeAll(frmConfig485& form) {
    if (!form.ModoRS232) PickTheNextOfEach({form.cmbCMAD});
    PickTheNextOfEach({form.cmbCMCK, form.cmbCMCL, form.cmbCMBR, form.cmbCMPR, form.cmbCMSB,
                       form.cmbCMDB, form.cmbCMDR});
    EXPECT_FALSE(form.cmbCMI3->isVisible());
    Clicca(*form.imgPagina2);
    PickTheNextOfEach({form.cmbCMI3, form.cmbORI3});
  }
};

TEST_F(EveryParameterOfAnOstrel, OfTheSerialLinkIsThereAgain) {
  frmPlayerConfig& hub = HubDi(3, 2);
  SaveEach<frmConfig485>(*hub.Seriali->picConfig485, {ChangeAll, ChangeAll, ChangeAll},
                         {"chkUse485"});
  EXPECT_EQ(b.Cartella.Read("program/Projects/Bar/Config.cfg").find("Use485"), std::string::npos);
}

TEST_F(EveryParameterOfAnOstrel, OfTheRs232FormIsThereAgainWithoutTheAddress) {
  frmPlayerConfig& hub = HubDi(3, 2);
  Su<frmConfig485>(*hub.Seriali->picConfig485, [](frmConfig485& form) {
    Scegli(*form.cmbCMAD, 7);
    Clicca(*form.picSave);
  });
  SaveEach<frmConfig485>(*hub.Seriali->cmdConfigure232, {ChangeAll, ChangeAll},
                         {"chkUse485", "cmbCMAD"});
  EXPECT_EQ(Chiave("CMAD"), "7");
  Mostrati rs232;
  Su<frmConfig485>(*hub.Seriali->cmdConfigure232, [&rs232](frmConfig485& form) {
    EXPECT_FALSE(form.cmbCMAD->isVisible());
    rs232 = ControlliDi(form);
    Clicca(*form.picCancel);
  });
  Su<frmConfig485>(*hub.Seriali->picConfig485, [&rs232](frmConfig485& form) {
    rs232["cmbCMAD"] = "7";
    EXPECT_EQ(ControlliDi(form), rs232) << "both forms are of one port";
    Clicca(*form.picCancel);
  });
}

TEST_F(EveryParameterOfAnOstrel, OfTheSerialLinkGoesBackToItsDefaultAndIsThereAgain) {
  frmPlayerConfig& hub = HubDi(3, 2);
  Mostrati defaults;
  Su<frmConfig485>(*hub.Seriali->picConfig485, [&defaults](frmConfig485& form) {
    ChangeAll(form);
    Clicca(*form.picDefaults);
    defaults = ControlliDi(form);
    Clicca(*form.picSave);
  });
  Su<frmConfig485>(*hub.Seriali->picConfig485, [&defaults](frmConfig485& form) {
    EXPECT_EQ(ControlliDi(form), defaults);
    EXPECT_EQ(form.cmbCMAD->currentText(), "31");
    EXPECT_EQ(form.cmbCMBR->currentText(), "3 - 9600 bps");
    EXPECT_EQ(form.cmbCMDB->currentText(), "8 - 8 Bits");
    EXPECT_EQ(form.cmbCMI3->currentIndex(), 4);
    Clicca(*form.picCancel);
  });
}

TEST_F(EveryParameter, OfTheSerialLinkOfAKvr5IsThereAgain) {
  frmPlayerConfig& hub = Hub();
  Mostrati saved;
  SuSeriale(*hub.Seriali->picConfig485, [&saved](frmConfig485& form) {
    const Mostrati before = ControlliDi(form);
    PickTheNextOfEach({form.cmbCMAD, form.cmbCMCK, form.cmbCMCL, form.cmbCMBR, form.cmbCMPR,
                       form.cmbCMSB, form.cmbCMDB, form.cmbCMDR});
    Clicca(*form.chkUse485);
    saved = ControlliDi(form);
    ExpectAllChanged(before, saved, {"cmbCMI3", "cmbORI3"});
    Clicca(*form.picSave);
  });
  SuSeriale(*hub.Seriali->picConfig485, [&saved](frmConfig485& form) {
    EXPECT_EQ(ControlliDi(form), saved);
    Tasto(form, Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace kvr5
