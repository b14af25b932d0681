#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>

#include "flashcard/screens/frmProgress.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"

// The window of a long operation.

namespace kvr5 {
namespace {

class Progress : public testing::Test {
 protected:
  /// Shows the window as a recording of seven steps does.
  void Show() {
    progress.Operazione("Copying");
    progress.ValoreMassimo = 7;
    progress.Progresso(1);
    progress.Mostra();
    ASSERT_NE(progress.Finestra(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(progress.Finestra()));
  }
  frmProgress& Window() { return *progress.Finestra(); }
  std::string Text(const char* label) { return test::Scritta(Window(), label); }

  test::BancoSchermi b;
  ProgressoQt progress{b.A};
};

TEST_F(Progress, SevenStepsFillTheBar) {
  Show();
  EXPECT_EQ(Text("lblOperazione"), "Copying");
  EXPECT_EQ(Text("lblPerc"), "") << "Progresso leaves the labels";
  EXPECT_NEAR(Window().picBar->width(), 392 / 7, 1);
  for (int i = 0; i < 6; ++i) progress.Step(0, false);
  EXPECT_EQ(Window().picBar->width(), 392);
  EXPECT_EQ(Text("lblPerc"), "100%");
}

TEST_F(Progress, AStepWithoutAFileHidesTheCounter) {
  Show();
  EXPECT_TRUE(Window().lblNumFile->isVisible());
  progress.Step(0, false);
  EXPECT_FALSE(Window().lblNumFile->isVisible());
  EXPECT_EQ(Text("lblPerc"), "28%");
  EXPECT_EQ(Text("lblFase"), "Step 2 of 7");
}

TEST_F(Progress, AStepWithAFileShowsTheCounter) {
  Show();
  progress.FileTotali = 9;
  progress.Step(3, false);
  EXPECT_EQ(Text("lblNumFile"), "3/9");
  progress.Step(1, true);
  EXPECT_EQ(Text("lblNumFile"), "4/9");
  progress.Step(0, false);
  progress.IncrementaContatoreFile();
  EXPECT_EQ(Text("lblNumFile"), "5/9");
  EXPECT_TRUE(Window().lblNumFile->isVisible()) << "shown again";
}

TEST_F(Progress, AValueOutsideTheBoundsLeavesTheDisplayAsItIs) {
  Show();
  progress.Progresso(7);
  progress.Step(1, true);
  progress.Step(1, true);
  EXPECT_EQ(Window().picBar->width(), 392);
  EXPECT_EQ(Text("lblNumFile"), "1/1");
  EXPECT_EQ(progress.ValoreCorrente, 9) << "it counts on all the same";
}

TEST_F(Progress, CancelRaisesTheFlagAndSaysSo) {
  Show();
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
  test::Clicca(Window(), "picAnnulla");
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
  const std::string said = Text("lblOperazione");
  EXPECT_NE(said, "Copying");
  EXPECT_NE(said, "");
  test::Clicca(Window(), "picAnnulla");
  EXPECT_EQ(Text("lblOperazione"), said) << "twice says the same";
  EXPECT_TRUE(Window().isVisible()) << "the operation goes on";
}

TEST_F(Progress, TheWindowsOwnButtonCancelsAndStays) {
  Show();
  Window().close();
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(Progress, ALoadForgetsAnEarlierCancel) {
  b.C.Stato.AnnullatoDaUtente = true;
  progress.ValoreMassimo = 7;
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente) << "a plain member loads nothing";
  Show();
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
}

TEST_F(Progress, TheTextBlinksOnceASecond) {
  Show();
  const auto colour = [this] {
    return Window().lblOperazione->palette().color(QPalette::WindowText);
  };
  const QColor first = colour();
  EXPECT_EQ(Window().tmrCicla.interval(), 1000);
  EXPECT_TRUE(QTest::qWaitFor([&] { return colour() != first; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return colour() == first; }));
}

TEST_F(Progress, StaysAboveAllOtherWindows) {
  Show();
  EXPECT_TRUE(Window().windowFlags() & Qt::WindowStaysOnTopHint);
}

TEST_F(Progress, ItsUnloadTakesTheWindowAwayAndTheNextStartsAfresh) {
  Show();
  progress.Step(0, false);
  progress.Scarica();
  EXPECT_EQ(progress.Finestra(), nullptr);
  EXPECT_EQ(b.Vita.Quante(), 0);
  Show();
  EXPECT_TRUE(Window().lblNumFile->isVisible());
  EXPECT_EQ(Text("lblPerc"), "");
}

TEST_F(Progress, ALongOperationTextTakesASecondLine) {
  Show();
  progress.Operazione("Request");
  QCoreApplication::processEvents();
  const int line = Window().lblOperazione->height();
  const std::string text = "Request received; please wait until the work of this step ends";
  progress.Operazione(text);
  QCoreApplication::processEvents();
  const auto* label = Window().lblOperazione;
  EXPECT_EQ(label->text().toStdString(), text);
  EXPECT_GT(label->height(), line);
  EXPECT_GE(label->height(), label->heightForWidth(label->width()));
}

TEST_F(Progress, AnOperationTextWithoutABlankLeavesTheWindowAsItIs) {
  Show();
  const int width = Window().width();
  const std::string text(200, 'w');
  progress.Operazione(text);
  QCoreApplication::processEvents();
  EXPECT_EQ(Window().width(), width);
  EXPECT_TRUE(Window().rect().contains(Window().lblOperazione->geometry()));
  EXPECT_EQ(Window().lblOperazione->toolTip().toStdString(), text);
}

TEST_F(Progress, ComesUpWithTheKeyboardOnItselfAndAHastyKeyCancelsNothing) {
  Show();
  ASSERT_TRUE(test::Pronta(Window()));
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    test::Tasto(Window(), key);
    EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente) << key;
  }
  test::Tasto(Window(), Qt::Key_Tab);
  EXPECT_TRUE(Window().picAnnulla->hasFocus());
  test::Tasto(Window(), Qt::Key_Space);
  EXPECT_TRUE(b.C.Stato.AnnullatoDaUtente);
}

TEST_F(Progress, SoItDoesWhenItComesBackAfterABox) {
  Show();
  ASSERT_TRUE(test::Pronta(Window()));
  test::Tasto(Window(), Qt::Key_Tab);
  progress.Nascondi();
  progress.Mostra();
  ASSERT_TRUE(test::Pronta(Window()));
  test::Tasto(Window(), Qt::Key_Return);
  EXPECT_FALSE(b.C.Stato.AnnullatoDaUtente);
}

TEST_F(Progress, ItsUnloadTakesTheTopmostStateAwayAgain) {
  Show();
  const QPointer<frmProgress> window = progress.Finestra();
  progress.Scarica();
  ASSERT_NE(window, nullptr) << "it goes with the next events";
  EXPECT_FALSE(window->windowFlags() & Qt::WindowStaysOnTopHint);
  EXPECT_FALSE(window->isVisible()) << "and doesn't flash up";
}

TEST_F(Progress, ItsLoadSpeaksTheLanguage) {
  Show();
  EXPECT_EQ(Window().windowTitle(), "Work in progress");
  EXPECT_EQ(Text("lblAnnulla"), "Cancel");
  EXPECT_EQ(Window().picBar->accessibleName(), "Progress");
  progress.Scarica();
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  Show();
  EXPECT_EQ(Window().windowTitle(), "Lavoro in corso");
  EXPECT_EQ(Text("lblAnnulla"), "Annulla");
}

TEST_F(Progress, TheWordsOfAStageAreThoseOfItsLoad) {
  Show();
  b.C.Stato.FileLingua = b.Percorso("gone.lan");
  progress.Step(0, false);
  EXPECT_EQ(Text("lblFase"), "Step 2 of 7") << "no file is read for each step";
}

}  // namespace
}  // namespace kvr5
