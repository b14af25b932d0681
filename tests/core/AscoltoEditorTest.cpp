#include "core/AscoltoEditor.h"
#include "platform/db/Connection.h"
#include "projects/CartellaProgetto.h"
#include "support/BancoAscolto.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

/// An editor of two slots: what its players and buttons are told, in one list. Player 1 is mci1,
/// player 2 mciPreview.
class EditorListening : public test::BancoAscolto {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 5);
    b.ScriviMp3("music/spot.mp3");
    b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", b.Percorso("music") + "\\", "");
    b.AggiungiRiga("playlist.mdb", 1, 2, "gone.mp3", b.Percorso("music") + "\\", "");
    b.AggiungiRiga("playlist.mdb", 1, 3, "spot.mp3", b.Percorso("music"), "");
    ASSERT_FALSE(connection.Open(FileDelProgetto(b.C, "playlist.mdb")));
    ASSERT_FALSE(rows.Open(connection, "SELECT * FROM [List] ORDER BY [Pos] ASC"));
    listening.SuPlayFileSx = [this](bool on) { Say(on ? "pane on" : "pane off"); };
    listening.SuPlayRiga = [this](std::size_t index, bool on) {
      Say(std::to_string(index) + (on ? " on" : " off"));
    };
    b.Messaggi.Accade = [this] {
      Say("events");
      busy = b.Messaggi.Ora == Puntatore::Attesa;
    };
  }
  bool busy = false;  ///< the pointer, while events ran the last time
  /// The pointer was busy while the command worked, and is plain behind it.
  void PointerIsPlain() const {
    EXPECT_TRUE(busy);
    EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  }
  /// The box that tells of a missing file.
  void ExpectMissing(const std::string& path) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "File missing");
    EXPECT_EQ(box.Testo,
              "Nothing is played: this file isn't where it was. Look for it, or take it off the "
              "list:\r\n" +
                  path);
    EXPECT_TRUE(box.SiNo);
    EXPECT_TRUE(box.SoloOk);
    EXPECT_EQ(box.TestoOk, "OK");
  }

  AscoltoEditor listening{b.C, documents, *first, *second, 2};
  Connection connection{b.C.Files};
  Recordset rows;
};

const Lines kStop = {"pane off", "1 Stop", "1 Close", "events",
                     "0 off",    "1 off",  "2 Stop",  "2 Close"};

/// A whole stop, and what follows.
Lines AfterStop(Lines more) {
  Lines all = kStop;
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

TEST_F(EditorListening, AStopSilencesThePaneThenTheRowsAndTurnsOffEveryButton) {
  listening.Stop();
  EXPECT_EQ(Said(), kStop);
}

TEST_F(EditorListening, AStopIsTheSameWithTheExternalPlayer) {
  b.C.Stato.UsaPlayerEsterno = true;
  listening.Stop();
  EXPECT_EQ(Said(), kStop);
}

TEST_F(EditorListening, AFileThatWasPlayedToItsEndStopsBothAndNothingElseDoes) {
  listening.Notifica(Anteprima::kFinita);
  EXPECT_EQ(Said(), kStop);
  for (const int code : {0, 2, 4, 8}) listening.Notifica(code);
  EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(EditorListening, ThePanesFileIsPlayedAfterAStop) {
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(Said(), AfterStop({"pane on", "1 Open " + Music("a.mp3"), "1 Play", "events"}));
  PointerIsPlain();
}

TEST_F(EditorListening, ThePanesFileIsGivenToThePlayerEvenWhereItIsGone) {
  listening.PlayFileSx(b.Percorso("music") + "\\", "gone.mp3");
  EXPECT_EQ(Said(), AfterStop({"pane on", "1 Open " + Music("gone.mp3"), "1 Play", "events"}));
  b.C.Stato.UsaPlayerEsterno = true;
  listening.PlayFileSx(b.Percorso("music"), "gone.mp3");
  EXPECT_THAT(documents.Aperti, ElementsAre(Music("gone.mp3")));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(EditorListening, TheExternalPlayerGetsThePanesFileAndNoStop) {
  b.C.Stato.UsaPlayerEsterno = true;
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  EXPECT_THAT(documents.Aperti, ElementsAre(Music("a.mp3")));
  EXPECT_THAT(documents.Parametri, ElementsAre(" /PLAY"));
  EXPECT_THAT(Said(), ElementsAre("events"));
  PointerIsPlain();
}

TEST_F(EditorListening, ARowOfAPlaylistIsPlayedFromWhereItsFileIs) {
  listening.PlayRiga(rows);
  EXPECT_EQ(Said(), AfterStop({"0 on", "2 Open " + Music("a.mp3"), "2 Play", "events"}));
  PointerIsPlain();
}

TEST_F(EditorListening, ARowInTheExternalPlayerIsThatRow) {
  b.C.Stato.UsaPlayerEsterno = true;
  listening.PlayRiga(rows);
  EXPECT_THAT(documents.Aperti, ElementsAre(Music("a.mp3")));
  EXPECT_THAT(documents.Parametri, ElementsAre(" /PLAY"));
}

TEST_F(EditorListening, ARowWhoseFileIsMissingIsToldAndWhatPlaysGoesOn) {
  ASSERT_FALSE(rows.MoveNext());
  for (const bool outside : {false, true}) {
    b.C.Stato.UsaPlayerEsterno = outside;
    listening.PlayRiga(rows);
    ExpectMissing((b.Cartella.Host() / "music/gone.mp3").string());
    EXPECT_THAT(Said(), ElementsAre("events"));
    EXPECT_THAT(documents.Aperti, IsEmpty());
    PointerIsPlain();
  }
}

TEST_F(EditorListening, ASpotIsFoundByItsSlotWhereverTheRowsStand) {
  for (const bool atItsEnd : {false, true}) {
    if (atItsEnd) {
      ASSERT_FALSE(rows.MoveLast());
      ASSERT_FALSE(rows.MoveNext());
    }
    listening.PlaySpot(0, rows, "C:\\", "other.mp3");
    EXPECT_EQ(Said(), AfterStop({"0 on", "2 Open " + Music("a.mp3"), "2 Play", "events"}));
    EXPECT_EQ(rows.Number("Pos"), 1);
  }
  PointerIsPlain();
}

TEST_F(EditorListening, ASpotsFolderNeedsNoBackslash) {
  listening.PlaySpot(2, rows, "C:\\", "other.mp3");
  EXPECT_EQ(Said(), AfterStop({"2 on", "2 Open " + Music("spot.mp3"), "2 Play", "events"}));
}

TEST_F(EditorListening, ASpotInTheExternalPlayerIsThePanesFile) {
  b.C.Stato.UsaPlayerEsterno = true;
  listening.PlaySpot(0, rows, b.Percorso("music"), "spot.mp3");
  EXPECT_THAT(documents.Aperti, ElementsAre(Music("spot.mp3"))) << "not a.mp3";
  EXPECT_THAT(documents.Parametri, ElementsAre(" /PLAY"));
}

TEST_F(EditorListening, ASpotThatIsMissingIsToldWhateverThePaneHas) {
  for (const bool outside : {false, true}) {
    b.C.Stato.UsaPlayerEsterno = outside;
    listening.PlaySpot(1, rows, b.Percorso("music"), "spot.mp3");
    ExpectMissing((b.Cartella.Host() / "music/gone.mp3").string());
    EXPECT_THAT(documents.Aperti, IsEmpty());
    EXPECT_THAT(Said(), ElementsAre("events"));
  }
}

TEST_F(EditorListening, ASlotWithoutASpotHasNoFileToPlay) {
  listening.PlaySpot(6, rows, b.Percorso("music"), "spot.mp3");
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "File missing");
  EXPECT_THAT(Said(), ElementsAre("events"));
}

TEST_F(EditorListening, AFileThatIsRefusedLeavesTheButtonOnUntilTheNextStop) {
  sound.SuOpen = Error(errors::TypeMismatch);
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(Said(), AfterStop({"pane on", "1 Open " + Music("a.mp3"), "1 Play", "events"}));
}

TEST_F(EditorListening, AFileThatIsRefusedIsToldToBeSilent) {
  std::string silent;
  listening.SuMutoFileSx = [&] { silent += "pane "; };
  listening.SuMutoRiga = [&](std::size_t index) { silent += std::to_string(index); };
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  listening.PlayRiga(rows);
  EXPECT_EQ(silent, "");
  sound.SuOpen = Error(errors::TypeMismatch);
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  listening.PlayRiga(rows);
  listening.PlaySpot(2, rows, "C:\\", "other.mp3");
  EXPECT_EQ(silent, "pane 02");
}

TEST_F(EditorListening, ARowWithoutANameOrNoRowAtAllHasNoFileToPlay) {
  b.AggiungiRiga("playlist.mdb", 1, 4, "", b.Percorso("music") + "\\", "");
  ASSERT_FALSE(rows.Requery());
  ASSERT_FALSE(rows.MoveLast());
  for (int i = 0; i < 2; ++i) {
    listening.PlayRiga(rows);
    EXPECT_EQ(b.Finestre.Prossimo().Titolo, "File missing");
    EXPECT_THAT(Said(), ElementsAre("events"));
    Ignora(rows.MoveNext());  // behind the last one
  }
}

TEST_F(EditorListening, AStopByTheUserWhileAPlayStopsLeavesSilence) {
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.Stop();
  };
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  EXPECT_THAT(Said(), testing::Not(testing::Contains("1 Play")));
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(EditorListening, APlayWhileTheLastOnesEndStopsGoesOn) {
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.PlayRiga(rows);
  };
  listening.Notifica(Anteprima::kFinita);
  EXPECT_EQ(Said().back(), "2 Play");
}

TEST_F(EditorListening, ACommandThatComesWhileTheFirstOneStopsIsTheOneThatCounts) {
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.PlayRiga(rows);
  };
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  const Lines all = Said();
  EXPECT_THAT(all, testing::Contains("2 Play"));
  EXPECT_THAT(all, testing::Not(testing::Contains("1 Play")));
  EXPECT_EQ(all.back(), "2 Play") << "and isn't stopped by the first one's rest";
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(EditorListening, AnEndThatIsToldDuringAStopDoesntKeepTheNextFileFromPlaying) {
  bool once = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(once, false)) listening.Notifica(Anteprima::kFinita);
  };
  listening.PlayFileSx(b.Percorso("music"), "a.mp3");
  EXPECT_EQ(Said().back(), "1 Play");
}

}  // namespace
}  // namespace kvr5
