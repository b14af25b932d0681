#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "core/Aiuti.h"
#include "playlists/BancoSalva.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/RighePlaylist.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class ListsOfElsewhere : public test::BancoSalva {
 protected:
  void SetUp() override {
    Progetto(4, 5);
    for (const char* name : {"list/b.mp3", "list/sub/c.mp3", "music/a.mp3"}) b.ScriviMp3(name);
    editor.Carica();
  }
  Righe Import(const std::string& text) {
    b.Cartella.Write("list/l.m3u", text);
    return ImportFile(b.Percorso("list\\l.m3u"));
  }
  /// "FilePath|FileName" of the grid's rows after an import.
  Righe ImportFile(const std::string& list) {
    ImportaPlaylist(editor, reader, list);
    Righe rows;
    for (const RigaPlaylist& each : RigheDellaGriglia(editor)) {
      rows.push_back(each.Brano.FilePath + "|" + each.Brano.FileName);
    }
    return rows;
  }
  /// A row of the file beside the list.
  std::string Beside() const { return b.Percorso("list") + "\\|b.mp3"; }
  /// Saves what the editor holds and comes up again on list 2.
  void SaveAndGoOn() {
    b.Finestre.Rispondi(Risposta::No);
    SalvaPlaylist(editor, progress);
    editor.Chiudi();
    b.Finestre.Prossimo();
    editor.Carica();
    editor.ScegliVoce(1);
  }

  modMp3Infos reader{b.C.Files};
};

TEST_F(ListsOfElsewhere, WithoutALineEndHaveTheirLastLine) {
  EXPECT_THAT(Import("b.mp3"), ElementsAre(Beside()));
}

TEST_F(ListsOfElsewhere, HaveLinesOfEitherEnd) {
  EXPECT_THAT(Import("b.mp3\nb.mp3\r\n\n\r\n   \r\nb.mp3\n"),
              ElementsAre(Beside(), Beside(), Beside()));
}

TEST_F(ListsOfElsewhere, WithNulsHaveTheirOtherLines) {
  EXPECT_THAT(Import(std::string("b.mp3\0\r\n\0b.mp3\r\n\0\0\0\r\nb.mp3\r\n", 28)),
              ElementsAre(Beside()));
}

TEST_F(ListsOfElsewhere, WithALineOfAMegabyteHaveTheNextOne) {
  const std::string megabyte(1 << 20, 'x');
  EXPECT_THAT(
      Import(megabyte + "\r\nb.mp3\r\n" + megabyte + ".mp3\r\n#EXTINF:" + megabyte + "\r\nb.mp3"),
      ElementsAre(Beside(), Beside()));
}

TEST_F(ListsOfElsewhere, OfAHundredThousandLinesLetEventsRunAndHaveTheLastOne) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "gone" + std::to_string(i) + ".mp3\r\n";
  b.Messaggi.Volte = 0;
  EXPECT_THAT(Import(text + "b.mp3\r\n"), ElementsAre(Beside()));
  EXPECT_GT(b.Messaggi.Volte, 1000);
}

TEST_F(ListsOfElsewhere, InUtf16BringNothing) {
  for (const bool little : {true, false}) {
    std::string text = little ? "\xFF\xFE" : "\xFE\xFF";
    for (const char c : std::string("b.mp3\r\n")) {
      text += little ? std::string{c, '\0'} : std::string{'\0', c};
    }
    EXPECT_THAT(Import(text), IsEmpty());
  }
}

TEST_F(ListsOfElsewhere, WithFoldersAndDevicesHaveTheirFilesOnly) {
  b.ScriviMp3("list/folder.mp3/x.mp3");
  ASSERT_EQ(mkfifo((b.Cartella.Host() / "list/pipe.mp3").c_str(), 0600), 0);
  EXPECT_THAT(Import("sub\r\nsub\\\r\nfolder.mp3\r\npipe.mp3\r\n.\r\n..\r\n\\\r\n/\r\n/dev/null\r\n"
                     "/dev/zero\r\nC:\\dev\\zero\r\nQ:\\a.mp3\r\nC:\r\nCON\r\nb.mp3\r\n"),
              ElementsAre(Beside()));
}

TEST_F(ListsOfElsewhere, ThatAreDevicesOrPipesBringNothing) {
  ASSERT_EQ(mkfifo((b.Cartella.Host() / "list/pipe.m3u").c_str(), 0600), 0);
  for (const std::string& list :
       {std::string("C:\\dev\\null"), std::string("C:\\dev\\zero"), b.Percorso("list\\pipe.m3u"),
        b.Percorso("list\\sub"), std::string("Q:\\l.m3u"), std::string()}) {
    EXPECT_THAT(ImportFile(list), IsEmpty()) << list;
  }
}

TEST_F(ListsOfElsewhere, WithLoopsOfLinksHaveTheirFiles) {
  const fs::path list = b.Cartella.Host() / "list";
  fs::create_symlink("two.mp3", list / "one.mp3");
  fs::create_symlink("one.mp3", list / "two.mp3");
  fs::create_directory_symlink("..", list / "sub/up");
  fs::create_symlink("loop.m3u", list / "loop.m3u");
  EXPECT_THAT(Import("one.mp3\r\ntwo.mp3\r\nsub/up/sub/up/b.mp3\r\n"),
              ElementsAre("sub\\up\\sub\\up\\|b.mp3"));
  EXPECT_THAT(ImportFile(b.Percorso("list\\loop.m3u")).size(), 1U) << "nothing more";
}

TEST_F(ListsOfElsewhere, OfAPatternBringNothing) {
  EXPECT_THAT(Import("*.mp3\r\n?.mp3\r\nsub\\*.*\r\n"), IsEmpty());
}

TEST_F(ListsOfElsewhere, WithARootedLineLookOnTheListsOwnDrive) {
  std::string rooted = b.Percorso("music\\a.mp3").substr(2);
  EXPECT_THAT(Import(rooted + "\r\n"), ElementsAre(EstraiCartella(rooted) + "|a.mp3"));
}

TEST_F(ListsOfElsewhere, GoUpAFolderAndStoreItAsItStands) {
  EXPECT_THAT(Import("..\\music\\a.mp3\r\n"), ElementsAre("..\\music\\|a.mp3"));
}

TEST_F(ListsOfElsewhere, AreReadAsTheyWereWhenTheImportBegan) {
  b.Messaggi.Accade = [this] { b.Cartella.Write("list/l.m3u", ""); };
  EXPECT_EQ(Import("b.mp3\r\nb.mp3\r\nb.mp3\r\n").size(), 3U);
  b.Messaggi.Accade = nullptr;
}

TEST_F(ListsOfElsewhere, WhoseFilesVanishMeanwhileBringThoseThatAreLeft) {
  b.ScriviMp3("list/z.mp3");
  b.Messaggi.Accade = [this] { fs::remove(b.Cartella.Host() / "list/b.mp3"); };
  EXPECT_THAT(Import("b.mp3\r\nb.mp3\r\nz.mp3\r\n"),
              ElementsAre(Beside(), b.Percorso("list") + "\\|z.mp3"));
  b.Messaggi.Accade = nullptr;
}

TEST_F(ListsOfElsewhere, OnADiskThatFailsBringNothingMore) {
  guasti->FailReadsAfter(b.Percorso("list\\l.m3u"), 0, errors::DeviceIo);
  EXPECT_THAT(Import("b.mp3\r\n"), IsEmpty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ListsOfElsewhere, ThatOneSaveWroteBringItsTracksBack) {
  const std::string sub = b.Percorso("music\\a.mp3") + "\r\nb.mp3\r\n";
  const Righe before = Import(sub);
  SaveAndGoOn();
  EXPECT_EQ(ImportFile(FileDelProgetto(b.C, "1_LOCAL_.m3u")), before);
  EXPECT_EQ(ImportFile(FileDelProgetto(b.C, "1.m3u")).size(), 2U) << "bare names bring nothing";
}

TEST_F(ListsOfElsewhere, ThatOneSaveWroteBringRelativeTracksBackFromTheirOwnFolder) {
  b.ScriviMp3("program/Projects/Hall/sub/c.mp3");
  b.Cartella.Write("program/Projects/Hall/own.txt", "sub/c.mp3\r\n");
  EXPECT_THAT(ImportFile(FileDelProgetto(b.C, "own.txt")), ElementsAre("sub\\|c.mp3"));
  SaveAndGoOn();
  EXPECT_EQ(Read("1_LOCAL_.m3u"), "sub/c.mp3\r\n");
  EXPECT_THAT(ImportFile(FileDelProgetto(b.C, "1_LOCAL_.m3u")), ElementsAre("sub\\|c.mp3"));
}

TEST_F(ListsOfElsewhere, ThatOneSaveWroteBringTracksAboveTheirFolderBack) {
  b.ScriviMp3("program/Projects/up.mp3");
  b.Cartella.Write("program/Projects/Hall/own.txt", "..\\up.mp3\r\n");
  EXPECT_THAT(ImportFile(FileDelProgetto(b.C, "own.txt")), ElementsAre("..\\|up.mp3"));
  SaveAndGoOn();
  EXPECT_THAT(ImportFile(FileDelProgetto(b.C, "1_LOCAL_.m3u")), ElementsAre("..\\|up.mp3"));
}

TEST_F(ListsOfElsewhere, ThatOneSaveWroteInUtf8BringTheirTracksBack) {
  b.ScriviMp3("list/日本.mp3");
  b.ScriviMp3("list/città.mp3");
  const Righe before = Import("\xEF\xBB\xBF日本.mp3\r\ncittà.mp3\r\n");
  ASSERT_EQ(before.size(), 2U);
  SaveAndGoOn();
  EXPECT_EQ(ImportFile(FileDelProgetto(b.C, "1_LOCAL_.m3u")), before);
}

TEST_F(ListsOfElsewhere, OfTheOneSetBringTheTracksBackAndThePlayersListAFileOfThatVeryName) {
  editor.Chiudi();
  b.C.Stato.PlayerMode = 4;
  editor.Carica();
  const Righe before = Import("b.mp3\r\nsub\\..\\b.mp3\r\n" + b.Percorso("music\\a.mp3"));
  ASSERT_EQ(before.size(), 3U);
  b.Finestre.Rispondi(Risposta::No);
  SalvaPlaylist(editor, progress);
  editor.Chiudi();
  b.Finestre.Prossimo();
  b.C.Stato.PlayerMode = 5;
  editor.Carica();
  editor.ScegliVoce(1);
  EXPECT_THAT(ImportFile(FileDelProgetto(b.C, "PLAYLIST.M3U")), IsEmpty());
  b.ScriviMp3("program/Projects/Hall/P01-001");
  EXPECT_THAT(ImportFile(FileDelProgetto(b.C, "PLAYLIST.M3U")), ElementsAre(Hall() + "|P01-001"));
  editor.ScegliVoce(2);
  b.Cartella.Write("list/local.m3u", Read("PLAYLIST_LOCAL_.M3U"));
  const Righe after = ImportFile(b.Percorso("list\\local.m3u"));
  EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace kvr5
