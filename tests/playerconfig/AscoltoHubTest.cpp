#include "playerconfig/AscoltoHub.h"
#include "support/BancoAscolto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

/// The hub's listening: what its players, buttons and the pointer are told, in one list. Player 1
/// is mPlayer, player 2 mciPreview.
class HubListening : public test::BancoAscolto {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 1);
    listening.SuPlayMp3 = [this](bool on) { Say(on ? "list on" : "list off"); };
    listening.SuPlayAssegnato = [this](bool on) { Say(on ? "assigned on" : "assigned off"); };
    b.Messaggi.Accade = [this] {
      Say(b.Messaggi.Ora == Puntatore::Attesa ? "events, busy" : "events");
    };
  }
  void Assign(int code, const std::string& name, const std::string& folder) {
    b.AggiungiRiga("inputcfg.mdb", 1, code, name, folder, std::to_string(code) + ".mp3");
  }
  void PlayAssigned(std::int16_t code) {
    table.Apri();
    listening.PlayAssegnato(table, code);
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  }
  std::string Hall(const char* name) const {
    return b.Percorso("program/Projects/Hall") + "\\" + name;
  }

  AscoltoHub listening{b.C, documents, *first, *second};
  TabellaIngressi table{b.C};
};

const Lines kStop = {"2 Stop", "2 Close", "assigned off", "events, busy",
                     "1 Stop", "1 Close", "list off",     "events, busy"};

/// A whole stop, and what follows.
Lines AfterStop(Lines more) {
  Lines all = kStop;
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

TEST_F(HubListening, AStopSilencesTheAssignedFileThenTheListsUnderTheBusyPointer) {
  listening.Stop();
  EXPECT_EQ(Said(), kStop);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  listening.Stop();
  EXPECT_EQ(Said(), kStop) << "harmless when nothing plays";
}

TEST_F(HubListening, WithTheExternalPlayerAStopDoesNothing) {
  b.C.Stato.UsaPlayerEsterno = true;
  listening.Stop();
  EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(HubListening, AFileThatWasPlayedToItsEndStopsBothAndNothingElseDoes) {
  listening.Notifica(Anteprima::kFinita);
  EXPECT_EQ(Said(), AfterStop({"events"}));
  for (const int code : {0, 2, 4, 8}) listening.Notifica(code);
  EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(HubListening, TheListsFileIsPlayedAfterAStop) {
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(Said(), AfterStop({"list on", "1 Open " + Music("a.mp3"), "1 Play", "events"}));
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(HubListening, ASecondPlayStopsBothAndBeginsAgain) {
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  const Lines once = Said();
  listening.PlayMp3(b.Percorso("music") + "\\", "a.mp3");
  EXPECT_EQ(Said(), once);
}

TEST_F(HubListening, TheExternalPlayerGetsTheFileAndIsForgotten) {
  b.C.Stato.UsaPlayerEsterno = true;
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  EXPECT_THAT(documents.Aperti, ElementsAre(Music("a.mp3")));
  EXPECT_THAT(documents.Parametri, ElementsAre(" /PLAY"));
  EXPECT_THAT(Said(), ElementsAre("events, busy")) << "no player, no button";
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(HubListening, AListsFileThatIsGoneStaysSilentAndThePointerIsPlainAgain) {
  for (const bool outside : {false, true}) {
    b.C.Stato.UsaPlayerEsterno = outside;
    listening.PlayMp3(b.Percorso("music"), "gone.mp3");
    listening.PlayMp3(b.Percorso("nowhere"), "a.mp3");
    EXPECT_THAT(Said(), ElementsAre("events, busy", "events, busy")) << "what plays goes on";
    EXPECT_THAT(documents.Aperti, IsEmpty());
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  }
}

TEST_F(HubListening, AFileThatIsRefusedLeavesTheButtonOnUntilTheNextStop) {
  sound.SuOpen = Error(errors::DeviceUnavailable);
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(Said(), AfterStop({"list on", "1 Open " + Music("a.mp3"), "1 Play", "events"}));
}

TEST_F(HubListening, TheAssignedFileIsPlayedFromWhereItCame) {
  Assign(5, "a.mp3", Music());
  PlayAssigned(5);
  EXPECT_EQ(Said(), AfterStop({"assigned on", "2 Open " + Music("a.mp3"), "2 Play", "events"}));
}

TEST_F(HubListening, TheCopyInTheProjectComesFirstInTheExternalPlayerOnly) {
  Assign(5, "a.mp3", Music());
  b.ScriviMp3("program/Projects/Hall/a.mp3");
  b.ScriviMp3("program/Projects/Hall/5.mp3");
  PlayAssigned(5);
  EXPECT_EQ(Said(), AfterStop({"assigned on", "2 Open " + Music("a.mp3"), "2 Play", "events"}));
  b.C.Stato.UsaPlayerEsterno = true;
  PlayAssigned(5);
  EXPECT_THAT(documents.Aperti, ElementsAre(Hall("a.mp3")));
  EXPECT_THAT(documents.Parametri, ElementsAre(" /PLAY"));
  EXPECT_THAT(Said(), ElementsAre("events, busy"));
}

TEST_F(HubListening, TheExternalPlayerGetsTheFirstPlaceThatHasTheFile) {
  b.C.Stato.UsaPlayerEsterno = true;
  Assign(1, "a.mp3", Music());
  Assign(2, "gone.mp3", Music());
  b.ScriviMp3("program/Projects/Hall/1.mp3");
  b.ScriviMp3("program/Projects/Hall/2.mp3");
  PlayAssigned(1);
  PlayAssigned(2);
  EXPECT_THAT(documents.Aperti, ElementsAre(Music("a.mp3"), Hall("2.mp3")));
}

TEST_F(HubListening, AFileThatOnlyTheProjectHasStillPlaysOutsideAndIsSilentInside) {
  Assign(2, "gone.mp3", Music());
  for (const char* left : {"gone.mp3", "2.mp3"}) {
    b.C.Stato.UsaPlayerEsterno = false;
    b.ScriviMp3(std::string("program/Projects/Hall/") + left);
    PlayAssigned(2);
    EXPECT_EQ(Said(), AfterStop({"assigned on", "2 Open " + Music("gone.mp3"), "2 Play", "events"}))
        << "the place that it came from, where it isn't";
    b.C.Stato.UsaPlayerEsterno = true;
    PlayAssigned(2);
    EXPECT_EQ(documents.Aperti.back(), Hall(left));
    Said();
    std::filesystem::remove(b.Cartella.Host() / "program/Projects/Hall" / left);
  }
}

TEST_F(HubListening, AFileThatIsNowhereLeavesEverythingAsItIs) {
  Assign(2, "gone.mp3", Music());
  b.Messaggi.Ora = Puntatore::Normale;
  for (const bool outside : {false, true}) {
    b.C.Stato.UsaPlayerEsterno = outside;
    PlayAssigned(2);
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_THAT(documents.Aperti, IsEmpty());
  }
}

TEST_F(HubListening, WithoutARowOrATableNothingPlays) {
  Assign(2, "a.mp3", Music());
  PlayAssigned(3);
  PlayAssigned(0);
  table.Chiudi();
  listening.PlayAssegnato(table, 2);
  EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(HubListening, ARowWithoutANameIsNoFile) {
  Assign(2, "", Music());
  PlayAssigned(2);
  EXPECT_THAT(Said(), IsEmpty()) << "not the folder either";
}

TEST_F(HubListening, TheRowIsFoundWhereverTheCursorWasLeft) {
  Assign(1, "gone.mp3", Music());
  Assign(5, "a.mp3", Music());
  table.Apri();
  ASSERT_FALSE(table.Cursore().MoveLast());
  ASSERT_FALSE(table.Cursore().MoveNext());
  listening.PlayAssegnato(table, 5);
  EXPECT_THAT(Said(), testing::Contains("2 Open " + Music("a.mp3")));
}

TEST_F(HubListening, ACommandThatComesWhileTheFirstOneStopsIsTheOneThatCounts) {
  Assign(5, "a.mp3", Music());
  table.Apri();
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.PlayAssegnato(table, 5);
  };
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  const Lines all = Said();
  EXPECT_EQ(all.back(), "2 Play") << "and isn't stopped by the first one's rest";
  EXPECT_THAT(all, testing::Not(testing::Contains("1 Play")));
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(HubListening, AStopThatComesWhileAPlayStopsIsTheOneThatCounts) {
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.Stop();
  };
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  EXPECT_THAT(Said(), testing::Not(testing::Contains("1 Play")));
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(HubListening, APlayWithinTheStopOfAnEndGoesOn) {
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.PlayMp3(b.Percorso("music"), "a.mp3");
  };
  listening.Notifica(Anteprima::kFinita);
  EXPECT_EQ(Said().back(), "1 Play");
}

TEST_F(HubListening, AFileThatIsRefusedKeepsItsPictureAndIsToldToBeSilent) {
  int silent = 0;
  listening.SuMutoMp3 = [&] { ++silent; };
  listening.SuMutoAssegnato = [&] { silent += 10; };
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(silent, 0);
  sound.SuOpen = Error(errors::TypeMismatch);
  Said();
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(silent, 1);
  EXPECT_EQ(Said(), AfterStop({"list on", "1 Open " + Music("a.mp3"), "1 Play", "events"}));
  Assign(5, "a.mp3", Music());
  PlayAssigned(5);
  EXPECT_EQ(silent, 11);
}

TEST_F(HubListening, AnEndThatIsToldDuringAStopDoesntKeepTheNextFileFromPlaying) {
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.Notifica(Anteprima::kFinita);
  };
  listening.PlayMp3(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(Said().back(), "1 Play");
}

}  // namespace
}  // namespace kvr5
