#include <gtest/gtest.h>

#include "cli/Compagno.h"
#include "road/Encoder.h"

namespace kvr5 {
namespace {

using test::Compagno;
using Names = std::vector<std::string>;

class InputsRoad : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::create_directories(k.Host("music"));
    if (!test::EncodeMp3(Music("probe.mp3"), "-b 128 --cbr")) GTEST_SKIP() << "lame is missing";
  }
  std::string Music(const std::string& name) const { return k.Host("music/") + name; }
  void Expect(int status, const std::vector<std::string>& words) {
    const auto run = k.EseguiJson(words);
    EXPECT_EQ(run.Stato, status) << testing::PrintToString(words) << run.Errori;
  }

  Compagno k;
};

TEST_F(InputsRoad, FromEncodedFilesToARecordedCardAndAgain) {
  ASSERT_TRUE(test::EncodeMp3(Music("welcome.mp3"), "-b 128 --cbr", 440));
  ASSERT_TRUE(test::EncodeMp3(Music("L'été.mp3"), "--abr 160", 660));
  ASSERT_TRUE(test::EncodeMp3(Music("32k.mp3"), "-b 96 --cbr --resample 32", 880));
  Expect(0, {"new", "Museum-Hall-2", "--mode", "1"});
  Expect(0, {"inputs", "Museum-Hall-2", "set", "IN1", Music("welcome.mp3")});
  Expect(0, {"inputs", "Museum-Hall-2", "set", "IN1+IN3", Music("L'été.mp3")});
  Expect(0, {"inputs", "Museum-Hall-2", "set", "255", Music("32k.mp3")});
  Expect(0, {"config", "Museum-Hall-2", "set", "LOUT=20", "TFIN=30"});
  Expect(0, {"record", "Museum-Hall-2", k.Host("card")});
  EXPECT_EQ(k.Nomi("card"),
            (Names{"1.mp3", "255.mp3", "5.mp3", "Config.cfg", "Config.txt", "inputcfg.mdb"}));
  EXPECT_TRUE(k.Cartella.Same("card/5.mp3", "music/L'été.mp3"));
  EXPECT_NE(k.Cartella.Read("card/Config.txt").find("LOUT=20\r\n"), std::string::npos);

  Expect(0, {"inputs", "Museum-Hall-2", "set", "IN1", Music("probe.mp3")});
  Expect(0, {"inputs", "Museum-Hall-2", "clear", "255"});
  Expect(0, {"record", "Museum-Hall-2", k.Host("card")});
  EXPECT_TRUE(k.Cartella.Same("card/1.mp3", "music/probe.mp3"));
  EXPECT_TRUE(k.Cartella.Exists("card/255.mp3")) << "the card isn't cleared";
}

TEST_F(InputsRoad, TheEncodersKindsAreJudged) {
  const struct {
    const char* options;
    bool playlist, input;
  } rows[] = {
      {"-b 64 --cbr", true, true},
      {"-b 320 --cbr -t", true, true},
      {"-b 56 --cbr", false, false},
      {"-b 128 --cbr --resample 48", false, false},
      {"-b 64 --cbr --resample 32", true, true},
      {"-b 64 --cbr --resample 24", true, false},
      {"-b 64 --cbr --resample 22.05", true, false},
      {"-b 64 --cbr --resample 16", false, false},
      {"-b 64 --cbr --resample 11.025", false, false},
  };
  for (const auto& row : rows) {
    ASSERT_TRUE(test::EncodeMp3(Music("kind.mp3"), row.options)) << row.options;
    const auto objects = k.EseguiJson({"mp3", Music("kind.mp3")}).Oggetti();
    ASSERT_EQ(objects.size(), 1U);
    EXPECT_EQ(objects[0]["Valid"], true) << row.options;
    EXPECT_EQ(objects[0]["GoodPlaylist"], row.playlist) << row.options << objects[0];
    EXPECT_EQ(objects[0]["GoodInput"], row.input) << row.options << objects[0];
  }
}

TEST_F(InputsRoad, AProjectCopiedElsewhereWithItsFilesRecordsFromThere) {
  Expect(0, {"new", "Lift", "--mode", "1"});
  Expect(0, {"inputs", "Lift", "set", "3", Music("probe.mp3")});
  std::filesystem::copy(k.Host("program/Projects/Lift"), k.Host("carried"));
  std::filesystem::copy(Music("probe.mp3"), k.Host("carried/3.mp3"));
  std::filesystem::remove_all(k.Host("music"));
  Expect(0, {"record", k.Host("carried"), k.Host("card")});
  EXPECT_TRUE(k.Cartella.Same("card/3.mp3", "carried/3.mp3"));
}

}  // namespace
}  // namespace kvr5
