#include "schedule/BancoPalinsesto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The spots that a day takes, and their places.
class SpotLimits : public test::BancoPalinsesto {
 protected:
  /// Monday with so many spots in its second segment; the first one is selected and empty.
  void Fill(int spots) {
    Progetto(3, 3);
    Segmento(1, "00.00");
    MoltiSpot(1, Segmento(1, "12.00"), spots);
    Apri();
  }
  void ExpectFull() { Avviso(Parola("0140013"), Parola("0140014")); }
};

TEST_F(SpotLimits, TheFiveHundredthGoesInTheNextNot) {
  Fill(499);
  EXPECT_EQ(ContaBrani(editor), 499);
  EXPECT_EQ(Aggiungi(0, "a.mp3"), EsitoSpot::Aggiunto);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(Aggiungi(1, "b.mp3"), EsitoSpot::Pieno);
  ExpectFull();
  EXPECT_TRUE(editor.Slot()[1].picAggiungiSpot) << "there are free places";
  EXPECT_EQ(ContaBrani(editor), 500);
}

TEST_F(SpotLimits, AFullDayRefusesAReplacementToo) {
  Fill(499);
  Aggiungi(0, "a.mp3");
  EXPECT_EQ(Aggiungi(0, "b.mp3"), EsitoSpot::Pieno);
  ExpectFull();
  EXPECT_THAT(Dettaglio(), ElementsAre("1 a.mp3"));
}

TEST_F(SpotLimits, AFullDayIsToldBeforeTheFileIsLookedAt) {
  Fill(500);
  editor.FileMp3Valido = false;
  EXPECT_EQ(AggiungiSpot(editor, 0, "C:\\", "bad.mp3"), EsitoSpot::Pieno);
  ExpectFull();
}

TEST_F(SpotLimits, TheOtherDaysHaveTheirOwn) {
  Fill(500);
  editor.ScegliGiorno(2);
  EXPECT_EQ(ContaBrani(editor), 0);
  AggiungiSegmento(editor);
  EXPECT_EQ(Aggiungi(0, "a.mp3"), EsitoSpot::Aggiunto);
  EXPECT_EQ(ContaBrani(editor), 1);
}

TEST_F(SpotLimits, SpotsOfNoSegmentCountAndThoseWithoutANameDont) {
  Fill(499);
  editor.Chiudi();
  Spot(1, 777, 1, "lost.mp3");
  Sql("UPDATE List SET FileName=NULL WHERE ID=1");
  Apri();
  EXPECT_EQ(ContaBrani(editor), 499);
}

TEST_F(SpotLimits, DuplicatedSpotsOfADayDontCountForIt) {
  Progetto(3, 3);
  Spot(1, Segmento(1, "08.00"), 1, "a.mp3");
  Apri();
  DuplicaSegmento(editor);
  b.Finestre.Prossimo();
  EXPECT_EQ(ContaBrani(editor), 1);
}

/// Places that are numbered anew.
class SpotPlaces : public test::BancoPalinsesto {
 protected:
  /// Two segments whose places have gaps.
  void SetUp() override {
    Progetto(3, 2);
    Segmento(0, "01.00");
    Segmento(0, "02.00");
    for (const int pos : {7, 2, 4}) Spot(0, 1, pos, std::to_string(pos) + ".mp3");
    for (const int pos : {3, 8}) Spot(0, 2, pos, std::to_string(pos) + ".mp3");
    Apri();
  }
};

TEST_F(SpotPlaces, OfOneSegmentCloseTheirGaps) {
  RinumeraSpot(editor, 1);
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 2.mp3", "0/1/2 4.mp3", "0/1/3 7.mp3", "0/2/3 3.mp3",
                                   "0/2/8 8.mp3"));
}

TEST_F(SpotPlaces, OfAllSegmentsCloseTheirGaps) {
  RinumeraSpot(editor, -1);
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 2.mp3", "0/1/2 4.mp3", "0/1/3 7.mp3", "0/2/1 3.mp3",
                                   "0/2/2 8.mp3"));
}

TEST_F(SpotPlaces, ThatAreDoubledZeroOrMissingBecomeOneAfterTheOther) {
  editor.Chiudi();
  Sql("UPDATE List SET Pos=NULL WHERE ID=1");
  Sql("UPDATE List SET Pos=0 WHERE ID=2");
  Sql("UPDATE List SET Pos=9 WHERE IDSched=2");
  Apri();
  RinumeraSpot(editor, -1);
  EXPECT_THAT(Tutti(), ElementsAre("0/1/1 7.mp3", "0/1/2 2.mp3", "0/1/3 4.mp3", "0/2/1 3.mp3",
                                   "0/2/2 8.mp3"));
}

TEST_F(SpotPlaces, AreCountedAcrossTheDaysOfASegment) {
  editor.Chiudi();
  Sql("UPDATE List SET NPlaylist=5 WHERE ID=2");
  Apri();
  RinumeraSpot(editor, 1);
  EXPECT_THAT(Tutti(), ElementsAre("0/1/2 4.mp3", "0/1/3 7.mp3", "0/2/3 3.mp3", "0/2/8 8.mp3",
                                   "5/1/1 2.mp3"));
}

TEST_F(SpotPlaces, OfASegmentThatIsNotThereAreNone) {
  RinumeraSpot(editor, 99);
  RinumeraSpot(editor, 0);
  EXPECT_EQ(Tutti().front(), "0/1/2 2.mp3");
}

TEST_F(SpotPlaces, ThatAreInOrderAreNotWritten) {
  RinumeraSpot(editor, -1);
  const std::string before = Leggi("tmpScheduler.mdb");
  RinumeraSpot(editor, -1);
  EXPECT_TRUE(Leggi("tmpScheduler.mdb") == before);
}

}  // namespace
}  // namespace kvr5
