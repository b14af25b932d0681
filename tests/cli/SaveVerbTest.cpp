#include "cli/Verbi.h"

namespace kvr5 {
namespace {

class SaveVerb : public test::Verbi {
 protected:
  void SetUp() override {
    k.ScriviMp3("music/a.mp3", 1);
    k.ScriviMp3("music/b.mp3", 2);
    New();
    Set("5", "a.mp3");
  }
  void Set(const std::string& code, const std::string& name) {
    ASSERT_EQ(k.Esegui({"inputs", "Hall", "set", code, k.Host("music/" + name)}).Stato, 0);
  }
  std::string Read(const std::string& name) const {
    return k.Cartella.Read("program/Projects/Hall/" + name);
  }
  bool Exists(const std::string& name) const {
    return k.Cartella.Exists("program/Projects/Hall/" + name);
  }
};

TEST_F(SaveVerb, SavesAndSaysSo) {
  const auto run = k.EseguiJson({"save", "Hall"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "");
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_EQ(run.Box()[0]["box"], "info");
  EXPECT_EQ(run.Box()[0]["title"], "Project");
  EXPECT_EQ(run.Box()[0]["text"], "Saved.");
  EXPECT_TRUE(Exists("Hall.htm"));
  EXPECT_FALSE(Exists("a.mp3")) << "not without the option";
}

TEST_F(SaveVerb, WritesWhatTheScreensControlsShowRightAfterOpening) {
  k.Cartella.Write("program/Projects/Hall/Config.txt",
                   "[Config]\r\nLOUT=99\r\nMIRS=0\r\nTPCM=007\r\nXTRA=1\r\n");
  EXPECT_EQ(k.Esegui({"save", "Hall"}).Stato, 0);
  EXPECT_TRUE(Read("Config.txt")
                  .starts_with("[Config]\r\nLOUT=14\r\nMIRS=1\r\nTPCM=7\r\nXTRA=1\r\nLLOU=0\r\n"))
      << Read("Config.txt");
}

TEST_F(SaveVerb, CopiesTheFilesOfTheInputsWhereverTheOptionStands) {
  EXPECT_EQ(k.Esegui({"save", "--copy-inputs", "Hall"}).Stato, 0);
  EXPECT_TRUE(k.Cartella.Same("program/Projects/Hall/a.mp3", "music/a.mp3"));
  Set("6", "b.mp3");
  EXPECT_EQ(k.Esegui({"save", "Hall", "--copy-inputs"}).Stato, 0);
  EXPECT_TRUE(Exists("b.mp3"));
}

TEST_F(SaveVerb, AMissingFileIsNamedAndIsStatus1) {
  Set("6", "b.mp3");
  std::filesystem::remove(k.Host("music/b.mp3"));
  const auto run = k.EseguiJson({"save", "Hall", "--copy-inputs"});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Box().size(), 1U) << "and no closing message";
  EXPECT_EQ(run.Box()[0]["title"], "MP3 files not copied");
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().ends_with("\nb.mp3"));
  EXPECT_FALSE(Exists("a.mp3"));
  EXPECT_EQ(k.Esegui({"save", "Hall"}).Stato, 0) << "without the copies it is no matter";
}

TEST_F(SaveVerb, ACopyThatFailsIsToldAndIsStatus1) {
  std::filesystem::create_directories(k.Host("program/Projects/Hall/a.mp3"));
  const auto run = k.EseguiJson({"save", "Hall", "--copy-inputs"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Box().size(), 2U) << "the copy's words, and the closing message";
}

TEST_F(SaveVerb, AFileThatCantBeWrittenIsStatus1) {
  std::filesystem::create_directories(k.Host("program/Projects/Hall/Hall.htm"));
  const auto run = k.EseguiJson({"save", "Hall"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Box().at(0)["box"], "warning");
  EXPECT_EQ(run.Box().at(0)["title"], "Not all was completed: please repeat");
}

TEST_F(SaveVerb, AProjectThatIsNotThereIsStatus3AndWrongWordsAreStatus2) {
  EXPECT_EQ(k.Esegui({"save", "Nowhere"}).Stato, 3);
  EXPECT_EQ(k.Esegui({"save"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"save", "Hall", "Lift"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"save", "Hall", "--copy"}).Stato, 2);
}

using ReportVerb = SaveVerb;

TEST_F(ReportVerb, WritesTheReportAndPrintsItsPath) {
  const auto run = k.Esegui({"report", "Hall"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, Project() + "/Hall.htm\n");
  EXPECT_EQ(run.Errori, "");
  EXPECT_NE(Read("Hall.htm").find("<FONT COLOR='Blue'>5.mp3 </FONT>a.mp3<BR>"), std::string::npos);
  EXPECT_TRUE(
      k.Cartella.Same("program/Projects/Hall/logo_menu.jpg", "program/Report/logo_menu.jpg"));
  EXPECT_EQ(k.EseguiJson({"report", "Hall"}).Oggetti(),
            (std::vector<nlohmann::json>{{{"report", Project() + "/Hall.htm"}}}));
}

TEST_F(ReportVerb, IsInTheLanguageThatIsAskedFor) {
  k.Inizio.insert(k.Inizio.end(), {"--lang", "Italiano"});
  EXPECT_EQ(k.Esegui({"report", "Hall"}).Stato, 0);
  EXPECT_NE(Read("Hall.htm").find("Ingressi logici"), std::string::npos);
}

TEST_F(ReportVerb, ChangesNothingElseOfTheProject) {
  const auto config = Read("Config.txt");
  const auto descriptor = Read("Config.cfg");
  k.Esegui({"report", "Hall"});
  EXPECT_EQ(Read("Config.txt"), config);
  EXPECT_EQ(Read("Config.cfg"), descriptor);
}

TEST_F(ReportVerb, WithoutItsTemplateHasNoHeadAndIsDoneAllTheSame) {
  std::filesystem::remove(k.Host("program/Report/report.htm"));
  EXPECT_EQ(k.Esegui({"report", "Hall"}).Stato, 0);
  EXPECT_TRUE(Read("Hall.htm").starts_with("<CENTER>"));
}

TEST_F(ReportVerb, ThatCantBeWrittenIsStatus1AndNamed) {
  std::filesystem::create_directories(k.Host("program/Projects/Hall/Hall.htm"));
  const auto run = k.EseguiJson({"report", "Hall"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_NE(run.Box().at(0)["text"].get<std::string>().find("Hall.htm: "), std::string::npos);
}

TEST_F(ReportVerb, ThatIsWrittenWithoutSomethingThatBelongsToItIsTold) {
  std::filesystem::remove(k.Host("program/Report/logo_menu.jpg"));
  const auto run = k.EseguiJson({"report", "Hall"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti().at(0)["report"], Project() + "/Hall.htm");
  EXPECT_EQ(run.Box().at(0)["text"],
            "the report is written, but a step of it failed: File not found");
}

TEST_F(ReportVerb, ATableThatCantBeReadIsTold) {
  k.Cartella.Write("program/Projects/Hall/inputcfg.mdb",
                   "no database at all, but long enough to be looked at as one");
  const auto run = k.EseguiJson({"report", "Hall"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Oggetti().at(0)["report"], Project() + "/Hall.htm");
  EXPECT_TRUE(run.Box().at(0)["text"].get<std::string>().starts_with(
      "the report is written, but a step of it failed: "));
}

TEST_F(ReportVerb, AProjectThatIsNotThereIsStatus3) {
  EXPECT_EQ(k.Esegui({"report", "Nowhere"}).Stato, 3);
  EXPECT_EQ(k.Esegui({"report"}).Stato, 2);
}

}  // namespace
}  // namespace kvr5
