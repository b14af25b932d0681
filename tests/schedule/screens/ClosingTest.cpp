#include <QTest>
#include <QWindow>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// The ways out of the editor. All close the copy and throw it away; a save alone commits it before.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ClosingSchedule : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override {
    Progetto(3, 3);
    Segmento(1, "08.30", {"a.mp3", "b.mp3"});
    Segmento(1, "09.30", {"c.mp3"});
    Musica({"x.mp3"});
    before_ = Leggi("scheduler.mdb");
    Apri();
    // Changes that only the copy has.
    Clic("picRimuoviSpot", 0);
    DoppioFile("x.mp3");
    Clic("picAggiungiSegmento");
    DigitaOrario("07", "15");
    b.Finestre.Rispondi(Risposta::Si);
    ClicSegmento(2);
    Clic("picRimuoviSegmento");
    b.Finestre.Prossimo();
    test::ScegliVoce(Giorni(), "Tuesday");
    Clic("picAggiungiSegmento");
    test::ScegliVoce(Giorni(), "Monday");
    ASSERT_THAT(Griglia(), ElementsAre("07:15", "08:30 b.mp3 x.mp3"));
    ASSERT_TRUE(Ha("tmpScheduler.mdb"));
  }
  void ExpectGone() {
    EXPECT_TRUE(SiChiude());
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_FALSE(Ha("tmpScheduler.mdb"));
    EXPECT_FALSE(Ha("tmpScheduler.mdb-journal"));
    EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
    EXPECT_FALSE(test::PuntatoreOccupato());
  }
  void ExpectDropped() {
    ExpectGone();
    EXPECT_TRUE(Leggi("scheduler.mdb") == before_) << "byte for byte";
    EXPECT_FALSE(Ha("1.pal"));
    EXPECT_FALSE(Ha("Scheduler.htm"));
    EXPECT_TRUE(b.Finestre.Silenzio()) << "without a question";
  }

  std::string before_;
};

TEST_F(ClosingSchedule, ByItsButtonDropsEverythingWithoutAQuestion) {
  EXPECT_EQ(Testo("lblModifiche"), "7 changes unsaved");
  Clic("picAnnulla");
  ExpectDropped();
}

TEST_F(ClosingSchedule, ByTheButtonsLabelDoesTheSame) {
  test::Clicca(Trova<QWidget>("lblAnnulla"));
  ExpectDropped();
}

TEST_F(ClosingSchedule, ByTheWindowsOwnButtonDoesTheSame) {
  form->close();
  ExpectDropped();
}

TEST_F(ClosingSchedule, ByASaveKeepsTheCopyInThePlaceOfTheOldOne) {
  b.Finestre.Rispondi(Risposta::No);
  Clic("picSave");
  ExpectGone();
  b.Finestre.Prossimo();
  EXPECT_THAT(Teste("scheduler.mdb"), ElementsAre("1 08:30", "1 07:15", "2 00:00"));
  EXPECT_THAT(Tutti("scheduler.mdb"), ElementsAre("1/1/1 b.mp3", "1/1/2 x.mp3"));
}

TEST_F(ClosingSchedule, IsNotWhatEscapeDoes) {
  Premi(Qt::Key_Escape);
  for (QWidget* each : {static_cast<QWidget*>(&Grid()), static_cast<QWidget*>(&Pane()),
                        static_cast<QWidget*>(&Spots()), static_cast<QWidget*>(&Ore()),
                        &Trova<QWidget>("txtCerca"), &Trova<QWidget>("picAnnulla")}) {
    each->setFocus();
    Premi(Qt::Key_Escape);
  }
  QCoreApplication::processEvents();
  EXPECT_TRUE(form->isVisible());
  EXPECT_THAT(b.Schermi.Mostrate, IsEmpty());
}

TEST_F(ClosingSchedule, LeavesADatabaseThatAnotherEditorCanOpenAgain) {
  Clic("picAnnulla");
  ExpectDropped();
  Dimentica();
  Apri();
  EXPECT_THAT(Griglia(), ElementsAre("08:30 a.mp3 b.mp3", "09:30 c.mp3"));
}

TEST_F(ClosingSchedule, SilencesWhatPlays) {
  ClicSegmento(1);
  Clic("picPlay", 0);
  b.Suono.Comandi.clear();
  Clic("picAnnulla");
  ExpectDropped();
  EXPECT_THAT(b.Suono.Comandi, ElementsAre("1 Stop", "1 Close", "2 Stop", "2 Close"));
}

TEST_F(ClosingSchedule, ComesBeforeAnAnalysisThatIsStillWaitedFor) {
  ClicFile("x.mp3");
  ASSERT_TRUE(form->fraFileInfo->tmrInfoMp3.isActive());
  Clic("picAnnulla");
  ExpectDropped();
  EXPECT_FALSE(form && form->fraFileInfo->tmrInfoMp3.isActive());
}

TEST_F(ClosingSchedule, TwiceAtOnceShowsTheHubOnce) {
  QWindow* window = form->windowHandle();
  const QWidget& button = Trova<QWidget>("picAnnulla");
  const QPoint place = button.mapTo(form.data(), button.rect().center());
  QTest::mouseClick(window, Qt::LeftButton, {}, place);
  if (form) QTest::mouseClick(window, Qt::LeftButton, {}, place);
  ExpectDropped();
}

class ClosingEarly : public test::BancoPalinsestoSchermo {};

TEST_F(ClosingEarly, BeforeTheFirstTickShowsNothingAndLeavesNothing) {
  Progetto(3, 2);
  Segmento(0, "08.30");
  const std::string before = Leggi("scheduler.mdb");
  form = new frmPalinsesto(b.A, progresso);
  form->FormSuccessivo = Schermata::Configurazione;
  form->Carica();
  ASSERT_TRUE(form->tmrIniziale.isActive());
  form->Scarica();
  EXPECT_TRUE(SiChiude());
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
  EXPECT_THAT(b.Schermi.Mostrate, ElementsAre(Schermata::Configurazione));
}

TEST_F(ClosingEarly, WithATimeBeingTypedDropsThatToo) {
  Progetto(3, 2);
  Segmento(0, "08.30");
  const std::string before = Leggi("scheduler.mdb");
  Apri();
  Digita(Min(), "47");
  form->close();
  EXPECT_TRUE(SiChiude());
  EXPECT_FALSE(Ha("tmpScheduler.mdb"));
  EXPECT_TRUE(Leggi("scheduler.mdb") == before);
}

}  // namespace
}  // namespace kvr5
