#include <gtest/gtest.h>

#include <optional>

#include "core/Impostazioni.h"
#include "projects/Descrittore.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"

namespace kvr5 {
namespace {

using test::Banco;

class Descriptor : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::create_directories(b.Cartella.Host() / "Lift-A");
    s.CartellaProgetto = b.Percorso("Lift-A");
  }
  std::string Text() { return b.Cartella.Read("Lift-A/Config.cfg"); }
  void Put(const std::string& text) { b.Cartella.Write("Lift-A/Config.cfg", text); }

  Banco b;
  StatoApplicazione& s = b.C.Stato;
};

TEST_F(Descriptor, IsWrittenInItsEightLines) {
  s.ProjectName = "Città";
  s.PlayerName = "KVR5";
  s.PlayerType = 4;
  s.PlayerConfig = 0;
  s.PlayerConfigDesc = "KVR5 (Inputs)";
  s.PlayerMode = 1;
  s.Analyzer = 0;
  EXPECT_TRUE(SalvaDescrittoreProgetto(b.C));
  EXPECT_EQ(Text(),
            "[CONFIG]\r\nProjectName=Citt\xE0\r\nPlayerName=KVR5\r\nPlayerType=4\r\n"
            "PlayerConfig=0\r\nPlayerConfigDesc=KVR5 (Inputs)\r\nPlayerMode=1\r\nAnalyzer=0\r\n");
}

TEST_F(Descriptor, AnEmptyNameBecomesTheFoldersInTheFileAndInTheState) {
  SalvaDescrittoreProgetto(b.C);
  EXPECT_EQ(s.ProjectName, "Lift-A");
  EXPECT_NE(Text().find("ProjectName=Lift-A\r\n"), std::string::npos);
  Put("[CONFIG]\r\nProjectName=\r\n");
  s.ProjectName = "other";
  LeggiDescrittore(b.C);
  EXPECT_EQ(s.ProjectName, "Lift-A");
}

TEST_F(Descriptor, ARewriteDropsUse485) {
  s.ProjectName = "x";
  SalvaDescrittoreProgetto(b.C);
  EXPECT_FALSE(LeggiUse485(b.C));
  ScriviParametroIni(b.C, b.Percorso("Lift-A/config.cfg"), "Config", "Use485", "1");
  EXPECT_TRUE(LeggiUse485(b.C));
  SalvaDescrittoreProgetto(b.C);
  EXPECT_EQ(Text().find("Use485"), std::string::npos);
  EXPECT_FALSE(LeggiUse485(b.C));
}

TEST_F(Descriptor, Use485IsOnForTheNumberOneOnly) {
  for (const auto& [value, on] : {std::pair{"1", true},
                                  {"01", true},
                                  {" 1 ", true},
                                  {"0", false},
                                  {"2", false},
                                  {"yes", false},
                                  {"", false}}) {
    Put("[CONFIG]\r\nUse485=" + std::string(value) + "\r\n");
    EXPECT_EQ(LeggiUse485(b.C), on) << value;
  }
}

TEST_F(Descriptor, TheStoredPlayerNameIsNeverRead) {
  Put("[Config]\r\nProjectName=x\r\nPlayerName=Zub\r\nPlayerType=4\r\n");
  LeggiDescrittore(b.C);
  EXPECT_EQ(s.PlayerType, 4);
  EXPECT_EQ(s.PlayerName, "KVR5");
}

TEST_F(Descriptor, AModelOutsideTheFourHasNoName) {
  for (const auto& type : {"0", "5", "-3", "999"}) {
    Put("[CONFIG]\r\nPlayerType=" + std::string(type) + "\r\n");
    LeggiDescrittore(b.C);
    EXPECT_EQ(s.PlayerName, "") << type;
  }
}

TEST_F(Descriptor, NumbersThatAreMissingOrBadKeepTheOpenProjectsValues) {
  s.PlayerType = 3;
  s.PlayerConfig = 2;
  s.PlayerMode = 8;
  s.Analyzer = 1;
  Put("[CONFIG]\r\nPlayerType=abc\r\nPlayerMode=99999\r\n");
  LeggiDescrittore(b.C);
  EXPECT_EQ(s.PlayerType, 3);
  EXPECT_EQ(s.PlayerName, "Ostrel");
  EXPECT_EQ(s.PlayerConfig, 2);
  EXPECT_EQ(s.PlayerMode, 8) << "99999 is no 16-bit number";
  EXPECT_EQ(s.Analyzer, 0) << "this one has a default";
  EXPECT_EQ(s.PlayerConfigDesc, "");
}

TEST_F(Descriptor, AnOldFileOfAnotherSpellingIsReplaced) {
  b.Cartella.Write("Lift-A/CONFIG.CFG", "[CONFIG]\r\nUse485=1\r\n");
  s.ProjectName = "x";
  SalvaDescrittoreProgetto(b.C);
  EXPECT_EQ(b.Nomi("Lift-A"), std::vector<std::string>{"Config.cfg"});
}

TEST_F(Descriptor, AFolderThatCannotBeWrittenLeavesAPendingErrorAndStillTrue) {
  s.CartellaProgetto = b.Percorso("gone");
  EXPECT_TRUE(SalvaDescrittoreProgetto(b.C));
  EXPECT_TRUE(b.C.Errore);
}

TEST_F(Descriptor, AReadOnlyOldFileStaysAndIsAPendingError) {
  const std::string old = "[CONFIG]\r\nProjectName=old\r\n";
  Put(old);
  std::filesystem::permissions(b.Cartella.Host() / "Lift-A/Config.cfg",
                               std::filesystem::perms::owner_read);
  EXPECT_TRUE(SalvaDescrittoreProgetto(b.C));
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
  EXPECT_EQ(Text(), old);
  EXPECT_EQ(s.ProjectName, "Lift-A") << "the name is filled in all the same";
  EXPECT_TRUE(b.Finestre.Silenzio());
}

/// A project with an old descriptor on a disk that fails where the test wants.
class DescriptorOnABadDisk : public testing::Test {
 protected:
  void SetUp() override {
    b.Cartella.Write("Lift-A/Config.cfg", "[CONFIG]\r\nProjectName=old\r\n");
    b.C.Stato.CartellaProgetto = b.Percorso("Lift-A");
  }
  std::string Path() { return b.Percorso("Lift-A/Config.cfg"); }
  /// Makes the first operation of this kind on the descriptor fail.
  void FailFirst(const std::string& operation, int error) {
    const std::string old = b.Cartella.Read("Lift-A/Config.cfg");
    for (std::size_t index = 0; index < 20; ++index) {
      b.Cartella.Write("Lift-A/Config.cfg", old);
      faulty->FailOperation(Path(), index, error);
      SalvaDescrittoreProgetto(b.C);
      if (faulty->FailedOperation() != operation) continue;
      b.Cartella.Write("Lift-A/Config.cfg", old);
      b.C.Errore.Clear();
      b.C.Stato.ProjectName.clear();
      faulty->FailOperation(Path(), index, error);
      return;
    }
    FAIL() << "it never came to " << operation;
  }

  std::optional<test::FaultyFileSystem> faulty;
  Banco b{[this](FileSystem& inner) -> FileSystem& { return faulty.emplace(inner); }};
};

TEST_F(DescriptorOnABadDisk, ALockedFolderLeavesTheOldFileDeletedAndNoNewOne) {
  FailFirst("Open", errors::PathFileAccess);
  EXPECT_TRUE(SalvaDescrittoreProgetto(b.C));
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
  EXPECT_EQ(b.C.Stato.ProjectName, "Lift-A");
  EXPECT_TRUE(b.Nomi("Lift-A").empty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(DescriptorOnABadDisk, AFullDiskLeavesNothingOfTheOldTextAndNoHalfOfTheNew) {
  faulty->FailWritesAfter(Path(), 0, errors::DiskFull);
  EXPECT_TRUE(SalvaDescrittoreProgetto(b.C));
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::DiskFull);
  EXPECT_EQ(b.C.Stato.ProjectName, "Lift-A");
  EXPECT_TRUE(!b.Cartella.Exists("Lift-A/Config.cfg") ||
              b.Cartella.Read("Lift-A/Config.cfg").empty());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(DescriptorOnABadDisk, AnOldFileThatCannotBeDeletedIsNeverAddedTo) {
  FailFirst("Delete", errors::PermissionDenied);
  b.C.Stato.ProjectName = "new";
  EXPECT_TRUE(SalvaDescrittoreProgetto(b.C));
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PermissionDenied);
  EXPECT_TRUE(b.Cartella.Read("Lift-A/Config.cfg").starts_with("[CONFIG]\r\nProjectName=new\r\n"));
  EXPECT_EQ(b.Cartella.Read("Lift-A/Config.cfg").find("old"), std::string::npos);
}

TEST_F(Descriptor, ANameIsReadAsIniValuesAre) {
  Put("[CONFIG]\r\nProjectName='Quoted'\r\nPlayerType= 4 \r\nPlayerMode=&H6\r\nAnalyzer=x\r\n");
  s.Analyzer = 1;
  LeggiDescrittore(b.C);
  EXPECT_EQ(s.ProjectName, "Quoted");
  EXPECT_EQ(s.PlayerType, 4);
  EXPECT_EQ(s.PlayerMode, 6);
  EXPECT_EQ(s.Analyzer, 1) << "no number keeps it";
  Put("[CONFIG]\r\nProjectName=" + std::string(150, 'n') + "\r\n");
  LeggiDescrittore(b.C);
  EXPECT_EQ(s.ProjectName.size(), 99U);
}

TEST_F(Descriptor, ACharacterThatThePageLacksIsAQuestionMark) {
  s.ProjectName = "日本 A";
  SalvaDescrittoreProgetto(b.C);
  EXPECT_NE(Text().find("ProjectName=?? A\r\n"), std::string::npos);
}

TEST_F(Descriptor, DamagedFilesKeepTheStateAndStayAsTheyAre) {
  std::string million = "[CONFIG]\r\n";
  for (int i = 0; i < 1000000; ++i) million += "x=1\r\n";
  for (const auto& text : {std::string(), std::string("[CONF"), std::string(10000, '\0'),
                           std::string("\x89PNG\r\n\x1A\n\x00\x01", 10), million}) {
    s.PlayerType = 4;
    s.PlayerMode = 6;
    Put(text);
    LeggiDescrittore(b.C);
    EXPECT_EQ(s.PlayerType, 4);
    EXPECT_EQ(s.PlayerMode, 6);
    EXPECT_EQ(s.ProjectName, "Lift-A");
    EXPECT_EQ(Text(), text);
  }
}

}  // namespace
}  // namespace kvr5
