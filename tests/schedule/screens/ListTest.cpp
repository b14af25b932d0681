#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include "core/screens/Tema.h"
#include "schedule/screens/BancoPalinsestoSchermo.h"

// What the lists tell of segments and spots: names, times, and what is wrong.

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ScheduleLists : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override { Progetto(3, 2); }
  std::string Contents(int row) const {
    return Cella(row, ModelloSegmenti::Contenuto).toStdString();
  }
  /// Waits for what the grid says of a segment.
  bool Says(int row, const std::string& words) const {
    return QTest::qWaitFor([&] { return Contents(row) == words; });
  }
  QVariant Role(int row, int column, int role) const {
    return Grid().model()->index(row, column).data(role);
  }
  QVariant SpotRole(int row, int role, int column = ModelloSpot::Nome) const {
    return Spots().model()->index(row, column).data(role);
  }
  /// A file of 52 seconds.
  void Long(const char* name) const { b.ScriviMp3(std::string("music/") + name, name[0], 2000); }
  void Row(std::int64_t segment, int pos, const std::string& name) {
    b.AggiungiRiga("scheduler.mdb", 0, pos, name, Music(), "", static_cast<int>(segment));
  }
};

TEST_F(ScheduleLists, HaveNothingToScrollToWhileThereIsNoSegment) {
  Apri();
  Grid().resize(300, 300);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Grid().horizontalScrollBar()->maximum() == 0; }));
  Clic("picAggiungiSegmento");
  EXPECT_EQ(Grid().model()->rowCount(), 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Grid().horizontalScrollBar()->maximum() > 0; }))
      << "the names of the places";
}

TEST_F(ScheduleLists, HaveAColumnForTheStartTheContentsAndEachOfEightPlaces) {
  const std::int64_t id = Segmento(0, "08.30");
  Spot(0, id, 1, "a.mp3");
  Spot(0, id, 3, "c.mp3");
  Spot(0, id, 8, "h.mp3");
  Apri();
  const auto title = [this](int column) {
    return Grid().model()->headerData(column, Qt::Horizontal).toString().toStdString();
  };
  EXPECT_EQ(Grid().model()->columnCount(), 10);
  EXPECT_EQ(title(ModelloSegmenti::Inizio), "Start");
  EXPECT_EQ(title(ModelloSegmenti::Contenuto), "Contents");
  for (int place = 1; place <= 8; ++place) {
    EXPECT_EQ(title(ModelloSegmenti::Spot1 + place - 1), "Spot " + std::to_string(place));
  }
  EXPECT_EQ(Cella(0, ModelloSegmenti::Spot1), "a.mp3");
  EXPECT_EQ(Cella(0, ModelloSegmenti::Spot1 + 1), "");
  EXPECT_EQ(Cella(0, ModelloSegmenti::Spot1 + 2), "c.mp3");
  EXPECT_EQ(Cella(0, ModelloSegmenti::Spot1 + 7), "h.mp3");
}

TEST_F(ScheduleLists, OfTwoRowsAtOnePlaceNameOne) {
  const std::int64_t id = Segmento(0, "08.30");
  Spot(0, id, 1, "a.mp3");
  Spot(0, id, 1, "b.mp3");
  Apri();
  EXPECT_EQ(Cella(0, ModelloSegmenti::Spot1), "a.mp3");
}

TEST_F(ScheduleLists, TellSpotsAndTheirTime) {
  const std::int64_t id = Segmento(0, "08.30");
  Long("a.mp3");
  Long("b.mp3");
  Row(id, 1, "a.mp3");
  Row(id, 2, "b.mp3");
  const std::int64_t other = Segmento(0, "09.30");
  Row(other, 1, "a.mp3");
  Apri();
  EXPECT_TRUE(Says(0, "2 spots, 1:44"));
  EXPECT_TRUE(Says(1, "1 spot, 0:52"));
  EXPECT_EQ(Testo("lblTotaleSpot"), "2 spots, 1:44") << "beside the start";
  EXPECT_EQ(SpotRole(0, Qt::DisplayRole, ModelloSpot::Durata).toString(), "0:52");
  ClicSegmento(1);
  EXPECT_EQ(Testo("lblTotaleSpot"), "1 spot, 0:52");
  Clic("picRimuoviSpot", 0);
  EXPECT_EQ(Testo("lblTotaleSpot"), "no spots");
  EXPECT_TRUE(Says(1, "no spots"));
}

TEST_F(ScheduleLists, MarkEqualTimesAndSegmentsWithoutSpots) {
  Segmento(0, "08.30", {"a.mp3"});
  Segmento(0, "08.30");
  Segmento(0, "09.00", {"b.mp3"});
  Segmento(0, "10.00");
  Apri();
  const QColor warning = Tema::Corrente().Avviso;
  const auto marked = [&](int row) {
    return !Role(row, ModelloSegmenti::Contenuto, Qt::DecorationRole).isNull();
  };
  int same = 0;
  for (int row = 0; row < 2; ++row) {
    same += Contents(row).starts_with("same time, ") ? 1 : 0;
    EXPECT_TRUE(marked(row));
    EXPECT_EQ(Role(row, ModelloSegmenti::Inizio, Qt::ForegroundRole).value<QColor>(), warning);
  }
  EXPECT_EQ(same, 2);
  EXPECT_THAT(Contents(2), testing::StartsWith("1 spot"));
  EXPECT_FALSE(marked(2));
  EXPECT_EQ(Contents(3), "no spots");
  EXPECT_TRUE(marked(3));
  EXPECT_EQ(Role(3, ModelloSegmenti::Contenuto, Qt::ForegroundRole).value<QColor>(), warning);
  ClicSegmento(0);
  DigitaOrario("07", "00");
  for (int row = 0; row < 4; ++row)
    EXPECT_THAT(Contents(row), testing::Not(HasSubstr("same time")));
}

TEST_F(ScheduleLists, TellOfMissingFilesAndWhereTheyWere) {
  const std::int64_t id = Segmento(0, "08.30");
  Long("a.mp3");
  Row(id, 1, "a.mp3");
  Row(id, 2, "gone.mp3");
  Apri();
  EXPECT_TRUE(Says(0, "2 spots, 1 missing"));
  EXPECT_EQ(SpotRole(1, Qt::DisplayRole, ModelloSpot::Durata).toString(), "missing");
  EXPECT_EQ(SpotRole(1, Qt::ForegroundRole).value<QColor>(), Tema::Corrente().Errore);
  EXPECT_EQ(SpotRole(1, Qt::ToolTipRole).toString().toStdString(),
            "It was here: " + Host("gone.mp3"));
  EXPECT_EQ(SpotRole(0, Qt::ToolTipRole).toString().toStdString(), Host("a.mp3"));
  b.ScriviMp3("music/gone.mp3", 1, 2000);
  Attiva();
  EXPECT_TRUE(Says(0, "2 spots, 1:44")) << "it came back while another window was in front";
  std::filesystem::remove(Host("a.mp3"));
  Attiva();
  EXPECT_TRUE(Says(0, "2 spots, 1 missing"));
}

TEST_F(ScheduleLists, AFileThatStandsInSeveralSpotsIsToldOf) {
  Segmento(0, "08.30", {"b.mp3", "a.mp3"});
  Segmento(0, "09.30", {"c.mp3", "b.mp3"});
  Apri();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Avvisi().empty(); }));
  EXPECT_THAT(Avvisi(), testing::StartsWith("b.mp3 stands in several spots: "));
  EXPECT_FALSE(SpotRole(0, Qt::ForegroundRole).value<QColor>() == Tema::Corrente().Avviso)
      << "the first of them is on the card";
  ClicSegmento(1);
  EXPECT_EQ(SpotRole(1, Qt::ForegroundRole).value<QColor>(), Tema::Corrente().Avviso);
  EXPECT_THAT(SpotRole(1, Qt::ToolTipRole).toString().toStdString(),
              HasSubstr("b.mp3 stands in several spots"));
  Clic("picRimuoviSpot", 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Avvisi().empty(); }));
}

TEST_F(ScheduleLists, AnOlderCopyThatARecordingWouldTakeIsToldOf) {
  Segmento(0, "08.30", {"a.mp3", "b.mp3"});
  b.ScriviMp3("program/Projects/Hall/F0-0012.mp3", 7);
  Apri();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Avvisi().empty(); }));
  EXPECT_THAT(Avvisi(), testing::StartsWith("A recording would take an older copy for b.mp3. "));
  EXPECT_FALSE(SpotRole(1, Qt::DecorationRole).isNull());
  EXPECT_TRUE(SpotRole(0, Qt::DecorationRole).isNull());
  ClicFreccia(0, true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Avvisi().find("for a.mp3") != std::string::npos; }))
      << "now a.mp3 comes to that name";
}

TEST_F(ScheduleLists, OfferToGiveCopiesTheirNames) {
  Segmento(0, "08.30", {"a.mp3", "b.mp3"});
  Apri();
  EXPECT_FALSE(SiVede("picNomiCopie"));
  b.Finestre.Rispondi(Risposta::Si);
  Clic("picSave");
  ASSERT_TRUE(SiChiude());
  b.Finestre.Prossimo();
  ASSERT_TRUE(Ha("F0-0011.mp3"));
  Dimentica();
  Apri();
  ASSERT_TRUE(QTest::qWaitFor([this] { return SiVede("picNomiCopie"); }));
  EXPECT_NE(Avvisi(), "");
  Clic("picNomiCopie");
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/a.mp3", "music/a.mp3"));
  EXPECT_TRUE(b.Cartella.Same("program/Projects/Hall/b.mp3", "music/b.mp3"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !SiVede("picNomiCopie"); }));
  EXPECT_EQ(Avvisi(), "");
  EXPECT_THAT(Griglia(), ElementsAre("08:30 a.mp3 b.mp3"));
}

TEST_F(ScheduleLists, WarnOfOtherDaysToo) {
  Progetto(3, 3);
  Segmento(1, "08.30", {"a.mp3"});
  Segmento(5, "09.30", {"a.mp3"});
  Apri();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Avvisi().starts_with("a.mp3 stands in several"); }));
}

TEST_F(ScheduleLists, GiveTheStartAndTheContentsTheRoomThatTheyNeed) {
  MoltiSegmenti(0, 60);
  Apri();
  const auto* header = Grid().horizontalHeader();
  const QFontMetrics metrics(Grid().font());
  EXPECT_GE(header->sectionSize(ModelloSegmenti::Inizio), metrics.horizontalAdvance("00:00"));
  EXPECT_GE(header->sectionSize(ModelloSegmenti::Contenuto),
            metrics.horizontalAdvance("same time, 8 spots, 9:59"));
  EXPECT_LE(header->sectionSize(ModelloSegmenti::Inizio) +
                header->sectionSize(ModelloSegmenti::Contenuto),
            Grid().viewport()->width() + 1)
      << "both are seen without scrolling";
}

TEST_F(ScheduleLists, ShowOddNamesAsTheyAre) {
  const std::int64_t id = Segmento(0, "08.30");
  const std::string name = "<b>x & [y].mp3";
  b.ScriviMp3("music/" + name);
  Row(id, 1, name);
  Apri();
  EXPECT_THAT(Dettaglio(), ElementsAre(name));
  EXPECT_EQ(Cella(0, ModelloSegmenti::Spot1).toStdString(), name);
}

}  // namespace
}  // namespace kvr5
