#include <random>

#include "core/Lingua.h"
#include "playlists/BancoPlaylist.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// A frame of MPEG 1 (FB) or 2 (F3) Layer III, by its third byte: rate and frequency.
struct Sound {
  const char* What;
  char Version;
  char Rates;
  bool Taken;
};

class Limits : public test::BancoPlaylist {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    b.ScriviMp3("music/a.mp3");
  }
  void Import(int lines) {
    std::string text;
    for (int i = 0; i < lines; ++i) text += "a.mp3\r\n";
    b.Cartella.Write("music/l.m3u", text);
    ImportaPlaylist(editor, reader, b.Percorso("music\\l.m3u"));
  }
  bool AddAll(int files) {
    return AggiungiTuttiFiles(editor, reader, Musica(),
                              Righe(static_cast<std::size_t>(files), "a.mp3"));
  }
  /// The box of a run that is full: its two texts the other way round.
  void ExpectFull() {
    const auto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, TestoLingua(b.C, "0050027"));
    EXPECT_EQ(box.Testo, TestoLingua(b.C, "0050026"));
    EXPECT_FALSE(box.SiNo);
    EXPECT_EQ(box.Segno, Icona::Informazione);
    EXPECT_EQ(editor.rsList().AbsolutePosition(), editor.Quanti()) << "the last row is current";
  }
  modMp3Infos reader{b.C.Files};
};

TEST_F(Limits, OfAFolderOfFiveHundredAndTenFiveHundredArrive) {
  editor.Carica();
  EXPECT_FALSE(AddAll(510));
  ExpectFull();
  const Righe rows = Griglia();
  ASSERT_EQ(rows.size(), 500U);
  for (std::size_t i = 0; i < rows.size(); ++i)
    EXPECT_EQ(rows[i], std::to_string(i + 1) + " a.mp3");
}

TEST_F(Limits, AFolderThatFillsThePlaylistToTheLastPlaceIsNotTold) {
  Riempi(498);
  editor.Carica();
  EXPECT_TRUE(AddAll(2));
  EXPECT_EQ(editor.Quanti(), 500);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_FALSE(AddAll(1));
  ExpectFull();
}

TEST_F(Limits, AreThoseOfEachPlaylist) {
  Riempi(500);
  Riempi(3, 2);
  editor.Carica();
  EXPECT_FALSE(AddAll(1));
  ExpectFull();
  editor.ScegliVoce(1);
  EXPECT_TRUE(AddAll(2));
  EXPECT_EQ(editor.Quanti(), 5);
}

TEST_F(Limits, AnImportStopsThereToo) {
  Riempi(499);
  editor.Carica();
  Import(3);
  ExpectFull();
  EXPECT_EQ(editor.Quanti(), 500);
  EXPECT_EQ(editor.rsList().Number("Pos"), 500);
}

TEST_F(Limits, AnImportIntoAFullPlaylistMayNotBegin) {
  Riempi(500);
  editor.Carica();
  EXPECT_FALSE(PuoImportare(editor));
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, TestoLingua(b.C, "0050027"));
  editor.ScegliVoce(1);
  EXPECT_TRUE(PuoImportare(editor));
}

TEST_F(Limits, AreMetByATrackThatIsAddedAmidARun) {
  Riempi(497);
  editor.Carica();
  bool first = true;
  b.Messaggi.Accade = [&] {
    if (std::exchange(first, false)) AggiungiFile(editor, Musica(), "a.mp3");
  };
  EXPECT_FALSE(AddAll(5));
  b.Messaggi.Accade = nullptr;
  ExpectFull();
  EXPECT_EQ(editor.Quanti(), 500);
}

TEST_F(Limits, APlaylistOfMoreThatWasThereBeforeIsFull) {
  Riempi(502);
  editor.Carica();
  EXPECT_EQ(editor.Quanti(), 502);
  EXPECT_EQ(AggiungiFile(editor, Musica(), "a.mp3"), EsitoAggiunta::Piena);
  b.Finestre.Prossimo();
  EXPECT_EQ(editor.Quanti(), 502) << "nothing of it goes";
}

TEST_F(Limits, OfSoundAreThoseOfThePlayer) {
  const std::vector<Sound> sounds{
      {"MPEG 1, 320 kbit/s, 44,100 Hz", '\xFB', '\xE0', true},
      {"MPEG 1, 64 kbit/s, 44,100 Hz", '\xFB', '\x50', true},
      {"MPEG 1, 128 kbit/s, 32,000 Hz", '\xFB', '\x98', true},
      {"MPEG 2, 64 kbit/s, 22,050 Hz", '\xF3', '\x80', true},
      {"MPEG 2, 128 kbit/s, 24,000 Hz", '\xF3', '\xC4', true},
      {"MPEG 1, 56 kbit/s, 44,100 Hz", '\xFB', '\x40', false},
      {"MPEG 1, 128 kbit/s, 48,000 Hz", '\xFB', '\x94', false},
      {"MPEG 2, 64 kbit/s, 16,000 Hz", '\xF3', '\x88', false},
      {"MPEG 2, 56 kbit/s, 22,050 Hz", '\xF3', '\x70', false},
      {"MPEG 1 Layer II, 128 kbit/s, 44,100 Hz", '\xFD', '\x80', false},
  };
  editor.Carica();
  int taken = 0;
  for (const Sound& each : sounds) {
    b.Cartella.Write("music/s.mp3", std::string("\xFF") + each.Version + each.Rates + "\x64" +
                                        std::string(4000, '\0'));
    AggiungiTuttiFiles(editor, reader, Musica(), {"s.mp3"});
    taken += each.Taken ? 1 : 0;
    EXPECT_EQ(editor.Quanti(), taken) << each.What;
  }
}

/// Long sessions about the limit, beside a count in memory.
class SessionAtTheLimit : public Limits, public testing::WithParamInterface<unsigned> {};

TEST_P(SessionAtTheLimit, NeverHasMoreAndTellsEachTime) {
  std::mt19937 random(GetParam());
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  int count = 496;
  Riempi(count);
  editor.Carica();
  for (int step = 0; step < 60; ++step) {
    const int some = 1 + below(4);
    const bool over = count + some > EditorPlaylist::kLimite;
    switch (below(4)) {
      case 0:
        EXPECT_EQ(AddAll(some), !over);
        if (over) ExpectFull();
        count = std::min(count + some, EditorPlaylist::kLimite);
        break;
      case 1:
        Import(some);
        if (over) ExpectFull();
        count = std::min(count + some, EditorPlaylist::kLimite);
        break;
      case 2:
        if (AggiungiFile(editor, Musica(), "a.mp3") == EsitoAggiunta::Piena) {
          EXPECT_EQ(b.Finestre.Prossimo().Titolo, TestoLingua(b.C, "0050026"));
          EXPECT_EQ(count, EditorPlaylist::kLimite);
        } else {
          ++count;
        }
        break;
      default:
        Va(1 + below(count));
        RimuoviFile(editor);
        --count;
    }
    ASSERT_EQ(editor.Quanti(), count) << "step " << step;
    ASSERT_TRUE(b.Finestre.Silenzio()) << "step " << step;
  }
  const Righe rows = Griglia();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_TRUE(rows[i].starts_with(std::to_string(i + 1) + " ")) << rows[i];
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SessionAtTheLimit, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace kvr5
