#include <QCheckBox>
#include <filesystem>

#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/frmPanelExtra.h"

// The screen of the KVR5's extra parameters.

namespace kvr5 {
namespace {

using test::Clicca;
using Items = std::vector<std::string>;

class Extras : public test::ProvaParametri<frmPanelExtra> {
 protected:
  frmPanelExtra& Open(const std::string& lines, std::int16_t mode = 1) {
    Progetto(4, mode);
    ScriviConfig(lines);
    return Apri();
  }
};

TEST_F(Extras, ShowWhatTheFileHolds) {
  frmPanelExtra& form =
      Open("OMON=1\r\nINVR=0\r\nPYDT=1\r\nPYDL=240\r\nTAPL=18\r\nRSPL=50\r\nMOMD=1\r\n");
  EXPECT_EQ(Voce(*form.cmbOMON), "1 - on while a file plays");
  EXPECT_FALSE(form.chkPonte->isChecked());
  EXPECT_TRUE(form.cmbOMON->isEnabled());
  EXPECT_EQ(Voce(*form.cmbPYDT), "1 - motion sensor on");
  EXPECT_EQ(Voce(*form.cmbPYDL), "240 seconds");
  EXPECT_EQ(Voce(*form.cmbTAPL), "18 seconds");
  EXPECT_EQ(Voce(*form.cmbRSPL), "50 detections") << "the last item";
  EXPECT_EQ(Voce(*form.cmbMomd), "1 - mono");
}

TEST_F(Extras, StandAtTheFirstItemsWhereTheFileIsSilent) {
  frmPanelExtra& form = Open("");
  for (const QComboBox* list :
       {form.cmbOMON, form.cmbPYDT, form.cmbPYDL, form.cmbTAPL, form.cmbRSPL, form.cmbMomd}) {
    EXPECT_EQ(list->currentIndex(), 0) << list->objectName().toStdString();
  }
  EXPECT_FALSE(form.chkPonte->isChecked());
}

TEST_F(Extras, AValueThatIsInNoItemLeavesTheListAndTheNextSaveWritesTheFirst) {
  Open("PYDL=7\r\nTAPL=20\r\nRSPL=51\r\nOMON=2\r\nMOMD=x\r\n");
  Salva();
  EXPECT_EQ(Config(),
            "[Config]\r\nPYDL=0\r\nTAPL=0\r\nRSPL=1\r\nOMON=0\r\nMOMD=0\r\nINVR=0\r\nPYDT=0\r\n");
}

TEST_F(Extras, TheListsHaveTheirItems) {
  frmPanelExtra& form = Open("");
  EXPECT_EQ(Voci(*form.cmbOMON), (Items{"0 - always on", "1 - on while a file plays"}));
  EXPECT_EQ(form.cmbPYDL->count(), 13);
  EXPECT_EQ(form.cmbTAPL->count(), 13);
  EXPECT_EQ(form.cmbRSPL->count(), 50);
  EXPECT_EQ(Voci(*form.cmbMomd), (Items{"0 - normal", "1 - mono"}));
}

TEST_F(Extras, ASaveWritesAllSevenInItsOrder) {
  Open("WXYZ=9\r\n");
  Scegli(*forma->cmbPYDL, 6);
  Scegli(*forma->cmbTAPL, 7);
  Scegli(*forma->cmbRSPL, 11);
  Salva();
  EXPECT_EQ(Config(),
            "[Config]\r\nWXYZ=9\r\nOMON=0\r\nINVR=0\r\nPYDT=0\r\nPYDL=10\r\nTAPL=12\r\nRSPL=12\r\n"
            "MOMD=0\r\n");
}

TEST_F(Extras, TheSensorIsSeenInMode1AloneAndWrittenInEveryMode) {
  EXPECT_TRUE(Open("PYDT=1\r\nPYDL=30\r\n", 1).picIR->isVisible());
  Annulla();
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{2, 4, 9}) {
    b.C.Stato.PlayerMode = mode;
    EXPECT_FALSE(Apri().picIR->isVisible()) << mode;
    EXPECT_TRUE(forma->cmbMomd->isVisible());
    Salva();
    EXPECT_EQ(Chiave("PYDT"), "1");
    EXPECT_EQ(Chiave("PYDL"), "30");
    EXPECT_EQ(Chiave("RSPL"), "1");
  }
}

TEST_F(Extras, AFileWithBridgeModeHoldsTheListAsItWasRead) {
  Open("OMON=0\r\nINVR=1\r\n");
  EXPECT_TRUE(forma->chkPonte->isChecked());
  EXPECT_FALSE(forma->cmbOMON->isEnabled());
  EXPECT_NE(forma->cmbOMON->toolTip(), "");
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 0);
  Salva();
  EXPECT_EQ(Chiave("OMON"), "0") << "only a click forces it";
  EXPECT_EQ(Chiave("INVR"), "1");
}

TEST_F(Extras, AnyNumberAboveZeroIsBridgeMode) {
  Open("INVR=2\r\n");
  EXPECT_TRUE(forma->chkPonte->isChecked());
  Salva();
  EXPECT_EQ(Chiave("INVR"), "1");
}

TEST_F(Extras, TickingForcesTheListAndUntickingGivesItBack) {
  for (const int before : {0, 1}) {
    Open("OMON=" + std::to_string(before) + "\r\n");
    Clicca(*forma->chkPonte);
    EXPECT_EQ(forma->cmbOMON->currentIndex(), 1);
    EXPECT_FALSE(forma->cmbOMON->isEnabled());
    Clicca(*forma->chkPonte);
    EXPECT_EQ(forma->cmbOMON->currentIndex(), before);
    EXPECT_TRUE(forma->cmbOMON->isEnabled());
    EXPECT_EQ(forma->cmbOMON->toolTip(), "");
    Annulla();
  }
}

TEST_F(Extras, WhatIsChosenInTheListIsWhatUntickingGivesBack) {
  Open("OMON=0\r\n");
  Scegli(*forma->cmbOMON, 1);
  Scegli(*forma->cmbOMON, 0);
  Clicca(*forma->chkPonte);
  Salva();
  EXPECT_EQ(Chiave("OMON"), "1");
  EXPECT_EQ(Chiave("INVR"), "1");
  Apri();
  Clicca(*forma->chkPonte);
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 1) << "what it was at the load";
  Scegli(*forma->cmbOMON, 0);
  Clicca(*forma->chkPonte);
  Clicca(*forma->chkPonte);
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 0);
}

TEST_F(Extras, TheLabelAndTheSpaceBarTickTheBoxAsAClickDoes) {
  Open("OMON=0\r\n");
  Clicca(*forma->lblPonte);
  EXPECT_TRUE(forma->chkPonte->isChecked());
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 1);
  forma->chkPonte->setFocus();
  test::Tasto(*forma, Qt::Key_Space);
  EXPECT_FALSE(forma->chkPonte->isChecked());
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 0);
}

TEST_F(Extras, TheDefaultsRunNoneOfTheClicksLogic) {
  const std::string before = "OMON=1\r\nINVR=1\r\nPYDT=1\r\nPYDL=60\r\nRSPL=9\r\nMOMD=1\r\n";
  Open(before);
  Clicca(*forma->picDefaults);
  EXPECT_FALSE(forma->chkPonte->isChecked());
  EXPECT_FALSE(forma->cmbOMON->isEnabled()) << "until the box is clicked";
  EXPECT_NE(forma->cmbOMON->toolTip(), "");
  for (const QComboBox* list : {forma->cmbOMON, forma->cmbPYDT, forma->cmbPYDL, forma->cmbTAPL,
                                forma->cmbRSPL, forma->cmbMomd}) {
    EXPECT_EQ(list->currentIndex(), 0);
  }
  EXPECT_EQ(Config(), "[Config]\r\n" + before) << "nothing is written until the save";
  Clicca(*forma->chkPonte);
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 1);
  Clicca(*forma->chkPonte);
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 0);
  EXPECT_TRUE(forma->cmbOMON->isEnabled());
}

TEST_F(Extras, TheDefaultsAreWrittenByTheSave) {
  Open("OMON=1\r\nINVR=1\r\nPYDT=1\r\nPYDL=60\r\nTAPL=6\r\nRSPL=9\r\nMOMD=1\r\n");
  Clicca(*forma->picDefaults);
  Salva();
  EXPECT_EQ(Config(),
            "[Config]\r\nOMON=0\r\nINVR=0\r\nPYDT=0\r\nPYDL=0\r\nTAPL=0\r\nRSPL=1\r\nMOMD=0\r\n");
}

TEST_F(Extras, ACancelWritesNothing) {
  const std::string before = "INVR=2\r\nPYDL=7\r\n";
  Open(before);
  Clicca(*forma->chkPonte);
  Clicca(*forma->picDefaults);
  Annulla();
  EXPECT_EQ(Config(), "[Config]\r\n" + before);
}

TEST_F(Extras, EscLeavesAnOpenListFirst) {
  Open("OMON=1\r\n");
  forma->cmbOMON->setFocus();
  forma->cmbOMON->showPopup();
  QWidget* popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr);
  test::Tasto(*forma, Qt::Key_Escape);  // as the keyboard gives it: to the window in front
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(forma.Caricata());
}

TEST_F(Extras, EscIsTheCancel) {
  Open("OMON=1\r\n");
  forma->cmbOMON->setFocus();
  test::Tasto(*forma, Qt::Key_Escape);
  AttesoAlloHub();
}

TEST_F(Extras, TheWindowsOwnButtonIsTheCancel) {
  Open("RSPL=9\r\n");
  Clicca(*forma->chkPonte);
  Scegli(*forma->cmbRSPL, 49);
  forma->close();
  AttesoAlloHub();
  EXPECT_EQ(Config(), "[Config]\r\nRSPL=9\r\n");
}

TEST_F(Extras, F1AndTheButtonOpenTheHelp) {
  Open("");
  test::Tasto(*forma, Qt::Key_F1);
  EXPECT_EQ(b.Documenti.Aperti.size(), 1U);
  Clicca(*forma->picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
  EXPECT_TRUE(forma.Caricata());
}

TEST_F(Extras, OfAKeyThatStandsTwiceTheFirstLineCounts) {
  Open("RSPL=9\r\nINVR=1\r\nRSPL=12\r\nINVR=0\r\n");
  EXPECT_EQ(Voce(*forma->cmbRSPL), "9 detections");
  EXPECT_TRUE(forma->chkPonte->isChecked());
  Scegli(*forma->cmbRSPL, 49);
  Clicca(*forma->chkPonte);
  Salva();
  EXPECT_TRUE(Config().starts_with("[Config]\r\nRSPL=50\r\nINVR=0\r\nRSPL=12\r\nINVR=0\r\n"))
      << Config();
  EXPECT_EQ(Voce(*Apri().cmbRSPL), "50 detections");
}

TEST_F(Extras, KeysInOtherSectionsAreOthers) {
  const std::string others = "[Other]\r\nRSPL=9\r\nINVR=1\r\nOMON=1\r\n";
  Progetto(4, 1);
  b.Cartella.Write(kConfig, others + "[Config]\r\nPYDL=60\r\n[Last]\r\nPYDL=30\r\n");
  Apri();
  EXPECT_EQ(forma->cmbRSPL->currentIndex(), 0);
  EXPECT_EQ(forma->cmbOMON->currentIndex(), 0);
  EXPECT_FALSE(forma->chkPonte->isChecked());
  EXPECT_EQ(Voce(*forma->cmbPYDL), "60 seconds");
  Salva();
  EXPECT_EQ(Config(),
            others +
                "[Config]\r\nPYDL=60\r\nOMON=0\r\nINVR=0\r\nPYDT=0\r\nTAPL=0\r\nRSPL=1\r\n"
                "MOMD=0\r\n[Last]\r\nPYDL=30\r\n");
}

TEST_F(Extras, EnterSavesFromAList) {
  Open("OMON=1\r\n");
  forma->cmbMomd->setFocus();
  test::Tasto(*forma, Qt::Key_Return);
  AttesoAlloHub();
  EXPECT_EQ(Chiave("MOMD"), "0");
}

TEST_F(Extras, AWheelOverAListThatHasNoFocusChangesNothing) {
  Open("RSPL=9\r\n");
  forma->chkPonte->setFocus();
  const QPointF at(5, 5);
  QWheelEvent wheel(at, forma->cmbRSPL->mapToGlobal(at), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(forma->cmbRSPL, &wheel);
  EXPECT_EQ(Voce(*forma->cmbRSPL), "9 detections");
}

TEST_F(Extras, EveryItemHasRoomInItsList) {
  for (const char* language : {"English.lan", "Italiano.lan"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language);
    Open("");
    for (const QComboBox* list : forma->findChildren<QComboBox*>()) {
      ExpectRoom(*list);
    }
    Annulla();
  }
}

TEST_F(Extras, HaveTheirTitleAndBuiltInCaptions) {
  EXPECT_EQ(Open("").windowTitle(), "KVR5 extra parameters");
  EXPECT_EQ(forma->lblPonte->text(), "Bridge mode");
  Annulla();
  b.C.Stato.FileLingua = b.Percorso("program/Language/none.lan");
  EXPECT_EQ(Apri().lblParametriIR->text(), "Parametri gestione sensore movimento ad infrarossi");
  EXPECT_EQ(forma->windowTitle(), "KVR5 extra parameters");
  EXPECT_EQ(forma->lblPonte->text(), "Bridge mode");
}

}  // namespace
}  // namespace kvr5
