#include "schedule/BancoPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Segments that are duplicated.
class DuplicatedSegments : public test::BancoPalinsesto {
 protected:
  void Duplicate(std::int64_t id) {
    EXPECT_TRUE(editor.VaiAlSegmento(id));
    DuplicaSegmento(editor);
    b.Finestre.Prossimo();
    EXPECT_TRUE(b.Finestre.Silenzio());
  }
};

TEST_F(DuplicatedSegments, OfTheOneScheduleShowTheirSpots) {
  Progetto(3, 2);
  const auto first = Segmento(0, "08.30");
  Spot(0, first, 1, "a.mp3");
  Spot(0, first, 2, "b.mp3");
  Apri();
  Duplicate(first);
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_EQ(Orario(), "08.30");
  EXPECT_TRUE(editor.Slot().picDettaglio);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3", "2 b.mp3"));
  EXPECT_THAT(Griglia(), ElementsAre("08:30:00 a.mp3 b.mp3", "08:30:00 a.mp3 b.mp3"));
}

TEST_F(DuplicatedSegments, OfADayShowNoneSinceThoseHaveDayZero) {
  Progetto(3, 3);
  const auto first = Segmento(3, "08.30");
  Spot(3, first, 1, "a.mp3");
  Spot(3, first, 2, "b.mp3");
  Apri();
  editor.ScegliGiorno(3);
  Duplicate(first);
  EXPECT_THAT(Segmenti(), ElementsAre("1 3 08:30:00", "2 3 08:30:00"));
  EXPECT_THAT(Tutti(), ElementsAre("0/2/1 a.mp3", "0/2/2 b.mp3", "3/1/1 a.mp3", "3/1/2 b.mp3"));
  EXPECT_EQ(editor.SegmentoCorrente(), 2);
  EXPECT_THAT(Dettaglio(), IsEmpty());
  EXPECT_THAT(Griglia(), ElementsAre("08:30:00 a.mp3 b.mp3", "08:30:00"));
}

TEST_F(DuplicatedSegments, TellThatTheTimeIsToBeChanged) {
  Progetto(3, 3);
  Segmento(1, "08.30");
  Apri();
  DuplicaSegmento(editor);
  Avviso(Parola("0140038"), Parola("0140039"));
}

TEST_F(DuplicatedSegments, HaveTheWholeRowsOfTheirSpotsTheLastOneFirst) {
  Progetto(3, 2);
  const auto first = Segmento(0, "08.30");
  Spot(0, first, 1, "a.mp3", "C:\\One\\", "F0-0011.mp3");
  Spot(0, first, 2, "b.mp3", "D:\\Two\\", "F0-0012.mp3");
  Apri();
  Duplicate(first);
  const auto words = [](const Recordset& row) {
    std::string text;
    for (const char* column :
         {"ID", "Pos", "FileName", "FilePath", "Alias", "NPlaylist", "IDSched"})
      text += row.Text(column) + " ";
    return text;
  };
  EXPECT_THAT(
      test::RigheDelDatabase(b, "tmpScheduler.mdb",
                             "SELECT * FROM [List] WHERE [IDSched]=2 ORDER BY [ID]", words),
      ElementsAre("3 2 b.mp3 D:\\Two\\ F0-0012.mp3 0 2 ", "4 1 a.mp3 C:\\One\\ F0-0011.mp3 0 2 "));
}

TEST_F(DuplicatedSegments, AnAliasThatIsMissingIsAnEmptyOneInTheCopy) {
  Progetto(3, 2);
  const auto first = Segmento(0, "08.30");
  Spot(0, first, 1, "a.mp3");
  ASSERT_EQ(Sql("SELECT COUNT(*) FROM List WHERE Alias IS NULL"), "1");
  Apri();
  Duplicate(first);
  EXPECT_EQ(Sql("SELECT COUNT(*) FROM List WHERE Alias IS NULL", "tmpScheduler.mdb"), "1");
  EXPECT_EQ(Sql("SELECT COUNT(*) FROM List WHERE length(Alias)=0", "tmpScheduler.mdb"), "1");
}

TEST_F(DuplicatedSegments, AreNotLimited) {
  Progetto(3, 2);
  MoltiSegmenti(0, 61);
  Apri();
  Duplicate(1);
  EXPECT_EQ(editor.QuantiSegmenti(), 62);
  Duplicate(62);
  EXPECT_EQ(editor.QuantiSegmenti(), 63);
}

TEST_F(DuplicatedSegments, OfACopyOnADayTakeItsHiddenSpotsAlong) {
  Progetto(3, 3);
  const auto first = Segmento(1, "08.30");
  Spot(1, first, 1, "a.mp3");
  Apri();
  Duplicate(first);
  Duplicate(2);
  EXPECT_THAT(Tutti(), ElementsAre("0/2/1 a.mp3", "0/3/1 a.mp3", "1/1/1 a.mp3"));
}

TEST_F(DuplicatedSegments, WithoutATimeStayWithoutOne) {
  Progetto(3, 2);
  const auto first = Segmento(0, "");
  Spot(0, first, 1, "a.mp3");
  Apri();
  Duplicate(first);
  EXPECT_THAT(Segmenti(), ElementsAre("1 0 ", "2 0 "));
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3"));
}

TEST_F(DuplicatedSegments, LoseTheSpotsWhoseStatementFailsAndNoOthers) {
  Progetto(3, 2);
  const auto first = Segmento(0, "08.30");
  Spot(0, first, 1, "a.mp3");
  Spot(0, first, 2, "it's.mp3");
  Spot(0, first, 3, "c.mp3", "C:\\It's\\");
  Spot(0, first, 4, "d.mp3");
  Spot(0, first, 5, "e.mp3");
  Sql("UPDATE List SET Pos=NULL WHERE ID=5");
  Apri();
  Duplicate(first);
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3", "4 d.mp3"));
  EXPECT_EQ(Tutti().size(), 7U) << "those of the source are all there";
}

TEST_F(DuplicatedSegments, NeedARow) {
  Progetto(3, 3);
  Apri();
  DuplicaSegmento(editor);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_THAT(Segmenti(), IsEmpty());
}

TEST_F(DuplicatedSegments, BehindTheLastRowAndBeforeTheFirstDoNothing) {
  Progetto(3, 3);
  Segmento(1, "08.00");
  Apri();
  EXPECT_FALSE(editor.rsSegmenti().MoveNext());
  DuplicaSegmento(editor);
  EXPECT_FALSE(editor.rsSegmenti().MoveFirst());
  EXPECT_FALSE(editor.rsSegmenti().MovePrevious());
  DuplicaSegmento(editor);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Segmenti().size(), 1U);
}

TEST_F(DuplicatedSegments, OfAKvr5KeepATimeInAnotherHour) {
  Progetto(4, 2);
  Segmento(0, "07.30");
  Apri();
  Duplicate(1);
  EXPECT_THAT(Segmenti(), ElementsAre("1 0 07:30:00", "2 0 07:30:00"));
}

}  // namespace
}  // namespace kvr5
