#include "schedule/BancoPalinsesto.h"
#include "schedule/FilePalinsesto.h"

namespace kvr5 {
namespace {

/// Files of the schedule, from spots that stand in no database.
class ScheduleFiles : public test::BancoPalinsesto {
 protected:
  void SetUp() override { Progetto(3, 3); }
  void Write(bool one, const std::vector<FilePalinsesto::Spot>& spots) {
    ListeDiTesto lists(b.C);
    FilePalinsesto file(lists, one);
    for (const auto& each : spots) file.Aggiungi(each);
    file.Fine();
    lists.Scrivi();
  }
  /// The one file, of a single spot.
  std::string One(const FilePalinsesto::Spot& spot) {
    Write(true, {spot});
    return Leggi("PALIN.TXT");
  }
  std::string Days() const {
    std::string all;
    for (int day = 1; day <= 7; ++day) {
      const std::string text = Leggi(std::to_string(day) + ".pal");
      if (!text.empty()) all += std::to_string(day) + ": " + text;
    }
    return all;
  }
};

TEST_F(ScheduleFiles, ALineIsTheStartAndEachSpotBetweenTwoTabs) {
  Write(true, {{"08:30:00", "3", "1", "F3-0011.mp3"}, {"08:30:00", "3", "1", "F3-0012.mp3"}});
  EXPECT_EQ(Leggi("PALIN.TXT"), "08:30\tF3-0011\t\tF3-0012\t\r\n");
}

TEST_F(ScheduleFiles, EachSegmentHasALineInTheOrderInWhichTheyCome) {
  Write(true, {{"22:00:00", "0", "1", "F0-0011.mp3"},
               {"06:15:00", "0", "2", "F0-0021.mp3"},
               {"06:15:00", "0", "2", "F0-0022.mp3"},
               {"00:00:00", "0", "7", "F0-0031.mp3"}});
  EXPECT_EQ(Leggi("PALIN.TXT"),
            "22:00\tF0-0011\t\r\n06:15\tF0-0021\t\tF0-0022\t\r\n00:00\tF0-0031\t\r\n");
}

TEST_F(ScheduleFiles, OfDaysAreSevenAlsoWithoutALine) {
  Write(false, {});
  for (const char* day : {"1", "2", "3", "4", "5", "6", "7"}) {
    EXPECT_TRUE(Ha(std::string(day) + ".pal")) << day;
    EXPECT_EQ(Leggi(std::string(day) + ".pal"), "") << day;
  }
  EXPECT_FALSE(Ha("0.pal"));
  EXPECT_FALSE(Ha("8.pal"));
  EXPECT_FALSE(Ha("PALIN.TXT"));
}

TEST_F(ScheduleFiles, TheOneIsThereAlsoWithoutALine) {
  Write(true, {});
  EXPECT_TRUE(Ha("PALIN.TXT"));
  EXPECT_EQ(Leggi("PALIN.TXT"), "");
  EXPECT_FALSE(Ha("1.pal"));
}

TEST_F(ScheduleFiles, EachDayHasItsOwn) {
  Write(false, {{"08:00:00", "1", "1", "F1-0011.mp3"},
                {"09:00:00", "1", "3", "F1-0021.mp3"},
                {"10:00:00", "7", "2", "F7-0011.mp3"}});
  EXPECT_EQ(Days(), "1: 08:00\tF1-0011\t\r\n09:00\tF1-0021\t\r\n7: 10:00\tF7-0011\t\r\n");
}

TEST_F(ScheduleFiles, DaysThatAreNotOfTheWeekHaveNone) {
  Write(false, {{"08:00:00", "0", "1", "F0-0011.mp3"},
                {"08:00:00", "8", "2", "F8-0011.mp3"},
                {"08:00:00", "9", "3", "F9-0011.mp3"},
                {"08:00:00", "-1", "4", "F-1-0011.mp3"},
                {"", "", "5", "F-0011.mp3"}});
  EXPECT_EQ(Days(), "");
}

TEST_F(ScheduleFiles, TheOneHoldsWhateverDayThereIs) {
  Write(true, {{"08:00:00", "0", "1", "F0-0011.mp3"}, {"09:00:00", "5", "2", "F5-0011.mp3"}});
  EXPECT_EQ(Leggi("PALIN.TXT"), "08:00\tF0-0011\t\r\n09:00\tF5-0011\t\r\n");
}

TEST_F(ScheduleFiles, OfADayOfTwoDigitsLoseTheFirstOne) {
  EXPECT_EQ(One({"08:00:00", "12", "1", "F12-0011.mp3"}), "208:00\tF12-0011\t\r\n");
  Write(false, {{"08:00:00", "12", "1", "F12-0011.mp3"}});
  EXPECT_EQ(Days(), "1: 208:00\tF12-0011\t\r\n");
}

TEST_F(ScheduleFiles, ASegmentWhoseDayChangesIsOneLineOfTheFirst) {
  Write(false, {{"08:00:00", "2", "5", "F2-0011.mp3"}, {"08:00:00", "3", "5", "F3-0011.mp3"}});
  EXPECT_EQ(Days(), "2: 08:00\tF2-0011\t\tF3-0011\t\r\n");
}

TEST_F(ScheduleFiles, AnAliasLosesItsEndingWhereverAndHoweverItStands) {
  EXPECT_EQ(One({"08:30:00", "0", "1", "F0.MP3-0011.Mp3.mp3x"}), "08:30\tF0-0011x\t\r\n");
  EXPECT_EQ(One({"08:30:00", "0", "1", ".mp3"}), "08:30\t\t\r\n");
  EXPECT_EQ(One({"08:30:00", "0", "1", ""}), "08:30\t\t\r\n");
  EXPECT_EQ(One({"08:30:00", "0", "1", "F0-0011.mp"}), "08:30\tF0-0011.mp\t\r\n");
}

TEST_F(ScheduleFiles, TheTimeIsFiveCharactersWithAColon) {
  EXPECT_EQ(One({"00:00:00", "0", "1", "a"}), "00:00\ta\t\r\n");
  EXPECT_EQ(One({"23:59:59", "0", "1", "a"}), "23:59\ta\t\r\n");
  EXPECT_EQ(One({"2019-03-04 21:05:00", "0", "1", "a"}), "21:05\ta\t\r\n");
}

TEST_F(ScheduleFiles, ASegmentWithoutATimeHasNoneInItsLine) {
  Write(false, {{"", "4", "1", "F4-0011.mp3"}, {"", "4", "1", "F4-0012.mp3"}});
  EXPECT_EQ(Days(), "4: \tF4-0011\t\tF4-0012\t\r\n");
}

TEST_F(ScheduleFiles, OldLinesAreGone) {
  b.Cartella.Write("program/Projects/Hall/PALIN.TXT", std::string(500, 'x'));
  EXPECT_EQ(One({"08:30:00", "0", "1", "a"}), "08:30\ta\t\r\n");
}

}  // namespace
}  // namespace kvr5
