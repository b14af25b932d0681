#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "reports/FinePagina.h"
#include "reports/Report.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"

namespace kvr5 {
namespace {

using test::kTail;

/// A project named Hall, with a template of the test's own.
class Reports : public testing::Test {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 1);
    Template("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\n</BODY>\r\n</HTML>\r\n");
  }
  /// The template in use, and images beside it.
  void Template(const std::string& text) { b.Cartella.Write("program/Report/report.htm", text); }
  void InProject(const std::string& name, const std::string& text) {
    b.Cartella.Write("program/Projects/Hall/" + name, text);
  }
  std::string Project(const std::string& name) const {
    return b.Percorso("program/Projects/Hall/" + name);
  }
  std::string Read(const std::string& name) const {
    return b.Cartella.Read("program/Projects/Hall/" + name);
  }
  /// Writes a report of one line, "first, and longer", then another of the same name, "second".
  void WriteTwice(const std::string& name) {
    for (const char* line : {"first, and longer", "second"}) {
      ApriReport(b.C, name, "");
      ScriviRigaReport(b.C, line);
      ChiudiReport(b.C);
    }
  }
  /// What a report consists of when `fill` has run, without the template's and the closing lines.
  template <typename Fill>
  std::string Lines(Fill fill) {
    Template("");
    ApriReport(b.C, "x", "");
    fill();
    ChiudiReport(b.C);
    std::string text = Read("x.htm");
    EXPECT_TRUE(text.ends_with(kTail)) << text;
    return text.substr(0, text.size() - std::string(kTail).size());
  }

  std::unique_ptr<test::FaultyFileSystem> faulty;
  test::Banco b{[this](FileSystem& disk) -> FileSystem& {
    faulty = std::make_unique<test::FaultyFileSystem>(disk);
    return *faulty;
  }};
};

TEST_F(Reports, AreNamedAfterTheProjectWhereNoNameIsGiven) {
  b.C.Stato.ProjectName = "Museum";
  ApriReport(b.C, "", "no effect");
  EXPECT_EQ(b.C.Stato.FileReport, Project("Museum.htm"));
  EXPECT_TRUE(b.C.Stato.ReportAperto);
  ScriviRigaReport(b.C, "a line");
  ChiudiReport(b.C);
  EXPECT_FALSE(b.C.Stato.ReportAperto);
  EXPECT_EQ(Read("Museum.htm"),
            "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\na line\r\n</BODY>\r\n</HTML>\r\n");
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(Reports, TheSecondOfTwoOfOneNameIsTheOnlyOne) {
  WriteTwice("x");
  EXPECT_EQ(Read("x.htm").find("first"), std::string::npos);
  EXPECT_NE(Read("x.htm").find("second\r\n"), std::string::npos);
}

TEST_F(Reports, BringTheImagesOfTheTemplateIntoAFolderThatLacksThem) {
  b.Cartella.Write("program/Report/logo_menu.jpg", "logo");
  b.Cartella.Write("program/Report/sf_menu.jpg", "ground");
  InProject("sf_menu.jpg", "the user's own");
  ApriReport(b.C, "x", "");
  ChiudiReport(b.C);
  EXPECT_EQ(Read("logo_menu.jpg"), "logo");
  EXPECT_EQ(Read("sf_menu.jpg"), "the user's own");
}

TEST_F(Reports, AnImageThatTheProgramLacksIsAPendingErrorAndNoMore) {
  ASSERT_FALSE(b.Disco.Delete(b.Percorso("program/Report/logo_menu.jpg")));
  ApriReport(b.C, "x", "");
  ChiudiReport(b.C);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::FileNotFound);
  EXPECT_TRUE(Read("x.htm").ends_with(kTail));
}

TEST_F(Reports, WithoutATemplateHaveNoHead) {
  ASSERT_FALSE(b.Disco.Delete(b.Percorso("program/Report/report.htm")));
  ApriReport(b.C, "x", "");
  ScriviRigaReport(b.C, "a line");
  ChiudiReport(b.C);
  EXPECT_EQ(Read("x.htm"), std::string("a line\r\n") + kTail);
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(Reports, ATemplateIsKeptUpToItsClosingTagAndTrimmed) {
  Template("  <HTML>  \n<HEAD>\r\n  <div>\r\n\r\n <Body> \r\n   </body>  \r\nnever\r\n");
  ApriReport(b.C, "x", "");
  ScriviRigaReport(b.C, "more");
  ChiudiReport(b.C);
  EXPECT_EQ(Read("x.htm"),
            std::string("<HTML>\r\n<HEAD>\r\n<div>\r\n\r\n<Body>\r\nmore\r\n") + kTail);
}

TEST_F(Reports, ADivOnOneOfTheFirstTwoLinesOfATemplateIsDroppedAndOnTheThirdKept) {
  const auto page = [this](const std::string& text) {
    Template(text);
    ApriReport(b.C, "y", "");
    ChiudiReport(b.C);
    return Read("y.htm");
  };
  EXPECT_EQ(page("<HTML>\r\n<div>\r\n<div>\r\n"), std::string("<HTML>\r\n<div>\r\n") + kTail);
  EXPECT_EQ(page("<div>\r\n<HTML>\r\n<div>\r\n"), std::string("<HTML>\r\n<div>\r\n") + kTail);
  EXPECT_EQ(page("inDIVidual\r\n<DIV>\r\n<div>\r\n"), std::string("<div>\r\n") + kTail);
}

TEST_F(Reports, AnEmptyTemplateAndOneWithoutABodyAreCopiedAsFarAsTheyGo) {
  EXPECT_EQ(Lines([] {}), "");
  Template("one\r\ntwo\r\nthree");
  ApriReport(b.C, "y", "");
  ChiudiReport(b.C);
  EXPECT_EQ(Read("y.htm"), std::string("one\r\ntwo\r\nthree\r\n") + kTail);
}

TEST_F(Reports, AHugeTemplateIsCopiedWhole) {
  std::string big;
  for (int i = 0; i < 200000; ++i) big += "<!-- a line of a template -->\r\n";
  Template(big);
  ApriReport(b.C, "x", "");
  ChiudiReport(b.C);
  EXPECT_EQ(Read("x.htm"), big + kTail);
}

TEST_F(Reports, TakeTheBodyOfAnotherReport) {
  InProject("other.htm",
            "<HTML>\r\nhead\r\n <body> \r\n<DIV>band</DIV>\r\none\r\n<DIV>kept</DIV>\r\n "
            "</BODY>\r\nno\r\n");
  EXPECT_EQ(Lines([&] { IncludiCorpoHtml(b.C, Project("other.htm")); }),
            "one\r\n<DIV>kept</DIV>\r\n");
}

TEST_F(Reports, TakeNothingOfAReportWithoutABody) {
  InProject("other.htm", "<HTML>\r\n<BODY class='x'>\r\nline\r\n</BODY>\r\n");
  EXPECT_EQ(Lines([&] { IncludiCorpoHtml(b.C, Project("other.htm")); }), "");
  EXPECT_EQ(Lines([&] { IncludiCorpoHtml(b.C, Project("nowhere.htm")); }), "");
  EXPECT_FALSE(b.C.Errore);
}

TEST_F(Reports, ShowATextWithoutItsSectionLineAndItsBlankLines) {
  InProject("t.txt", "[config]\r\n  LOUT=14  \r\n\r\n   \r\nx[CoNfIg]y\r\nLBAS=10\n");
  EXPECT_EQ(Lines([&] { IncludiFileTesto(b.C, Project("t.txt"), true); }),
            "LOUT=14<BR>\r\nLBAS=10<BR>\r\n");
  EXPECT_EQ(Lines([&] { IncludiFileTesto(b.C, Project("t.txt"), false); }),
            "LOUT=14\r\nLBAS=10\r\n");
}

TEST_F(Reports, ShowATextAsItIsAlsoWhereItLooksLikeMarkup) {
  InProject("t.txt", "A=<b>&\"'\xE9\r\n");
  EXPECT_EQ(Lines([&] { IncludiFileTesto(b.C, Project("t.txt"), true); }),
            "A=&lt;b&gt;&amp;&quot;&#39;\xE9<BR>\r\n");
}

TEST_F(Reports, InclusionsDoNothingWhileNoReportIsOpen) {
  InProject("t.txt", "line\r\n");
  const auto before = b.Nomi("program/Projects/Hall");
  IncludiFileTesto(b.C, Project("t.txt"), true);
  IncludiCorpoHtml(b.C, Project("t.txt"));
  IncludiTemplate(b.C, Project("t.txt"));
  EXPECT_FALSE(b.C.Errore);
  EXPECT_EQ(b.Nomi("program/Projects/Hall"), before);
}

TEST_F(Reports, ALineBeforeTheOpeningGoesNowhere) {
  ScriviRigaReport(b.C, "lost");
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::BadFileName);
}

TEST_F(Reports, LetEventsRunWhenTheyAreClosed) {
  ApriReport(b.C, "x", "");
  const int before = b.Messaggi.Volte;
  ChiudiReport(b.C);
  EXPECT_EQ(b.Messaggi.Volte, before + 1);
}

TEST_F(Reports, ANameThatLeadsOutOfTheFolderWritesNothing) {
  b.C.Stato.ProjectName = "..\\..\\evil";
  ApriReport(b.C, "", "");
  ScriviRigaReport(b.C, "line");
  ChiudiReport(b.C);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::BadFileName);
  EXPECT_EQ(b.C.Stato.FileReport, "");
  EXPECT_FALSE(b.Cartella.Exists("program/evil.htm"));
}

TEST_F(Reports, AReadOnlyReportStaysAndIsTold) {
  InProject("x.htm", "old");
  std::filesystem::permissions(b.Cartella.Host() / "program/Projects/Hall/x.htm",
                               std::filesystem::perms::owner_read);
  ApriReport(b.C, "x", "");
  ScriviRigaReport(b.C, "new");
  ChiudiReport(b.C);
  EXPECT_EQ(Read("x.htm"), "old");
  EXPECT_TRUE(b.C.Errore);
}

TEST_F(Reports, OfAHiddenNameReplaceTheOldOneToo) {
  WriteTwice(".Hall");
  EXPECT_EQ(Read(".Hall.htm").find("first"), std::string::npos);
}

TEST_F(Reports, TellWhetherTheyAreWhole) {
  ApriReport(b.C, "x", "");
  ChiudiReport(b.C);
  EXPECT_TRUE(b.C.Stato.ReportIntero);
  ASSERT_FALSE(b.Disco.CreateFolder(Project("y.htm")));
  ApriReport(b.C, "y", "");
  ChiudiReport(b.C);
  EXPECT_FALSE(b.C.Stato.ReportIntero);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess) << "the cause, not its followers";
}

TEST_F(Reports, ShowATextOfAHundredThousandLinesWhole) {
  std::string text;
  std::string shown;
  for (int i = 0; i < 100000; ++i) {
    text += "K" + std::to_string(i) + "=1\r\n";
    shown += "K" + std::to_string(i) + "=1<BR>\r\n";
  }
  InProject("t.txt", text);
  EXPECT_EQ(Lines([&] { IncludiFileTesto(b.C, Project("t.txt"), true); }), shown);
}

TEST_F(Reports, AreNotWholeWhereALineCantBeWritten) {
  for (const std::uint64_t room : {0U, 20U, 90U}) {
    SCOPED_TRACE(room);
    b.C.Errore.Clear();
    faulty->Repair();
    faulty->FailWritesAfter(Project("x.htm"), room, errors::DiskFull);
    ApriReport(b.C, "x", "");
    for (int i = 0; i < 10; ++i) ScriviRigaReport(b.C, "a line");
    ChiudiReport(b.C);
    EXPECT_FALSE(b.C.Stato.ReportIntero);
    EXPECT_EQ(b.C.Errore.Last().Number(), errors::DiskFull);
  }
  faulty->Repair();
  WriteTwice("x");
  EXPECT_TRUE(b.C.Stato.ReportIntero) << "the next one may be";
}

TEST_F(Reports, ReplaceTheOldOneWhereItCantBeDeletedAndTellOfIt) {
  InProject("x.htm", "a longer page than the new one by far");
  Template("");
  faulty->FailOperation(b.Percorso("program/Projects/Hall/x.htm"), 1, errors::PathFileAccess);
  ApriReport(b.C, "x", "");
  EXPECT_EQ(faulty->FailedOperation(), "Delete");
  ChiudiReport(b.C);
  EXPECT_EQ(Read("x.htm"), kTail);
  EXPECT_TRUE(b.C.Stato.ReportIntero);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
}

TEST_F(Reports, TellTheCauseAlsoWhereTheImagesAreMissingToo) {
  ASSERT_FALSE(b.Disco.Delete(b.Percorso("program/Report/logo_menu.jpg")));
  ASSERT_FALSE(b.Disco.CreateFolder(Project("y.htm")));
  ApriReport(b.C, "y", "");
  ChiudiReport(b.C);
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PathFileAccess);
}

TEST_F(Reports, KeepCharactersThatThePageLacks) {
  EXPECT_EQ(Lines([&] { ScriviRigaReport(b.C, "Caffè €, ř, 日本"); }),
            "Caff\xE8 \x80, &#345;, &#26085;&#26412;\r\n");
}

TEST_F(Reports, OnAHostOfAnotherPageOnlyAsciiIsWrittenAsItIs) {
  b.C.Luogo.AnsiCodePage = 1250;
  EXPECT_EQ(Lines([&] { ScriviRigaReport(b.C, "Caffè, ř"); }), "Caff&#232;, &#345;\r\n");
}

}  // namespace
}  // namespace kvr5
