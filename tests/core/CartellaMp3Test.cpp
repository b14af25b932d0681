#include <gtest/gtest.h>

#include "core/CartellaMp3.h"
#include "core/Impostazioni.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;

class FolderOfMp3Files : public testing::Test {
 protected:
  FolderOfMp3Files() {
    b.Cartella.Write("program/KVR5Software.ini", "[Config]\r\n");
    b.C.Stato.CartellaProgetto = b.Percorso("program/Projects");
    b.Cartella.Write("Music/Jazz/a.mp3", "x");
  }
  void Keep(const std::string& folder) {
    ScriviParametroIni(b.C, FileImpostazioni(b.C), "Path", "LastMp3Dir", folder);
  }
  std::string Kept() { return LeggiParametroIni(b.C, FileImpostazioni(b.C), "Path", "LastMp3Dir"); }
  std::string Start() { return CartellaIniziale(b.C, 0); }

  Banco b;
};

TEST_F(FolderOfMp3Files, IsTheRootOfTheDiskAtFirstAndIsNotWrittenForThat) {
  EXPECT_EQ(Start(), "C:\\");
  EXPECT_EQ(b.Cartella.Read("program/KVR5Software.ini"), "[Config]\r\n");
}

TEST_F(FolderOfMp3Files, IsTheOneChosenLastInANewProject) {
  Keep(b.Percorso("Music/Jazz"));
  EXPECT_EQ(Start(), b.Percorso("Music/Jazz"));
  Keep(b.Percorso("Music") + "\\");
  EXPECT_EQ(Start(), b.Percorso("Music"));
}

TEST_F(FolderOfMp3Files, IsTheProjectsOwnInAnOpenedOne) {
  Keep(b.Percorso("Music"));
  EXPECT_EQ(CartellaIniziale(b.C, 1), b.Percorso("program/Projects"));
  EXPECT_EQ(CartellaIniziale(b.C, 2), b.Percorso("program/Projects"));
}

TEST_F(FolderOfMp3Files, TakesTheHostsFormFromTheSettings) {
  Keep((b.Cartella.Host() / "Music").string());
  EXPECT_EQ(Start(), b.Percorso("Music"));
}

TEST_F(FolderOfMp3Files, IsTheNearestParentOfOneThatIsGone) {
  Keep(b.Percorso("Music/Jazz/old/older"));
  EXPECT_EQ(Start(), b.Percorso("Music/Jazz"));
  Keep(b.Percorso("Music/Jazz/a.mp3"));
  EXPECT_EQ(Start(), b.Percorso("Music/Jazz")) << "a file is no folder";
}

TEST_F(FolderOfMp3Files, IsTheRootOfTheDiskWhereNoParentIsThere) {
  for (const char* folder : {"Q:\\Music\\Jazz", "\\\\server\\music", "C:\\no*where", "?", ".."}) {
    Keep(folder);
    EXPECT_TRUE(Start().starts_with("C:\\")) << folder;
    EXPECT_TRUE(b.C.Files.Info(Start())) << folder;
  }
  Keep("Q:\\Music\\Jazz");
  EXPECT_EQ(Start(), "C:\\");
}

TEST_F(FolderOfMp3Files, OfALongPathIsWhatTheSettingsCanHold) {
  const std::string deep = "Music/" + std::string(60, 'd') + "/" + std::string(60, 'e');
  b.Cartella.Write(deep + "/a.mp3", "x");
  ASSERT_TRUE(ScegliCartella(b.C, b.Percorso(deep)));
  EXPECT_EQ(Start(), b.Percorso("Music/" + std::string(60, 'd')));
}

TEST_F(FolderOfMp3Files, IsKeptWhenItIsChosen) {
  EXPECT_EQ(ScegliCartella(b.C, b.Percorso("Music")), b.Percorso("Music"));
  EXPECT_EQ(Kept(), b.Percorso("Music"));
  EXPECT_EQ(ScegliCartella(b.C, (b.Cartella.Host() / "music").string()), b.Percorso("Music"))
      << "the host's form, in another case";
  EXPECT_EQ(Kept(), b.Percorso("Music"));
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(FolderOfMp3Files, IsKeptFromTheRootOfTheDiskAlsoOnARemovableDrive) {
  ASSERT_TRUE(b.Percorsi.Bind('E', (b.Cartella.Host() / "Music").string()));
  EXPECT_EQ(ScegliCartella(b.C, "E:\\Jazz"), b.Percorso("Music/Jazz"));
  EXPECT_EQ(Kept(), b.Percorso("Music/Jazz"));
}

TEST_F(FolderOfMp3Files, StaysWhenTheAnswerIsNoFolder) {
  Keep(b.Percorso("Music"));
  for (const std::string& answer :
       {std::string(), std::string("  "), b.Percorso("Music/Jazz/a.mp3"), b.Percorso("nowhere"),
        std::string("Q:\\")}) {
    EXPECT_EQ(ScegliCartella(b.C, answer), std::nullopt) << answer;
  }
  EXPECT_EQ(Kept(), b.Percorso("Music"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

}  // namespace
}  // namespace kvr5
