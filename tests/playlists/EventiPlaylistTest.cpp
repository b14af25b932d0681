#include <sqlite3.h>

#include <algorithm>
#include <set>

#include "playlists/AliasPlaylist.h"
#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the user does while a long routine lets events run.
class AmidARun : public test::BancoSalva {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    for (const char* name : {"a", "b", "c", "d"}) {
      b.ScriviMp3(std::string("music/") + name + ".mp3", name[0]);
    }
  }
  void Load() {
    editor.Carica();
    b.Messaggi.Volte = 0;
  }
  /// Has `what` happen once, at the event of this number.
  void At(int event, std::function<void()> what) {
    b.Messaggi.Accade = [this, event, what = std::move(what), done = false]() mutable {
      if (done || b.Messaggi.Volte != event) return;
      done = true;
      what();
    };
  }
  void AddAll(const Righe& names = {"a.mp3", "b.mp3", "c.mp3"}) {
    AggiungiTuttiFiles(editor, reader, Musica(), names);
  }
  void Import(const std::string& text) {
    b.Cartella.Write("music/l.m3u", text);
    ImportaPlaylist(editor, reader, b.Percorso("music\\l.m3u"));
  }
  bool InOneRun() { return sqlite3_get_autocommit(editor.ConnessionePlaylist().Handle()) == 0; }

  modMp3Infos reader{b.C.Files};
};

TEST_F(AmidARun, EventsRunOnceForEachFileThatIsAdded) {
  b.Cartella.Write("music/text.mp3", "no music");
  Load();
  AddAll({"a.mp3", "text.mp3", "gone.mp3", "b.mp3"});
  EXPECT_EQ(b.Messaggi.Volte, 4) << "refused ones too";
}

TEST_F(AmidARun, EventsRunOnceForEachLineThatIsImported) {
  Load();
  Import("a.mp3\r\nb.mp3\r\na.mp3\r\n");
  EXPECT_EQ(b.Messaggi.Volte, 3);
}

TEST_F(AmidARun, EventsRunOnceForEachRowThatIsShuffled) {
  for (int i = 1; i <= 5; ++i) Brano(1, i, "x.mp3");
  Load();
  Random(editor, CasoDaSeme(1));
  EXPECT_EQ(b.Messaggi.Volte, 5);
}

TEST_F(AmidARun, EventsRunOnceForEachRowThatIsNamed) {
  for (int i = 1; i <= 4; ++i) Brano(1, i, "x.mp3");
  Brano(2, 1, "y.mp3");
  Load();
  editor.rsList().Close();
  ASSERT_FALSE(editor.rsList().Open(editor.ConnessionePlaylist(),
                                    "SELECT * FROM [List] ORDER BY [NPlaylist] ASC,[Pos] ASC"));
  AssegnaAlias(editor);
  EXPECT_EQ(b.Messaggi.Volte, 5) << "those that have their name already too";
}

TEST_F(AmidARun, EventsRunOnceForEachLineThatIsSaved) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{4, 5}) {
    Progetto(4, mode);
    for (int i = 1; i <= 6; ++i) Brano(1, i, "x.mp3");
    Load();
    b.Finestre.SuBox = [&](const test::BoxVisto&) { b.Messaggi.Volte = 0; };
    b.Finestre.Rispondi(Risposta::No);
    SalvaPlaylist(editor, progress);
    b.Finestre.Prossimo();
    EXPECT_EQ(b.Messaggi.Volte, 6 + 1) << "the rows, and the copy of the database";
    editor.Chiudi();
  }
}

TEST_F(AmidARun, AnotherPlaylistThatIsChosenKeepsItsOrder) {
  for (int i = 1; i <= 5; ++i) Brano(1, i, "x" + std::to_string(i));
  for (int i = 1; i <= 5; ++i) Brano(2, i, "y" + std::to_string(i));
  Load();
  At(2, [&] { editor.ScegliVoce(1); });
  std::vector<double> draws{0.9, 0.7, 0.5, 0.3, 0.1};  // 5 4 3 2 1
  Random(editor, [&] {
    const double next = draws.front();
    draws.erase(draws.begin());
    return next;
  });
  EXPECT_THAT(Griglia(), ElementsAre("1 y1", "2 y2", "3 y3", "4 y4", "5 y5"));
  EXPECT_EQ(editor.PlaylistCorrente(), 2);
  editor.ScegliVoce(0);
  EXPECT_THAT(Griglia(), ElementsAre("1 x5", "2 x4", "3 x3", "4 x2", "5 x1")) << "wholly shuffled";
}

TEST_F(AmidARun, TheFilesGoToThePlaylistThatIsChosenMeanwhile) {
  Brano(2, 1, "y.mp3");
  Load();
  At(2, [&] { editor.ScegliVoce(1); });
  AddAll({"a.mp3", "b.mp3", "c.mp3", "d.mp3"});
  EXPECT_THAT(Tutti(),
              ElementsAre("1-1 a.mp3", "1-2 b.mp3", "2-1 y.mp3", "2-2 c.mp3", "2-3 d.mp3"));
  EXPECT_THAT(Griglia(), ElementsAre("1 y.mp3", "2 c.mp3", "3 d.mp3"));
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 3");
}

TEST_F(AmidARun, AFileThatIsAddedTakesTheNextPlace) {
  Load();
  At(2, [&] { EXPECT_EQ(AggiungiFile(editor, Musica(), "d.mp3"), EsitoAggiunta::Aggiunto); });
  AddAll();
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 b.mp3", "3 d.mp3", "4 c.mp3"));
}

TEST_F(AmidARun, ATrackThatIsRemovedLeavesNoGap) {
  Load();
  At(2, [&] {
    Va(1);
    RimuoviFile(editor);
  });
  AddAll({"a.mp3", "b.mp3", "c.mp3", "d.mp3"});
  EXPECT_THAT(Griglia(), ElementsAre("1 b.mp3", "2 c.mp3", "3 d.mp3"));
}

TEST_F(AmidARun, ThePlaylistMayBeEmptied) {
  Load();
  b.Finestre.Rispondi(Risposta::Si);
  At(2, [&] { RimuoviTuttiFile(editor); });
  AddAll();
  b.Finestre.Prossimo();
  EXPECT_THAT(Griglia(), ElementsAre("1 c.mp3"));
}

TEST_F(AmidARun, AnotherRunJoinsIt) {
  Load();
  At(1, [&] {
    EXPECT_TRUE(InOneRun());
    AddAll({"c.mp3", "d.mp3"});
    EXPECT_TRUE(InOneRun()) << "the outer one goes on";
  });
  AddAll({"a.mp3", "b.mp3"});
  EXPECT_FALSE(InOneRun());
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 c.mp3", "3 d.mp3", "4 b.mp3"));
  EXPECT_EQ(Tutti(), (Righe{"1-1 a.mp3", "1-2 c.mp3", "1-3 d.mp3", "1-4 b.mp3"}));
}

TEST_F(AmidARun, AnImportAndAFolderJoinEachOther) {
  Load();
  At(1, [&] { Import("d.mp3\r\n"); });
  AddAll({"a.mp3", "b.mp3"});
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 d.mp3", "3 b.mp3"));
  At(b.Messaggi.Volte + 1, [&] { AddAll({"c.mp3"}); });
  Import("a.mp3\r\nb.mp3\r\n");
  EXPECT_THAT(Griglia(),
              ElementsAre("1 a.mp3", "2 d.mp3", "3 b.mp3", "4 a.mp3", "5 c.mp3", "6 b.mp3"));
}

TEST_F(AmidARun, AShuffleWithinAShuffleLosesNoTrack) {
  for (int i = 1; i <= 8; ++i) Brano(1, i, "x" + std::to_string(i));
  Load();
  At(3, [&] { Random(editor, CasoDaSeme(2)); });
  Random(editor, CasoDaSeme(3));
  RiordinaPosizione(editor);
  editor.AggiornaGrigliaPlaylist();
  std::set<std::string> names;
  const Righe rows = Griglia();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_TRUE(rows[i].starts_with(std::to_string(i + 1) + " x")) << rows[i];
    names.insert(rows[i].substr(2));
  }
  EXPECT_EQ(names.size(), 8U);
}

TEST_F(AmidARun, TracksMayGoWhileTheyAreShuffled) {
  for (int i = 1; i <= 6; ++i) Brano(1, i, "x.mp3");
  Load();
  b.Finestre.Rispondi(Risposta::Si);
  At(2, [&] { RimuoviTuttiFile(editor); });
  Random(editor, CasoDaSeme(1));
  b.Finestre.Prossimo();
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_THAT(Tutti(), IsEmpty());
}

TEST_F(AmidARun, AFolderThatVanishesEndsInSilence) {
  Load();
  At(2, [&] { std::filesystem::remove_all(b.Cartella.Host() / "music"); });
  AddAll({"a.mp3", "b.mp3", "c.mp3", "d.mp3"});
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 b.mp3"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(AmidARun, ASaveWaitsForItsEndAndTakesAllOfIt) {
  Load();
  b.Finestre.Rispondi(Risposta::No);
  editor.Turni.Comando([&] {
    At(1, [&] {
      editor.Turni.Ultimo([&] {
        SalvaPlaylist(editor, progress);
        editor.Chiudi();
      });
      editor.Turni.Comando([&] { editor.ScegliVoce(3); });
    });
    AddAll();
    EXPECT_EQ(editor.PlaylistCorrente(), 1) << "nothing is done after the save was asked for";
  });
  b.Finestre.Prossimo();
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\nP01-003\r\n");
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 a.mp3", "1-2 b.mp3", "1-3 c.mp3"));
}

TEST_F(AmidARun, AnEditorThatIsClosedTakesNoMoreAndLeavesTheDatabaseAlone) {
  for (int i = 1; i <= 3; ++i) Brano(1, i, "x.mp3");
  const std::string before = Read("playlist.mdb");
  Load();
  At(1, [&] { editor.Chiudi(); });
  AddAll();
  Load();
  At(1, [&] { editor.Chiudi(); });
  Import("a.mp3\r\nb.mp3\r\n");
  Load();
  At(1, [&] { editor.Chiudi(); });
  Random(editor, CasoDaSeme(1));
  EXPECT_TRUE(Read("playlist.mdb") == before);
  EXPECT_FALSE(Exists("tmpPlaylist.mdb"));
}

}  // namespace
}  // namespace kvr5
