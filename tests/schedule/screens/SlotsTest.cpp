#include <QTest>
#include <QToolButton>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// The eight slots of a segment: what they offer, and spots added, replaced, removed and moved.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Slots : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override { Progetto(3, 2); }
  /// A segment of so many spots, "a.mp3" and on, opened.
  void Open(int spots) {
    const std::int64_t id = Segmento(0, "08.30");
    for (int i = 0; i < spots; ++i) {
      Spot(0, id, i + 1, std::string(1, static_cast<char>('a' + i)) + ".mp3");
    }
    Musica({"x.mp3", "y.mp3", "z.mp3"});
    Apri();
  }
  /// The spots without their endings, "abc".
  std::string Order() const {
    std::string all;
    for (const std::string& each : Dettaglio()) all += each.front();
    return all;
  }
  /// Picks a file and presses a slot's "+" before the file was looked at.
  void Add(int slot, const char* file) {
    ClicFile(file);
    Clic("picAggiungiSpot", slot);
  }
  int Current() const { return Spots().currentIndex().row(); }
  void Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Spots().setFocus();
    Premi(key, modifiers);
  }
  QRect Place(QWidget& control) const {
    return {control.mapTo(form.data(), QPoint(0, 0)), control.size()};
  }
};

TEST_F(Slots, ShowWhatCanBeDoneWithEach) {
  const std::vector<std::pair<int, Righe>> kCases = {
      {0, {"A"}},
      {1, {"PSAR", "A"}},
      {2, {"PSARuD", "PSARUd", "A"}},
      {5, {"PSARuD", "PSARUD", "PSARUD", "PSARUD", "PSARUd", "A"}},
      {8, {"PSARuD", "PSARUD", "PSARUD", "PSARUD", "PSARUD", "PSARUD", "PSARUD", "PSARUd"}}};
  for (const auto& [spots, shown] : kCases) {
    SCOPED_TRACE(spots);
    Progetto(3, 2);
    Open(spots);
    EXPECT_EQ(SlotTutti(), shown);
    EXPECT_EQ(Order(), std::string("abcdefgh").substr(0, static_cast<std::size_t>(spots)));
    for (int i = 0; i < 8; ++i) {
      EXPECT_TRUE(Elemento("lblPos", i).isVisible());
      EXPECT_EQ(Testo(("lblPos_" + std::to_string(i)).c_str()), std::to_string(i + 1));
    }
    Dimentica();
  }
}

TEST_F(Slots, OfAnExternalPlayerHaveNoStop) {
  b.C.Stato.UsaPlayerEsterno = true;
  Open(2);
  EXPECT_THAT(SlotTutti(), ElementsAre("PARuD", "PARUd", "A"));
}

TEST_F(Slots, KeepTheirPlacesWhateverIsHidden) {
  Open(8);
  const QRect add = Place(Elemento("picAggiungiSpot", 4));
  const QRect remove = Place(Elemento("picRimuoviSpot", 0));
  Keys(Qt::Key_Delete);
  for (int i = 0; i < 3; ++i) Clic("picRimuoviSpot", 1);
  ASSERT_THAT(SlotTutti(), SizeIs(5));
  EXPECT_EQ(Place(Elemento("picAggiungiSpot", 4)), add) << "alone in its row now";
  EXPECT_EQ(Place(Elemento("picRimuoviSpot", 0)), remove);
}

TEST_F(Slots, LieBesideTheRowsOfTheGrid) {
  Open(8);
  for (int i = 0; i < 8; ++i) {
    const QRect row = Spots().visualRect(Spots().model()->index(i, 0));
    const int middle = Spots().viewport()->mapTo(form.data(), row.center()).y();
    for (const char* name : {"lblPos", "picPlay", "picAggiungiSpot", "UpDownFile"}) {
      EXPECT_NEAR(Place(Elemento(name, i)).center().y(), middle, 2) << name << i;
    }
  }
}

TEST_F(Slots, TheStopButtonsTakeNoRoomWithTheExternalPlayer) {
  Open(1);
  const int inside = Elemento("picAggiungiSpot", 0).x() - Elemento("picPlay", 0).x();
  Dimentica();
  b.C.Stato.UsaPlayerEsterno = true;
  Apri();
  const int outside = Elemento("picAggiungiSpot", 0).x() - Elemento("picPlay", 0).x();
  EXPECT_LT(outside, inside);
  EXPECT_LT(outside, 2 * Elemento("picPlay", 0).width());
}

TEST_F(Slots, AFileIsAddedToTheFreeOne) {
  Open(1);
  Analizza("x.mp3");
  ASSERT_TRUE(form->Editor().FileMp3Valido);
  Clic("picAggiungiSpot", 1);
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3", "x.mp3"));
  EXPECT_EQ(Current(), 1);
  EXPECT_THAT(SlotTutti(), ElementsAre("PSARuD", "PSARUd", "A"));
  EXPECT_THAT(Griglia(), ElementsAre("08:30 a.mp3 x.mp3"));
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 a.mp3", "0/1/2 x.mp3"));
  EXPECT_THAT(Colonna("FilePath", "tmpScheduler.mdb"), testing::Each(Music()));
  EXPECT_THAT(Colonna("Alias", "tmpScheduler.mdb"), testing::Each(""));
  EXPECT_THAT(Tutti("scheduler.mdb"), ElementsAre("0/1/1 a.mp3"));
  EXPECT_EQ(Testo("lblModifiche"), "1 change unsaved");
  Clic("picAggiungiSpot", 2);
  EXPECT_THAT(Dettaglio(), ElementsAre("a.mp3", "x.mp3", "x.mp3")) << "any number of times";
}

TEST_F(Slots, AFileIsJudgedAtOnceWhereAddingCannotWait) {
  Open(0);
  Add(0, "x.mp3");
  EXPECT_THAT(Dettaglio(), ElementsAre("x.mp3"));
  EXPECT_FALSE(form->fraFileInfo->tmrInfoMp3.isActive());
  EXPECT_EQ(Testo("lblVersioneMpeg"), "MPEG 1 Layer 3");
}

TEST_F(Slots, AFileReplacesTheSpotOfAUsedOne) {
  Open(3);
  Add(1, "x.mp3");
  EXPECT_EQ(Order(), "axc");
  EXPECT_EQ(Current(), 1);
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 a.mp3", "0/1/2 x.mp3", "0/1/3 c.mp3"));
  EXPECT_EQ(Modifiche(), 1);
  EXPECT_THAT(SlotTutti(), SizeIs(4));
}

TEST_F(Slots, OfWhichAllAreUsedOnlyReplace) {
  Open(8);
  Add(7, "x.mp3");
  EXPECT_EQ(Order(), "abcdefgx");
  DoppioFile("y.mp3");
  EXPECT_EQ(Order(), "abcdefgx");
  EXPECT_THAT(Esito(), testing::HasSubstr("All eight places of this segment are used."));
  Add(0, "z.mp3");
  EXPECT_EQ(Order(), "zbcdefgx");
  EXPECT_EQ(Esito(), "") << "the next command takes the words away";
}

TEST_F(Slots, ABadFileDoesNothingAndKeepsThem) {
  Guasta("bad.mp3");
  Open(1);
  for (const bool waits : {true, false}) {
    waits ? Analizza("bad.mp3") : ClicFile("bad.mp3");
    Clic("picAggiungiSpot", 0);
    Clic("picAggiungiSpot", 1);
    DoppioFile("bad.mp3");
    EXPECT_TRUE(SiVede("lblBadFileType"));
    EXPECT_EQ(Order(), "a");
    EXPECT_THAT(SlotTutti(), ElementsAre("PSAR", "A"));
    EXPECT_EQ(Modifiche(), 0);
    EXPECT_TRUE(b.Finestre.Silenzio());
  }
}

TEST_F(Slots, WithoutAPickSayThatAFileIsToBePicked) {
  Open(1);
  Clic("picAggiungiSpot", 1);
  EXPECT_EQ(Order(), "a");
  EXPECT_EQ(Esito(), "Pick a file on the left first.");
  Add(1, "x.mp3");
  EXPECT_EQ(Esito(), "");
}

TEST_F(Slots, ADoubleClickAndEnterAddToTheFirstFreeOne) {
  Open(1);
  DoppioFile("x.mp3");
  EXPECT_EQ(Order(), "ax");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Order(), "axx");
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  for (int i = 0; i < 3; ++i) QCoreApplication::sendEvent(&Pane(), &held);
  EXPECT_EQ(Order(), "axx") << "a key held down is one press";
  EXPECT_EQ(Current(), 2);
}

TEST_F(Slots, WithoutASegmentADoubleClickAddsNothing) {
  Musica({"x.mp3"});
  Apri();
  DoppioFile("x.mp3");
  EXPECT_THAT(Tutti(), IsEmpty());
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Modifiche(), 0);
}

TEST_F(Slots, SeveralSelectedFilesComeInTheOrderOfThePane) {
  Guasta("w.mp3");
  Open(1);
  ClicFile("z.mp3");
  ClicFile("x.mp3", Qt::ControlModifier);
  ClicFile("w.mp3", Qt::ControlModifier);
  Clic("picAggiungiSpot", 1);
  EXPECT_EQ(Order(), "axz");
  EXPECT_THAT(Esito(), testing::HasSubstr("Not taken: w.mp3. "));
  EXPECT_EQ(Modifiche(), 2);
}

TEST_F(Slots, ARemovedSpotIsFollowedByTheOneBehindIt) {
  Open(5);
  Clic("picRimuoviSpot", 2);
  EXPECT_EQ(Order(), "abde");
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 a.mp3", "0/1/2 b.mp3", "0/1/3 d.mp3", "0/1/4 e.mp3"));
  EXPECT_EQ(Current(), 2);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "no question";
  EXPECT_EQ(Modifiche(), 1);
  Clic("picRimuoviSpot", 3);
  EXPECT_EQ(Current(), 2) << "the last one where none came after it";
  for (int i = 0; i < 3; ++i) Clic("picRimuoviSpot", 0);
  EXPECT_EQ(Order(), "");
  EXPECT_THAT(SlotTutti(), ElementsAre("A"));
  EXPECT_THAT(Griglia(), ElementsAre("08:30")) << "the segment stays";
  EXPECT_TRUE(std::filesystem::exists(Host("a.mp3")));
}

TEST_F(Slots, DelRemovesTheCurrentSpotOncePerPress) {
  Open(4);
  ClicSpot(1);
  Keys(Qt::Key_Delete);
  EXPECT_EQ(Order(), "acd");
  EXPECT_EQ(Fuoco(), &Spots());
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, {}, true);
  for (int i = 0; i < 3; ++i) QCoreApplication::sendEvent(&Spots(), &held);
  EXPECT_EQ(Order(), "acd");
  for (int i = 0; i < 5; ++i) Premi(Qt::Key_Delete);
  EXPECT_EQ(Order(), "");
  EXPECT_EQ(Modifiche(), 4);
}

TEST_F(Slots, ASpotMovesByItsArrowsAndStaysCurrent) {
  Open(4);
  ClicFreccia(0, true);
  EXPECT_EQ(Order(), "bacd");
  EXPECT_EQ(Current(), 1);
  ClicFreccia(1, true);
  EXPECT_EQ(Order(), "bcad");
  ClicFreccia(3, false);
  EXPECT_EQ(Order(), "bcda");
  EXPECT_EQ(Current(), 2);
  EXPECT_EQ(Modifiche(), 3);
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 b.mp3", "0/1/2 c.mp3", "0/1/3 d.mp3", "0/1/4 a.mp3"));
}

TEST_F(Slots, TheArrowsAtTheEndsAreCovered) {
  Open(2);
  ClicFreccia(0, false);
  ClicFreccia(1, true);
  EXPECT_EQ(Order(), "ab");
  EXPECT_EQ(Modifiche(), 0);
  Clic("picRimuoviSpot", 1);
  EXPECT_THAT(SlotTutti(), ElementsAre("PSAR", "A")) << "the only spot can't move";
}

TEST_F(Slots, AltAndTheArrowsMoveTheCurrentSpot) {
  Open(4);
  ClicSpot(3);
  Keys(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Order(), "abdc");
  EXPECT_EQ(Current(), 2);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Up, Qt::AltModifier, {}, true);
  for (int i = 0; i < 5; ++i) QCoreApplication::sendEvent(&Spots(), &held);
  EXPECT_EQ(Order(), "dabc");
  EXPECT_EQ(Current(), 0);
  Premi(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Order(), "adbc");
  EXPECT_EQ(Fuoco(), &Spots());
  EXPECT_EQ(Modifiche(), 4);
}

TEST_F(Slots, OneSpotAloneDoesNotMoveByKeysEither) {
  Open(1);
  Keys(Qt::Key_Up, Qt::AltModifier);
  Premi(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Order(), "a");
  EXPECT_EQ(Modifiche(), 0);
}

TEST_F(Slots, OfAFullDayRefuseAndSaySo) {
  const std::int64_t id = Segmento(0, "08.30", {"a.mp3"});
  MoltiSpot(0, id + 100, 498);
  Musica({"x.mp3", "y.mp3"});
  Apri();
  Add(1, "x.mp3");
  EXPECT_EQ(Order(), "ax") << "the five hundredth";
  const auto told = [this] { Avviso(Parola("0140013"), Parola("0140014")); };
  Add(2, "y.mp3");
  told();
  Add(0, "y.mp3");
  told();
  DoppioFile("y.mp3");
  told();
  LasciaSulloSlot(2, {Host("x.mp3"), Host("y.mp3")});
  told();
  EXPECT_TRUE(b.Finestre.Silenzio()) << "once for all of them";
  EXPECT_EQ(Order(), "ax");
  EXPECT_EQ(Modifiche(), 1);
}

TEST_F(Slots, OfAnotherDayHaveRoomOfTheirOwn) {
  Progetto(3, 3);
  const std::int64_t id = Segmento(1, "08.30", {"a.mp3"});
  MoltiSpot(1, id + 100, 499);
  Segmento(2, "08.30");
  Apri();
  test::ScegliVoce(Giorni(), "Tuesday");
  DoppioFile("a.mp3");
  EXPECT_EQ(Order(), "a");
}

TEST_F(Slots, AnotherSegmentBeginsAtItsFirstSpot) {
  Segmento(0, "20.00", {"k.mp3", "l.mp3", "m.mp3"});
  Open(3);
  ClicSpot(2);
  ClicSegmento(1);
  EXPECT_EQ(Order(), "klm");
  EXPECT_EQ(Current(), 0);
  ClicSpot(1);
  Attiva();
  EXPECT_EQ(Current(), 1);
}

TEST_F(Slots, OfRowsWithHolesAndDoublesShowAndDoNoHarm) {
  const std::int64_t id = Segmento(0, "08.30");
  Spot(0, id, 1, "a.mp3");
  Spot(0, id, 3, "b.mp3");
  Spot(0, id, 3, "c.mp3");
  Spot(0, id, 9, "d.mp3");
  Apri();
  EXPECT_EQ(Order(), "abcd");
  EXPECT_THAT(SlotTutti(), SizeIs(5));
  for (int i = 0; i < 4; ++i) Clic("picPlay", i);
  ClicFreccia(1, true);
  Clic("picRimuoviSpot", 0);
  EXPECT_THAT(Tutti(), testing::Each(testing::StartsWith("0/1/")));
  while (!b.Finestre.Silenzio()) b.Finestre.Prossimo();
}

}  // namespace
}  // namespace kvr5
