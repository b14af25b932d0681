#include <QContextMenuEvent>
#include <QTest>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// Segments added, duplicated and removed.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Segments : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override { Progetto(3, 2); }
  bool Enabled(const char* name) { return Trova<QWidget>(name).isEnabled(); }
  /// Removes the selected one by a command and answers the question.
  void Remove(Risposta answer, const std::function<void()>& command) {
    b.Finestre.Rispondi(answer);
    command();
    question_ = b.Finestre.Prossimo();
  }
  void Remove(Risposta answer = Risposta::Si) {
    Remove(answer, [this] { Clic("picRimuoviSegmento"); });
  }
  void ExpectCopyTold() { Avviso(Parola("0140038"), Parola("0140039")); }

  test::BoxVisto question_;
};

TEST_F(Segments, AnAddedOneIsSelectedAndItsHourIsToBeTyped) {
  Apri();
  EXPECT_FALSE(SiVede("picDettaglio"));
  Clic("picAggiungiSegmento");
  EXPECT_THAT(Griglia(), ElementsAre("00:00"));
  EXPECT_EQ(Scelto(), 0);
  EXPECT_TRUE(SiVede("picDettaglio"));
  EXPECT_EQ(Orario(), "00:00");
  EXPECT_EQ(Fuoco(), &Ore());
  EXPECT_EQ(Ore().selectedText(), "00");
  EXPECT_THAT(SlotTutti(), ElementsAre("A")) << "the first free place";
  EXPECT_EQ(Testo("lblVociInElenco"), "Segments : 1");
  EXPECT_EQ(Testo("lblModifiche"), "1 change unsaved");
  EXPECT_THAT(Teste(), ElementsAre("0 00:00"));
  EXPECT_THAT(Teste("scheduler.mdb"), IsEmpty());
}

TEST_F(Segments, AnAddedOneComesAMinuteAfterTheLatest) {
  Segmento(0, "21.59", {"late.mp3"});
  Segmento(0, "08.30");
  Apri();
  Clic("picAggiungiSegmento");
  EXPECT_THAT(Griglia(), ElementsAre("08:30", "21:59 late.mp3", "22:00"));
  EXPECT_EQ(Scelto(), 2);
  EXPECT_EQ(Orario(), "22:00");
  Clic("picAggiungiSegmento");
  EXPECT_EQ(Orario(), "22:01") << "nothing was typed: the time stays";
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Testo("lblModifiche"), "2 changes unsaved");
  EXPECT_EQ(Fuoco(), &Ore());
}

TEST_F(Segments, OfAKvr5StayInHourZeroAndTheMinuteIsToBeTyped) {
  Progetto(4, 2);
  Segmento(0, "00.59");
  Apri();
  Clic("picAggiungiSegmento");
  EXPECT_THAT(Griglia(), ElementsAre("00:00", "00:59"));
  EXPECT_EQ(Scelto(), 0);
  EXPECT_EQ(Orario(), "00:00");
  EXPECT_EQ(Fuoco(), &Min());
  EXPECT_EQ(Min().selectedText(), "00");
  Clic("picAggiungiSegmento");
  EXPECT_THAT(Griglia(), ElementsAre("00:00", "00:00", "00:59"))
      << "a minute after the latest is hour 1 again";
  EXPECT_TRUE(b.Finestre.Silenzio());
  Premi(Qt::Key_Return);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !b.Finestre.Silenzio(); }))
      << "told when the field is left";
  Avviso(Parola("0140020"), Parola("0140021") + " (00.00)");
}

TEST_F(Segments, TheFieldThatIsLeftByTheNextAddIsCheckedBefore) {
  Progetto(4, 2);
  Segmento(0, "00.30");
  Segmento(0, "00.30");
  Apri();
  Clic("picAggiungiSegmento");
  ASSERT_EQ(Orario(), "00:31");
  test::Scrivi(*form, "30");
  int rows = 0;
  b.Finestre.SuBox = [&](const test::BoxVisto&) { rows = form->Editor().QuantiSegmenti(); };
  Clic("picAggiungiSegmento");
  EXPECT_EQ(rows, 3) << "the box comes before the segment";
  b.Finestre.Prossimo();
  EXPECT_THAT(Griglia(), ElementsAre("00:30", "00:30", "00:30", "00:31"));
  EXPECT_EQ(Scelto(), 3);
}

TEST_F(Segments, TheSixtyFirstGoesInAndTheNextIsRefused) {
  MoltiSegmenti(0, 60);
  Apri();
  Clic("picAggiungiSegmento");
  EXPECT_THAT(Griglia(), SizeIs(61));
  EXPECT_EQ(Scelto(), 60);
  EXPECT_EQ(Orario(), "01:00");
  Clic("picAggiungiSegmento");
  Avviso(Parola("0140025") + " 128)", Parola("0140026"));
  EXPECT_THAT(Griglia(), SizeIs(61));
  EXPECT_EQ(Scelto(), 60);
  EXPECT_EQ(Modifiche(), 1);
}

TEST_F(Segments, AKvr5TellsAnotherLimit) {
  Progetto(4, 2);
  MoltiSegmenti(0, 61);
  Apri();
  Clic("picAggiungiSegmento");
  Avviso(Parola("0140025") + " 60)", Parola("0140026"));
  EXPECT_THAT(Griglia(), SizeIs(61));
}

TEST_F(Segments, DuplicatesAreNotLimited) {
  MoltiSegmenti(0, 61);
  Apri();
  Clic("picCopiaSegmento");
  ExpectCopyTold();
  EXPECT_THAT(Griglia(), SizeIs(62));
}

TEST_F(Segments, ADuplicateHasTheTimeAndTheSpotsAndIsTold) {
  Segmento(0, "08.30", {"a.mp3", "b.mp3"});
  Segmento(0, "09.00");
  Apri();
  std::size_t rows = 0;
  b.Finestre.SuBox = [&](const test::BoxVisto&) { rows = Teste().size(); };
  Clic("picCopiaSegmento");
  EXPECT_EQ(rows, 3U) << "the box comes last";
  ExpectCopyTold();
  EXPECT_THAT(Griglia(), ElementsAre("08:30 a.mp3 b.mp3", "08:30 a.mp3 b.mp3", "09:00"));
  EXPECT_EQ(form->Editor().SegmentoCorrente(), 3);
  Scelto();
  EXPECT_EQ(Orario(), "08:30");
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3", "b.mp3"));
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 a.mp3", "0/1/2 b.mp3", "0/3/1 a.mp3", "0/3/2 b.mp3"));
  EXPECT_EQ(Modifiche(), 1);
}

TEST_F(Segments, ADuplicateOnADayOfTheWeekShowsNoSpots) {
  Progetto(3, 3);
  Segmento(3, "08.30", {"a.mp3", "b.mp3"});
  Apri();
  test::ScegliVoce(Giorni(), "Wednesday");
  Clic("picCopiaSegmento");
  ExpectCopyTold();
  EXPECT_THAT(Griglia(), testing::UnorderedElementsAre("08:30 a.mp3 b.mp3", "08:30"));
  EXPECT_EQ(form->Editor().SegmentoCorrente(), 2);
  EXPECT_THAT(Dettaglio(), IsEmpty());
  EXPECT_THAT(SlotTutti(), ElementsAre("A"));
  EXPECT_THAT(Tutti(), ElementsAre("0/2/1 a.mp3", "0/2/2 b.mp3", "3/1/1 a.mp3", "3/1/2 b.mp3"));
}

TEST_F(Segments, TheMenuOfARowDuplicatesThatRow) {
  Segmento(0, "08.30", {"a.mp3"});
  Segmento(0, "09.00", {"b.mp3"});
  Apri();
  EXPECT_THAT(form->Segmenti->mnuOpzioni.actions(), ElementsAre(form->Segmenti->mnuDuplicaRiga));
  ClicSegmento(1, Qt::RightButton);
  const QPoint place = Grid().visualRect(Grid().model()->index(1, 0)).center();
  QContextMenuEvent asked(QContextMenuEvent::Mouse, place, Grid().viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(Grid().viewport(), &asked);
  EXPECT_TRUE(form->Segmenti->mnuOpzioni.isVisible());
  form->Segmenti->mnuOpzioni.close();
  form->Segmenti->mnuDuplicaRiga->trigger();
  ExpectCopyTold();
  EXPECT_THAT(Griglia(), ElementsAre("08:30 a.mp3", "09:00 b.mp3", "09:00 b.mp3"));
}

TEST_F(Segments, BesideTheRowsThereIsNoMenu) {
  Segmento(0, "08.30");
  Apri();
  const QPoint place = Grid().viewport()->rect().bottomLeft() + QPoint(5, -5);
  QContextMenuEvent asked(QContextMenuEvent::Mouse, place, Grid().viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(Grid().viewport(), &asked);
  EXPECT_FALSE(form->Segmenti->mnuOpzioni.isVisible());
}

TEST_F(Segments, OfWhichThereIsNoneCannotBeDuplicatedOrRemoved) {
  Apri();
  EXPECT_FALSE(Enabled("picCopiaSegmento"));
  EXPECT_FALSE(Enabled("picRimuoviSegmento"));
  EXPECT_TRUE(Enabled("picAggiungiSegmento"));
  form->Segmenti->mnuDuplicaRiga->trigger();
  Grid().setFocus();
  Premi(Qt::Key_Delete);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Modifiche(), 0);
  Clic("picAggiungiSegmento");
  EXPECT_TRUE(Enabled("picCopiaSegmento"));
  EXPECT_TRUE(Enabled("picRimuoviSegmento"));
}

TEST_F(Segments, AreRemovedAfterAQuestionWithTheirSpots) {
  Segmento(0, "08.30", {"a.mp3", "b.mp3"});
  Segmento(0, "09.00", {"c.mp3"});
  Apri();
  for (const Risposta answer : {Risposta::No, Risposta::Annulla}) {
    Remove(answer);
    EXPECT_THAT(Griglia(), SizeIs(2));
    EXPECT_EQ(Modifiche(), 0);
    EXPECT_EQ(Scelto(), 0);
  }
  Remove();
  EXPECT_EQ(question_.Titolo, "Remove segment");
  EXPECT_EQ(question_.Testo,
            "Yes takes the segment off with all its spots; the files stay where they are. No keeps "
            "it. Remove the segment of 08.30?");
  EXPECT_FALSE(question_.SoloOk);
  EXPECT_THAT(Griglia(), ElementsAre("09:00 c.mp3"));
  EXPECT_THAT(Tutti(), ElementsAre("0/2/1 c.mp3"));
  EXPECT_EQ(Modifiche(), 1);
  EXPECT_TRUE(std::filesystem::exists(Host("a.mp3")));
}

TEST_F(Segments, ARemovedOneIsFollowedByItsNeighbour) {
  for (const char* time : {"08.00", "09.00", "10.00", "11.00"}) Segmento(0, time);
  Apri();
  ClicSegmento(1);
  Remove();
  EXPECT_THAT(Griglia(), ElementsAre("08:00", "10:00", "11:00"));
  EXPECT_EQ(Scelto(), 1) << "the one that took its place";
  EXPECT_EQ(Orario(), "10:00");
  ClicSegmento(2);
  Remove();
  EXPECT_EQ(Scelto(), 1) << "the last where none came after it";
  EXPECT_EQ(Orario(), "10:00");
  Remove();
  Remove();
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(Scelto(), -1);
  EXPECT_FALSE(SiVede("picDettaglio"));
  EXPECT_FALSE(Enabled("picRimuoviSegmento"));
  EXPECT_EQ(Testo("lblVociInElenco"), "Segments : 0");
}

TEST_F(Segments, DelAsksAndRemovesOncePerPress) {
  for (const char* time : {"08.00", "09.00", "10.00"}) Segmento(0, time);
  Apri();
  ClicSegmento(1);
  Remove(Risposta::Si, [this] { Premi(Qt::Key_Delete); });
  EXPECT_THAT(Griglia(), ElementsAre("08:00", "10:00"));
  EXPECT_EQ(Fuoco(), &Grid());
  EXPECT_EQ(Scelto(), 1);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, {}, true);
  for (int i = 0; i < 3; ++i) QCoreApplication::sendEvent(&Grid(), &held);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "a key held down is one press";
  Remove(Risposta::No, [this] { Premi(Qt::Key_Delete); });
  EXPECT_THAT(Griglia(), SizeIs(2));
}

TEST_F(Segments, TheArrowKeysGoFromOneToTheNext) {
  for (const char* time : {"08.00", "09.00", "10.00"}) Segmento(0, time, {"a.mp3"});
  Apri();
  ClicSegmento(0);
  Premi(Qt::Key_Down);
  EXPECT_EQ(Scelto(), 1);
  EXPECT_EQ(Orario(), "09:00");
  Premi(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(Scelto(), 2);
  EXPECT_EQ(Orario(), "10:00");
  Premi(Qt::Key_Up);
  EXPECT_EQ(Scelto(), 1);
}

TEST_F(Segments, OfEqualTimesAreEachReachedByTheMouse) {
  Segmento(0, "08.00", {"a.mp3"});
  Segmento(0, "08.00", {"b.mp3"});
  Segmento(0, "08.00", {"c.mp3"});
  Apri();
  for (int row = 0; row < 3; ++row) {
    ClicSegmento(row);
    EXPECT_EQ(Scelto(), row);
    EXPECT_EQ(Dettaglio().front(), Cella(row, ModelloSegmenti::Spot1).toStdString());
  }
}

TEST_F(Segments, StaySelectedWhateverKeysAreHeldAtAClick) {
  for (const char* time : {"08.00", "09.00", "10.00"}) Segmento(0, time);
  Apri();
  for (const auto keys : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier}) {
    for (const int row : {1, 1, 2}) {
      const QRect place = Grid().visualRect(Grid().model()->index(row, 0));
      test::CliccaA(*Grid().viewport(), place.center(), Qt::LeftButton, keys);
      EXPECT_EQ(Scelto(), row);
    }
  }
  test::CliccaA(*Grid().viewport(), Grid().viewport()->rect().bottomLeft() + QPoint(5, -5));
  EXPECT_EQ(Scelto(), 2) << "nor does a click beside them take it away";
}

TEST_F(Segments, ADuplicateIsSeenUnderItsBox) {
  Segmento(0, "08.30", {"a.mp3"});
  Segmento(0, "09.30");
  Apri();
  Righe shown;
  std::int64_t row = 0;
  b.Finestre.SuBox = [&](const test::BoxVisto&) {
    shown = Griglia();
    row = Grid().IdCorrente();
  };
  Clic("picCopiaSegmento");
  b.Finestre.Prossimo();
  EXPECT_THAT(shown, ElementsAre("08:30 a.mp3", "08:30 a.mp3", "09:30"));
  EXPECT_EQ(row, 3);
}

TEST_F(Segments, LeaveTheListWhereItWasScrolledTo) {
  MoltiSegmenti(0, 60);
  Apri();
  ClicSegmento(59);
  EXPECT_EQ(Scelto(), 59);
  const QRect before = Grid().visualRect(Grid().currentIndex());
  Musica({"a.mp3"});
  Attiva();
  DoppioFile("a.mp3");
  EXPECT_EQ(Scelto(), 59);
  EXPECT_TRUE(Grid().viewport()->rect().contains(Grid().visualRect(Grid().currentIndex())));
  EXPECT_EQ(Grid().visualRect(Grid().currentIndex()), before) << "the list doesn't jump";
}

}  // namespace
}  // namespace kvr5
