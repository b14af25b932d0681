#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "playerconfig/screens/BancoHub.h"

// The options of the inputs: persistence time, polarity, and what the others show of the file.

namespace kvr5 {
namespace {

using test::RispondiSoloOk;

class Options : public test::Hub {
 protected:
  void Open(const char* tpcm = "0") {
    Progetto(4, 1);
    Parametro("TPCM", tpcm);
    Apri();
    QTest::mouseClick(&Time(), Qt::LeftButton);
    Time().selectAll();
  }
  QLineEdit& Time() { return Trova<QLineEdit>("lstTPCM"); }
  std::string TimeText() { return Time().text().toStdString(); }
  bool On(const char* option) { return Trova<QAbstractButton>(option).isChecked(); }
  void Leave() { QTest::mouseClick(&Trova<QWidget>("lblTipoPlayer"), Qt::LeftButton); }
};

TEST_F(Options, TheTimeTakesDigitsOnly) {
  Open();
  QTest::keyClicks(&Time(), "1a-2.b3");
  EXPECT_EQ(TimeText(), "123");
}

TEST_F(Options, NoOtherCharacterComesInByAModifier) {
  Open();
  for (const Qt::KeyboardModifiers modifier :
       {Qt::KeyboardModifiers(Qt::AltModifier), Qt::ControlModifier | Qt::AltModifier,
        Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::KeyboardModifiers(Qt::GroupSwitchModifier)}) {
    QTest::keyClick(&Time(), 'q', modifier);
    QTest::keyClick(&Time(), '@', modifier);
  }
  EXPECT_EQ(TimeText(), "0");
  EXPECT_FALSE(Time().testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(Options, ATimeAbove255Becomes255OnLeaving) {
  Open();
  QTest::keyClicks(&Time(), "300");
  EXPECT_EQ(TimeText(), "300");
  Leave();
  EXPECT_EQ(TimeText(), "255");
  EXPECT_TRUE(On("optTPCM_On"));
}

TEST_F(Options, EnterChecksTheTimeAsLeavingDoes) {
  Open();
  QTest::keyClicks(&Time(), "256");
  QTest::keyClick(&Time(), Qt::Key_Return);
  EXPECT_EQ(TimeText(), "255");
}

TEST_F(Options, DeleteAndShortcutsAreNotTakenForCharacters) {
  Open("12");
  Time().home(false);
  QTest::keyClick(&Time(), Qt::Key_Delete);
  EXPECT_EQ(TimeText(), "2");
  Time().end(false);
  QTest::keyClicks(&Time(), "5");
  QTest::keyClick(&Time(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&Time(), Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(TimeText(), "");
  EXPECT_EQ(QApplication::clipboard()->text(), "25");
}

TEST_F(Options, PastedWordsBecome0OnLeaving) {
  Open("40");
  QApplication::clipboard()->setText(QStringLiteral("abc"));
  QTest::keyClick(&Time(), Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(TimeText(), "abc");
  EXPECT_TRUE(On("optTPCM_On")) << "words switch nothing";
  Leave();
  EXPECT_EQ(TimeText(), "0");
  EXPECT_TRUE(On("optTPCM_Off"));
}

TEST_F(Options, LeadingZerosOfTheTimeStay) {
  Open();
  QTest::keyClicks(&Time(), "007");
  Leave();
  EXPECT_EQ(TimeText(), "007");
  EXPECT_TRUE(On("optTPCM_On"));
}

TEST_F(Options, ATimeOf0IsOffAndAnyOtherIsOn) {
  Open();
  EXPECT_TRUE(On("optTPCM_Off"));
  QTest::keyClicks(&Time(), "5");
  EXPECT_TRUE(On("optTPCM_On"));
  Time().selectAll();
  QTest::keyClicks(&Time(), "0");
  EXPECT_TRUE(On("optTPCM_Off"));
}

TEST_F(Options, OffSetsTheTimeTo0AndOnLeavesIt) {
  Open("40");
  EXPECT_TRUE(On("optTPCM_On"));
  Clic("optTPCM_Off");
  EXPECT_EQ(TimeText(), "0");
  Clic("optTPCM_On");
  EXPECT_EQ(TimeText(), "0");
  EXPECT_TRUE(On("optTPCM_On"));
}

TEST_F(Options, TheArrowsMoveTheTimeBetween0And255) {
  Open("254");
  Clic("u_dTPCM_su");
  Clic("u_dTPCM_su");
  EXPECT_EQ(TimeText(), "255");
  QTest::keyClick(&Time(), Qt::Key_Down);
  EXPECT_EQ(TimeText(), "254");
  Time().selectAll();
  QTest::keyClicks(&Time(), "1");
  Clic("u_dTPCM_giu");
  Clic("u_dTPCM_giu");
  EXPECT_EQ(TimeText(), "0");
  EXPECT_TRUE(On("optTPCM_Off"));
}

TEST_F(Options, ShowWhatTheFileHolds) {
  Progetto(1, 0);
  Parametro("MOMN", "1");
  Parametro("IMOD", "1");
  Parametro("TPCM", "014");
  Parametro("MICP", "1");
  Parametro("MIRS", "0");
  Apri();
  EXPECT_TRUE(On("optMonitor_On"));
  EXPECT_TRUE(On("optIMOD_ActiveLow")) << "and no warning: nobody clicked";
  EXPECT_EQ(TimeText(), "14");
  EXPECT_TRUE(On("optMICP_ContinuosPlay"));
  EXPECT_TRUE(On("optMIRS_Restart")) << "whatever the file says";
}

TEST_F(Options, StandAsDesignedWhereTheFileIsSilent) {
  Progetto(4, 1);
  b.Cartella.Write("program/Projects/Hall/Config.txt", "[Config]\r\n");
  Apri();
  EXPECT_TRUE(On("optMonitor_Off"));
  EXPECT_TRUE(On("optMICP_Zero"));
  EXPECT_TRUE(On("optMIRS_Restart"));
  EXPECT_TRUE(On("optAlalizer_Off"));
  EXPECT_EQ(TimeText(), "0");
  EXPECT_TRUE(On("optTPCM_Off"));
}

TEST_F(Options, TheAnalyzerComesFromTheDescriptor) {
  Progetto(1, 0);
  b.C.Stato.Analyzer = 1;
  Apri();
  EXPECT_TRUE(On("opt_Analizer_On"));
  EXPECT_EQ(b.C.Stato.Analyzer, 1);
}

TEST_F(Options, TheAnalyzerIsWhatIsChosen) {
  Progetto(1, 0);
  Apri();
  auto& on = Trova<QAbstractButton>("opt_Analizer_On");
  auto& off = Trova<QAbstractButton>("optAlalizer_Off");
  on.click();
  EXPECT_EQ(b.C.Stato.Analyzer, 1);
  off.click();
  EXPECT_EQ(b.C.Stato.Analyzer, 0);
}

class Polarity : public Options {
 protected:
  /// Clicks active low and answers the box; what it said.
  std::string ClickLow() {
    std::string text;
    const auto box = RispondiSoloOk([&](const QString& title, const QString& note) {
      text = (title + "|" + note).toStdString();
    });
    Clic("optIMOD_ActiveLow");
    return text;
  }
};

TEST_F(Polarity, ActiveLowWarnsOnAKvr5WithInputs) {
  Progetto(4, 1);
  Apri();
  EXPECT_EQ(ClickLow(),
            "Please note|With this choice an input counts as active while its level is low. "
            "Check the wiring before you use the card.");
  EXPECT_TRUE(On("optIMOD_ActiveLow")) << "it stays chosen";
  Clic("optIMOD_ActiveHigh");
  EXPECT_TRUE(On("optIMOD_ActiveHigh")) << "without a word";
}

TEST_F(Polarity, ActiveLowWarnsAgainWhenItIsClickedAgain) {
  Progetto(4, 1);
  Parametro("IMOD", "1");
  Apri();
  EXPECT_TRUE(On("optIMOD_ActiveLow")) << "the load says nothing";
  EXPECT_NE(ClickLow(), "");
  EXPECT_NE(ClickLow(), "");
}

TEST_F(Polarity, ActiveLowWarnsOnAVeskadro) {
  Progetto(1, 0);
  Apri();
  EXPECT_EQ(ClickLow(),
            "Please note|With this choice an input counts as active while its level is low. "
            "Check the wiring before you use the card.");
}

TEST_F(Polarity, ActiveLowWarnsWhenTheKeyboardComesToItToo) {
  Progetto(4, 1);
  Apri();
  Trova<QWidget>("optIMOD_ActiveHigh").setFocus();
  int boxes = 0;
  {
    const auto box = RispondiSoloOk([&](const QString&, const QString&) { ++boxes; });
    QTest::keyClick(&Trova<QWidget>("optIMOD_ActiveHigh"), Qt::Key_Right);
  }
  EXPECT_EQ(boxes, 1);
  EXPECT_TRUE(On("optIMOD_ActiveLow"));
}

TEST_F(Polarity, AZubGetsNoWarning) {
  Progetto(2, 0, 1);
  Apri();
  Clic("optIMOD_ActiveLow");
  EXPECT_TRUE(On("optIMOD_ActiveLow"));
}

TEST_F(Polarity, AnOstrelGetsNoWarning) {
  Progetto(3, 2);
  Apri();
  Clic("optIMOD_ActiveLow");
  EXPECT_TRUE(On("optIMOD_ActiveLow"));
}

}  // namespace
}  // namespace kvr5
