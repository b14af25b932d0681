#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "cli/Compagno.h"

// Each kind of project from its recording over the copy that is read back to a second card, through
// kvr5card alone.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Compagno;
using testing::IsEmpty;
using Names = std::vector<std::string>;
using Renames = std::map<std::string, std::string>;  ///< own name by the name on the card

/// A model and mode, and what its projects hold.
struct Kind {
  const char* Name;
  std::int16_t Type;
  std::int16_t Mode;
  std::int16_t Config;
  bool Inputs;
  const char* Playlists;  ///< a session of the editor; null where the kind has no playlists
  const char* Schedule;   ///< the same for schedules
};

void PrintTo(const Kind& kind, std::ostream* out) {
  *out << kind.Name;
}

// "$" is the folder of music with its bar.
constexpr const char* kOneList = "add $c.mp3 $d.mp3 $e.mp3\n";
constexpr const char* kLists = "add $c.mp3 $d.mp3\nselect 2\nadd $e.mp3 $c.mp3\n";
constexpr const char* kNamed = "new Noon\nadd $c.mp3\nnew Night\nadd $d.mp3 $e.mp3\n";
constexpr const char* kDay =
    "segment add\ntime 0 30\nspot add 1 $c.mp3\nspot add 2 $d.mp3\n"
    "segment add\ntime 0 5\nspot add 1 $e.mp3\n";
constexpr const char* kWeek =
    "day 7\nsegment add\ntime 22 15\nspot add 1 $c.mp3\n"
    "day 1\nsegment add\ntime 8 0\nspot add 1 $d.mp3\nspot add 2 $e.mp3\n";

constexpr Kind kKinds[] = {
    {"Model1", 1, 0, 0, true, nullptr, nullptr},
    {"Model2Config0", 2, 0, 0, true, kOneList, nullptr},
    {"Model2Config1", 2, 0, 1, true, kOneList, nullptr},
    {"Model2Config2", 2, 0, 2, true, kOneList, nullptr},
    {"Model2Config3", 2, 0, 3, false, kOneList, nullptr},
    {"Model3Mode1", 3, 1, 0, true, nullptr, nullptr},
    {"Model3Mode2", 3, 2, 0, false, nullptr, kDay},
    {"Model3Mode3", 3, 3, 0, false, nullptr, kWeek},
    {"Model3Mode4", 3, 4, 0, false, kOneList, nullptr},
    {"Model3Mode9", 3, 9, 0, false, kNamed, nullptr},
    {"Model4Mode1", 4, 1, 0, true, nullptr, nullptr},
    {"Model4Mode2", 4, 2, 0, false, nullptr, kDay},
    {"Model4Mode5", 4, 5, 0, false, kLists, nullptr},
    {"Model4Mode6", 4, 6, 0, false, kOneList, nullptr},
    {"Model4Mode7", 4, 7, 0, false, kLists, nullptr},
};

class ReadbackRoad : public testing::TestWithParam<Kind> {
 protected:
  void SetUp() override {
    int seed = 0;
    for (const char* name : {"a", "b", "c", "d", "e"}) {
      ++seed;
      k.ScriviMp3(std::string("music/") + name + ".mp3", seed, 40 + seed);
    }
    fs::create_directories(k.Host("second"));
  }
  test::Corsa Run(int status, const Names& words, const std::string& session = {}) const {
    auto run = k.EseguiJson(words, session);
    EXPECT_EQ(run.Stato, status) << testing::PrintToString(words) << run.Errori;
    return run;
  }
  std::string Copy() const { return k.Host("program/Projects/Copy"); }

  /// A project Hall with files in all that its kind has. `answer` is that of the question whether
  /// a save copies the files too.
  void MakeHall(const std::string& answer) {
    const Kind& kind = GetParam();
    k.CreaProgetto("Hall", kind.Type, kind.Mode, kind.Config);
    if (kind.Inputs) {
      Run(0, {"inputs", "Hall", "set", "1", k.Host("music/a.mp3")});
      Run(0, {"inputs", "Hall", "set", "3", k.Host("music/b.mp3")});
    }
    if (kind.Playlists != nullptr) Session("playlists", kind.Playlists, answer);
    if (kind.Schedule != nullptr) Session("schedule", kind.Schedule, answer);
    Run(0, {"report", "Hall"});
  }
  void Session(const char* editor, std::string commands, const std::string& answer) const {
    for (std::size_t at = 0; (at = commands.find('$', at)) != std::string::npos;) {
      commands.replace(at, 1, k.Host("music/"));
    }
    const auto run = Run(0, {answer, editor, "Hall"}, commands + "save\n");
    for (const auto& said : run.Box()) EXPECT_FALSE(said.contains("refused")) << said;
  }
  /// Own names by those on the card, of the files that get them back.
  static Renames OfTheInputs() {
    return GetParam().Inputs ? Renames{{"1.mp3", "a.mp3"}, {"3.mp3", "b.mp3"}} : Renames{};
  }
  void ExpectNothingFound(const std::string& project, const std::string& card) const {
    const auto run = Run(0, {"verify", project, k.Host(card)});
    EXPECT_THAT(run.Oggetti(), IsEmpty()) << project << " and " << card;
  }
  void ReadBack() const {
    const auto run = Run(0, {"readback", k.Host("card"), "--name", "Copy"});
    EXPECT_EQ(run.Oggetti(), (std::vector<nlohmann::json>{{{"project", Copy()}}}));
    EXPECT_EQ(run.Errori, "");
  }
  /// The folder holds what the card holds, byte for byte, but for the names.
  void ExpectFolder(const std::string& folder, const std::string& card,
                    const Renames& renames) const {
    Names expected;
    for (const auto& name : k.Nomi(card)) {
      const auto found = renames.find(name);
      expected.push_back(found == renames.end() ? name : found->second);
      EXPECT_TRUE(k.Cartella.Same(card + "/" + name, folder + "/" + expected.back())) << name;
    }
    std::ranges::sort(expected);
    EXPECT_EQ(k.Nomi(folder), expected);
  }
  /// The names of the files that differ between the cards; both have the same files.
  Names Different() const {
    EXPECT_EQ(k.Nomi("card"), k.Nomi("second"));
    Names names = k.Nomi("card");
    std::erase_if(names, [this](const std::string& name) {
      return k.Cartella.Exists("second/" + name) &&
             k.Cartella.Same("card/" + name, "second/" + name);
    });
    return names;
  }
  std::size_t Music() const {
    const Names names = k.Nomi("card");
    return static_cast<std::size_t>(std::ranges::count_if(
        names, [](const std::string& name) { return name.ends_with(".mp3"); }));
  }

  Compagno k;
};

TEST_P(ReadbackRoad, ASecondCardOfTheCopyIsTheFirstByteForByte) {
  MakeHall("--no");
  Run(0, {"record", "Hall", k.Host("card")});
  const std::size_t inputs = GetParam().Inputs ? 2 : 0;
  const bool lists = GetParam().Playlists != nullptr || GetParam().Schedule != nullptr;
  EXPECT_EQ(Music(), inputs + (lists ? 3 : 0)) << testing::PrintToString(k.Nomi("card"));
  ExpectNothingFound("Hall", "card");
  ReadBack();
  ExpectFolder("program/Projects/Copy", "card", OfTheInputs());
  ExpectNothingFound("Copy", "card");
  Run(0, {"record", "Copy", k.Host("second")});
  EXPECT_THAT(Different(), IsEmpty());
  ExpectNothingFound("Copy", "second");
  ExpectNothingFound("Hall", "second");
}

TEST_P(ReadbackRoad, AProjectThatHoldsItsFilesGivesTheSameCard) {
  MakeHall("--yes");
  if (GetParam().Inputs) Run(0, {"save", "Hall", "--copy-inputs"});
  Run(0, {"record", "Hall", k.Host("card")});
  ExpectNothingFound("Hall", "card");
  ReadBack();
  ExpectFolder("program/Projects/Copy", "card", OfTheInputs());
  Run(0, {"record", "Copy", k.Host("second")});
  EXPECT_THAT(Different(), IsEmpty());
}

TEST_P(ReadbackRoad, WithoutTheSourcesTheCopyHoldsAllThatACardNeeds) {
  MakeHall("--no");
  Run(0, {"record", "Hall", k.Host("card")});
  fs::rename(k.Host("music"), k.Host("away"));
  fs::remove_all(k.Host("program/Projects/Hall"));
  const auto read = Run(0, {"readback", k.Host("card")});
  fs::rename(k.Host("program/Projects/Hall"), Copy());
  ExpectFolder("program/Projects/Copy", "card", OfTheInputs());
  if (GetParam().Inputs) {
    // The rows of the inputs still name the folder where the files were picked.
    const auto refused = Run(1, {"record", "Copy", k.Host("second")});
    ASSERT_EQ(refused.Box().size(), 1U) << refused.Errori;
    EXPECT_EQ(refused.Box()[0]["title"], "Copy stopped");
    Run(0, {"inputs", "Copy", "set", "1", Copy() + "/a.mp3"});
    Run(0, {"inputs", "Copy", "set", "3", Copy() + "/b.mp3"});
  }
  Run(0, {"record", "Copy", k.Host("second")});
  EXPECT_EQ(Different(), GetParam().Inputs ? Names{"inputcfg.mdb"} : Names{});
  ExpectNothingFound("Copy", "second");
}

TEST_P(ReadbackRoad, ACopyOfACopyIsStillTheSame) {
  MakeHall("--no");
  Run(0, {"record", "Hall", k.Host("card")});
  ReadBack();
  Run(0, {"record", "Copy", k.Host("second")});
  Run(0, {"readback", k.Host("second"), "--name", "Third"});
  EXPECT_EQ(k.Nomi("program/Projects/Third"), k.Nomi("program/Projects/Copy"));
  for (const auto& name : k.Nomi("program/Projects/Copy")) {
    EXPECT_TRUE(k.Cartella.Same("program/Projects/Copy/" + name, "program/Projects/Third/" + name))
        << name;
  }
  ExpectNothingFound("Third", "card");
}

TEST_P(ReadbackRoad, ACopyShowsWhatTheProjectShowed) {
  MakeHall("--no");
  Run(0, {"record", "Hall", k.Host("card")});
  ReadBack();
  const auto hall = Run(0, {"show", "Hall"}).Oggetti();
  const auto copy = Run(0, {"show", "Copy"}).Oggetti();
  ASSERT_EQ(hall.size(), 1U);
  EXPECT_EQ(copy, hall);
}

INSTANTIATE_TEST_SUITE_P(EachKind, ReadbackRoad, testing::ValuesIn(kKinds),
                         [](const auto& kind) { return std::string(kind.param.Name); });

class ReadbackRoads : public testing::Test {
 protected:
  int Run(const Names& words) const { return k.Esegui(words).Stato; }
  Compagno k;
};

TEST_F(ReadbackRoads, TwoInputsWhoseFilesHaveOneNameKeepTheSecondsAlias) {
  k.ScriviMp3("one/song.mp3", 1);
  k.ScriviMp3("two/song.mp3", 2);
  ASSERT_EQ(Run({"new", "Hall", "--mode", "1"}), 0);
  ASSERT_EQ(Run({"inputs", "Hall", "set", "1", k.Host("one/song.mp3")}), 0);
  ASSERT_EQ(Run({"inputs", "Hall", "set", "2", k.Host("two/song.mp3")}), 0);
  ASSERT_EQ(Run({"record", "Hall", k.Host("card")}), 0);
  ASSERT_EQ(Run({"readback", k.Host("card"), "--name", "Copy"}), 0);
  EXPECT_EQ(k.Nomi("program/Projects/Copy"),
            (Names{"2.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb", "song.mp3"}));
  EXPECT_TRUE(k.Cartella.Same("program/Projects/Copy/song.mp3", "one/song.mp3"));
  EXPECT_TRUE(k.Cartella.Same("program/Projects/Copy/2.mp3", "two/song.mp3"));
  fs::create_directories(k.Host("second"));
  ASSERT_EQ(Run({"record", "Copy", k.Host("second")}), 0);
  EXPECT_EQ(Run({"verify", "Hall", k.Host("second")}), 0);
}

TEST_F(ReadbackRoads, AnErasedCardTakesTheNextProjectAndNothingOfTheOldOneIsLeft) {
  k.ScriviMp3("music/a.mp3", 1);
  ASSERT_EQ(Run({"new", "Old", "--mode", "1"}), 0);
  ASSERT_EQ(Run({"inputs", "Old", "set", "1", k.Host("music/a.mp3")}), 0);
  ASSERT_EQ(Run({"record", "Old", k.Host("card")}), 0);
  ASSERT_EQ(Run({"new", "Next", "--mode", "2"}), 0);
  ASSERT_EQ(Run({"record", "Next", k.Host("card")}), 0);
  EXPECT_EQ(k.EseguiJson({"verify", "Next", k.Host("card")}).Oggetti(),
            (std::vector<nlohmann::json>{{{"kind", "stray"}, {"file", "1.mp3"}},
                                         {{"kind", "stray"}, {"file", "inputcfg.mdb"}}}));
  ASSERT_EQ(Run({"--yes", "erase", k.Host("card")}), 0);
  ASSERT_EQ(Run({"record", "Next", k.Host("card")}), 0);
  EXPECT_EQ(Run({"verify", "Next", k.Host("card")}), 0);
  ASSERT_EQ(Run({"readback", k.Host("card"), "--name", "Back"}), 0);
  EXPECT_EQ(k.Nomi("program/Projects/Back"), k.Nomi("card"));
}

TEST_F(ReadbackRoads, TheAnalyzersFileGoesTheWholeWay) {
  k.ScriviMp3("program/Analyzer.mp3", 9);
  ASSERT_EQ(Run({"new", "Hall", "--mode", "2"}), 0);
  std::string descriptor = k.Cartella.Read("program/Projects/Hall/Config.cfg");
  descriptor.replace(descriptor.find("Analyzer=0"), 10, "Analyzer=1");
  k.Cartella.Write("program/Projects/Hall/Config.cfg", descriptor);
  ASSERT_EQ(Run({"record", "Hall", k.Host("card")}), 0);
  EXPECT_TRUE(k.Cartella.Same("card/Analyzer.mp3", "program/Analyzer.mp3"));
  EXPECT_EQ(Run({"verify", "Hall", k.Host("card")}), 0);
  ASSERT_EQ(Run({"readback", k.Host("card"), "--name", "Copy"}), 0);
  EXPECT_TRUE(k.Cartella.Same("program/Projects/Copy/Analyzer.mp3", "program/Analyzer.mp3"));
  fs::create_directories(k.Host("second"));
  ASSERT_EQ(Run({"record", "Copy", k.Host("second")}), 0);
  EXPECT_EQ(k.Nomi("second"), k.Nomi("card"));
}

}  // namespace
}  // namespace kvr5
