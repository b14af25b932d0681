#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QScreen>
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

TEST_F(CopiaConFinestra, ACopyThatNobodyMayCancelHasItsCancelOff) {
  state.Stoppable = false;
  copy.Begin();
  RiquadroCopia& window = FinoAllaFinestra();
  auto& cancel = Controllo<Coppia>(window, "cmdAnnulla");
  EXPECT_FALSE(cancel.isEnabled());
  Tasto(window, Qt::Key_Escape);
  EXPECT_TRUE(copy.Progress(state));
  state.Stoppable = true;
  EXPECT_TRUE(copy.Progress(state));
  EXPECT_TRUE(cancel.isEnabled());
  copy.End();
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

TEST_F(CopiaConFinestra, ComesUpWithTheKeyboardOnItselfAndAHastyKeyCancelsNothing) {
  copy.Begin();
  RiquadroCopia& window = FinoAllaFinestra();
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Tasto(window, key);
    EXPECT_TRUE(copy.Progress(state)) << key;
  }
  Tasto(window, Qt::Key_Tab);
  Tasto(window, Qt::Key_Space);
  EXPECT_FALSE(copy.Progress(state));
  copy.End();
}

TEST_F(CopiaConFinestra, ItsBarHasANameForThoseWhoHearIt) {
  copy.Begin();
  EXPECT_EQ(Controllo(FinoAllaFinestra(), "picBarra").accessibleName(), "Progress");
  copy.End();
}

TEST_F(CopiaConFinestra, ItsWordsAreReadOnce) {
  state.FileNumber = 0;
  copy.Begin();
  RiquadroCopia& window = FinoAllaFinestra();
  b.C.Stato.FileLingua = b.Percorso("other.lan");
  b.Cartella.Write("other.lan", "[Strings]\r\n0130080=A\r\n0130081=B\r\n0130084=C\r\n");
  copy.Progress(state);
  EXPECT_EQ(Scritta(window, "lblQuanto"), "Counting the files: 5");
  state.FileNumber = 2;
  copy.Progress(state);
  EXPECT_EQ(Scritta(window, "lblQuanto").substr(0, 13), "File 2 of 5, ");
  EXPECT_NE(Scritta(window, "lblTempo").find(" left"), std::string::npos);
  copy.End();
}

TEST_F(CopiaConFinestra, BesideAWindowAtTheScreensLowerEdgeItLiesWholeOnTheScreen) {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  Form progress(b.A, "frmProgress");
  progress.setWindowFlag(Qt::WindowStaysOnTopHint);
  progress.resize(440, 180);
  progress.show();
  ASSERT_TRUE(Pronta(progress));
  for (const int over : {0, 40, 200, 320}) {  // pixels of its way up from the edge
    const int frame = progress.frameGeometry().height();
    progress.move(room.center().x() - 220, room.bottom() + 1 - frame - over);
    QCoreApplication::processEvents();
    const CopyState copying = state;
    state = {{}, 0, 12, 0, 0};
    copy.Begin();
    RiquadroCopia& window = FinoAllaFinestra();
    const int height = window.height();
    EXPECT_TRUE(room.contains(window.frameGeometry())) << over;
    EXPECT_FALSE(window.frameGeometry().intersects(progress.frameGeometry())) << over;
    state = copying;
    copy.Progress(state);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.height(), height) << "every line had its room";
    EXPECT_TRUE(room.contains(window.frameGeometry())) << over;
    copy.End();
  }
}

}  // namespace
}  // namespace kvr5
