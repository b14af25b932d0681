#include <gtest/gtest.h>

#include "cli/Compagno.h"

namespace kvr5 {
namespace {

using nlohmann::json;
using test::Compagno;

class Verbs : public testing::Test {
 protected:
  std::string Project(const std::string& name = "Hall") const {
    return k.Host("program/Projects/" + name);
  }
  void New(const std::string& mode = "1", const std::string& name = "Hall") {
    ASSERT_EQ(k.Esegui({"new", name, "--mode", mode}).Stato, 0);
  }

  Compagno k;
};

TEST_F(Verbs, NewPrintsTheFolderAndMakesTheWizardsProject) {
  const auto run = k.EseguiJson({"new", "Città", "--mode", "6"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Oggetti(), (std::vector<json>{{{"project", Project("Città")}}}));
  EXPECT_EQ(run.Errori, "");
  EXPECT_NE(k.Cartella.Read("program/Projects/Città/Config.cfg").find("PlayerMode=6\r\n"),
            std::string::npos);
  EXPECT_EQ(k.Esegui({"new", "Two", "--mode=2"}).Uscita, Project("Two") + "\n");
}

TEST_F(Verbs, NewRefusesWithStatus1AndSaysWhy) {
  New();
  for (const char* name : {"Hall", "HALL", "", "a/b", "a:b", "a*b"}) {
    const auto run = k.EseguiJson({"new", name, "--mode", "1"});
    EXPECT_EQ(run.Stato, 1) << name;
    EXPECT_EQ(run.Uscita, "");
    ASSERT_EQ(run.Box().size(), 1U) << name;
    EXPECT_EQ(run.Box()[0].size(), 4U) << "box, title, text, answer";
  }
  EXPECT_EQ(k.EseguiJson({"projects"}).Oggetti().size(), 1U);
}

TEST_F(Verbs, NewWithoutATemplateOrSourceIsStatus3) {
  std::filesystem::remove(k.Cartella.Host() / "program/Defaults/47Config.txt");
  const auto run = k.EseguiJson({"new", "Hall", "--mode", "7"});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_EQ(run.Box().at(0)["title"], "Project not created: a program file is missing");
  std::filesystem::remove(k.Cartella.Host() / "program/source.mdb");
  EXPECT_EQ(k.Esegui({"new", "Hall2", "--mode", "1"}).Stato, 3);
}

TEST_F(Verbs, ProjectsListsNameAndFolderALine) {
  New("1", "beta");
  New("2", "Alfa");
  EXPECT_EQ(k.EseguiJson({"projects"}).Oggetti(),
            (std::vector<json>{{{"name", "Alfa"}, {"folder", Project("Alfa")}},
                               {{"name", "beta"}, {"folder", Project("beta")}}}));
  EXPECT_EQ(k.Esegui({"projects"}).Uscita, "Alfa\nbeta\n");
}

TEST_F(Verbs, AProjectIsANameOrAFolderInEitherForm) {
  New();
  std::filesystem::copy(Project(), k.Host("elsewhere"));
  for (const auto& project : {std::string("Hall"), std::string("HALL"), Project(), Project() + "/",
                              k.Percorso("program/Projects/Hall"), k.Host("elsewhere")}) {
    EXPECT_EQ(k.EseguiJson({"show", project}).Stato, 0) << project;
  }
  for (const auto& project : {std::string("Gone"), k.Host("music"), std::string(""),
                              std::string("X:\\Hall"), std::string("../Projects")}) {
    EXPECT_EQ(k.EseguiJson({"show", project}).Stato, 3) << project;
  }
}

TEST_F(Verbs, AFolderThatIsNoProjectShowsTheMissingFileBox) {
  New();
  std::filesystem::remove(Project() + "/inputcfg.mdb");
  const auto run = k.EseguiJson({"show", "Hall"});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_EQ(run.Box().at(0)["title"], "File of the project missing");
  EXPECT_EQ(run.Box().at(0)["box"], "info");
  EXPECT_NE(run.Box().at(0)["text"].get<std::string>().find("'input.mdb'\n"), std::string::npos);
}

TEST_F(Verbs, ShowGivesOneObject) {
  New();
  k.ScriviMp3("music/a.mp3");
  k.Esegui({"inputs", "Hall", "set", "5", k.Host("music/a.mp3")});
  std::filesystem::remove(k.Host("music/a.mp3"));
  const auto objects = k.EseguiJson({"show", "Hall"}).Oggetti();
  ASSERT_EQ(objects.size(), 1U);
  const auto& shown = objects[0];
  EXPECT_EQ(shown["descriptor"], (json{{"ProjectName", "Hall"},
                                       {"PlayerName", "KVR5"},
                                       {"PlayerType", 4},
                                       {"PlayerConfig", 0},
                                       {"PlayerConfigDesc", "KVR5 (Inputs)"},
                                       {"PlayerMode", 1},
                                       {"Analyzer", 0}}));
  EXPECT_EQ(shown["config"]["LOUT"], "14");
  EXPECT_EQ(shown["config"].size(), 34U);
  EXPECT_EQ(shown["inputs"], 1);
  EXPECT_EQ(shown["tracks"], 0);
  EXPECT_EQ(shown["segments"], 0);
  EXPECT_EQ(shown["spots"], 0);
  EXPECT_EQ(shown["missing"], json::array({k.Host("music/a.mp3")}));
}

TEST_F(Verbs, ShowForPeopleNamesTheWords) {
  New();
  const auto text = k.Esegui({"show", "Hall"}).Uscita;
  EXPECT_NE(text.find("LOUT=14  (0 dB)"), std::string::npos) << text;
  EXPECT_NE(text.find("Kind: KVR5 (Inputs)"), std::string::npos);
}

TEST_F(Verbs, ConfigGetsValuesWithTheirWords) {
  New();
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "get", "lout", "MIRS"}).Oggetti(),
            (std::vector<json>{{{"key", "LOUT"}, {"value", "14"}, {"shown", "0 dB"}},
                               {{"key", "MIRS"}, {"value", "1"}, {"shown", "1 - Restart"}}}));
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "get"}).Oggetti().size(), 34U);
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "get", "ZZZZ"}).Stato, 1);
}

TEST_F(Verbs, ConfigSetsValuesInPlace) {
  New();
  EXPECT_EQ(k.Esegui({"config", "Hall", "set", "LOUT=20", "tpcm=007", "PYDL=240"}).Stato, 0);
  const auto text = k.Cartella.Read("program/Projects/Hall/Config.txt");
  EXPECT_NE(text.find("\r\nLOUT=20\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\r\nTPCM=007\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\nPYDL=240\r\n"), std::string::npos);
}

TEST_F(Verbs, OneRefusedValueAndNothingOfTheCallIsWritten) {
  New("2");
  const auto before = k.Cartella.Read("program/Projects/Hall/Config.txt");
  for (const char* bad : {"LOUT=21", "TFIN=0", "TAVC=5", "ZZZZ=1", "MOMN=1", "IMOD=1", "TPCM=5",
                          "PYDL=0", "MPLL=6", "CMAD=1", "LTRE="}) {
    const auto run = k.EseguiJson({"config", "Hall", "set", "LBAS=3", bad, "LLOU=3"});
    EXPECT_EQ(run.Stato, 1) << bad;
    EXPECT_EQ(run.Box().size(), 1U) << bad;
    EXPECT_EQ(run.Uscita, "");
    EXPECT_EQ(k.Cartella.Read("program/Projects/Hall/Config.txt"), before) << bad;
  }
}

TEST_F(Verbs, ConfigOfAReadOnlyFileIsStatus1) {
  New();
  std::filesystem::permissions(Project() + "/Config.txt", std::filesystem::perms::owner_read);
  EXPECT_EQ(k.EseguiJson({"config", "Hall", "set", "LOUT=1"}).Stato, 1);
}

TEST_F(Verbs, InputsAreSetListedAndCleared) {
  New();
  k.ScriviMp3("music/Door.MP3");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "IN1+IN3", k.Host("music/door.mp3")}).Stato, 0);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "1", k.Percorso("music/Door.MP3")}).Stato, 0);
  EXPECT_EQ(k.EseguiJson({"inputs", "Hall", "list"}).Oggetti(),
            (std::vector<json>{{{"Pos", 1},
                                {"Alias", "1.mp3"},
                                {"FileName", "Door.MP3"},
                                {"FilePath", k.Percorso("music") + "\\"}},
                               {{"Pos", 5},
                                {"Alias", "5.mp3"},
                                {"FileName", "Door.MP3"},
                                {"FilePath", k.Percorso("music") + "\\"}}}))
      << "the spelling of the disk is what is stored";
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "clear", "5"}).Stato, 0);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "clear", "5"}).Stato, 0) << "a free code";
  EXPECT_EQ(k.EseguiJson({"inputs", "Hall", "list"}).Oggetti().size(), 1U);
}

TEST_F(Verbs, InputsRefuseWhatTheHubRefuses) {
  New();
  k.ScriviMp3("music/a.wav");
  k.Cartella.Write("music/junk.mp3", std::string(5000, 'x'));
  k.Cartella.Write("music/empty.mp3", "");
  k.ScriviMp3("music/bar|.mp3");
  std::filesystem::create_directories(k.Host("music/folder.mp3"));
  for (const char* name :
       {"a.wav", "junk.mp3", "empty.mp3", "gone.mp3", "folder.mp3", "bar|.mp3"}) {
    const auto run = k.EseguiJson({"inputs", "Hall", "set", "1", k.Host("music/") + name});
    EXPECT_EQ(run.Stato, 1) << name;
    EXPECT_EQ(run.Box().size(), 1U) << name;
  }
  EXPECT_TRUE(k.EseguiJson({"inputs", "Hall", "list"}).Oggetti().empty());
}

TEST_F(Verbs, WithRs485InUseTheInputs5And6AreRefused) {
  New();
  k.ScriviMp3("music/a.mp3");
  const auto descriptor = k.Cartella.Read("program/Projects/Hall/Config.cfg");
  k.Cartella.Write("program/Projects/Hall/Config.cfg", descriptor + "Use485=1\r\n");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "16", k.Host("music/a.mp3")}).Stato, 1);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "IN6+IN1", k.Host("music/a.mp3")}).Stato, 1);
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "set", "15", k.Host("music/a.mp3")}).Stato, 0);
}

TEST_F(Verbs, InputsOfAProjectWithoutTheirDatabaseAreStatus3) {
  New("5");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "list"}).Stato, 3);
  std::filesystem::copy(k.Host("program/source.mdb"), Project() + "/inputcfg.mdb");
  EXPECT_EQ(k.Esegui({"inputs", "Hall", "list"}).Stato, 0) << "whatever the mode hides";
}

TEST_F(Verbs, NoVerbLeavesASideFileOrWritesTheLastFolder) {
  New();
  k.ScriviMp3("music/a.mp3");
  k.Esegui({"inputs", "Hall", "set", "1", k.Host("music/a.mp3")});
  k.Esegui({"show", "Hall"});
  EXPECT_EQ(k.Nomi("program/Projects/Hall"),
            (std::vector<std::string>{"Config.cfg", "Config.txt", "KVR5.gif", "inputcfg.mdb"}));
  EXPECT_EQ(k.Cartella.Read("program/KVR5Software.ini").find("LastMp3Dir"), std::string::npos);
}

}  // namespace
}  // namespace kvr5
