#include "playlists/BancoPlaylist.h"
#include "playlists/ImportaPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ImportedList : public test::BancoPlaylist {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    for (const char* name : {"list/b.mp3", "list/sub/c.mp3", "music/a.mp3"}) b.ScriviMp3(name);
    editor.Carica();
  }
  /// Imports a list of this text, which lies in the folder "list"; what the grid shows then.
  Righe Import(const std::string& text) {
    b.Cartella.Write("list/l.m3u", text);
    ImportaPlaylist(editor, reader, b.Percorso("list/l.m3u"));
    return Griglia();
  }
  /// Name and folder of the last row.
  std::string Last() {
    EXPECT_FALSE(editor.rsList().MoveLast());
    return editor.rsList().Text("FilePath") + "|" + editor.rsList().Text("FileName");
  }
  std::string Host(const std::string& name) const { return (b.Cartella.Host() / name).string(); }

  modMp3Infos reader{b.C.Files};
};

TEST_F(ImportedList, ATitleLineIsNoFile) {
  EXPECT_THAT(Import("#EXTM3U\r\n#EXTINF:123,Artist - Title\r\n" + b.Percorso("music/a.mp3")),
              ElementsAre("1 a.mp3"));
  EXPECT_EQ(Last(), b.Percorso("music") + "\\|a.mp3");
}

TEST_F(ImportedList, ALineWithoutAFolderIsTheListsOwn) {
  EXPECT_THAT(Import("  b.mp3  \r\n"), ElementsAre("1 b.mp3"));
  EXPECT_EQ(Last(), b.Percorso("list") + "\\|b.mp3");
}

TEST_F(ImportedList, ARelativeFolderIsStoredAsItStands) {
  EXPECT_THAT(Import("sub\\c.mp3\nsub/c.mp3\n"), ElementsAre("1 c.mp3", "2 c.mp3"));
  EXPECT_EQ(Last(), "sub\\|c.mp3");
}

TEST_F(ImportedList, ALineOfTheHostsFormIsMapped) {
  EXPECT_THAT(Import(Host("music/a.mp3") + "\n"), ElementsAre("1 a.mp3"));
  EXPECT_EQ(Last(), b.Percorso("music") + "\\|a.mp3");
}

TEST_F(ImportedList, WhatIsNoGoodFileIsPassedOverInSilence) {
  b.Cartella.Write("list/text.mp3", "no music");
  b.Cartella.Write("list/sound.wav", "RIFF");
  EXPECT_THAT(Import("none.mp3\r\n#comment\r\n\r\ntext.mp3\r\nsound.wav\r\nsub\r\n"), IsEmpty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ImportedList, EachOfTwoEqualLinesIsATrack) {
  EXPECT_THAT(Import("b.mp3\r\nb.mp3\r\n"), ElementsAre("1 b.mp3", "2 b.mp3"));
}

TEST_F(ImportedList, TheCaseOfTheTitleLineCounts) {
  b.ScriviMp3("list/#ext.mp3");
  EXPECT_THAT(Import("#ext.mp3\r\n"), ElementsAre("1 #ext.mp3"));
}

TEST_F(ImportedList, IsReadInTheAnsiPageAndInUtf8WithItsMark) {
  b.ScriviMp3("list/città.mp3");
  EXPECT_THAT(Import("citt\xE0.mp3\r\n"), ElementsAre("1 città.mp3"));
  EXPECT_THAT(Import("\xEF\xBB\xBF"
                     "città.mp3\r\n"),
              ElementsAre("1 città.mp3", "2 città.mp3"));
}

TEST_F(ImportedList, TriesALineThatNamesNothingInTheAnsiPageAsUtf8) {
  b.ScriviMp3("list/città.mp3");
  EXPECT_THAT(Import("città.mp3\r\ncitt\xE0.mp3\r\nCaf\xE9.mp3\r\n"),
              ElementsAre("1 città.mp3", "2 città.mp3"));
}

TEST_F(ImportedList, OfSixHundredLinesFiveHundredArriveAndThenTheMessage) {
  std::string text;
  for (int i = 0; i < 600; ++i) text += "b.mp3\r\n";
  EXPECT_EQ(Import(text).size(), 500U);
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "Limit: 500 tracks");
  EXPECT_EQ(box.Testo, "This playlist is full; its tracks stay");
  EXPECT_FALSE(PuoImportare(editor)) << "before the dialog";
  b.Finestre.Prossimo();
}

TEST_F(ImportedList, OfOddBytesBringsNothingAndNoHarm) {
  for (const std::string& text :
       {std::string(), std::string("\0b.mp3\0", 7), std::string("b.mp3\0x\r\n", 9),
        std::string(1 << 20, 'x'),
        std::string("\xFF\xFE"
                    "b\0.\0m\0p\0"
                    "3\0",
                    12),
        std::string("/dev/null\r\n/dev/zero\r\nC:\\\r\n\\\\\r\n*.mp3\r\n")}) {
    EXPECT_THAT(Import(text), IsEmpty());
  }
  ImportaPlaylist(editor, reader, b.Percorso("list"));
  ImportaPlaylist(editor, reader, b.Percorso("gone.m3u"));
  EXPECT_THAT(Griglia(), IsEmpty());
}

TEST_F(ImportedList, WithoutAPlaylistMayNotBegin) {
  Progetto(3, 9);
  editor.Carica();
  EXPECT_FALSE(PuoImportare(editor));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

}  // namespace
}  // namespace kvr5
