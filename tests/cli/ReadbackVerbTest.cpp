#include "cli/CardVerb.h"
#include "cli/Terminale.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using nlohmann::json;

constexpr const char* kMissing = "Project not complete";

class ReadbackVerb : public test::CardVerb {
 protected:
  void SetUp() override { RecordHall(); }

  /// Takes Hall away, so that its name is free.
  void FreeTheName() const { std::filesystem::remove_all(Project()); }
  json Folder(const std::string& name) const { return {{"project", Project(name)}}; }
  /// A readback with --json that makes the folder `name` and says nothing.
  void ExpectProject(const Names& words, const std::string& name) const {
    const auto run = k.EseguiJson(words);
    EXPECT_EQ(run.Stato, 0) << testing::PrintToString(words);
    EXPECT_EQ(run.Errori, "");
    EXPECT_EQ(run.Oggetti(), Objects{Folder(name)});
    EXPECT_EQ(k.Nomi("program/Projects/" + name),
              (Names{"Config.cfg", "Config.txt", "a.mp3", "b.mp3", "inputcfg.mdb"}));
  }
  /// A readback that says one thing, prints nothing and makes no folder.
  void ExpectRefusal(int status, const Names& words, const json& box) const {
    const Names before = Projects();
    const auto run = k.EseguiJson(words);
    EXPECT_EQ(run.Stato, status) << testing::PrintToString(words);
    EXPECT_EQ(run.Uscita, "");
    EXPECT_EQ(run.Box(), Objects{box}) << testing::PrintToString(words);
    EXPECT_EQ(Projects(), before);
  }
  void Descriptor(const std::string& lines) const {
    k.Cartella.Write("card/Config.cfg", "[CONFIG]\r\n" + lines);
  }
  static json NotCreated() {
    return Told("info", "Project folder not created",
                "Nothing was copied: the folder for this card's project can't be made.\n"
                "Check the projects folder in Folders and settings, then repeat.\n"
                "System code:52\nBad file name or number");
  }
  std::string OnCard(const std::string& name) const { return k.Cartella.Read("card/" + name); }
  std::string InProject(const std::string& name, const std::string& file) const {
    return k.Cartella.Read("program/Projects/" + name + "/" + file);
  }
};

TEST_F(ReadbackVerb, MakesAFolderOfTheStoredNameAndTellsItInTheHostsForm) {
  FreeTheName();
  ExpectProject({"readback", k.Host("card")}, "Hall");
  EXPECT_EQ(Projects(), Names{"Hall"});
}

TEST_F(ReadbackVerb, ForPeopleItPrintsTheFolder) {
  FreeTheName();
  const auto run = k.Esegui({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Errori, "");
  EXPECT_EQ(run.Righe(), Names{Project()});
}

TEST_F(ReadbackVerb, FilesGetTheirOwnNamesBackAndAreOtherwiseAsOnTheCard) {
  FreeTheName();
  ASSERT_EQ(k.Esegui({"readback", k.Host("card")}).Stato, 0);
  EXPECT_TRUE(k.Cartella.Same("program/Projects/Hall/a.mp3", "card/5.mp3"));
  EXPECT_TRUE(k.Cartella.Same("program/Projects/Hall/b.mp3", "card/1.mp3"));
  for (const char* name : {"Config.cfg", "Config.txt", "inputcfg.mdb"}) {
    EXPECT_TRUE(InProject("Hall", name) == OnCard(name)) << name;
  }
  const auto rows = k.EseguiJson({"inputs", "Hall", "list"}).Oggetti();
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1]["Alias"], "5.mp3");
  EXPECT_EQ(rows[1]["FileName"], "a.mp3");
}

TEST_F(ReadbackVerb, NothingOnTheCardIsChanged) {
  FreeTheName();
  const auto before = test::Fotografa(k.Host("card"));
  ASSERT_EQ(k.Esegui({"readback", k.Host("card")}).Stato, 0);
  ASSERT_EQ(k.Esegui({"readback", k.Host("card"), "--name", "Second"}).Stato, 0);
  ASSERT_EQ(k.Esegui({"readback", k.Host("card")}).Stato, 1);
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host("card"))), Names{});
}

TEST_F(ReadbackVerb, AWriteProtectedCardIsReadBack) {
  std::filesystem::create_directories(k.Host("locked"));
  const auto volume = test::SmallVolume::InMemory(k.Host("locked"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  ASSERT_EQ(k.Esegui({"record", "Hall", k.Host("locked")}).Stato, 0);
  ASSERT_TRUE(volume->Protect());
  FreeTheName();
  ExpectProject({"readback", k.Host("locked")}, "Hall");
}

TEST_F(ReadbackVerb, FoldersOfTheCardComeAlong) {
  FreeTheName();
  k.Cartella.Write("card/notes/deep/today.txt", "text");
  ASSERT_EQ(k.Esegui({"readback", k.Host("card")}).Stato, 0);
  EXPECT_EQ(InProject("Hall", "notes/deep/today.txt"), "text");
}

TEST_F(ReadbackVerb, ATakenNameWithoutAnotherIsStatus1AndMakesNoFolder) {
  const auto before = test::Fotografa(Project());
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Uscita, "");
  ASSERT_EQ(run.Box().size(), 1U) << run.Errori;
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().starts_with("Hall: ")) << run.Errori;
  EXPECT_EQ(Projects(), Names{"Hall"});
  EXPECT_EQ(test::Differenze(before, test::Fotografa(Project())), Names{});
}

TEST_F(ReadbackVerb, ANameIsTakenWhateverItsCase) {
  std::filesystem::rename(Project(), Project("hALL"));
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Box().size(), 1U);
  EXPECT_EQ(Projects(), Names{"hALL"});
}

TEST_F(ReadbackVerb, AnotherNameMakesItsFolderBeforeOrAfterTheCard) {
  ExpectProject({"readback", k.Host("card"), "--name", "Two"}, "Two");
  ExpectProject({"readback", "--name", "Three", k.Host("card")}, "Three");
  ExpectProject({"readback", k.Host("card"), "--name=Four"}, "Four");
  ExpectProject({"readback", "--name=Five = 5", k.Host("card")}, "Five = 5");
  EXPECT_EQ(Projects(), (Names{"Five = 5", "Four", "Hall", "Three", "Two"}));
  EXPECT_NE(InProject("Two", "Config.cfg").find("ProjectName=Hall\r\n"), std::string::npos)
      << "the stored name stays";
}

TEST_F(ReadbackVerb, AnotherNameIsNotAskedForWhereTheStoredOneIsFree) {
  FreeTheName();
  ExpectProject({"readback", k.Host("card"), "--name", "Two"}, "Hall");
  EXPECT_EQ(Projects(), Names{"Hall"});
}

TEST_F(ReadbackVerb, AForbiddenNameIsToldAndIsStatus1) {
  for (const char* name : {"a:b", "../Two", "a\\b", "a?b", "a\"b", "<a", "a|b"}) {
    ExpectRefusal(1, {"readback", k.Host("card"), "--name", name},
                  Said("A name can't hold these characters:  \\ / : ? \" < > |"));
  }
}

TEST_F(ReadbackVerb, ANameThatIsTakenTooIsStatus1) {
  New("1", "Two");
  const json box = Told("info", "Name already in use",
                        "A project folder of this name exists. Choose another name.");
  ExpectRefusal(1, {"readback", k.Host("card"), "--name", "Two"}, box);
  ExpectRefusal(1, {"readback", k.Host("card"), "--name=two"}, box);
  ExpectRefusal(1, {"readback", k.Host("card"), "--name=Hall"}, box);
}

TEST_F(ReadbackVerb, AnEmptyNameIsStatus1) {
  const json box = Told("info", "Name missing", "Write the project's name");
  ExpectRefusal(1, {"readback", k.Host("card"), "--name", ""}, box);
  ExpectRefusal(1, {"readback", k.Host("card"), "--name="}, box);
}

TEST_F(ReadbackVerb, ANameThatNoFolderCanHaveIsToldByTheBoxOfTheFailedFolder) {
  for (const char* name : {" ", "end.", "nul", "a*b"}) {
    ExpectRefusal(1, {"readback", k.Host("card"), "--name", name}, NotCreated());
  }
}

TEST_F(ReadbackVerb, ANameOfDotsMakesNoFolderAnywhere) {
  const auto before = test::Fotografa(k.Host("program"));
  for (const char* name : {".", ".."}) {
    const auto run = k.EseguiJson({"readback", k.Host("card"), "--name", name});
    EXPECT_EQ(run.Stato, 1) << name;
    EXPECT_EQ(run.Uscita, "") << name;
    EXPECT_EQ(run.Box().size(), 1U) << name << run.Errori;
  }
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host("program"))), Names{});
}

TEST_F(ReadbackVerb, AStoredNameThatIsAPathMakesNoFolderAnywhere) {
  const auto before = test::Fotografa(k.Host("program"));
  for (const char* name : {"..\\evil", "sub\\evil", "C:\\evil", "CON"}) {
    Descriptor(std::string("ProjectName=") + name + "\r\n");
    ExpectRefusal(1, {"readback", k.Host("card"), "--name", "Two"}, NotCreated());
  }
  EXPECT_EQ(test::Differenze(before, test::Fotografa(k.Host("program"))), Names{});
}

TEST_F(ReadbackVerb, ACardWithoutDescriptorIsStatus3) {
  std::filesystem::remove(k.Host("card/Config.cfg"));
  ExpectRefusal(
      3, {"readback", k.Host("card")},
      Told("info", kMissing,
           "Missing or incomplete: the file 'config.cfg'\nThe folder can't be opened as a "
           "project. Choose another one."));
  std::filesystem::create_directories(k.Host("empty"));
  const auto text = k.Esegui({"readback", k.Host("empty")});
  EXPECT_EQ(text.Stato, 3);
  EXPECT_TRUE(text.Errori.starts_with("Project not complete: Missing or incomplete: the file "))
      << text.Errori;
  EXPECT_TRUE(std::filesystem::is_empty(k.Host("empty")));
}

TEST_F(ReadbackVerb, ACardWithoutProjectNameIsStatus3) {
  for (const char* lines : {"ProjectName=\r\n", "PlayerType=4\r\n", ""}) {
    Descriptor(lines);
    ExpectRefusal(3, {"readback", k.Host("card")},
                  Told("info", kMissing, "Missing or incomplete: the file 'config.cfg'"));
  }
}

TEST_F(ReadbackVerb, TheMissingFileBoxOfOpeningIsStatus3AndTheCopyStays) {
  FreeTheName();
  std::filesystem::remove(k.Host("card/inputcfg.mdb"));
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(
      run.Box(),
      (Objects{Told("info", kMissing,
                    "Missing or incomplete: the file 'input.mdb'\nThe folder can't be opened as "
                    "a project. Choose another one.")}));
  EXPECT_EQ(k.Nomi("program/Projects/Hall"), (Names{"1.mp3", "5.mp3", "Config.cfg", "Config.txt"}));
}

TEST_F(ReadbackVerb, WhatIsNoCardIsStatus1) {
  k.Cartella.Write("file", "x");
  Drives({"E=" + k.Host("gone")});
  for (const std::string& card :
       {k.Host("gone"), k.Host("file"), std::string("E:"), std::string("X:"), std::string("C:"),
        std::string("a|b"), std::string()}) {
    ExpectNoSuchCard(k.EseguiJson({"readback", card}), card);
  }
  EXPECT_EQ(Projects(), Names{"Hall"});
}

TEST_F(ReadbackVerb, ACardIsAFolderInEitherFormOrALetterInEitherCase) {
  Drives({"E=" + k.Host("card")});
  int number = 0;
  for (const std::string& card : {std::string("E:"), std::string("e:\\"), std::string("e"),
                                  k.Percorso("card"), k.Host("card/")}) {
    const std::string name = "N" + std::to_string(++number);
    ExpectProject({"readback", card, "--name", name}, name);
  }
  GoTo("");
  ExpectProject({"readback", "card", "--name", "Bare"}, "Bare");
}

TEST_F(ReadbackVerb, AProjectsFolderOnADriveWithALetterIsToldInTheHostsForm) {
  Drives({"F=" + k.Host("disk")});
  std::filesystem::create_directories(k.Host("disk/Projects"));
  k.Cartella.Write("program/KVR5Software.ini", "[Path]\r\nProjectsDir=F:\\Projects\r\n");
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  EXPECT_EQ(run.Oggetti(), Objects{(json{{"project", k.Host("disk/Projects/Hall")}})});
}

TEST_F(ReadbackVerb, ACopyThatFailedIsToldAndIsStatus1AndTheRoutineGoesOn) {
  FreeTheName();
  k.Cartella.Write("card/zz.htm", std::string(2'000'000, 'x'));
  const auto volume = test::SmallVolume::InMemory(k.Host("program/Projects"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Box().size(), 1U) << run.Errori;
  EXPECT_EQ(run.Box()[0]["title"], "Copy stopped");
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().ends_with(Project() + "/zz.htm"))
      << run.Errori;
  EXPECT_EQ(run.Oggetti(), Objects{Folder("Hall")}) << "opened as the hub does";
  EXPECT_TRUE(k.Cartella.Exists("program/Projects/Hall/a.mp3"));
}

TEST_F(ReadbackVerb, CtrlCIsStatus1AndLeavesTheCardAsItIs) {
  FreeTheName();
  std::filesystem::resize_file(k.Host("card/5.mp3"), std::uintmax_t{3} << 30U);
  const auto before = std::filesystem::last_write_time(k.Host("card"));
  const Names names = k.Nomi("card");
  test::Terminale person(k.Lavoro({"readback", k.Host("card")}, k.Host("out")));
  ASSERT_TRUE(person.Aspetta("MB/s")) << person.Schermo();
  person.Scrivi("\x03");
  EXPECT_EQ(person.Fine(), 1) << person.Schermo();
  EXPECT_NE(person.Schermo().find("Open from card: Cancelled: the copy of the project is not"),
            std::string::npos)
      << person.Schermo();
  EXPECT_EQ(k.Cartella.Read("out"), "") << "it isn't opened";
  EXPECT_FALSE(k.Cartella.Exists("program/Projects/Hall/5.mp3"));
  EXPECT_EQ(k.Nomi("card"), names);
  EXPECT_EQ(std::filesystem::last_write_time(k.Host("card")), before);
}

TEST_F(ReadbackVerb, ProgramsGetNoProgressLine) {
  FreeTheName();
  test::Terminale person(k.Lavoro({"--json", "readback", k.Host("card")}, k.Host("out")));
  EXPECT_EQ(person.Fine(), 0);
  EXPECT_EQ(person.Schermo(), "");
}

TEST_F(ReadbackVerb, LeavesNoSideFileAndNoOtherChangeInTheProgram) {
  const auto before = test::Fotografa(k.Host("program"));
  ASSERT_EQ(k.Esegui({"readback", k.Host("card"), "--name", "Two"}).Stato, 0);
  std::filesystem::remove_all(Project("Two"));
  Names changed = test::Differenze(before, test::Fotografa(k.Host("program")));
  EXPECT_EQ(changed, Names{"Projects"}) << "the folder that the new one was made in";
}

TEST_F(ReadbackVerb, TakesOneCardAndOneName) {
  const std::string usage = "readback CARD [--name NAME]";
  ExpectUsage({"readback"}, usage);
  ExpectUsage({"readback", "--name", "Two"}, usage);
  ExpectUsage({"readback", k.Host("card"), "--name"}, usage);
  ExpectUsage({"readback", k.Host("card"), k.Host("card")}, usage);
  ExpectUsage({"readback", k.Host("card"), "--nam", "Two"}, usage);
  EXPECT_EQ(Projects(), Names{"Hall"});
  const auto help = k.EseguiJson({"readback", "--help"});
  EXPECT_EQ(help.Stato, 0);
  ASSERT_EQ(help.Oggetti().size(), 1U);
  EXPECT_TRUE(help.Oggetti()[0]["help"].get<std::string>().starts_with(
      "usage: kvr5card [OPTION...] " + usage));
}

}  // namespace
}  // namespace kvr5
