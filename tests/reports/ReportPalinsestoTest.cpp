#include <gtest/gtest.h>

#include <string>

#include "core/Lingua.h"
#include "projects/CartellaProgetto.h"
#include "reports/ReportPalinsesto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

/// The page of the schedule, without a template: what is written and no more.
class SchedulePage : public testing::Test {
 protected:
  void Project(std::int16_t mode) {
    b.CreaProgetto("Hall", 3, mode);
    b.Cartella.Write("program/Report/report.htm", "");
    ASSERT_FALSE(base.Open(FileDelProgetto(b.C, "scheduler.mdb")));
  }
  /// A segment; `time` is as in "#08.30#".
  void Segment(const std::string& day, const std::string& time) {
    ASSERT_FALSE(base.Execute("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" + day + "," +
                              time + ")"));
  }
  void Spot(int day, int segment, int pos, const std::string& name) {
    b.AggiungiRiga("scheduler.mdb", day, pos, name, "C:\\Music\\", "", segment);
  }
  std::string Write() {
    ScriviReportPalinsesto(b.C, base);
    return b.Cartella.Read("program/Projects/Hall/Scheduler.htm");
  }
  /// A page of these lines, with its heading and its end.
  static std::string Page(const std::string& lines) {
    return "<CENTER><P><B><FONT COLOR='Blue'><FONT SIZE=+2>Schedule"
           "</FONT></FONT></FONT></B></P></CENTER>\r\n<BR>\r\n" +
           lines + "</BODY>\r\n</HTML>\r\n";
  }
  static std::string Day(const std::string& name) {
    return "<BR><B><FONT COLOR='Blue'>" + name + "</FONT></B><BR>\r\n";
  }
  static std::string At(const std::string& time) {
    return "<BR><LI><FONT COLOR='Blue'>Segment " + time + "</FONT></LI><BR>\r\n";
  }

  test::Banco b;
  Connection base{b.Disco};
};

TEST_F(SchedulePage, OfModeThreeHasEachDayWithItsSegmentsByTime) {
  Project(3);
  Segment("3", "#12.00#");
  Segment("3", "#08.30#");
  Segment("1", "#23.59#");
  Segment("7", "#00.00#");
  Spot(3, 1, 2, "second.mp3");
  Spot(3, 1, 1, "first.mp3");
  Spot(1, 3, 1, "mon.mp3");
  EXPECT_EQ(Write(), Page(Day("Monday") + At("23.59") + "mon.mp3<BR>\r\n" + Day("Wednesday") +
                          At("08.30") + At("12.00") + "first.mp3<BR>\r\nsecond.mp3<BR>\r\n" +
                          Day("Sunday") + At("00.00")));
}

TEST_F(SchedulePage, OfModeTwoHasNoDays) {
  Project(2);
  Segment("0", "#08.30#");
  Segment("0", "#06.00#");
  for (int pos = 8; pos >= 1; --pos) Spot(0, 1, pos, std::to_string(pos) + ".mp3");
  std::string names;
  for (int pos = 1; pos <= 8; ++pos) names += std::to_string(pos) + ".mp3<BR>\r\n";
  EXPECT_EQ(Write(), Page(At("06.00") + At("08.30") + names));
}

TEST_F(SchedulePage, OfAnyOtherModeHasNoDays) {
  Project(3);
  b.C.Stato.PlayerMode = 5;
  Segment("1", "#08.30#");
  Segment("2", "#08.30#");
  EXPECT_EQ(Write(), Page(At("08.30") + At("08.30")));
}

TEST_F(SchedulePage, OfNoSegmentIsItsHeading) {
  Project(3);
  EXPECT_EQ(Write(), Page(""));
}

TEST_F(SchedulePage, OfAClosedDatabaseIsItsHeading) {
  Project(3);
  Segment("1", "#08.30#");
  base.Close();
  EXPECT_EQ(Write(), Page(""));
}

TEST_F(SchedulePage, ShowsNamesAsTheyAre) {
  Project(2);
  Segment("0", "#08.30#");
  Spot(0, 1, 1, "<b>&amp;.mp3");
  Spot(0, 1, 2, "it's \"x\".mp3");
  Spot(0, 1, 3, "citt\xC3\xA0.mp3");
  Spot(0, 1, 4, "\xE6\x97\xA5.mp3");
  EXPECT_EQ(Write(),
            Page(At("08.30") + "&lt;b&gt;&amp;amp;.mp3<BR>\r\nit&#39;s &quot;x&quot;.mp3<BR>\r\n"
                               "citt\xE0.mp3<BR>\r\n&#26085;.mp3<BR>\r\n"));
}

TEST_F(SchedulePage, PassesEmptyPlacesOver) {
  Project(2);
  Segment("0", "#08.30#");
  Spot(0, 1, 1, "a.mp3");
  Spot(0, 1, 2, "");
  Spot(0, 1, 5, "e.mp3");
  Spot(0, 1, 9, "ninth.mp3");
  Spot(0, 1, 0, "zeroth.mp3");
  EXPECT_EQ(Write(), Page(At("08.30") + "a.mp3<BR>\r\ne.mp3<BR>\r\n"));
}

TEST_F(SchedulePage, LacksTheSpotsOfAnotherDayThanTheirSegments) {
  Project(3);
  Segment("3", "#08.30#");
  Spot(0, 1, 1, "hidden.mp3");
  Spot(3, 99, 1, "lost.mp3");
  EXPECT_EQ(Write(), Page(Day("Wednesday") + At("08.30")));
}

TEST_F(SchedulePage, ASegmentWithoutATimeStandsFirstAndHasNone) {
  Project(3);
  Segment("1", "#08.30#");
  Segment("1", "Null");
  EXPECT_EQ(Write(), Page(Day("Monday") + At("") + At("08.30")));
}

TEST_F(SchedulePage, TheNumberNinetyNineOpensNoGroupWhereItComesFirst) {
  Project(3);
  Segment("99", "#08.30#");
  EXPECT_EQ(Write(), Page(At("08.30")));
  Segment("1", "#09.00#");
  EXPECT_EQ(Write(), Page(Day("Monday") + At("09.00") + Day("") + At("08.30")));
}

TEST_F(SchedulePage, ReplacesTheOldOneAndStandsBehindTheTemplate) {
  Project(3);
  b.Cartella.Write("program/Report/report.htm", "<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>\r\n");
  b.Cartella.Write("program/Projects/Hall/Scheduler.htm", std::string(5000, 'o'));
  EXPECT_EQ(Write(), "<HTML>\r\n<BODY>\r\n" + Page(""));
  EXPECT_EQ(b.C.Stato.FileReport, FileDelProgetto(b.C, "Scheduler.htm"));
  EXPECT_FALSE(b.C.Stato.ReportAperto);
}

TEST_F(SchedulePage, IsInTheLanguageOfTheProgram) {
  Project(3);
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  Segment("1", "#08.30#");
  const std::string page = Write();
  EXPECT_NE(page.find("<FONT SIZE=+2>" + TestoLingua(b.C, "0140029") + "<"), std::string::npos);
  EXPECT_NE(page.find(">" + TestoLingua(b.C, "0140023") + " 08.30<"), std::string::npos);
  EXPECT_EQ(page.find("Monday"), std::string::npos);
}

}  // namespace
}  // namespace kvr5
