#include <QTest>
#include <utility>

#include "schedule/screens/BancoPalinsestoSchermo.h"

// Listening to a file of the pane, and to the spot of a slot.

namespace kvr5 {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

const Lines kStop = {"1 Stop", "1 Close", "2 Stop", "2 Close"};

class ScheduleListening : public test::BancoPalinsestoSchermo {
 protected:
  void SetUp() override {
    Progetto(3, 2);
    Segmento(0, "08.30", {"a.mp3", "L'été.mp3", "c.mp3"});
    Segmento(0, "09.30", {"d.mp3", "e.mp3"});
  }
  Lines Told() { return std::exchange(b.Suono.Comandi, {}); }
  static Lines AfterStop(Lines more) {
    Lines all = kStop;
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }
  bool Plays(const char* name) {
    return Trova<Coppia>(name).accessibleName().endsWith(QLatin1String(", playing"));
  }
  /// The slot that shows that it plays; -1 for none, -2 for several.
  int Playing() {
    int found = -1;
    for (int i = 0; i < 8; ++i) {
      if (!Plays(("picPlay_" + std::to_string(i)).c_str())) continue;
      found = found == -1 ? i : -2;
    }
    return found;
  }
  void Space() {
    Spots().setFocus();
    Premi(Qt::Key_Space);
  }
};

TEST_F(ScheduleListening, AFileOfThePaneIsPlayedAndStopped) {
  Apri();
  ClicFile("L'été.mp3");
  Told();
  Clic("cmdPlayFileSx");
  EXPECT_EQ(Told(), AfterStop({"1 Open " + Music() + "L'été.mp3", "1 Play"}));
  EXPECT_TRUE(Plays("cmdPlayFileSx"));
  EXPECT_EQ(Playing(), -1);
  Clic("cmdStopFileSx");
  EXPECT_EQ(Told(), kStop);
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  EXPECT_FALSE(test::PuntatoreOccupato());
}

TEST_F(ScheduleListening, ASpotIsPlayedAndStopped) {
  Apri();
  Told();
  Clic("picPlay", 1);
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "L'été.mp3", "2 Play"}));
  EXPECT_EQ(Playing(), 1);
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  Clic("picPlay", 2);
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "c.mp3", "2 Play"}));
  EXPECT_EQ(Playing(), 2);
  Clic("picStop", 0);
  EXPECT_EQ(Told(), kStop) << "the stop of any slot";
  EXPECT_EQ(Playing(), -1);
}

TEST_F(ScheduleListening, EachStopsTheOther) {
  Apri();
  ClicFile("a.mp3");
  Clic("cmdPlayFileSx");
  Clic("picPlay", 0);
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  EXPECT_EQ(Playing(), 0);
  Clic("cmdPlayFileSx");
  EXPECT_TRUE(Plays("cmdPlayFileSx"));
  EXPECT_EQ(Playing(), -1);
  Clic("picPlay", 0);
  Clic("cmdStopFileSx");
  EXPECT_EQ(Playing(), -1);
}

TEST_F(ScheduleListening, AgainOnWhatPlaysStartsFromItsBeginning) {
  Apri();
  Clic("picPlay", 0);
  Told();
  Clic("picPlay", 0);
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "a.mp3", "2 Play"}));
}

TEST_F(ScheduleListening, SpacePlaysAndStopsTheCurrentSpot) {
  Apri();
  ClicSpot(1);
  Told();
  Space();
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "L'été.mp3", "2 Play"}));
  EXPECT_EQ(Playing(), 1);
  EXPECT_EQ(Spots().currentIndex().row(), 1);
  Premi(Qt::Key_Down);
  Told();
  Space();
  EXPECT_EQ(Told(), AfterStop({"2 Open " + Music() + "c.mp3", "2 Play"}));
  Space();
  EXPECT_EQ(Told(), kStop);
  EXPECT_EQ(Playing(), -1);
}

TEST_F(ScheduleListening, EndsWithTheFile) {
  Apri();
  Clic("picPlay", 1);
  b.Suono.Finisce(2, 2);
  EXPECT_EQ(Playing(), 1) << "not at another notification";
  Told();
  b.Suono.Finisce(2);
  EXPECT_EQ(Told(), kStop);
  EXPECT_EQ(Playing(), -1);
  ClicFile("a.mp3");
  Clic("cmdPlayFileSx");
  b.Suono.Finisce(1);
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
}

TEST_F(ScheduleListening, OfAMissingSpotIsToldInABox) {
  Apri();
  std::filesystem::remove(Host("L'été.mp3"));
  Told();
  Clic("picPlay", 1);
  Avviso(Parola("9011018"), Parola("9011017") + "\r\n" + Host("L'été.mp3"));
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_EQ(Playing(), -1);
  EXPECT_FALSE(test::PuntatoreOccupato());
  Space();
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "File missing");
}

TEST_F(ScheduleListening, AFileThatIsRefusedIsShownAsSilent) {
  Apri();
  b.Suono.SuOpen = Error(errors::FileNotFound);
  Clic("picPlay", 0);
  EXPECT_TRUE(Trova<Coppia>("picPlay_0").accessibleName().endsWith(", silent"));
  ClicFile("a.mp3");
  std::filesystem::remove(Host("a.mp3"));
  Told();
  Clic("cmdPlayFileSx");
  EXPECT_THAT(Told(), Contains("1 Open " + Music() + "a.mp3")) << "the pane's is tried anyway";
  EXPECT_TRUE(Trova<Coppia>("cmdPlayFileSx").accessibleName().endsWith(", silent"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ScheduleListening, IsNotShownOnAnotherSegment) {
  Apri();
  Clic("picPlay", 0);
  Told();
  ClicSegmento(1);
  EXPECT_EQ(Playing(), -1);
  EXPECT_THAT(Told(), IsEmpty()) << "it goes on";
  Clic("picPlay", 1);
  EXPECT_EQ(Playing(), 1);
  ClicSegmento(0);
  EXPECT_EQ(Playing(), -1);
  ClicSegmento(1);
  EXPECT_EQ(Playing(), 1) << "and is shown again there";
}

TEST_F(ScheduleListening, EndsWhenASpotMoves) {
  Apri();
  Clic("picPlay", 0);
  Told();
  ClicFreccia(1, true);
  EXPECT_EQ(Told(), kStop);
  EXPECT_EQ(Playing(), -1);
  Clic("picPlay", 0);
  Spots().setFocus();
  Told();
  Premi(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Told(), kStop);
}

TEST_F(ScheduleListening, EndsWhenAnotherFileIsPicked) {
  Apri();
  Clic("picPlay", 0);
  Told();
  ClicFile("c.mp3");
  EXPECT_EQ(Told(), kStop);
  EXPECT_EQ(Playing(), -1);
}

TEST_F(ScheduleListening, GoesOnWhileSegmentsAreEdited) {
  Apri();
  Clic("picPlay", 0);
  Told();
  Clic("picAggiungiSegmento");
  DigitaOrario("12", "00");
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_EQ(Playing(), -1);
  ClicSegmento(0);
  EXPECT_EQ(Playing(), 0);
}

TEST_F(ScheduleListening, TheExternalPlayerOpensTheFileOfThePaneForASlotToo) {
  b.C.Stato.UsaPlayerEsterno = true;
  Apri();
  EXPECT_FALSE(SiVede("cmdStopFileSx"));
  ClicFile("c.mp3");
  Told();
  Clic("cmdPlayFileSx");
  Clic("picPlay", 0);
  EXPECT_THAT(b.Documenti.Aperti, ElementsAre(Music() + "c.mp3", Music() + "c.mp3"))
      << "what is picked on the left, not the spot";
  EXPECT_THAT(b.Documenti.Parametri, ElementsAre(" /PLAY", " /PLAY"));
  EXPECT_EQ(Playing(), -1);
  EXPECT_FALSE(Plays("cmdPlayFileSx"));
  EXPECT_THAT(Told(), IsEmpty());
  ClicFreccia(0, true);
  EXPECT_THAT(Told(), IsEmpty()) << "nor does a move stop anything";
}

TEST_F(ScheduleListening, OfAMissingSpotIsToldWithTheExternalPlayerToo) {
  b.C.Stato.UsaPlayerEsterno = true;
  Apri();
  std::filesystem::remove(Host("a.mp3"));
  Clic("picPlay", 0);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "File missing");
  EXPECT_THAT(b.Documenti.Aperti, IsEmpty());
}

TEST_F(ScheduleListening, NothingPickedIsNothingToPlay) {
  Apri();
  Told();
  Clic("cmdPlayFileSx");
  EXPECT_THAT(Told(), IsEmpty());
  ClicSegmento(1);
  for (int i = 0; i < 2; ++i) Clic("picRimuoviSpot", 0);
  Space();
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

}  // namespace
}  // namespace kvr5
