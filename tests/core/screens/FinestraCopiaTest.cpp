#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>

#include "core/CopiaFileShell.h"
#include "core/screens/FinestraCopia.h"
#include "core/screens/RiquadroMessaggio.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class CopiaConFinestra : public testing::Test {
 protected:
  CopiaConFinestra() {
    copy.Collega(b.C);
    state = {b.Percorso("music\\a.mp3"), 2, 5, 256 * 1024, 1024 * 1024};
  }
  static RiquadroCopia* Finestra() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* copying = dynamic_cast<RiquadroCopia*>(window)) return copying;
    }
    return nullptr;
  }
  /// Copies on until the window is there.
  RiquadroCopia& FinoAllaFinestra() {
    EXPECT_TRUE(QTest::qWaitFor([this] {
      goesOn = copy.Progress(state);
      return Finestra() != nullptr;
    }));
    EXPECT_TRUE(Pronta(*Finestra()));
    return *Finestra();
  }

  BancoSchermi b;
  FinestraCopia copy;
  CopyState state;
  bool goesOn = true;
};

TEST_F(CopiaConFinestra, ComesOnlyAfterHalfASecondAndGoesWithTheCopy) {
  QElapsedTimer since;
  since.start();
  copy.Begin();
  EXPECT_TRUE(copy.Progress(state));
  EXPECT_EQ(Finestra(), nullptr);
  EXPECT_FALSE(FinoAllaFinestra().isModal()) << "the cancel of frmProgress stays alive";
  EXPECT_GE(since.elapsed(), 500);
  EXPECT_TRUE(goesOn);
  copy.End();
  EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(CopiaConFinestra, ACopyThatIsDoneAtOnceShowsNoWindow) {
  copy.Begin();
  EXPECT_TRUE(copy.Progress(state));
  copy.End();
  EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(CopiaConFinestra, TheHalfSecondBeginsAfreshWithEachCopy) {
  copy.Begin();
  FinoAllaFinestra();
  copy.End();
  copy.Begin();
  EXPECT_TRUE(copy.Progress(state));
  EXPECT_EQ(Finestra(), nullptr);
  copy.End();
}

TEST_F(CopiaConFinestra, TellsTheFileTheCountTheRoomAndTheTime) {
  copy.Begin();
  RiquadroCopia& window = FinoAllaFinestra();
  EXPECT_EQ(window.windowTitle(), "Copying files");
  EXPECT_EQ(Controllo(window, "lblFile").toolTip().toStdString(),
            (b.Cartella.Host() / "music/a.mp3").string());
  EXPECT_EQ(Scritta(window, "lblQuanto").substr(0, 13), "File 2 of 5, ");
  EXPECT_NE(Scritta(window, "lblTempo").find(" left"), std::string::npos);
  EXPECT_DOUBLE_EQ(Controllo<Barra>(window, "picBarra").Parte(), 0.25);
  copy.End();
}

TEST_F(CopiaConFinestra, WhileFilesAreCountedItSaysSo) {
  state.FileNumber = 0;
  state.FileCount = 12;
  copy.Begin();
  EXPECT_EQ(Scritta(FinoAllaFinestra(), "lblQuanto"), "Counting the files: 12");
  copy.End();
}

TEST_F(CopiaConFinestra, FilesWithoutABytePassForNothingDone) {
  state.BytesDone = state.BytesTotal = 0;
  copy.Begin();
  RiquadroCopia& window = FinoAllaFinestra();
  EXPECT_DOUBLE_EQ(Controllo<Barra>(window, "picBarra").Parte(), 0);
  copy.End();
}

TEST_F(CopiaConFinestra, ItsCancelEndsTheCopyAtItsNextStep) {
  copy.Begin();
  RiquadroCopia& window = FinoAllaFinestra();
  EXPECT_EQ(Scritta(window, "lblAnnulla"), "Cancel");
  Clicca(window, "cmdAnnulla");
  EXPECT_FALSE(copy.Progress(state));
  EXPECT_TRUE(window.isVisible()) << "until the copy has really ended";
  EXPECT_FALSE(Controllo(window, "cmdAnnulla").isEnabled());
  copy.End();
}

TEST_F(CopiaConFinestra, EscAndTheWindowsOwnButtonCancelToo) {
  copy.Begin();
  Tasto(FinoAllaFinestra(), Qt::Key_Escape);
  EXPECT_FALSE(copy.Progress(state));
  copy.End();
  copy.Begin();
  FinoAllaFinestra().close();
  EXPECT_FALSE(copy.Progress(state));
  copy.End();
}

TEST_F(CopiaConFinestra, AFailureIsTheWindowsOwnBoxAndWaitsToBeAcknowledged) {
  copy.Begin();
  FinoAllaFinestra();
  {
    const Pilota<RiquadroMessaggio> pilot([this](RiquadroMessaggio& box) {
      EXPECT_EQ(Finestra(), nullptr);
      EXPECT_EQ(Scritta(box, "lblTitolo"), "Copy stopped");
      EXPECT_NE(Scritta(box, "lblTesto").find((b.Cartella.Host() / "card/a.mp3").string()),
                std::string::npos);
      Clicca(box, "cmdOk");
    });
    copy.Failed({b.Percorso("card\\a.mp3"), false, Error(errors::DiskFull)});
  }
  copy.End();
}

TEST_F(CopiaConFinestra, ACopyOfAMissingFileShowsItsFailureAndNoWindow) {
  const Pilota<RiquadroMessaggio> pilot([](RiquadroMessaggio& box) { box.close(); });
  EXPECT_NE(CopiaFileShell(b.C, b.Percorso("gone.mp3"), b.Percorso("card\\gone.mp3")).Result, 0);
  EXPECT_EQ(Finestra(), nullptr);
}

}  // namespace
}  // namespace kvr5
