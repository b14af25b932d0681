#include <sqlite3.h>

#include <algorithm>

#include "playlists/AggiungiScelti.h"
#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// Runs whose changes the device doesn't take at their end: all of them come undone.
class RunThatFailsAtItsEnd : public test::BancoSalva {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    b.ScriviMp3("music/a.mp3");
    for (const char* name : {"x", "y", "z"}) Brano(1, ++rows_, name);
    editor.Carica();
    editor.SuGriglia = [&] {
      shown.clear();
      for (const RigaPlaylist& each : RigheDellaGriglia(editor)) {
        shown.push_back(std::to_string(each.Brano.Pos) + " " + each.Brano.FileName);
      }
    };
  }
  /// Every commit fails from now on.
  void Fail() {
    sqlite3_commit_hook(
        editor.ConnessionePlaylist().Handle(), [](void*) { return 1; }, nullptr);
  }
  void Repair() { sqlite3_commit_hook(editor.ConnessionePlaylist().Handle(), nullptr, nullptr); }
  std::vector<std::int64_t> Ids() {
    std::vector<std::int64_t> ids;
    for (const RigaPlaylist& each : RigheDellaGriglia(editor)) ids.push_back(each.ID);
    return ids;
  }
  /// The file, rsList in its own order, its count, and what the grid was last told are one.
  void ExpectTheTruth() {
    Repair();
    EXPECT_THAT(Tutti(), ElementsAre("1-1 x", "1-2 y", "1-3 z"));
    EXPECT_EQ(editor.Quanti(), 3);
    EXPECT_THAT(Griglia(), ElementsAre("1 x", "2 y", "3 z"));
    EXPECT_THAT(shown, ElementsAre("1 x", "2 y", "3 z"));
  }

  Righe shown{"1 x", "2 y", "3 z"};
  modMp3Infos reader{b.C.Files};

 private:
  int rows_ = 0;
};

TEST_F(RunThatFailsAtItsEnd, OfAFolderShowsTheTruth) {
  Fail();
  AggiungiTuttiFiles(editor, reader, Musica(), {"a.mp3", "a.mp3"});
  ExpectTheTruth();
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 3");
}

TEST_F(RunThatFailsAtItsEnd, LeavesTheNextTrackItsPlace) {
  Fail();
  AggiungiTuttiFiles(editor, reader, Musica(), {"a.mp3", "a.mp3"});
  Repair();
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::Aggiunto);
  EXPECT_THAT(Griglia(), ElementsAre("1 x", "2 y", "3 z", "4 a.mp3"));
}

TEST_F(RunThatFailsAtItsEnd, OfAnImportShowsTheTruth) {
  b.Cartella.Write("music/l.m3u", "a.mp3\r\na.mp3\r\n");
  Fail();
  ImportaPlaylist(editor, reader, b.Percorso("music\\l.m3u"));
  ExpectTheTruth();
}

TEST_F(RunThatFailsAtItsEnd, OfAShuffleShowsTheTruth) {
  Fail();
  std::vector<double> draws{0.9, 0.5, 0.1};
  Random(editor, [&] {
    const double next = draws.front();
    draws.erase(draws.begin());
    return next;
  });
  ExpectTheTruth();
}

TEST_F(RunThatFailsAtItsEnd, OfARemovalOfSeveralShowsTheTruth) {
  Fail();
  RimuoviRighe(editor, Ids());
  ExpectTheTruth();
}

TEST_F(RunThatFailsAtItsEnd, OfAMoveOfSeveralShowsTheTruth) {
  const auto ids = Ids();
  Fail();
  SpostaRighe(editor, {ids.at(1), ids.at(2)}, true);
  ExpectTheTruth();
}

TEST_F(RunThatFailsAtItsEnd, OfPickedFilesShowsTheTruthAndCountsNone) {
  Fail();
  const EsitoScelti outcome =
      AggiungiScelti(editor, reader, {b.Percorso("music\\a.mp3"), b.Percorso("music\\a.mp3")});
  EXPECT_EQ(outcome.Aggiunti, 0U);
  ExpectTheTruth();
}

TEST_F(RunThatFailsAtItsEnd, OfSingleChangesShowsTheTruth) {
  Ignora(b.Disco.CreateFolder(b.Percorso("program/Logs")));
  Fail();
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::NonScritto);
  ExpectTheTruth();
  Fail();
  Va(2);
  RimuoviFile(editor);
  ExpectTheTruth();
  Fail();
  Va(2);
  SpostaSu(editor);
  ExpectTheTruth();
  Fail();
  Va(2);
  SpostaGiu(editor);
  ExpectTheTruth();
}

TEST_F(RunThatFailsAtItsEnd, OfNamesForTheCardSavesTheTracksWithoutThem) {
  b.Finestre.Rispondi(Risposta::No);
  Fail();
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 x", "1-2 y", "1-3 z"));
  EXPECT_THAT(Column("Alias"), ElementsAre("", "", ""));
}

TEST_F(RunThatFailsAtItsEnd, OfADatabaseWithoutRoomKeepsEveryTrackThatWasThere) {
  editor.Chiudi();
  Riempi(300);
  editor.Carica();
  sqlite3_exec(editor.ConnessionePlaylist().Handle(), "PRAGMA max_page_count=1", nullptr, nullptr,
               nullptr);
  AggiungiTuttiFiles(editor, reader, Musica(), Righe(190, "a.mp3"));
  const Righe grid = Griglia();
  EXPECT_LT(grid.size(), 303U + 190U) << "not all found room";
  EXPECT_EQ(shown.size(), grid.size());
  int place = 304;  // behind the 303 that were there
  for (const auto& row : grid) {
    if (!row.ends_with(" a.mp3")) continue;
    EXPECT_EQ(row, std::to_string(place++) + " a.mp3") << "no place twice, none left out";
  }
  b.Finestre.Rispondi(Risposta::No);
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  const Righe after = Tutti("playlist.mdb");
  EXPECT_EQ(after.size(), grid.size());
  EXPECT_EQ(std::ranges::count_if(after, [](const auto& row) { return row.ends_with(" x.mp3"); }),
            300);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "nothing is told of a failure";
}

}  // namespace
}  // namespace kvr5
