#include "schedule/BancoPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Wednesday with a segment at 08.30 that holds five spots a.mp3 to e.mp3, IDs 1 to 5.
class Spots : public test::BancoPalinsesto {
 protected:
  void SetUp() override {
    Progetto(3, 3);
    Segmento(3, "08.30");
    for (int i = 1; i <= 5; ++i) Spot(3, 1, i, std::string(1, static_cast<char>('`' + i)) + ".mp3");
    Open();
  }
  void Open() {
    Apri();
    editor.ScegliGiorno(3);
  }
  /// The spots of the selected segment, "1 a.mp3 #1" with their ID.
  Righe WithIds() {
    Righe rows;
    auto& spots = editor.rsDettaglio();
    EXPECT_FALSE(WalkRows(spots, [&] {
      rows.push_back(spots.Text("Pos") + " " + spots.Text("FileName") + " #" + spots.Text("ID"));
      return true;
    }));
    return rows;
  }
};

TEST_F(Spots, ANewOneHasTheseColumns) {
  EXPECT_EQ(Aggiungi(5, "new.mp3", "C:\\Music"), EsitoSpot::Aggiunto);
  ASSERT_FALSE(editor.rsDettaglio().MoveLast());
  const auto& row = editor.rsDettaglio();
  EXPECT_EQ(row.Text("FileName"), "new.mp3");
  EXPECT_EQ(row.Text("FilePath"), "C:\\Music\\");
  EXPECT_EQ(row.Text("Pos"), "6");
  EXPECT_EQ(row.Text("NPlaylist"), "3");
  EXPECT_EQ(row.Text("IDSched"), "1");
  EXPECT_EQ(Sql("SELECT COUNT(*) FROM List WHERE ID=6 AND Alias IS NULL", "tmpScheduler.mdb"), "1");
  EXPECT_EQ(Sql("SELECT COUNT(*) FROM List"), "5") << "the working copy alone";
}

TEST_F(Spots, TheFolderHasOneBackslashBehindIt) {
  Aggiungi(5, "new.mp3", "C:\\");
  ASSERT_FALSE(editor.rsDettaglio().MoveLast());
  EXPECT_EQ(editor.rsDettaglio().Text("FilePath"), "C:\\");
}

TEST_F(Spots, ANewOneShowsInTheGridAndTheSegmentStaysSelected) {
  Aggiungi(5, "new.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("08:30:00 a.mp3 b.mp3 c.mp3 d.mp3 e.mp3 new.mp3"));
  EXPECT_EQ(editor.SegmentoCorrente(), 1);
  EXPECT_EQ(editor.QuantiSpot(), 6);
}

TEST_F(Spots, OfTheOneScheduleHaveDayZero) {
  Progetto(3, 2);
  editor.Chiudi();
  Segmento(0, "08.30");
  Apri();
  EXPECT_EQ(Aggiungi(0, "a.mp3"), EsitoSpot::Aggiunto);
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 a.mp3"));
}

TEST_F(Spots, WithEightOfThemAFurtherFileOnlyReplacesOne) {
  for (int slot = 5; slot < 8; ++slot) EXPECT_EQ(Aggiungi(slot, "n.mp3"), EsitoSpot::Aggiunto);
  EXPECT_EQ(editor.QuantiSpot(), 8);
  for (int i = 0; i < 8; ++i) EXPECT_TRUE(editor.Slot()[i].picRimuoviSpot) << i;
  for (int slot = 0; slot < 8; ++slot) EXPECT_EQ(Aggiungi(slot, "r.mp3"), EsitoSpot::Aggiunto);
  EXPECT_EQ(editor.QuantiSpot(), 8);
  EXPECT_THAT(Griglia(), ElementsAre("08:30:00 r.mp3 r.mp3 r.mp3 r.mp3 r.mp3 r.mp3 r.mp3 r.mp3"));
}

TEST_F(Spots, AReplacedOneKeepsItsRowAndPlace) {
  EXPECT_EQ(Aggiungi(2, "new.mp3", "D:\\Other"), EsitoSpot::Aggiunto);
  EXPECT_THAT(WithIds(),
              ElementsAre("1 a.mp3 #1", "2 b.mp3 #2", "3 new.mp3 #3", "4 d.mp3 #4", "5 e.mp3 #5"));
  EXPECT_EQ(Sql("SELECT FilePath FROM List WHERE ID=3", "tmpScheduler.mdb"), "D:\\Other\\");
}

TEST_F(Spots, AFileThatThePanelRefusedChangesNothing) {
  for (const int slot : {0, 5}) {
    editor.FileMp3Valido = false;
    const SlotSpot before = editor.Slot();
    EXPECT_EQ(AggiungiSpot(editor, slot, "C:\\Music", "bad.mp3"), EsitoSpot::NonValido);
    EXPECT_EQ(editor.Slot(), before);
    EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3", "2 b.mp3", "3 c.mp3", "4 d.mp3", "5 e.mp3"));
  }
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Spots, ASlotThatOffersNoAddingTakesNone) {
  EXPECT_EQ(Aggiungi(6, "far.mp3"), EsitoSpot::NonValido);
  editor.ScegliGiorno(1);
  EXPECT_EQ(Aggiungi(0, "nowhere.mp3"), EsitoSpot::NonValido) << "a day without segments";
  EXPECT_EQ(Tutti().size(), 5U);
}

TEST_F(Spots, RemovingThePlaceThreeOfFiveLeavesFourInTheirOrder) {
  RimuoviSpot(editor, 2);
  EXPECT_THAT(WithIds(), ElementsAre("1 a.mp3 #1", "2 b.mp3 #2", "3 d.mp3 #4", "4 e.mp3 #5"));
  EXPECT_THAT(Griglia(), ElementsAre("08:30:00 a.mp3 b.mp3 d.mp3 e.mp3"));
  EXPECT_TRUE(b.Finestre.Silenzio()) << "no question";
  EXPECT_EQ(editor.SegmentoCorrente(), 1);
}

TEST_F(Spots, RemovingTheFirstAndTheLastLeavesNoGap) {
  RimuoviSpot(editor, 0);
  RimuoviSpot(editor, 3);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 b.mp3", "2 c.mp3", "3 d.mp3"));
  while (editor.QuantiSpot() > 0) RimuoviSpot(editor, 0);
  EXPECT_THAT(Tutti(), IsEmpty());
  EXPECT_TRUE(editor.Slot()[0].picAggiungiSpot);
}

TEST_F(Spots, RemovingAFreePlaceDoesNothing) {
  const int changes = editor.Modifiche();
  for (const int slot : {5, 7}) RimuoviSpot(editor, slot);
  EXPECT_EQ(editor.QuantiSpot(), 5);
  EXPECT_EQ(editor.Modifiche(), changes);
}

TEST_F(Spots, WithoutASegmentNoneIsRemovedOrMoved) {
  editor.ScegliGiorno(1);
  RimuoviSpot(editor, 0);
  SpostaSpot(editor, 0, true);
  EXPECT_EQ(Tutti().size(), 5U);
}

TEST_F(Spots, OfAnotherSegmentStayWhereTheyAre) {
  AggiungiSegmento(editor);
  Aggiungi(0, "z.mp3");
  Aggiungi(1, "y.mp3");
  RimuoviSpot(editor, 0);
  EXPECT_THAT(Tutti(), ElementsAre("3/1/1 a.mp3", "3/1/2 b.mp3", "3/1/3 c.mp3", "3/1/4 d.mp3",
                                   "3/1/5 e.mp3", "3/2/1 y.mp3"));
}

TEST_F(Spots, RemovingTakesWhatADuplicateHidAtThatPlaceAlong) {
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  ASSERT_EQ(Tutti().front(), "0/2/1 a.mp3");
  Aggiungi(0, "own.mp3");
  RimuoviSpot(editor, 0);
  EXPECT_THAT(Dettaglio(), IsEmpty());
  EXPECT_EQ(Tutti().front(), "0/2/1 b.mp3") << "and the hidden ones move up";
}

TEST_F(Spots, AMoveDownChangesPlacesWithTheNext) {
  SpostaSpot(editor, 1, true);
  EXPECT_THAT(WithIds(),
              ElementsAre("1 a.mp3 #1", "2 c.mp3 #3", "3 b.mp3 #2", "4 d.mp3 #4", "5 e.mp3 #5"));
  EXPECT_THAT(Griglia(), ElementsAre("08:30:00 a.mp3 c.mp3 b.mp3 d.mp3 e.mp3"));
}

TEST_F(Spots, AMoveUpChangesPlacesWithTheOneBefore) {
  SpostaSpot(editor, 4, false);
  EXPECT_THAT(WithIds(),
              ElementsAre("1 a.mp3 #1", "2 b.mp3 #2", "3 c.mp3 #3", "4 e.mp3 #5", "5 d.mp3 #4"));
}

TEST_F(Spots, TheMovedOneIsTheCurrentRow) {
  SpostaSpot(editor, 1, true);
  EXPECT_EQ(editor.rsDettaglio().Text("FileName"), "b.mp3");
  SpostaSpot(editor, 2, false);
  EXPECT_EQ(editor.rsDettaglio().Text("FileName"), "b.mp3");
  EXPECT_EQ(editor.rsDettaglio().Text("Pos"), "2");
}

TEST_F(Spots, TheFirstDoesNotGoUpNorTheLastDownNorAFreePlaceAnywhere) {
  SpostaSpot(editor, 0, false);
  SpostaSpot(editor, 4, true);
  SpostaSpot(editor, 5, true);
  SpostaSpot(editor, 5, false);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3", "2 b.mp3", "3 c.mp3", "4 d.mp3", "5 e.mp3"));
}

TEST_F(Spots, TheOnlyOneCantBeMovedAndHasNoArrows) {
  while (editor.QuantiSpot() > 1) RimuoviSpot(editor, 1);
  EXPECT_FALSE(editor.Slot()[0].UpDownFile);
  SpostaSpot(editor, 0, true);
  SpostaSpot(editor, 0, false);
  EXPECT_THAT(WithIds(), ElementsAre("1 a.mp3 #1"));
}

TEST_F(Spots, AMoveAcrossAGapClosesIt) {
  editor.Chiudi();
  Sql("UPDATE List SET Pos=Pos+2 WHERE Pos>3");
  Open();
  SpostaSpot(editor, 2, true);
  EXPECT_THAT(WithIds(),
              ElementsAre("1 a.mp3 #1", "2 b.mp3 #2", "3 d.mp3 #4", "4 c.mp3 #3", "5 e.mp3 #5"));
}

}  // namespace
}  // namespace kvr5
