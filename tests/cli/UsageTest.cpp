#include <gtest/gtest.h>

#include "cli/Compagno.h"
#include "cli/Terminale.h"

namespace kvr5 {
namespace {

using test::Compagno;

TEST(Usage, HelpGoesToStandardOutputWithStatus0) {
  const Compagno k;
  const auto run = k.Esegui({"--help"});
  EXPECT_EQ(run.Stato, 0);
  for (const char* verb : {"mp3", "new", "projects", "show", "config", "inputs", "save",
                           "playlists", "schedule", "report", "record"}) {
    EXPECT_NE(run.Uscita.find(verb), std::string::npos) << verb;
    const auto help = k.Esegui({verb, "--help"});
    EXPECT_EQ(help.Stato, 0) << verb;
    EXPECT_EQ(help.Errori, "") << verb;
    EXPECT_NE(help.Uscita.find(std::string("usage: kvr5card [OPTION...] ") + verb),
              std::string::npos);
  }
}

TEST(Usage, TheVersionIsTheProjects) {
  const auto run = Compagno().Esegui({"--version"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "kvr5card " KVR5_VERSION "\n");
}

TEST(Usage, WrongWordsAreStatus2WithHelpOnStandardError) {
  const Compagno k;
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"dance"},
      {"--sing", "projects"},
      {"--yes", "--no", "projects"},
      {"--lang"},
      {"mp3"},
      {"new", "Hall"},
      {"new", "Hall", "--mode", "3"},
      {"new", "Hall", "--mode"},
      {"new", "--mode", "1"},
      {"new", "a", "b", "--mode", "1"},
      {"projects", "x"},
      {"show"},
      {"config", "Hall"},
      {"config", "Hall", "put"},
      {"config", "Hall", "set"},
      {"config", "Hall", "set", "LOUT"},
      {"inputs", "Hall"},
      {"inputs", "Hall", "set", "1"},
      {"inputs", "Hall", "set", "256", "a.mp3"},
      {"inputs", "Hall", "clear", "IN9"},
      {"playlists"},
      {"schedule"},
      {"schedule", "Hall", "list"},
      {"record", "Hall"},
  };
  k.Esegui({"new", "Hall", "--mode", "1"});
  for (const auto& words : wrong) {
    const auto run = k.Esegui(words);
    EXPECT_EQ(run.Stato, 2) << testing::PrintToString(words);
    EXPECT_EQ(run.Uscita, "");
    EXPECT_NE(run.Errori.find("usage:"), std::string::npos) << run.Errori;
  }
}

TEST(Usage, AnOptionBehindTheVerbIsNamedBeforeAnythingIsDone) {
  const Compagno k;
  k.Esegui({"new", "Hall", "--mode", "1"});
  for (const char* option : {"--yes", "--no", "--program", "--lang", "--program=/x", "--lang=x",
                             "--help", "-h", "--version"}) {
    const auto run = k.Esegui({"record", "Hall", k.Host("card"), option});
    EXPECT_EQ(run.Stato, 2);
    const std::string word = option;
    EXPECT_NE(
        run.Errori.find(word.substr(0, word.find('=')) + ": an option stands before the verb"),
        std::string::npos)
        << run.Errori;
  }
  const auto told = k.Esegui({"record", "Hall", k.Host("card"), "--json"});
  EXPECT_EQ(told.Stato, 2);
  EXPECT_NE(told.Box().at(0)["text"].get<std::string>().find("--json: an option stands"),
            std::string::npos);
  EXPECT_TRUE(k.Nomi("card").empty());
}

TEST(Usage, AVerbExplainsItselfUnderBothNamesOfTheOption) {
  const Compagno k;
  const auto page = k.Esegui({"record", "--help"});
  EXPECT_EQ(page.Stato, 0);
  EXPECT_TRUE(page.Uscita.starts_with("usage: kvr5card [OPTION...] record "));
  EXPECT_EQ(k.Esegui({"record", "-h"}).Uscita, page.Uscita);
}

TEST(Usage, ComplaintsAreObjectsForPrograms) {
  const Compagno k;
  for (const auto& words : std::vector<std::vector<std::string>>{
           {"dance"}, {"--sing"}, {"mp3"}, {"new", "Hall", "--mode", "3"}}) {
    const auto run = k.EseguiJson(words);
    EXPECT_EQ(run.Stato, 2);
    ASSERT_EQ(run.Box().size(), 1U);
    EXPECT_NE(run.Box()[0]["text"].get<std::string>().find("usage:"), std::string::npos);
  }
}

TEST(Usage, AProgramFolderThatIsNotThereIsNamedWithStatus3) {
  const Compagno k;
  const auto run = k.EseguiJson({"--program", k.Host("gone"), "projects"});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_NE(run.Box().at(0)["text"].get<std::string>().find(k.Host("gone")), std::string::npos);
  EXPECT_FALSE(k.Cartella.Exists("gone"));
}

TEST(Usage, ALanguageThatIsNotThereIsStatus3) {
  EXPECT_EQ(Compagno().Esegui({"--lang", "Klingon", "projects"}).Stato, 3);
}

TEST(Usage, TheLanguageOfTheWordsCanBeChosen) {
  const Compagno k;
  k.Esegui({"new", "Hall", "--mode", "1"});
  const auto run = k.EseguiJson({"--lang", "Italiano", "new", "Hall", "--mode", "1"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Box().at(0)["title"], "Nome già in uso");
}

TEST(Usage, AProgramFolderWithoutSettingsGetsThemWithItsWarning) {
  const Compagno k;
  std::filesystem::remove(k.Cartella.Host() / "program/KVR5Software.ini");
  const auto run = k.EseguiJson({"projects"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Box().at(0)["box"], "warning");
  EXPECT_EQ(run.Box().at(0)["text"], "Unable to find configuration file.File will be created");
  EXPECT_TRUE(k.Cartella.Exists("program/KVR5Software.ini"));
}

TEST(Usage, WithoutAnyLanguageFileTheFatalBoxIsStatus3) {
  const Compagno k;
  std::filesystem::remove_all(k.Cartella.Host() / "program/Language");
  const auto run = k.EseguiJson({"projects"});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_EQ(run.Box().at(0)["title"], "Language file not found");
}

TEST(Usage, ForProgramsHelpAndVersionAreObjectsToo) {
  const Compagno k;
  EXPECT_EQ(k.EseguiJson({"--version"}).Oggetti(),
            (std::vector<nlohmann::json>{{{"version", KVR5_VERSION}}}));
  for (const auto& words : std::vector<std::vector<std::string>>{{"--help"}, {"mp3", "--help"}}) {
    const auto run = k.EseguiJson(words);
    ASSERT_EQ(run.Oggetti().size(), 1U);
    EXPECT_TRUE(run.Oggetti()[0]["help"].get<std::string>().starts_with("usage: kvr5card"));
  }
}

TEST(Usage, IsJudgedBeforeAProjectIsLookedFor) {
  const Compagno k;
  EXPECT_EQ(k.Esegui({"config", "None", "set", "LOUT"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"config", "None", "set", "ZZZZ=1", "LOUT"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"inputs", "None", "set", "0", "a.mp3"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"config", "None", "set", "LOUT=1"}).Stato, 3);
}

TEST(Usage, ALanguageIsAName) {
  const Compagno k;
  for (const char* name : {"Ital*", "*", "Englis?", "../Language/English", "C:English"}) {
    EXPECT_EQ(k.Esegui({"--lang", name, "projects"}).Stato, 3) << name;
  }
  EXPECT_EQ(k.Esegui({"--lang", "italiano", "projects"}).Stato, 0);
}

TEST(Usage, AFolderThatCannotHoldTheProgramIsNamed) {
  Compagno k;
  std::filesystem::create_directories(k.Host("a:b"));
  std::filesystem::copy_file(KVR5_CARD, k.Host("a:b/kvr5card"));
  k.Inizio = {k.Host("a:b/kvr5card")};
  const auto run = k.Esegui({"projects"});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_NE(run.Errori.find(k.Host("a:b")), std::string::npos) << run.Errori;
}

TEST(Usage, WithoutTheOptionTheProgramIsWhereTheExecutableLies) {
  Compagno k;
  ASSERT_EQ(k.Esegui({"new", "Hall", "--mode", "1"}).Stato, 0);
  std::filesystem::copy_file(KVR5_CARD, k.Host("program/kvr5card"));
  std::filesystem::create_symlink("program/kvr5card", k.Host("short"));
  for (const char* name : {"program/kvr5card", "short"}) {
    k.Inizio = {k.Host(name)};
    const auto run = k.EseguiJson({"projects"});
    EXPECT_EQ(run.Stato, 0) << run.Errori;
    ASSERT_EQ(run.Oggetti().size(), 1U);
    EXPECT_EQ(run.Oggetti()[0]["name"], "Hall");
  }
}

TEST(Usage, StreamsThatComeClosedHangNothing) {
  Compagno k;
  k.ScriviMp3("a.mp3");
  const std::vector<std::string> program = k.Inizio;
  const auto run = [&](const std::string& closed, std::vector<std::string> arguments) {
    const std::string command = "exec " + program[0] + " --program " + program[2] + " \"$@\" ";
    k.Inizio = {"/bin/sh", "-c", command + closed, "sh"};
    return k.Esegui(std::move(arguments), k.Host("a.mp3") + "\n");
  };
  EXPECT_EQ(run("<&-", {"mp3", "-"}).Stato, 0) << "the end of the input";
  EXPECT_EQ(run("<&- >&- 2>&-", {"mp3", "-"}).Stato, 0);
  EXPECT_EQ(run(">&-", {"mp3", "-"}).Stato, 1) << "the result can't be told";
  EXPECT_EQ(run("2>&-", {"mp3", "a|b.mp3"}).Stato, 1);
  const auto folder = run("</", {"mp3", "-"});
  EXPECT_EQ(folder.Stato, 1) << "an input that can't be read isn't at its end";
  EXPECT_NE(folder.Errori.find("can't be read"), std::string::npos);
}

TEST(Usage, ResultsThatCannotBeWrittenAreStatus1) {
  const Compagno k;
  ASSERT_EQ(k.Esegui({"new", "Hall", "--mode", "1"}).Stato, 0);
  for (const auto& words :
       std::vector<std::vector<std::string>>{{"projects"}, {"--version"}, {"show", "--help"}}) {
    test::Terminale terminal(k.Lavoro(words, "/dev/full"));
    EXPECT_EQ(terminal.Fine(), 1);
    EXPECT_NE(terminal.Schermo().find("can't be written"), std::string::npos);
  }
}

}  // namespace
}  // namespace kvr5
