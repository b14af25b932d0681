#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "cli/Compagno.h"
#include "road/Encoder.h"

// Schedules from a new project to the recorded card, through kvr5card alone.

namespace kvr5 {
namespace {

using test::Compagno;
using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::vector<std::string>;

class ScheduleCommandRoad : public testing::Test {
 protected:
  void SetUp() override {
    int hertz = 300;
    for (const char* name : {"welcome", "L'été", "song", "noon", "night", "2", "10"}) {
      const std::filesystem::path file = Music(name);
      std::filesystem::create_directories(file.parent_path());
      if (!test::EncodeMp3(file.string(), "-b 128 --cbr", hertz += 50)) {
        GTEST_SKIP() << "lame is missing";
      }
    }
  }
  std::string Music(const std::string& name) const { return k.Host("music/" + name + ".mp3"); }
  test::Corsa Run(int status, const Names& words, const std::string& session = {}) const {
    auto run = k.EseguiJson(words, session);
    EXPECT_EQ(run.Stato, status) << testing::PrintToString(words) << run.Errori;
    return run;
  }
  /// A session of the project Hall, and its save.
  void Session(const std::string& commands, const char* answer = "no") const {
    Run(0, {"schedule", "Hall"}, commands + answer + "\nsave\n");
  }
  /// "spot add" of these files into the slots from the first.
  std::string AddAll(const Names& names) const {
    std::string commands;
    for (std::size_t i = 0; i < names.size(); ++i) {
      commands += "spot add " + std::to_string(i + 1) + " \"" + Music(names[i]) + "\"\n";
    }
    return commands;
  }
  void Record() const { Run(0, {"record", "Hall", k.Host("card")}); }
  void EmptyTheCard() const {
    std::filesystem::remove_all(k.Host("card"));
    std::filesystem::create_directories(k.Host("card"));
  }
  Names OnCard(const std::string& ending) const {
    Names names = k.Nomi("card");
    std::erase_if(names, [&](const std::string& each) { return !each.ends_with(ending); });
    return names;
  }
  std::string Card(const std::string& name) const { return k.Cartella.Read("card/" + name); }
  /// The names in the player's files on the card, each once.
  Names Named() const {
    std::set<std::string> names;
    Names files = OnCard(".pal");
    if (k.Cartella.Exists("card/PALIN.TXT")) files.emplace_back("PALIN.TXT");
    for (const std::string& each : files) {
      std::istringstream in(Card(each));
      for (std::string field; std::getline(in, field, '\t');) {
        if (field.starts_with('F')) names.insert(field + ".mp3");
      }
    }
    return {names.begin(), names.end()};
  }
  bool Same(const std::string& onCard, const std::string& music) const {
    return k.Cartella.Same("card/" + onCard, "music/" + music + ".mp3");
  }

  Compagno k;
};

TEST_F(ScheduleCommandRoad, FromEncodedFilesToACardThatNeedsNoSourceAnyMore) {
  Run(0, {"new", "Hall", "--mode", "2"});
  Session("segment add\ntime 0 30\n" + AddAll({"welcome", "L'été"}) + "segment add\ntime 0 5\n" +
          AddAll({"2", "10", "song"}));
  Record();
  const Names spots{"F0-0011.mp3", "F0-0012.mp3", "F0-0021.mp3", "F0-0022.mp3", "F0-0023.mp3"};
  EXPECT_EQ(OnCard(".mp3"), spots);
  EXPECT_EQ(Named(), spots);
  EXPECT_EQ(Card("PALIN.TXT"),
            "00:30\tF0-0011\t\tF0-0012\t\r\n00:05\tF0-0021\t\tF0-0022\t\tF0-0023\t\r\n");
  EXPECT_TRUE(Same("F0-0011.mp3", "welcome") && Same("F0-0012.mp3", "L'été"));
  EXPECT_TRUE(Same("F0-0021.mp3", "2") && Same("F0-0022.mp3", "10") && Same("F0-0023.mp3", "song"));

  Session("", "yes");
  EmptyTheCard();
  std::filesystem::rename(k.Host("music"), k.Host("away"));
  Record();
  EXPECT_EQ(OnCard(".mp3"), spots);
  EXPECT_TRUE(k.Cartella.Same("card/F0-0022.mp3", "away/10.mp3"));
  EXPECT_TRUE(k.Cartella.Same("card/F0-0012.mp3", "away/L'été.mp3"));
}

TEST_F(ScheduleCommandRoad, AWeekOfTheOtherModelHasAFileADay) {
  k.CreaProgetto("Hall", 3, 3);
  Session("day 7\nsegment add\ntime 22 15\n" + AddAll({"night"}) +
          "day 1\nsegment add\ntime 12 0\n" + AddAll({"noon", "song"}) + "segment add\ntime 8 0\n" +
          AddAll({"welcome"}));
  Record();
  EXPECT_EQ(Card("1.pal"), "12:00\tF1-0011\t\tF1-0012\t\r\n08:00\tF1-0021\t\r\n");
  EXPECT_EQ(Card("7.pal"), "22:15\tF7-0011\t\r\n");
  EXPECT_EQ(OnCard(".pal").size(), 7U);
  EXPECT_EQ(Named(), OnCard(".mp3"));
  EXPECT_TRUE(Same("F1-0011.mp3", "noon") && Same("F1-0012.mp3", "song"));
  EXPECT_TRUE(Same("F1-0021.mp3", "welcome") && Same("F7-0011.mp3", "night"));
  EXPECT_FALSE(k.Cartella.Exists("card/PALIN.TXT"));
}

TEST_F(ScheduleCommandRoad, OneScheduleOfTheOtherModelKeepsItsHours) {
  k.CreaProgetto("Hall", 3, 2);
  Session("segment add\ntime 22 15\n" + AddAll({"night"}) + "segment add\ntime 12 0\n" +
          AddAll({"noon"}));
  Record();
  EXPECT_EQ(Card("PALIN.TXT"), "22:15\tF0-0011\t\r\n12:00\tF0-0021\t\r\n");
  EXPECT_THAT(OnCard(".pal"), IsEmpty());
  EXPECT_EQ(Named(), OnCard(".mp3"));
}

TEST_F(ScheduleCommandRoad, TheReportOfTheScheduleGoesIntoTheProjectsAndToTheCard) {
  k.CreaProgetto("Hall", 3, 3);
  Session("day 5\nsegment add\ntime 22 15\n" + AddAll({"night"}));
  Run(0, {"report", "Hall"});
  Record();
  const std::string friday =
      "<BR><B><FONT COLOR='Blue'>Friday</FONT></B><BR>\r\n"
      "<BR><LI><FONT COLOR='Blue'>Segment 22.15</FONT></LI><BR>\r\nnight.mp3<BR>\r\n"
      "</BODY>\r\n</HTML>\r\n";
  EXPECT_TRUE(Card("Scheduler.htm").ends_with(friday));
  EXPECT_TRUE(Card("Hall.htm").ends_with(friday));
}

TEST_F(ScheduleCommandRoad, ASpotWhoseFileIsGoneStopsTheRecordingWithItsName) {
  Run(0, {"new", "Hall", "--mode", "2"});
  Session("segment add\n" + AddAll({"welcome", "2"}));
  std::filesystem::remove(Music("2"));
  const auto run = Run(1, {"record", "Hall", k.Host("card")});
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().ends_with("\n" + Music("2"))) << run.Errori;
  EXPECT_THAT(OnCard(".mp3"), IsEmpty()) << "not even the one that is there";
  EXPECT_TRUE(k.Cartella.Same("card/scheduler.mdb", "program/Projects/Hall/scheduler.mdb"));
  const auto shown = Run(0, {"show", "Hall"}).Oggetti();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0]["segments"], 1);
  EXPECT_EQ(shown[0]["spots"], 2);
  EXPECT_EQ(shown[0]["missing"].size(), 1U) << shown[0];
}

TEST_F(ScheduleCommandRoad, ARecordingTakesTheScheduleThatWasSavedLast) {
  Run(0, {"new", "Hall", "--mode", "2"});
  Session("segment add\n" + AddAll({"welcome", "2"}));
  Run(0, {"--yes", "schedule", "Hall"},
      "spot remove 1\nsegment add\n" + AddAll({"10"}) + "cancel\n");
  Record();
  EXPECT_EQ(Card("PALIN.TXT"), "00:00\tF0-0011\t\tF0-0012\t\r\n");
  EXPECT_THAT(OnCard(".mp3"), ElementsAre("F0-0011.mp3", "F0-0012.mp3"));
  EmptyTheCard();
  Session("spot remove 1\nsegment add\ntime 0 40\n" + AddAll({"10"}));
  Record();
  EXPECT_EQ(Card("PALIN.TXT"), "00:00\tF0-0011\t\r\n00:40\tF0-0021\t\r\n");
  EXPECT_TRUE(Same("F0-0011.mp3", "2") && Same("F0-0021.mp3", "10"));
  EXPECT_THAT(OnCard(".mp3"), ElementsAre("F0-0011.mp3", "F0-0021.mp3"));
}

TEST_F(ScheduleCommandRoad, AFileInSeveralSpotsIsThereUnderTheAliasOfTheFirstByDayAndPlace) {
  k.CreaProgetto("Hall", 3, 3);
  // By day and place: F2-0011, F2-0021, F2-0012, F5-0011.
  Session("day 5\nsegment add\n" + AddAll({"song"}) + "day 2\nsegment add\n" +
          AddAll({"2", "song"}) + "segment add\ntime 3 0\n" + AddAll({"song"}));
  Record();
  EXPECT_THAT(OnCard(".mp3"), ElementsAre("F2-0011.mp3", "F2-0021.mp3"));
  EXPECT_TRUE(Same("F2-0011.mp3", "2") && Same("F2-0021.mp3", "song"));
  EXPECT_THAT(Named(), ElementsAre("F2-0011.mp3", "F2-0012.mp3", "F2-0021.mp3", "F5-0011.mp3"));
}

}  // namespace
}  // namespace kvr5
