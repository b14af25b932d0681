#include <algorithm>
#include <random>

#include "core/PannelloFile.h"
#include "playlists/BancoPlaylist.h"
#include "playlists/BraniPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Tracks : public test::BancoPlaylist {
 protected:
  void SetUp() override { Progetto(4, 5); }
  /// Five tracks "a.mp3" to "e.mp3" in list 1.
  void Five() {
    for (int i = 0; i < 5; ++i)
      Brano(1, i + 1, std::string(1, static_cast<char>('a' + i)) + ".mp3");
    editor.Carica();
  }
  std::string Log() const { return b.Cartella.Read("program/Logs/20061020.log"); }

  modMp3Infos reader{b.C.Files};
};

TEST_F(Tracks, AFileIsAddedBehindTheOthersAndIsCurrent) {
  Brano(1, 1, "old.mp3");
  Brano(2, 1, "other.mp3");
  editor.Carica();
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::Aggiunto);
  EXPECT_THAT(Griglia(), ElementsAre("1 old.mp3", "2 a.mp3"));
  EXPECT_FALSE(editor.rsList().MoveLast());
  EXPECT_EQ(editor.rsList().Text("FilePath"), Musica() + "\\");
  EXPECT_EQ(editor.rsList().Text("Alias"), "");
  EXPECT_THAT(Tutti(), ElementsAre("1-1 old.mp3", "1-2 a.mp3", "2-1 other.mp3"));
  EXPECT_THAT(Tutti("playlist.mdb"), ElementsAre("1-1 old.mp3", "2-1 other.mp3"));
}

TEST_F(Tracks, AddAllHasTheOrderOfThePane) {
  for (const char* name : {"10.mp3", "2.mp3", "B.mp3", "a.mp3"}) {
    b.ScriviMp3(std::string("music/") + name);
  }
  editor.Carica();
  AggiungiTuttiFiles(editor, reader, Musica(), NomiDelPannello(b.C.Files, Musica()));
  EXPECT_THAT(Griglia(), ElementsAre("1 2.mp3", "2 10.mp3", "3 a.mp3", "4 B.mp3"));
}

TEST_F(Tracks, OneFileMayStandTwice) {
  editor.Carica();
  AggiungiFile(editor, Musica(), "a.mp3");
  AggiungiFile(editor, Musica(), "a.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 a.mp3"));
}

TEST_F(Tracks, ATrackOfTheNextLoadHasThePlaceBehindThoseThatWereSaved) {
  editor.Carica();
  AggiungiFile(editor, Musica(), "a.mp3");
  AggiungiFile(editor, Musica(), "a.mp3");
  editor.Chiudi();
  editor.Carica();
  AggiungiFile(editor, Musica(), "b.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("1 b.mp3")) << "the others were cancelled";
}

TEST_F(Tracks, ATrackHasThePlaceBehindThoseThatAreLeft) {
  Five();
  AggiungiFile(editor, Musica(), "f.mp3");
  Va(2);
  RimuoviFile(editor);
  AggiungiFile(editor, Musica(), "g.mp3");
  editor.ScegliVoce(1);
  AggiungiFile(editor, Musica(), "h.mp3");
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviTuttiFile(editor);
  b.Finestre.Prossimo();
  AggiungiFile(editor, Musica(), "i.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("1 i.mp3"));
  editor.ScegliVoce(0);
  AggiungiFile(editor, Musica(), "j.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 c.mp3", "3 d.mp3", "4 e.mp3", "5 f.mp3",
                                     "6 g.mp3", "7 j.mp3"));
}

TEST_F(Tracks, TheCountLagsUntilTheGridIsReloaded) {
  editor.Carica();
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 0");
  AggiungiFile(editor, Musica(), "a.mp3");
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 0");
  editor.AggiornaGrigliaPlaylist();
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 1");
}

TEST_F(Tracks, ThePlaylistTakesFiveHundred) {
  Riempi(499);
  editor.Carica();
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::Aggiunto);
  EXPECT_EQ(editor.rsList().Number("Pos"), 500);
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::Piena);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "This playlist is full; its tracks stay");
  EXPECT_EQ(box.Testo, "Limit: 500 tracks");
  EXPECT_TRUE(box.SiNo);
  EXPECT_EQ(box.TestoOk, "OK");
  EXPECT_EQ(editor.Quanti(), 500);
}

TEST_F(Tracks, WithoutAPlaylistAFileIsRefused) {
  Progetto(3, 9);
  editor.Carica();
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::SenzaPlaylist);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "No playlist yet");
  EXPECT_TRUE(box.SoloOk);
  EXPECT_EQ(editor.Quanti(), 0);
}

TEST_F(Tracks, AFileThatTheDatabaseDoesntTakeIsInTheLog) {
  b.Cartella.Write("program/Projects/Hall/playlist.mdb", "no database");
  Ignora(b.Disco.CreateFolder(b.Percorso("program/Logs")));
  editor.Carica();
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::NonScritto);
  EXPECT_NE(Log().find("frmPlaylistEditor/Routine cmdAggiungiFile: err n\xB0"), std::string::npos);
  EXPECT_NE(Log().find("File: a.mp3"), std::string::npos);
}

TEST_F(Tracks, AWholeFolderIsAddedButForWhatThePlayerRefuses) {
  b.ScriviMp3("music/a.mp3");
  b.Cartella.Write("music/b.mp3", "no music");
  b.ScriviMp3("music/c.mp3");
  editor.Carica();
  int waits = 0;
  editor.SuAttesa = [&](bool on) { waits += on ? 1 : 0; };
  EXPECT_TRUE(AggiungiTuttiFiles(editor, reader, Musica(), {"a.mp3", "b.mp3", "c.mp3", "d.mp3"}));
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 c.mp3"));
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 2");
  EXPECT_EQ(waits, 1);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Tracks, AWholeFolderStopsAtTheLimitWithTheTextsTheOtherWayRound) {
  Riempi(495);
  b.ScriviMp3("music/a.mp3");
  editor.Carica();
  const std::vector<std::string> ten(10, "a.mp3");
  EXPECT_FALSE(AggiungiTuttiFiles(editor, reader, Musica(), ten));
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Limit: 500 tracks");
  EXPECT_EQ(box.Testo, "This playlist is full; its tracks stay");
  EXPECT_EQ(box.Segno, Icona::Informazione);
  EXPECT_FALSE(box.SiNo);
  EXPECT_EQ(editor.Quanti(), 500);
  EXPECT_EQ(editor.rsList().Number("Pos"), 500) << "the last row";
}

TEST_F(Tracks, AnEmptyFolderDoesNothing) {
  editor.Carica();
  bool touched = false;
  editor.SuAttesa = [&](bool) { touched = true; };
  EXPECT_TRUE(AggiungiTuttiFiles(editor, reader, Musica(), {}));
  EXPECT_FALSE(touched);
}

TEST_F(Tracks, ARemovedOneLeavesNoGap) {
  Five();
  Va(3);
  RimuoviFile(editor);
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 b.mp3", "3 d.mp3", "4 e.mp3"));
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 4");
  EXPECT_TRUE(b.Finestre.Silenzio()) << "no question";
}

TEST_F(Tracks, BehindTheLastRowNothingIsRemoved) {
  Five();
  EXPECT_FALSE(editor.rsList().MoveLast());
  EXPECT_FALSE(editor.rsList().MoveNext());
  RimuoviFile(editor);
  EXPECT_EQ(Griglia().size(), 5U);
}

TEST_F(Tracks, ThePlaylistIsEmptiedAfterAYes) {
  Brano(2, 1, "other.mp3");
  Five();
  b.Finestre.Rispondi(Risposta::No);
  RimuoviTuttiFile(editor);
  const auto question = b.Finestre.Prossimo();
  EXPECT_EQ(question.Titolo, "Empty the playlist");
  EXPECT_TRUE(question.Toglie) << "the keyboard begins on no";
  EXPECT_EQ(Griglia().size(), 5U);
  b.Finestre.Rispondi(Risposta::Si);
  RimuoviTuttiFile(editor);
  b.Finestre.Prossimo();
  EXPECT_THAT(Griglia(), IsEmpty());
  EXPECT_EQ(editor.lblPlaylistFiles(), "Playlist-tracks: 0");
  EXPECT_THAT(Tutti(), ElementsAre("2-1 other.mp3"));
  RimuoviTuttiFile(editor);
  EXPECT_TRUE(b.Finestre.Silenzio()) << "an empty one isn't asked about";
}

TEST_F(Tracks, EveryPlaylistIsNumberedAnewAndRowsThatAgreeStay) {
  Brano(1, 2, "a.mp3");
  Brano(1, 2, "b.mp3");
  Brano(1, 9, "c.mp3");
  Brano(99, -5, "d.mp3");
  Brano(0, 0, "e.mp3");
  editor.Carica();
  RiordinaPosizione(editor);
  EXPECT_THAT(Tutti(),
              ElementsAre("0-1 e.mp3", "1-1 a.mp3", "1-2 b.mp3", "1-3 c.mp3", "99-1 d.mp3"));
}

TEST_F(Tracks, OneMovesUpAndDownAndStaysCurrent) {
  Five();
  Va(3);
  SpostaSu(editor);
  EXPECT_EQ(editor.rsList().Text("FileName"), "c.mp3");
  EXPECT_EQ(editor.rsList().AbsolutePosition(), 2);
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 c.mp3", "3 b.mp3", "4 d.mp3", "5 e.mp3"));
  Va(2);
  SpostaGiu(editor);
  SpostaGiu(editor);
  EXPECT_EQ(editor.rsList().Text("FileName"), "c.mp3");
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 b.mp3", "3 d.mp3", "4 c.mp3", "5 e.mp3"));
}

TEST_F(Tracks, AtTheEndsNothingMoves) {
  Five();
  const Righe before = Griglia();
  Va(1);
  SpostaSu(editor);
  Va(5);
  SpostaGiu(editor);
  EXPECT_EQ(Griglia(), before);
  EXPECT_FALSE(editor.rsList().MoveLast());
  EXPECT_FALSE(editor.rsList().MoveNext());
  SpostaSu(editor);
  SpostaGiu(editor);
  EXPECT_EQ(Griglia(), before);
}

TEST_F(Tracks, AShuffleGivesEachNumberOnceAndClosesGaps) {
  Brano(1, 2, "a.mp3");
  Brano(1, 7, "b.mp3");
  Brano(1, 100, "c.mp3");
  editor.Carica();
  std::vector<double> draws{0.0, 0.999, 0.999, 0.5};  // 1, 3, 3 again, 2
  Random(editor, [&] {
    const double next = draws.front();
    draws.erase(draws.begin());
    return next;
  });
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 c.mp3", "3 b.mp3"));
  EXPECT_TRUE(draws.empty());
}

TEST_F(Tracks, AShuffleOfOneWritesOne) {
  Brano(1, 7, "a.mp3");
  editor.Carica();
  Random(editor, CasoDaSeme(1));
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3"));
}

TEST_F(Tracks, ASeedGivesTheSameOrderOnEveryHost) {
  Five();
  Random(editor, CasoDaSeme(42));
  const Righe first = Griglia();
  EXPECT_EQ(CasoDaSeme(42)(), 1608637542 / 4294967296.0) << "the generator's own first number";
  Random(editor, CasoDaSeme(42));
  EXPECT_EQ(Griglia().size(), 5U);
  EXPECT_NE(first, (Righe{"1 a.mp3", "2 b.mp3", "3 c.mp3", "4 d.mp3", "5 e.mp3"}));
}

/// A simple model of the lists beside the editor, in a long random session.
class RandomSession : public Tracks, public testing::WithParamInterface<unsigned> {};

TEST_P(RandomSession, AgreesWithAListInMemory) {
  std::mt19937 random(GetParam());
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  std::vector<std::vector<std::string>> lists(7);
  editor.Carica();
  std::size_t now = 0;
  for (int step = 0; step < 300; ++step) {
    auto& list = lists.at(now);
    const std::size_t choice = below(6);
    if (choice == 0) {
      now = below(7);
      editor.ScegliVoce(static_cast<int>(now));
    } else if (choice <= 2 || list.empty()) {
      list.push_back("f" + std::to_string(below(9)) + ".mp3");
      AggiungiFile(editor, Musica(), list.back());
    } else {
      const std::size_t at = below(list.size());
      Va(static_cast<int>(at) + 1);
      const auto row = list.begin() + static_cast<std::ptrdiff_t>(at);
      if (choice == 3) {
        list.erase(row);
        RimuoviFile(editor);
      } else if (choice == 4) {
        if (at > 0) std::iter_swap(row, row - 1);
        SpostaSu(editor);
      } else {
        if (at + 1 < list.size()) std::iter_swap(row, row + 1);
        SpostaGiu(editor);
      }
    }
    Righe expected;
    for (std::size_t i = 0; i < lists.at(now).size(); ++i) {
      expected.push_back(std::to_string(i + 1) + " " + lists.at(now)[i]);
    }
    ASSERT_EQ(Griglia(), expected) << "step " << step;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSession, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace kvr5
