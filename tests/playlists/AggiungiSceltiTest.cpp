#include "core/ElencoMp3.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/Path.h"
#include "playlists/AggiungiScelti.h"
#include "playlists/BancoPlaylist.h"
#include "playlists/BraniPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PickedFiles : public test::BancoPlaylist {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    for (const char* name : {"music/a.mp3", "music/b.mp3", "music/c.MP3"}) b.ScriviMp3(name);
    editor.Carica();
  }
  std::string Host(const std::string& name) const { return (b.Cartella.Host() / name).string(); }
  EsitoScelti Add(const std::vector<std::string>& files) {
    return AggiungiScelti(editor, reader, files);
  }
  /// "name: why" of what wasn't taken.
  static Righe NotTaken(const EsitoScelti& outcome) {
    Righe words;
    for (const FileNonPreso& each : outcome.NonPresi)
      words.push_back(each.Nome + ": " + each.Motivo);
    return words;
  }
  std::string Word(const char* key) { return TestoLingua(b.C, key); }

  modMp3Infos reader{b.C.Files};
};

TEST_F(PickedFiles, AreAddedInTheirOrderInEitherForm) {
  const EsitoScelti outcome = Add(
      {Host("music/b.mp3"), b.Percorso("music\\a.mp3"), Host("music/c.MP3"), Host("music/b.mp3")});
  EXPECT_EQ(outcome.Aggiunti, 4U);
  EXPECT_THAT(outcome.NonPresi, IsEmpty());
  EXPECT_THAT(Griglia(), ElementsAre("1 b.mp3", "2 a.mp3", "3 c.MP3", "4 b.mp3"));
  EXPECT_FALSE(editor.rsList().MoveFirst());
  EXPECT_EQ(editor.rsList().Text("FilePath"), Musica() + "\\");
  EXPECT_EQ(ParoleNonPresi(b.C, outcome.NonPresi), "");
}

TEST_F(PickedFiles, AreStoredWithTheSpellingOfTheDisk) {
  Add({Host("MUSIC/A.MP3"), b.Percorso("Music\\C.mp3")});
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3", "2 c.MP3"));
  EXPECT_FALSE(editor.rsList().MoveFirst());
  EXPECT_EQ(editor.rsList().Text("FilePath"), Musica() + "\\");
}

TEST_F(PickedFiles, ThatAreNoneAreToldWithTheirReason) {
  b.Cartella.Write("music/d.mp3/e.mp3", "");
  b.Cartella.Write("music/sound.wav", b.Cartella.Read("music/a.mp3"));
  const EsitoScelti outcome = Add({Host("music"), Host("music/d.mp3"), Host("music/sound.wav"),
                                   Host("music/gone.mp3"), Host("music/a.mp3")});
  EXPECT_EQ(outcome.Aggiunti, 1U);
  EXPECT_THAT(NotTaken(outcome),
              ElementsAre("music: " + Word("0050101"), "d.mp3: " + Word("0050101"),
                          "sound.wav: " + Word("0050005"), "gone.mp3: " + Word("0130258")));
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3")) << "the others go on";
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(PickedFiles, ThatThePlayerRefusesAreToldWithTheFigure) {
  b.Cartella.Write("music/text.mp3", "no music");
  std::string fast = b.Cartella.Read("music/a.mp3");
  for (std::size_t at = 2; at < fast.size(); at += 417) fast[at] = '\x94';  // 48,000 Hz
  b.Cartella.Write("music/fast.mp3", fast);
  const EsitoScelti outcome = Add({Host("music/text.mp3"), Host("music/fast.mp3")});
  EXPECT_THAT(
      NotTaken(outcome),
      ElementsAre("text.mp3: " + Word("0130040"),
                  "fast.mp3: " + ConValori(Word("0130045"), {"48,000", "22,050", "44,100"})));
  EXPECT_THAT(Griglia(), IsEmpty());
}

TEST_F(PickedFiles, ThatNoPathCanNameAreToldSo) {
  const std::string reserved = ParoleDifetto(b.C, NameFault::Reserved);
  for (const char* name : {"x|y.mp3", "x:y.mp3", "x\\y.mp3"}) {
    b.ScriviMp3(std::string("music/") + name);
  }
  b.ScriviMp3("mu|sic/a.mp3");
  const EsitoScelti outcome =
      Add({Host("music/x|y.mp3"), Host("music/x:y.mp3"), Host("music/x*.mp3"), Host("mu|sic/a.mp3"),
           Host("music/x\\y.mp3"), Host("music/\xFF.mp3")});
  EXPECT_EQ(outcome.Aggiunti, 0U);
  const Righe words = NotTaken(outcome);
  ASSERT_EQ(words.size(), 6U);
  EXPECT_EQ(words[0], "x|y.mp3: " + reserved);
  EXPECT_EQ(words[1], "x:y.mp3: " + reserved);
  EXPECT_EQ(words[2], "x*.mp3: " + reserved);
  EXPECT_EQ(words[3], "a.mp3: " + reserved) << "its folder's name";
  EXPECT_TRUE(words[4].ends_with(": " + reserved)) << words[4];
  EXPECT_EQ(words[5], "\xFF.mp3: " + ParoleDifetto(b.C, NameFault::NotUtf8));
  EXPECT_THAT(Griglia(), IsEmpty());
}

TEST_F(PickedFiles, OfOddPathsAreNotTakenAndDoNoHarm) {
  std::filesystem::create_symlink("loop.mp3", b.Cartella.Host() / "music/loop.mp3");
  const std::vector<std::string> odd{"",
                                     "/",
                                     "C:\\",
                                     "/dev/null",
                                     "Q:\\a.mp3",
                                     "\\",
                                     Host("music/loop.mp3"),
                                     std::string("a\0b.mp3", 7)};
  const EsitoScelti outcome = Add(odd);
  EXPECT_EQ(outcome.NonPresi.size(), odd.size());
  for (const FileNonPreso& each : outcome.NonPresi) EXPECT_NE(each.Motivo, "") << each.Nome;
  EXPECT_THAT(Griglia(), IsEmpty());
}

TEST_F(PickedFiles, EndWhereThePlaylistIsFullWithItsNotice) {
  editor.Chiudi();
  Riempi(498);
  editor.Carica();
  const EsitoScelti outcome =
      Add({Host("music/a.mp3"), Host("music/gone.mp3"), Host("music/b.mp3"), Host("music/c.MP3"),
           Host("music/gone.mp3"), Host("music/a.mp3")});
  EXPECT_EQ(outcome.Aggiunti, 2U);
  EXPECT_EQ(outcome.NonPresi.size(), 1U) << "those behind weren't looked at";
  EXPECT_EQ(editor.Quanti(), 500);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, Word("0050026"));
  EXPECT_EQ(box.Testo, Word("0050027"));
  EXPECT_TRUE(box.SiNo) << "as one file that is added";
  EXPECT_TRUE(b.Finestre.Silenzio()) << "told once";
}

TEST_F(PickedFiles, WithoutAPlaylistAreRefusedOnce) {
  Progetto(3, 9);
  editor.Carica();
  const EsitoScelti outcome = Add({Host("music/a.mp3"), Host("music/b.mp3")});
  EXPECT_EQ(outcome.Aggiunti, 0U);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, Word("0050039"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(PickedFiles, LetEventsRunBetweenThem) {
  b.Messaggi.Volte = 0;
  Add({Host("music/a.mp3"), Host("music/b.mp3"), Host("music/a.mp3")});
  EXPECT_EQ(b.Messaggi.Volte, 3);
  Add({Host("music/gone.mp3"), Host("music/x*.mp3"), Host("music")});
  EXPECT_EQ(b.Messaggi.Volte, 6) << "of those that aren't taken there may be thousands";
}

TEST_F(PickedFiles, GoToThePlaylistThatIsCurrentAtTheirTurn) {
  b.Messaggi.Accade = [&] { editor.ScegliVoce(1); };
  Add({Host("music/a.mp3"), Host("music/b.mp3")});
  b.Messaggi.Accade = nullptr;
  EXPECT_THAT(Tutti(), ElementsAre("1-1 a.mp3", "2-1 b.mp3"));
}

TEST_F(PickedFiles, ThatTheDatabaseDoesntTakeDontCountAsAdded) {
  Ignora(b.Disco.CreateFolder(b.Percorso("program/Logs")));
  editor.Chiudi();
  EXPECT_EQ(Add({Host("music/a.mp3")}).Aggiunti, 0U);
}

TEST_F(PickedFiles, AreSummedUpInOneLine) {
  EsitoScelti outcome;
  EXPECT_EQ(ParoleNonPresi(b.C, outcome.NonPresi), "");
  outcome.NonPresi.push_back({"100%1\n.mp3", "Why."});
  const std::string one = ConValori(Word("0050102"), {"100%1\xEF\xBF\xBD.mp3", "Why."});
  EXPECT_EQ(ParoleNonPresi(b.C, outcome.NonPresi), one);
  outcome.NonPresi.resize(3);
  EXPECT_EQ(ParoleNonPresi(b.C, outcome.NonPresi), one + " " + ConValori(Word("0050103"), {"2"}));
}

}  // namespace
}  // namespace kvr5
