#include <QTest>
#include <QWindow>

#include "playlists/screens/BancoEditor.h"

// The ways out of the editor. All close the copy and throw it away; a save alone commits it before.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ClosingEditor : public test::BancoEditor {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    Brano(1, 1, "a.mp3");
    Brano(1, 2, "b.mp3");
    before_ = Leggi("playlist.mdb");
    Apri();
    // A change that only the copy has.
    ClicRiga(0);
    Clic("cmdRimuoviFile");
    ASSERT_THAT(Griglia(), ElementsAre("1 b.mp3"));
    ASSERT_TRUE(Ha("tmpPlaylist.mdb"));
  }
  void ExpectGone() {
    EXPECT_TRUE(SiChiude());
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_FALSE(Ha("tmpPlaylist.mdb"));
    EXPECT_FALSE(Ha("tmpPlaylist.mdb-journal"));
    EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
    EXPECT_TRUE(!form || form->Editor().Quanti() == 0) << "its rows are closed";
    EXPECT_FALSE(test::PuntatoreOccupato());
  }

  std::string before_;
};

TEST_F(ClosingEditor, ByItsButtonDropsEverythingWithoutAQuestion) {
  Clic("picAnnulla");
  ExpectGone();
  EXPECT_TRUE(Leggi("playlist.mdb") == before_);
  EXPECT_FALSE(Ha("1.m3u"));
}

TEST_F(ClosingEditor, ByTheButtonsLabelDoesTheSame) {
  test::Clicca(Trova<QWidget>("lblAnnulla"));
  ExpectGone();
  EXPECT_TRUE(Leggi("playlist.mdb") == before_);
}

TEST_F(ClosingEditor, ByTheWindowsOwnButtonDoesTheSame) {
  form->close();
  ExpectGone();
  EXPECT_TRUE(Leggi("playlist.mdb") == before_);
}

TEST_F(ClosingEditor, ByASaveKeepsTheCopyInThePlaceOfTheOldOne) {
  b.Finestre.Rispondi(Risposta::No);
  Clic("picSave");
  ExpectGone();
  b.Finestre.Prossimo();
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 b.mp3"));
}

TEST_F(ClosingEditor, IsNotWhatEscapeDoes) {
  Premi(Qt::Key_Escape);
  for (QWidget* each : {static_cast<QWidget*>(&Grid()), static_cast<QWidget*>(&Pane()),
                        &Trova<QWidget>("txtCerca"), &Trova<QWidget>("picAnnulla")}) {
    each->setFocus();
    Premi(Qt::Key_Escape);
  }
  QCoreApplication::processEvents();
  EXPECT_TRUE(form->isVisible());
  EXPECT_THAT(Griglia(), ElementsAre("1 b.mp3"));
  EXPECT_THAT(b.Schermi.Mostrate, IsEmpty());
}

TEST_F(ClosingEditor, LeavesACopyThatAnotherEditorCanOpenAgain) {
  Clic("picAnnulla");
  ExpectGone();
  Dimentica();
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 b.mp3"));
}

TEST_F(ClosingEditor, SilencesWhatPlays) {
  ClicRiga(0);
  Clic("cmdPlayMp3");
  b.Suono.Comandi.clear();
  Clic("picAnnulla");
  ExpectGone();
  EXPECT_THAT(b.Suono.Comandi, ElementsAre("1 Stop", "1 Close", "2 Stop", "2 Close"));
}

TEST_F(ClosingEditor, ComesBeforeAnAnalysisThatIsStillWaitedFor) {
  ClicFile("a.mp3");
  ASSERT_TRUE(form->fraFileInfo->tmrInfoMp3.isActive());
  Clic("picAnnulla");
  ExpectGone();
  EXPECT_FALSE(form && form->fraFileInfo->tmrInfoMp3.isActive());
}

TEST_F(ClosingEditor, TwiceAtOnceShowsTheHubOnce) {
  QWindow* window = form->windowHandle();
  const QWidget& button = Trova<QWidget>("picAnnulla");
  const QPoint place = button.mapTo(form.data(), button.rect().center());
  QTest::mouseClick(window, Qt::LeftButton, {}, place);
  if (form) QTest::mouseClick(window, Qt::LeftButton, {}, place);
  ExpectGone();
}

}  // namespace
}  // namespace kvr5
