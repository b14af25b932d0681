#include "road/StradaDeiGeneri.h"

// Each kind of project from its recording over the copy that is read back to a second card, through
// kvr5card alone.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using test::Compagno;
using test::kKinds;
using test::Renames;
using testing::IsEmpty;

class ReadbackRoad : public test::StradaDeiGeneri {};

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
