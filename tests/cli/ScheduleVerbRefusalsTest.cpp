#include <algorithm>

#include "cli/ScheduleVerb.h"

// What a session of the schedule refuses, what ends it, and what its boxes tell.

namespace kvr5 {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

class ScheduleRefusals : public test::ScheduleVerb {
 protected:
  /// Commands that are all refused, behind others and before a list.
  void ExpectRefused(const std::string& before, const Texts& refused, const Texts& rows) {
    std::string commands;
    for (const auto& each : refused) commands += each + "\n";
    const auto run = Run(before + commands + "list\n");
    EXPECT_EQ(run.Stato, 0);
    EXPECT_EQ(Rows(run), rows);
    ASSERT_EQ(run.Box().size(), refused.size()) << run.Errori;
    for (std::size_t i = 0; i < refused.size(); ++i) {
      EXPECT_EQ(run.Box()[i]["refused"], refused[i]);
      EXPECT_NE(run.Box()[i]["why"], "");
      EXPECT_EQ(run.Box()[i].size(), 2U);
    }
    ExpectRefusedForPeople(before, refused);
  }
  void ExpectRefusedForPeople(const std::string& before, const Texts& refused) {
    for (const auto& each : refused) {
      const auto run = k.Esegui({"schedule", "Hall"}, before + each + "\n");
      EXPECT_EQ(run.Stato, 0) << each;
      EXPECT_EQ(run.Uscita, "");
      EXPECT_EQ(std::ranges::count(run.Errori, '\n'), 1) << run.Errori;
    }
  }
};

TEST_F(ScheduleRefusals, OfSpotsAreOneLineAndTheSessionGoesOn) {
  k.Cartella.Write("music/bad.mp3", "no music");
  k.Cartella.Write("music/text.txt", k.Cartella.Read("music/a.mp3"));
  std::filesystem::create_directories(k.Host("music/folder.mp3"));
  const std::string music = k.Host("music/");
  ExpectRefused("segment add\n" + AddAll("ab"),
                {"spot add 4 " + Music('c'), "spot add 8 " + Music('c'), "spot add 9 " + Music('c'),
                 "spot add 0 " + Music('c'), "spot add 3 " + music + "none.mp3",
                 "spot add 3 " + music + "bad.mp3", "spot add 3 " + music + "text.txt",
                 "spot add 3 " + music + "folder.mp3", "spot add 1 " + music + "bad.mp3",
                 "spot add 1 none.mp3", "spot remove 3", "spot remove 8", "spot remove 9",
                 "spot remove 0", "spot up 1", "spot up 3", "spot down 2", "spot down 3"},
                {"1 00:00 ab"});
}

TEST_F(ScheduleRefusals, OfTheOnlySpotAreBothItsWays) {
  ExpectRefused("segment add\n" + Add(1, 'a'), {"spot up 1", "spot down 1"}, {"1 00:00 a"});
}

TEST_F(ScheduleRefusals, OfAFileThatThePlayerCantPlayAreThoseOfTheEditors) {
  // Layer 3, mono or stereo, 60 to 320 kbit/s, 22,050 to 44,100 Hz are taken; this has 48,000 Hz.
  std::string frames;
  for (int i = 0; i < 40; ++i) {
    std::string frame("\xFF\xFB\x94\x64", 4);
    frame.resize(384, 'U');
    frames += frame;
  }
  k.Cartella.Write("music/48k.mp3", frames);
  ExpectRefused("segment add\n", {"spot add 1 " + k.Host("music/48k.mp3")}, {"1 00:00"});
}

TEST_F(ScheduleRefusals, OfADayWhereThereIsOneSchedule) {
  ExpectRefused("segment add\n" + Add(1, 'a'), {"day 1", "day 0", "day 7", "day 8"}, {"1 00:00 a"});
  Make(kOstrel, kOneSchedule);
  ExpectRefused("segment add\n" + Add(1, 'a'), {"day 1", "day 0"}, {"1 00:00 a"});
}

TEST_F(ScheduleRefusals, OfADayThatNoWeekHas) {
  Make(kOstrel, kByDay);
  ExpectRefused("day 7\nsegment add\n" + Add(1, 'b'),
                {"day 0", "day 8", "day 99999999999", "day -1"}, {"1 00:00 b"});
}

TEST_F(ScheduleRefusals, OfASegmentThatTheDayHasNot) {
  ExpectRefused("segment add\n" + Add(1, 'a'),
                {"segment select 2", "segment select 0", "segment select 5000000000",
                 "segment select 99999999999999999999"},
                {"1 00:00 a"});
}

TEST_F(ScheduleRefusals, WithoutASegmentAreAllThatNeedOne) {
  ExpectRefused("",
                {"spot add 1 " + Music('a'), "spot remove 1", "spot up 1", "spot down 1",
                 "time 1 2", "segment copy", "segment remove", "segment select 1"},
                {});
}

TEST_F(ScheduleRefusals, WrongWordsEndItUnsavedWithStatusTwo) {
  Make(kOstrel, kByDay);
  Saved("segment add\n" + AddAll("ab"));
  const std::string before = Read("scheduler.mdb");
  for (const std::string& wrong : {std::string("nonsense"),
                                   std::string("day"),
                                   std::string("day x"),
                                   std::string("day 1 2"),
                                   std::string("day 1.5"),
                                   std::string("Day 1"),
                                   std::string("list all"),
                                   std::string("segment"),
                                   std::string("segment new"),
                                   std::string("segment add 1"),
                                   std::string("\"segment add\""),
                                   std::string("segment select"),
                                   std::string("segment select x"),
                                   std::string("segment select 1 2"),
                                   std::string("segment copy 1"),
                                   std::string("segment remove 1"),
                                   std::string("time"),
                                   std::string("time 1"),
                                   std::string("time 1 2 3"),
                                   std::string("spot"),
                                   std::string("spot add"),
                                   std::string("spot add 1"),
                                   "spot add x " + Music('a'),
                                   "spot add 1 " + Music('a') + " " + Music('b'),
                                   "spot add " + Music('a'),
                                   std::string("spot remove"),
                                   std::string("spot remove x"),
                                   std::string("spot remove 1 2"),
                                   std::string("spot up"),
                                   std::string("spot up one"),
                                   std::string("spot up 2 1"),
                                   std::string("spot down"),
                                   std::string("spot down one"),
                                   std::string("spot down 1 2"),
                                   std::string("report now"),
                                   std::string("save now"),
                                   std::string("SAVE"),
                                   std::string("cancel now"),
                                   std::string("yes please"),
                                   std::string("no no"),
                                   std::string("time 1 \"2"),
                                   std::string("select 1"),
                                   std::string("add ") + Music('a')}) {
    const auto run = Run("segment add\n" + Add(1, 'c') + wrong + "\nsave\n");
    EXPECT_EQ(run.Stato, 2) << wrong;
    EXPECT_EQ(run.Uscita, "") << wrong;
    EXPECT_TRUE(Read("scheduler.mdb") == before) << wrong;
    EXPECT_FALSE(Exists("tmpScheduler.mdb")) << wrong;
  }
}

/// The time of a segment, typed into its boxes.
class ScheduleTime : public test::ScheduleVerb {
 protected:
  /// The segment's time, "10:20" before, after a command.
  std::string Typed(const std::string& words) {
    const auto rows = After("segment add\ntime 10 20\ntime " + words + "\n");
    return rows.empty() ? std::string() : rows[0].substr(2);
  }
  /// A box that tells of another segment with a time.
  json SameTime(const std::string& time) {
    return {{"box", "info"},
            {"title", Word("0140020")},
            {"text", Word("0140021") + " (" + time + ")"},
            {"answer", "ok"}};
  }
};

TEST_F(ScheduleTime, IsTakenAsItsBoxesTakeIt) {
  Make(kOstrel, kOneSchedule);
  EXPECT_EQ(Typed("8 5"), "08:05");
  EXPECT_EQ(Typed("08 05"), "08:05");
  EXPECT_EQ(Typed("0 0"), "00:00");
  EXPECT_EQ(Typed("23 59"), "23:59");
  EXPECT_EQ(Typed("24 59"), "00:59");
  EXPECT_EQ(Typed("75 75"), "00:00");
  EXPECT_EQ(Typed("7 75"), "07:00");
  EXPECT_EQ(Typed("25 7"), "00:07");
  EXPECT_EQ(Typed("007 0059"), "07:59");
  EXPECT_EQ(Typed("99999999999999999999 12345678901234567890"), "00:00");
}

TEST_F(ScheduleTime, LettersAreDroppedAsTheyAreTyped) {
  Make(kOstrel, kOneSchedule);
  EXPECT_EQ(Typed("1h2 m3s"), "12:03");
  EXPECT_EQ(Typed("-8 +5"), "08:05");
  EXPECT_EQ(Typed("1.5 2,5"), "15:25");
  EXPECT_EQ(Typed("x y"), "10:20") << "what stood there stays";
  EXPECT_EQ(Typed("x 30"), "10:30");
  EXPECT_EQ(Typed("9 \"\""), "09:20");
  EXPECT_EQ(Typed("\" 9\" 1è"), "09:01");
}

TEST_F(ScheduleTime, OfAKvr5HasNoHour) {
  EXPECT_THAT(After("segment add\ntime 7 30\n"), ElementsAre("1 00:30"));
  EXPECT_THAT(After("segment add\ntime x 45\n"), ElementsAre("1 00:45"));
  EXPECT_THAT(After("segment add\ntime 23 60\n"), ElementsAre("1 00:00"));
}

TEST_F(ScheduleTime, ThatAnotherSegmentHasIsToldAndSaved) {
  const auto run = Run("segment add\nsegment add\ntime 0 0\nlist\nsave\n");
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Box().size(), 1U) << run.Errori;
  EXPECT_EQ(run.Box()[0], SameTime("00.00"));
  EXPECT_THAT(Rows(run), testing::UnorderedElementsAre("1 00:00", "2 00:00"));
}

TEST_F(ScheduleTime, CanBeToldTwiceOncePerBox) {
  Make(kOstrel, kOneSchedule);
  // 1 at 08:20, 2 at 08:30, 3 at 09:20: leaving the hours it is 08:20, leaving the minutes 08:30.
  const std::string three =
      "segment add\ntime 8 20\nsegment add\ntime 8 30\nsegment add\ntime 9 20\n";
  const auto run = Run(three + "time 8 30\nlist\n");
  EXPECT_EQ(run.Box(), (std::vector<json>{SameTime("08.20"), SameTime("08.30")}));
  EXPECT_THAT(Rows(run), testing::UnorderedElementsAre("1 08:20", "2 08:30", "3 08:30"));
  const auto passing = Run(three + "time 8 40\nlist\n");
  EXPECT_EQ(passing.Box(), (std::vector<json>{SameTime("08.20")})) << "on the way only";
}

TEST_F(ScheduleTime, IsComparedWithinItsDay) {
  Make(kOstrel, kByDay);
  const auto run = Run("segment add\ntime 8 0\nday 2\nsegment add\ntime 8 0\nlist\n");
  EXPECT_EQ(run.Errori, "");
  EXPECT_THAT(Rows(run), ElementsAre("2 08:00"));
}

/// Full days and full segments.
class ScheduleLimits : public test::ScheduleVerb {
 protected:
  static std::string Times(int count, const std::string& command) {
    std::string commands;
    for (int i = 0; i < count; ++i) commands += command;
    return commands;
  }
  json Full(int shown) {
    return {{"box", "info"},
            {"title", Word("0140025") + " " + std::to_string(shown) + ")"},
            {"text", Word("0140026")},
            {"answer", "ok"}};
  }
};

TEST_F(ScheduleLimits, OfSegmentsAre61AndAnotherNumberIsTold) {
  struct Model {
    std::int16_t Type, Mode;
    int Shown;
  };
  for (const Model& model : {Model{kKvr5, kOneSchedule, 60}, Model{kOstrel, kOneSchedule, 128},
                             Model{kOstrel, kByDay, 128}}) {
    Make(model.Type, model.Mode);
    const auto room = Run(Times(61, "segment add\n") + "list\n");
    EXPECT_EQ(room.Errori, "") << "the 61st goes in";
    EXPECT_EQ(Rows(room).size(), 61U);
    const auto full = Run(Times(62, "segment add\n") + "list\nsave\n");
    EXPECT_EQ(full.Stato, 0);
    EXPECT_EQ(Rows(full).size(), 61U);
    EXPECT_EQ(full.Box(), std::vector<json>{Full(model.Shown)});
  }
}

TEST_F(ScheduleLimits, OfSegmentsDontHoldForCopies) {
  const auto run = Run(Times(61, "segment add\n") + "segment copy\nsegment copy\nlist\n");
  EXPECT_EQ(Rows(run).size(), 63U);
  EXPECT_EQ(run.Box().size(), 2U) << "the notices of the copies";
}

TEST_F(ScheduleLimits, OfSegmentsAreThoseOfEachDay) {
  Make(kOstrel, kByDay);
  const auto run = Run(Times(61, "segment add\n") + "day 2\nsegment add\nlist\n");
  EXPECT_EQ(run.Errori, "");
  EXPECT_EQ(Rows(run).size(), 1U);
}

TEST_F(ScheduleLimits, OfSpotsAre500ADayAndEvenAReplacementIsRefused) {
  // 62 segments of 8 spots and one of 3 are 499.
  const std::string many = "segment add\n" + AddAll("abcdefgh") + Times(62, "segment copy\n") +
                           Times(5, "spot remove 4\n");
  const auto room = Run(many + Add(4, 'i') + "list\n");
  EXPECT_EQ(room.Box().size(), 62U) << "the notices of the copies alone";
  const auto full = Run(many + Add(4, 'i') + Add(5, 'j') + Add(1, 'j') + "list\n");
  EXPECT_EQ(full.Stato, 0);
  EXPECT_EQ(Lists(full), Lists(room));
  ASSERT_EQ(full.Box().size(), 64U) << full.Errori;
  const json told = {
      {"box", "info"}, {"title", Word("0140013")}, {"text", Word("0140014")}, {"answer", "ok"}};
  EXPECT_EQ(full.Box()[62], told);
  EXPECT_EQ(full.Box()[63], told);
  int shown = 0;
  for (const auto& each : Rows(full)) shown += each.ends_with(" abci") ? 1 : 0;
  EXPECT_EQ(shown, 1);
}

}  // namespace
}  // namespace kvr5
