#include <QMimeData>
#include <QUrl>
#include <memory>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// Files dropped on the slots of a segment.

namespace kvr5 {
namespace {

using testing::HasSubstr;

class Drops : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override {
    Progetto(3, 2);
    Segmento(0, "08.30", {"a.mp3", "b.mp3"});
    Musica({"x.mp3", "y.mp3", "z.mp3"});
  }
  std::string Order() const {
    std::string all;
    for (const std::string& each : Dettaglio()) all += each.front();
    return all;
  }
};

TEST_F(Drops, OnAUsedSlotReplaceItsSpot) {
  Apri();
  LasciaSulloSlot(0, {Host("x.mp3")});
  EXPECT_EQ(Order(), "xb");
  EXPECT_EQ(Spots().currentIndex().row(), 0);
  EXPECT_TRUE(std::filesystem::exists(Host("x.mp3"))) << "the file stays where it is";
  EXPECT_EQ(Modifiche(), 1);
  EXPECT_THAT(Colonna("FilePath", "tmpScheduler.mdb"), testing::Each(Music()));
}

TEST_F(Drops, OnAFreeSlotOrBehindComeIntoTheFirstFreeOne) {
  Apri();
  LasciaSulloSlot(2, {Host("x.mp3")});
  EXPECT_EQ(Order(), "abx");
  LasciaSulloSlot(7, {Host("y.mp3")});
  EXPECT_EQ(Order(), "abxy");
  EXPECT_THAT(Tutti(),
              testing::ElementsAre("0/1/1 a.mp3", "0/1/2 b.mp3", "0/1/3 x.mp3", "0/1/4 y.mp3"));
}

TEST_F(Drops, OnTheGridAndItsButtonsCountForTheirSlot) {
  Apri();
  Lascia(Elemento("picPlay", 1), {Host("x.mp3")});
  EXPECT_EQ(Order(), "ax");
  Lascia(Spots(), {Host("y.mp3")});  // its middle is beyond the last spot
  EXPECT_EQ(Order(), "axy");
  Lascia(Trova<QWidget>("lblDettaglioPalinsesto"), {Host("z.mp3")});
  EXPECT_EQ(Order(), "zxy") << "above the slots the first one is nearest";
}

TEST_F(Drops, OfSeveralFilesReplaceOneAndGoOnInTheFreeSlots) {
  Apri();
  LasciaSulloSlot(0, {Host("z.mp3"), Host("x.mp3"), Host("y.mp3")});
  EXPECT_EQ(Order(), "zbxy");
  EXPECT_EQ(Modifiche(), 3);
  EXPECT_EQ(Esito(), "");
}

TEST_F(Drops, OnAFullSegmentReplaceOneAndSayWhatWasNotTaken) {
  Progetto(3, 2);
  Segmento(0, "08.30", {"a.mp3", "b.mp3", "c.mp3", "d.mp3", "e.mp3", "f.mp3", "g.mp3", "h.mp3"});
  Apri();
  LasciaSulloSlot(7, {Host("x.mp3"), Host("y.mp3"), Host("z.mp3")});
  EXPECT_EQ(Order(), "abcdefgx");
  EXPECT_THAT(Esito(), HasSubstr("y.mp3"));
  EXPECT_THAT(Esito(), HasSubstr("All eight places of this segment are used."));
  EXPECT_THAT(Esito(), HasSubstr("And 1 more."));
}

TEST_F(Drops, AreTakenByTheRuleOfThePane) {
  Guasta("bad.mp3");
  b.ScriviMp3("music/song.wav");
  std::filesystem::create_directories(b.Cartella.Host() / "music/Jazz.mp3");
  Apri();
  LasciaSulloSlot(0, {Host("bad.mp3")});
  EXPECT_THAT(Esito(), HasSubstr("Not taken: bad.mp3. "));
  LasciaSulloSlot(0, {Host("song.wav")});
  EXPECT_THAT(Esito(), HasSubstr("Not taken: song.wav. "));
  LasciaSulloSlot(0, {Host("Jazz.mp3")});
  EXPECT_THAT(Esito(), HasSubstr("This is a folder: open it in the list on the left."));
  LasciaSulloSlot(0, {Host("gone.mp3")});
  EXPECT_THAT(Esito(), HasSubstr("This file isn't there any more"));
  EXPECT_EQ(Order(), "ab");
  EXPECT_EQ(Modifiche(), 0);
  LasciaSulloSlot(0, {Host("bad.mp3"), Host("x.mp3"), Host("song.wav"), Host("y.mp3")});
  EXPECT_EQ(Order(), "xby") << "the first good one comes into the slot";
  EXPECT_THAT(Esito(), HasSubstr("bad.mp3"));
  LasciaSulloSlot(2, {Host("z.mp3")});
  EXPECT_EQ(Esito(), "");
}

TEST_F(Drops, WordsAboutThemGoWithTheSegment) {
  Guasta("bad.mp3");
  Segmento(0, "09.00");
  Apri();
  LasciaSulloSlot(0, {Host("bad.mp3")});
  ASSERT_NE(Esito(), "");
  ClicSegmento(1);
  EXPECT_EQ(Esito(), "") << "they were about another one";
}

TEST_F(Drops, OfWhatIsNoFileAreNotAccepted) {
  Apri();
  Lascia(Spots(), QList<QUrl>{QUrl("https://example.org/a.mp3")});
  Lascia(Spots(), QList<QUrl>{});
  Lascia(Pane(), {Host("x.mp3")});
  Lascia(Grid(), {Host("x.mp3")});
  EXPECT_EQ(Order(), "ab");
  EXPECT_EQ(Esito(), "");
}

TEST_F(Drops, FromThePaneBringItsSelectedFiles) {
  Apri();
  ClicFile("z.mp3");
  ClicFile("x.mp3", Qt::ControlModifier);
  const std::unique_ptr<QMimeData> dragged(
      Pane().model()->mimeData(Pane().selectionModel()->selectedIndexes()));
  Lascia(Elemento("lblPos", 2), dragged->urls());
  EXPECT_EQ(Order(), "abxz");
}

TEST_F(Drops, WithoutASegmentComeToNothing) {
  Progetto(3, 2);
  Apri();
  Lascia(Trova<QWidget>("fraSegmenti"), {Host("x.mp3")});
  EXPECT_THAT(Tutti(), testing::IsEmpty());
  EXPECT_EQ(Modifiche(), 0);
}

TEST_F(Drops, KeepNamesHoweverOdd) {
  Progetto(3, 2);
  Segmento(0, "08.30");
  const Righe odd = {"100%.mp3",
                     "O'Neil.mp3",
                     "'; DROP TABLE List; --.mp3",
                     "[x] {y}.mp3",
                     "\xF0\x9F\x8E\xB5 città.mp3",
                     "<b>x.mp3"};
  for (const auto& each : odd) b.ScriviMp3("music/" + each);
  Apri();
  for (const auto& each : odd) LasciaSulloSlot(7, {Host(each)});
  EXPECT_EQ(Dettaglio(), odd);
  ClicFreccia(1, false);
  ClicFreccia(0, true);
  Clic("picRimuoviSpot", 0);
  EXPECT_EQ(Dettaglio(), Righe(odd.begin() + 1, odd.end()));
}

}  // namespace
}  // namespace kvr5
