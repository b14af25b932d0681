#include <gtest/gtest.h>

#include "platform/FileOps.h"
#include "projects/FattiProgetto.h"
#include "projects/RigheProgetti.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"

namespace kvr5 {
namespace {

using test::Banco;

class ProjectRows : public testing::Test {
 protected:
  void Project(const std::string& name, const std::string& descriptor) {
    b.Cartella.Write("program/Projects/" + name + "/Config.cfg", descriptor);
    b.Cartella.Write("program/Projects/" + name + "/Config.txt", "x");
  }
  std::string Folder(const std::string& name) { return b.Percorso("program/Projects/" + name); }
  /// The time of the last change of a project's file, in seconds since 1970.
  void Touch(const std::string& name, std::int64_t seconds) {
    auto file = b.Disco.Open(b.Percorso("program/Projects/" + name), OpenMode::Append);
    ASSERT_TRUE(file);
    ASSERT_FALSE(file.Value()->SetModified(seconds));
    ASSERT_FALSE(file.Value()->Close());
  }

  Banco b;
  RigheProgetti rows{b.C};
};

TEST_F(ProjectRows, AreNoneWithoutProjects) {
  rows.Carica();
  EXPECT_EQ(rows.Quante(), 0U);
  EXPECT_FALSE(rows.Cerca("a"));
  EXPECT_FALSE(rows.CercaDa("a", 1));
}

TEST_F(ProjectRows, AreNoneWithoutTheProjectsFolder) {
  b.C.Stato.CartellaProgetti = b.Percorso("gone");
  rows.Carica();
  EXPECT_EQ(rows.Quante(), 0U);
}

TEST_F(ProjectRows, NameTheFoldersThatHoldBothFiles) {
  Project("b", "[CONFIG]\r\n");
  Project("A", "[CONFIG]\r\n");
  b.Cartella.Write("program/Projects/half/Config.cfg", "[CONFIG]\r\n");
  rows.Carica();
  ASSERT_EQ(rows.Quante(), 2U);
  EXPECT_EQ(rows.Nome(0), "A");
  EXPECT_EQ(rows.Nome(1), "b");
  EXPECT_EQ(rows.Cartella(1), Folder("b"));
}

TEST_F(ProjectRows, TellTheModelByItsDescriptionOrByItsName) {
  Project("a", "[CONFIG]\r\nPlayerType=4\r\nPlayerConfigDesc=KVR5 (Inputs)\r\n");
  Project("b", "[CONFIG]\r\nPlayerType=2\r\n");
  Project("c", "[CONFIG]\r\nPlayerType=nine\r\n");
  Project("d", "");
  rows.Carica();
  EXPECT_EQ(rows.Modello(0), "KVR5 (Inputs)");
  EXPECT_EQ(rows.Modello(1), "Zub");
  EXPECT_EQ(rows.Modello(2), "");
  EXPECT_EQ(rows.Modello(3), "");
}

TEST_F(ProjectRows, TellTheNewerOfTheTwoFilesTimes) {
  Project("a", "[CONFIG]\r\n");
  Project("b", "[CONFIG]\r\n");
  Touch("a/Config.cfg", 1'000'000'000);
  Touch("a/Config.txt", 1'100'000'000);
  Touch("b/Config.cfg", 1'200'000'000);
  Touch("b/Config.txt", 1'100'000'000);
  rows.Carica();
  EXPECT_EQ(rows.Modificato(0), 1'100'000'000);
  EXPECT_EQ(rows.Modificato(1), 1'200'000'000);
  EXPECT_EQ(rows.Quando(0).substr(0, 5), "2004-");
}

TEST_F(ProjectRows, AreReadWhenTheyAreAskedForAndOnce) {
  test::FaultyFileSystem* faulty = nullptr;
  std::unique_ptr<test::FaultyFileSystem> owner;
  Banco other([&](FileSystem& files) -> FileSystem& {
    owner = std::make_unique<test::FaultyFileSystem>(files);
    faulty = owner.get();
    return *owner;
  });
  for (const char* name : {"a", "b"}) {
    const std::string folder = std::string("program/Projects/") + name;
    other.Cartella.Write(folder + "/Config.cfg", "[CONFIG]\r\nPlayerType=4\r\n");
    other.Cartella.Write(folder + "/Config.txt", "x");
  }
  RigheProgetti list(other.C);
  list.Carica();
  EXPECT_EQ(list.Modello(0), "KVR5");
  faulty->VanishAfter("", 0);
  EXPECT_EQ(list.Modello(0), "KVR5") << "what was read is kept";
  EXPECT_EQ(list.Modello(1), "") << "it wasn't read before";
  EXPECT_EQ(list.Quando(1), "");
}

TEST_F(ProjectRows, AProjectThatWentAwayIsToldEmptyAndNothingIsMade) {
  Project("a", "[CONFIG]\r\n");
  rows.Carica();
  std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/a");
  EXPECT_EQ(rows.Modello(0), "");
  EXPECT_FALSE(rows.Modificato(0));
  EXPECT_EQ(rows.Quando(0), "");
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/a"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ProjectRows, ALoadReadsAllAfresh) {
  Project("a", "[CONFIG]\r\nPlayerType=1\r\n");
  rows.Carica();
  EXPECT_EQ(rows.Modello(0), "Veskadro");
  Project("a", "[CONFIG]\r\nPlayerType=3\r\n");
  EXPECT_EQ(rows.Modello(0), "Veskadro");
  rows.Carica();
  EXPECT_EQ(rows.Modello(0), "Ostrel");
}

TEST_F(ProjectRows, LeaveTheStateAsItIs) {
  Project("a", "[CONFIG]\r\nProjectName=x\r\nPlayerType=1\r\nPlayerConfigDesc=y\r\n");
  b.C.Stato.PlayerType = 4;
  b.C.Stato.ProjectName = "mine";
  rows.Carica();
  rows.Modello(0);
  EXPECT_EQ(b.C.Stato.PlayerType, 4);
  EXPECT_EQ(b.C.Stato.ProjectName, "mine");
  EXPECT_EQ(b.C.Stato.PlayerConfigDesc, "");
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(ProjectRows, AreFoundByTheirBeginningThenByAnyPart) {
  for (const char* name : {"Lift-A", "Museum-Hall-2", "My hall", "hall"}) Project(name, "");
  rows.Carica();  // hall, Lift-A, Museum-Hall-2, My hall
  EXPECT_EQ(rows.Cerca("mus"), 2U);
  EXPECT_EQ(rows.Cerca("HALL"), 0U);
  EXPECT_EQ(rows.Cerca("my"), 3U);
  EXPECT_EQ(rows.Cerca("m"), 2U);
  EXPECT_EQ(rows.Cerca("-a"), 1U);
  EXPECT_EQ(rows.Cerca("-hall"), 2U);
  EXPECT_FALSE(rows.Cerca("zoo"));
  EXPECT_FALSE(rows.Cerca("  "));
}

TEST_F(ProjectRows, ABeginningGoesBeforeAPartThatStandsFurtherUp) {
  for (const char* name : {"A-museum", "Museum"}) Project(name, "");
  rows.Carica();
  EXPECT_EQ(rows.Cerca("museum"), 1U);
}

TEST_F(ProjectRows, AreGoneThroughInTheListsOrderRoundTheEndWhereverTheyHoldTheText) {
  for (const char* name : {"Lift-A", "Museum-Hall-2", "My hall", "hall"}) Project(name, "");
  rows.Carica();  // hall, Lift-A, Museum-Hall-2, My hall
  EXPECT_EQ(rows.CercaDa("HALL", 0), 0U);
  EXPECT_EQ(rows.CercaDa("hall", 1), 2U);
  EXPECT_EQ(rows.CercaDa("hall", 3), 3U);
  EXPECT_EQ(rows.CercaDa("hall", 4), 0U) << "behind the last row comes the first";
  EXPECT_EQ(rows.CercaDa("lift", 2), 1U) << "a single one is found again";
  EXPECT_FALSE(rows.CercaDa("zoo", 1));
  EXPECT_FALSE(rows.CercaDa("  ", 1));
}

TEST_F(ProjectRows, OfThousandsOfProjectsReadTheNamesAlone) {
  constexpr int kMany = 5000;
  for (int i = 0; i < kMany; ++i) Project("p" + std::to_string(10000 + i), "[CONFIG]\r\n");
  rows.Carica();
  ASSERT_EQ(rows.Quante(), 5000U);
  EXPECT_EQ(rows.Nome(4999), "p14999");
  EXPECT_EQ(rows.Cerca("P14999"), 4999U);
}

class ProjectFacts : public ProjectRows {
 protected:
  std::optional<FattiProgetto> Facts(const std::string& descriptor) {
    Project("a", descriptor);
    return LeggiFattiProgetto(b.C, Folder("a"));
  }
};

TEST_F(ProjectFacts, AreNothingWithoutADescriptor) {
  EXPECT_FALSE(LeggiFattiProgetto(b.C, b.Percorso("card")));
  EXPECT_FALSE(LeggiFattiProgetto(b.C, "Q:\\"));
  std::filesystem::create_directories(b.Cartella.Host() / "card/Config.cfg");
  EXPECT_FALSE(LeggiFattiProgetto(b.C, b.Percorso("card"))) << "a folder bears the name";
}

TEST_F(ProjectFacts, TakeTheNameInTheHostsCodePage) {
  const auto facts = Facts("[CONFIG]\r\nProjectName=Citt\xE0\r\n");
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->Nome, "Città");
}

TEST_F(ProjectFacts, CutLongValuesAndDropWhatWouldSteerAScreen) {
  const auto facts = Facts("[CONFIG]\r\nProjectName=a\x1B" + std::string(500, 'x') + "\r\n");
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->Nome.substr(0, 5), "a\xEF\xBF\xBDx");
  EXPECT_EQ(facts->Nome.size(), 101U) << "99 characters, one of them of three bytes";
}

TEST_F(ProjectFacts, OfADescriptorBlownUpByAFaultReadItsBeginningAlone) {
  std::string huge = "[CONFIG]\r\nProjectName=good\r\n";
  huge.resize(std::size_t{100} << 10U, '\0');
  const auto facts = Facts(huge + "\r\nPlayerConfigDesc=too far\r\n");
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->Nome, "good");
  EXPECT_EQ(facts->Modello, "");
}

TEST_F(ProjectFacts, AreNothingWhereTheDescriptorCannotBeRead) {
  std::unique_ptr<test::FaultyFileSystem> owner;
  Banco other([&](FileSystem& files) -> FileSystem& {
    owner = std::make_unique<test::FaultyFileSystem>(files);
    return *owner;
  });
  other.Cartella.Write("card/Config.cfg", "[CONFIG]\r\nProjectName=x\r\n");
  EXPECT_TRUE(LeggiFattiProgetto(other.C, other.Percorso("card")));
  owner->FailReadsAfter(other.Percorso("card"), 0, errors::DeviceIo);
  EXPECT_FALSE(LeggiFattiProgetto(other.C, other.Percorso("card")));
  EXPECT_FALSE(other.C.Errore);
}

}  // namespace
}  // namespace kvr5
