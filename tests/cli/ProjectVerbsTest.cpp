#include "cli/Verbi.h"

namespace kvr5 {
namespace {

using nlohmann::json;
using test::Compagno;
using Verbs = test::Verbi;

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
  EXPECT_EQ(run.Box().at(0)["title"], "Project not complete");
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

TEST_F(Verbs, NewRefusesANameThatTheDescriptorCannotKeep) {
  const auto run = k.EseguiJson({"new", "Музей", "--mode", "1"});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_NE(run.Box()[0]["text"].get<std::string>().find("N°:52\n"), std::string::npos);
  EXPECT_FALSE(k.Cartella.Exists("program/Projects/Музей"));
}

TEST_F(Verbs, ProjectsOfOtherHostsKeepTheBlanksAroundTheirNames) {
  New("1", "A");
  for (const char* name : {"A ", " B"}) std::filesystem::copy(Project("A"), Project(name));
  std::vector<std::string> names;
  for (const auto& line : k.EseguiJson({"projects"}).Oggetti()) names.push_back(line["name"]);
  EXPECT_EQ(names, (std::vector<std::string>{" B", "A", "A "}));
  EXPECT_EQ(k.Esegui({"show", "A "}).Stato, 0);
}

TEST_F(Verbs, ShowTellsADatabaseThatCannotBeRead) {
  New("5");
  k.Cartella.Write("program/Projects/Hall/playlist.mdb", std::string(9000, 'x'));
  const auto run = k.EseguiJson({"show", "Hall"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti().at(0)["tracks"], 0);
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().starts_with("playlist.mdb: "));
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

TEST(ProjectVerbs, AFileOfAProjectThatMayNotBeReadIsNamedWithStatus1) {
  for (const char* name : {"Config.cfg", "Config.txt"}) {
    Compagno k;
    ASSERT_EQ(k.Esegui({"new", "Hall", "--mode", "1"}).Stato, 0);
    const std::string file = k.Host("program/Projects/Hall/") + name;
    std::filesystem::permissions(file, std::filesystem::perms::none);
    k.SenzaDirittiDiRoot();
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"show", "Hall"}, {"config", "Hall", "get"}}) {
      const auto run = k.EseguiJson(words);
      EXPECT_EQ(run.Stato, 1) << name << words[0];
      ASSERT_EQ(run.Box().size(), 1U) << name << words[0];
      EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().starts_with(file)) << run.Errori;
      EXPECT_EQ(run.Uscita, "");
    }
  }
}

TEST(ProjectVerbs, AProjectsFolderThatMayNotBeReadIsNamedWithStatus1) {
  Compagno k;
  const std::string folder = k.Host("program/Projects");
  std::filesystem::permissions(folder, std::filesystem::perms::none);
  k.SenzaDirittiDiRoot();
  const auto run = k.EseguiJson({"projects"});
  std::filesystem::permissions(folder, std::filesystem::perms::all);
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Uscita, "");
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().starts_with(folder)) << run.Errori;
}

}  // namespace
}  // namespace kvr5
