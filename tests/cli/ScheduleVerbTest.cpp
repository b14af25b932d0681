#include "cli/ScheduleVerb.h"

namespace kvr5 {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class ScheduleVerb : public test::ScheduleVerb {
 protected:
  /// A spot as a list shows it.
  json Spot(int id, int pos, int day, char name, const json& alias = nullptr) const {
    return {{"ID", id},
            {"Pos", pos},
            {"NPlaylist", day},
            {"FileName", File(name)},
            {"FilePath", k.Percorso("music") + "\\"},
            {"Alias", alias}};
  }
};

TEST_F(ScheduleVerb, ASegmentIsAnObjectWithItsSpotsAndTheListTellsItsEnd) {
  const auto run = Run("segment add\nspot add 1 " + Music('a') + "\n" + Add(2, 'b') + "list\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Errori, "");
  ASSERT_EQ(run.Righe().size(), 2U) << "all but the list is silent";
  EXPECT_EQ(run.Oggetti()[0], (json{{"ID", 1},
                                    {"NScheduler", 0},
                                    {"StartTime", "00:00"},
                                    {"Spots", {Spot(1, 1, 0, 'a'), Spot(2, 2, 0, 'b')}}}));
  EXPECT_EQ(run.Oggetti()[1], (json{{"end", "list"}, {"rows", 1}}));
}

TEST_F(ScheduleVerb, ADayWithoutSegmentsIsTheEndAlone) {
  const auto run = Run("list\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Oggetti(), (std::vector<json>{{{"end", "list"}, {"rows", 0}}}));
}

TEST_F(ScheduleVerb, ASegmentWithoutSpotsHasNoneInItsArray) {
  const auto run = Run("segment add\nlist\n");
  ASSERT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Oggetti()[0]["Spots"], json::array());
}

TEST_F(ScheduleVerb, TheAliasOfASpotIsNullUntilASaveAssignsIt) {
  Saved("segment add\n" + AddAll("ab"));
  const auto run = Run("list\nsegment add\n" + Add(1, 'c') + "list\n");
  ASSERT_EQ(run.Oggetti().size(), 5U);
  EXPECT_EQ(run.Oggetti()[0]["Spots"],
            (json{Spot(1, 1, 0, 'a', "F0-0011.mp3"), Spot(2, 2, 0, 'b', "F0-0012.mp3")}));
  EXPECT_EQ(run.Oggetti()[3]["Spots"], (json{Spot(3, 1, 0, 'c')}));
}

TEST_F(ScheduleVerb, AListForPeopleShowsTheTimesAndTheFiles) {
  const auto run = k.Esegui({"schedule", "Hall"}, "segment add\n" + AddAll("ab") + "segment add\n" +
                                                      Add(1, 'c') + "list\n");
  EXPECT_EQ(run.Errori, "");
  const auto lines = run.Righe();
  ASSERT_EQ(lines.size(), 5U) << run.Uscita;
  EXPECT_NE(lines[0].find("00:00"), std::string::npos);
  EXPECT_TRUE(lines[1].ends_with(Music('a'))) << lines[1];
  EXPECT_TRUE(lines[2].ends_with(Music('b'))) << lines[2];
  EXPECT_NE(lines[3].find("00:01"), std::string::npos);
  EXPECT_TRUE(lines[4].ends_with(Music('c'))) << lines[4];
}

TEST_F(ScheduleVerb, SegmentsAreListedByTimeWhateverTheOrderOfTheirCreation) {
  Make(kOstrel, kOneSchedule);
  EXPECT_THAT(After("segment add\ntime 20 0\nsegment add\ntime 7 5\nsegment add\n"),
              ElementsAre("2 07:05", "1 20:00", "3 20:01"));
}

TEST_F(ScheduleVerb, ANewSegmentStartsAMinuteAfterTheLatestOfItsDay) {
  Make(kOstrel, kByDay);
  EXPECT_THAT(After("segment add\ntime 8 59\nsegment add\n"), ElementsAre("1 08:59", "2 09:00"));
  const auto lists = Lists(Run("segment add\ntime 12 0\nday 2\nsegment add\nlist\n"));
  ASSERT_EQ(lists.size(), 1U);
  EXPECT_THAT(lists[0], ElementsAre("2 00:00")) << "another day's segments don't count";
}

TEST_F(ScheduleVerb, AfterTheLastMinuteOfADayANewSegmentStartsAtItsBeginning) {
  Make(kOstrel, kOneSchedule);
  EXPECT_THAT(After("segment add\ntime 23 59\nsegment add\n"), ElementsAre("2 00:00", "1 23:59"));
}

TEST_F(ScheduleVerb, OnAKvr5ANewSegmentStaysInHourZero) {
  EXPECT_THAT(After("segment add\ntime 0 59\nsegment add\n"), ElementsAre("2 00:00", "1 00:59"));
}

TEST_F(ScheduleVerb, TheDaysKeepTheirOwnSegments) {
  Make(kOstrel, kByDay);
  std::string commands;
  for (int day = 7; day >= 1; --day) {
    commands += "day " + std::to_string(day) + "\nsegment add\ntime " + std::to_string(day) +
                " 30\n" + Add(1, static_cast<char>('a' + day));
  }
  for (int day = 1; day <= 7; ++day) commands += "day " + std::to_string(day) + "\nlist\n";
  const auto run = Run(commands);
  const auto lists = Lists(run);
  ASSERT_EQ(lists.size(), 7U) << run.Errori;
  for (int day = 1; day <= 7; ++day) {
    const std::string spot(1, static_cast<char>('a' + day));
    const auto& list = lists[static_cast<std::size_t>(day) - 1];
    EXPECT_THAT(list,
                ElementsAre(std::to_string(8 - day) + " 0" + std::to_string(day) + ":30 " + spot));
  }
  for (int row = 0; row < 14; row += 2) {
    const json segment = run.Oggetti()[static_cast<std::size_t>(row)];
    EXPECT_EQ(segment["NScheduler"], row / 2 + 1);
    EXPECT_EQ(segment["Spots"][0]["NPlaylist"], row / 2 + 1);
  }
}

TEST_F(ScheduleVerb, ASessionOfDaysStartsOnMonday) {
  Make(kOstrel, kByDay);
  Saved("day 2\nsegment add\ntime 9 0\nday 1\nsegment add\ntime 10 0\n");
  EXPECT_THAT(After(""), ElementsAre("2 10:00"));
}

TEST_F(ScheduleVerb, ACopyHasTheTimeAndTheSpotsOfItsSourceAndIsTold) {
  const auto run = Run("segment add\n" + AddAll("abc") + "segment copy\nlist\n");
  EXPECT_THAT(Rows(run), UnorderedElementsAre("1 00:00 abc", "2 00:00 abc"));
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_EQ(run.Box()[0], (json{{"box", "info"},
                                {"title", Word("0140038")},
                                {"text", Word("0140039")},
                                {"answer", "ok"}}));
  Saved("segment add\n" + AddAll("abc") + "segment copy\n");
  EXPECT_THAT(Spots(),
              ElementsAre("0/1/1 a", "0/1/2 b", "0/1/3 c", "0/2/3 c", "0/2/2 b", "0/2/1 a"))
      << "the last one was copied first";
}

TEST_F(ScheduleVerb, TheSpotsOfACopyHaveTheDayZeroAndAreNotSeenOnItsDay) {
  Make(kOstrel, kByDay);
  const std::string session = "day 3\nsegment add\n" + AddAll("ab") + "segment copy\n";
  const auto run = Run(session + "list\n");
  EXPECT_THAT(Rows(run), UnorderedElementsAre("1 00:00 ab", "2 00:00"));
  Saved(session);
  EXPECT_THAT(Spots(), ElementsAre("3/1/1 a", "3/1/2 b", "0/2/2 b", "0/2/1 a"));
}

TEST_F(ScheduleVerb, ARemovalAsksAndTakesTheSpotsAlong) {
  Make(kOstrel, kOneSchedule);
  const std::string two = "segment add\ntime 8 5\n" + AddAll("ab") + "segment add\n" + Add(1, 'c') +
                          "segment select 1\n";
  const auto refused = Run(two + "segment remove\nlist\n");
  EXPECT_EQ(refused.Stato, 0);
  EXPECT_THAT(Rows(refused), ElementsAre("1 08:05 ab", "2 08:06 c"))
      << "without an answer it is no";
  ASSERT_EQ(refused.Box().size(), 1U);
  EXPECT_EQ(refused.Box()[0], (json{{"box", "question"},
                                    {"title", Word("0140018")},
                                    {"text", Word("0140019") + " 08.05?"},
                                    {"answer", "no"}}));
  const auto gone = Run(two + "yes\nsegment remove\nlist\n");
  EXPECT_THAT(Rows(gone), ElementsAre("2 08:06 c"));
  ASSERT_EQ(gone.Box().size(), 1U);
  EXPECT_EQ(gone.Box()[0]["answer"], "yes");
  Saved(two + "yes\nsegment remove\n");
  EXPECT_THAT(Spots(), ElementsAre("0/2/1 c"));
}

TEST_F(ScheduleVerb, TheAnswerIsTheLastThatWasSetAndOverTheOptions) {
  const std::string one = "segment add\n";
  EXPECT_THAT(Rows(Run(one + "segment remove\nlist\n", {"--yes"})), IsEmpty());
  EXPECT_EQ(Rows(Run(one + "no\nsegment remove\nlist\n", {"--yes"})).size(), 1U);
  EXPECT_EQ(Rows(Run(one + "segment remove\nlist\n", {"--no"})).size(), 1U);
  EXPECT_THAT(Rows(Run(one + "yes\nsegment remove\nlist\n", {"--no"})), IsEmpty());
  EXPECT_EQ(Rows(Run(one + "yes\nno\nsegment remove\nlist\n")).size(), 1U);
}

/// Which segment is the selected one: the one that the next spot comes into.
class SelectedSegment : public ScheduleVerb {
 protected:
  void SetUp() override {
    ScheduleVerb::SetUp();
    Make(kOstrel, kByDay);
    // By time: 3, 1, 2.
    Saved(
        "segment add\ntime 10 0\nsegment add\ntime 11 0\nsegment add\ntime 9 0\n"
        "day 5\nsegment add\ntime 22 0\nsegment add\ntime 21 0\n");
  }
  auto Probe(const std::string& commands) const {
    std::string ids;
    for (const auto& each : After("yes\n" + commands + Add(1, 'a'))) {
      ids += each.ends_with(" a") ? "(" + each.substr(0, 1) + ")" : each.substr(0, 1);
    }
    return ids;
  }
};

TEST_F(SelectedSegment, IsTheFirstOfTheGridAtTheStart) {
  EXPECT_EQ(Probe(""), "(3)12");
}

TEST_F(SelectedSegment, IsTheFirstOfTheGridAfterADay) {
  EXPECT_EQ(Probe("segment select 2\nday 5\n"), "(5)4");
  EXPECT_EQ(Probe("day 5\nsegment select 4\nday 5\n"), "(5)4");
  EXPECT_EQ(Probe("segment select 2\nday 5\nday 1\n"), "(3)12");
}

TEST_F(SelectedSegment, IsTheOneThatWasNamed) {
  EXPECT_EQ(Probe("segment select 2\n"), "31(2)");
  EXPECT_EQ(Probe("segment select 2\nsegment select 1\n"), "3(1)2");
}

TEST_F(SelectedSegment, StaysTheSameAfterAListARefusalAndATime) {
  const auto run = Run("segment select 1\nlist\n" + Add(1, 'a') + "list\n");
  ASSERT_EQ(Lists(run).size(), 2U);
  EXPECT_THAT(Lists(run)[1], ElementsAre("3 09:00", "1 10:00 a", "2 11:00"));
  EXPECT_EQ(Probe("segment select 2\nsegment select 77\n"), "31(2)");
  EXPECT_EQ(Probe("segment select 2\nsegment select 4\n"), "31(2)") << "4 is of another day";
  EXPECT_EQ(Probe("segment select 2\ntime 1 0\n"), "(2)31");
}

TEST_F(SelectedSegment, IsTheNewOneAfterAnAddAndACopy) {
  EXPECT_EQ(Probe("segment select 1\nsegment add\n"), "312(6)");
  EXPECT_EQ(Probe("segment select 3\nsegment copy\ntime 23 0\n"), "312(6)");
}

TEST_F(SelectedSegment, IsTheOneThatTookThePlaceOfARemovedOneOrTheLast) {
  EXPECT_EQ(Probe("segment select 3\nsegment remove\n"), "(1)2");
  EXPECT_EQ(Probe("segment select 1\nsegment remove\n"), "3(2)");
  EXPECT_EQ(Probe("segment select 2\nsegment remove\n"), "3(1)");
  EXPECT_EQ(Probe("segment select 1\nno\nsegment remove\n"), "3(1)2") << "it stays on a no";
}

TEST_F(SelectedSegment, IsNoneWhereTheDayHasNone) {
  const auto run = Run("day 2\n" + Add(1, 'a') + "time 1 2\nsegment copy\nsegment remove\nlist\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Box().size(), 4U) << run.Errori;
  EXPECT_THAT(Rows(run), IsEmpty());
}

TEST_F(ScheduleVerb, AnOccupiedSlotIsReplacedInItsPlace) {
  const auto run = Run("segment add\n" + AddAll("abc") + Add(2, 'd') + "list\n");
  EXPECT_EQ(run.Errori, "");
  ASSERT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Oggetti()[0]["Spots"],
            (json{Spot(1, 1, 0, 'a'), Spot(2, 2, 0, 'd'), Spot(3, 3, 0, 'c')}));
}

TEST_F(ScheduleVerb, RemovedSpotsLeaveNoHole) {
  const auto run = Run("segment add\n" + AddAll("abcde") + "spot remove 3\nlist\n");
  EXPECT_EQ(run.Errori, "");
  ASSERT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Oggetti()[0]["Spots"],
            (json{Spot(1, 1, 0, 'a'), Spot(2, 2, 0, 'b'), Spot(4, 3, 0, 'd'), Spot(5, 4, 0, 'e')}));
  EXPECT_THAT(After("segment add\n" + AddAll("ab") + "spot remove 1\nspot remove 1\n"),
              ElementsAre("1 00:00"));
}

TEST_F(ScheduleVerb, SpotsChangePlacesWithTheirNeighbours) {
  const std::string three = "segment add\n" + AddAll("abc");
  EXPECT_THAT(After(three + "spot up 3\n"), ElementsAre("1 00:00 acb"));
  EXPECT_THAT(After(three + "spot down 1\n"), ElementsAre("1 00:00 bac"));
  EXPECT_THAT(After(three + "spot down 1\nspot down 2\n"), ElementsAre("1 00:00 bca"));
  EXPECT_THAT(After(three + "spot up 2\nspot down 1\n"), ElementsAre("1 00:00 abc"));
}

TEST_F(ScheduleVerb, EightSpotsFillASegmentAndCanBeReplaced) {
  const auto run = Run("segment add\n" + AddAll("abcdefgh") + Add(9, 'i') + Add(8, 'j') + "list\n");
  EXPECT_THAT(Rows(run), ElementsAre("1 00:00 abcdefgj"));
  EXPECT_EQ(run.Box().size(), 1U) << run.Errori;
}

TEST_F(ScheduleVerb, ASpotComesIntoTheSelectedSegmentAlone) {
  EXPECT_THAT(After("segment add\nsegment add\n" + AddAll("ab") + "segment select 1\n" +
                    AddAll("cde") + "spot remove 1\nspot up 2\n"),
              ElementsAre("1 00:00 ed", "2 00:01 ab"));
}

TEST_F(ScheduleVerb, AFileIsTakenByItsSpellingOnTheDiskAndInQuotes) {
  k.ScriviMp3("music/two words.MP3", 1);
  const auto run = Run("segment add\nspot add 1 \"" + k.Host("music") + "/two words.MP3\"\n" +
                       "spot   add 2 " + k.Host("music") + "/two\" \"words.MP3\r\nlist\n");
  EXPECT_EQ(run.Errori, "");
  ASSERT_EQ(run.Oggetti().size(), 2U);
  const json spots = run.Oggetti()[0]["Spots"];
  ASSERT_EQ(spots.size(), 2U);
  for (const json& each : spots) {
    EXPECT_EQ(each["FileName"], "two words.MP3");
    EXPECT_EQ(each["FilePath"], k.Percorso("music") + "\\");
  }
}

TEST_F(ScheduleVerb, TheReportIsWrittenFromTheWorkingCopy) {
  Make(kOstrel, kByDay);
  const std::string before = Read("scheduler.mdb");
  const auto run = Run("day 3\nsegment add\ntime 8 30\n" + AddAll("ba") + "report\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita + run.Errori, "");
  EXPECT_NE(Read("Scheduler.htm")
                .find("<BR><B><FONT COLOR='Blue'>Wednesday</FONT></B><BR>\r\n"
                      "<BR><LI><FONT COLOR='Blue'>Segment 08.30</FONT></LI><BR>"
                      "\r\nb.mp3<BR>\r\na.mp3<BR>\r\n</BODY>\r\n</HTML>\r\n"),
            std::string::npos);
  EXPECT_EQ(Read("scheduler.mdb"), before);
}

}  // namespace
}  // namespace kvr5
