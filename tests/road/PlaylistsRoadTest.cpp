#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "cli/Compagno.h"
#include "road/Encoder.h"

// Playlists from a new project to the recorded card, through kvr5card alone.

namespace kvr5 {
namespace {

using test::Compagno;
using testing::ElementsAre;
using Names = std::vector<std::string>;

class PlaylistsCommandRoad : public testing::Test {
 protected:
  void SetUp() override {
    int hertz = 300;
    for (const char* name :
         {"a/welcome.mp3", "a/L'été.mp3", "a/song.mp3", "b/song.mp3", "b/2.mp3", "b/10.mp3"}) {
      const std::filesystem::path file = k.Host(std::string("music/") + name);
      std::filesystem::create_directories(file.parent_path());
      if (!test::EncodeMp3(file.string(), "-b 128 --cbr", hertz += 50)) {
        GTEST_SKIP() << "lame is missing";
      }
    }
  }
  std::string Music(const std::string& name) const { return k.Host("music/") + name; }
  test::Corsa Run(int status, const Names& words, const std::string& session = {}) const {
    auto run = k.EseguiJson(words, session);
    EXPECT_EQ(run.Stato, status) << testing::PrintToString(words) << run.Errori;
    return run;
  }
  /// A session of the project Hall whose questions count as no.
  void Session(const std::string& commands, const char* answer = "--no") const {
    Run(0, {answer, "playlists", "Hall"}, commands + "save\n");
  }
  void Record() const { Run(0, {"record", "Hall", k.Host("card")}); }
  void EmptyTheCard() const {
    std::filesystem::remove_all(k.Host("card"));
    std::filesystem::create_directories(k.Host("card"));
  }
  /// The MP3 files on the card.
  Names OnCard() const {
    Names names = k.Nomi("card");
    std::erase_if(names, [](const std::string& each) { return !each.ends_with(".mp3"); });
    return names;
  }
  /// The lines of the player's lists on the card, each once.
  Names Named() const {
    std::set<std::string> lines;
    for (const std::string& each : k.Nomi("card")) {
      if (!each.ends_with(".m3u") || each.find("_LOCAL_") != std::string::npos) continue;
      std::istringstream in(k.Cartella.Read("card/" + each));
      for (std::string line; std::getline(in, line);) {
        lines.insert(line.substr(0, line.find('\r')) + ".mp3");
      }
    }
    return {lines.begin(), lines.end()};
  }
  bool Same(const std::string& onCard, const std::string& music) const {
    return k.Cartella.Same("card/" + onCard, "music/" + music);
  }

  Compagno k;
};

TEST_F(PlaylistsCommandRoad, FromEncodedFilesToACardThatNeedsNoSourceAnyMore) {
  Run(0, {"new", "Hall", "--mode", "5"});
  Session("add " + Music("a/welcome.mp3") + " \"" + Music("a/L'été.mp3") + "\"\nselect 2\naddall " +
          k.Host("music/b") + "\nadd " + Music("a/welcome.mp3") + "\n");
  Record();
  EXPECT_THAT(OnCard(), ElementsAre("P01-001.mp3", "P01-002.mp3", "P03-001.mp3", "P03-002.mp3",
                                    "P03-003.mp3"));
  EXPECT_EQ(Named(), OnCard());
  EXPECT_TRUE(Same("P01-001.mp3", "a/welcome.mp3") && Same("P01-002.mp3", "a/L'été.mp3"));
  EXPECT_TRUE(Same("P03-001.mp3", "b/2.mp3") && Same("P03-002.mp3", "b/10.mp3"));

  Session("", "--yes");
  const Names before = OnCard();
  EmptyTheCard();
  std::filesystem::rename(k.Host("music"), k.Host("away"));
  Record();
  EXPECT_EQ(OnCard(), before);
  EXPECT_TRUE(k.Cartella.Same("card/P03-003.mp3", "away/b/song.mp3"));
}

TEST_F(PlaylistsCommandRoad, TheOrderOfAShuffleIsThatOfTheLists) {
  Run(0, {"new", "Hall", "--mode", "6"});
  Session("addall " + k.Host("music/b") + "\naddall " + k.Host("music/a") + "\nshuffle 7\n");
  const auto rows = Run(0, {"playlists", "Hall"}, "list\n").Oggetti();
  ASSERT_EQ(rows.size(), 7U);
  Record();
  for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
    const std::string alias = "P01-00" + std::to_string(i + 1) + ".mp3";
    EXPECT_EQ(rows[i]["Alias"], alias);
    const std::string source =
        rows[i]["FilePath"].get<std::string>() + rows[i]["FileName"].get<std::string>();
    const auto host = k.Disco.HostPath(source);
    EXPECT_TRUE(k.Cartella.Read("card/" + alias) ==
                k.Cartella.Read(std::filesystem::relative(host, k.Host(""))))
        << host;
  }
}

TEST_F(PlaylistsCommandRoad, AnImportedListOfAnotherPlayerIsRecordedToo) {
  Run(0, {"new", "Hall", "--mode", "7"});
  k.Cartella.Write("music/a/l.m3u", "\xEF\xBB\xBF#EXTM3U\r\n#EXTINF:2,Summer\r\nL'été.mp3\r\n" +
                                        Music("b/2.mp3") + "\r\ngone.mp3\r\n");
  Session("select 6\nimport " + Music("a/l.m3u") + "\n");
  Record();
  EXPECT_THAT(OnCard(), ElementsAre("P07-001.mp3", "P07-002.mp3"));
  EXPECT_TRUE(Same("P07-001.mp3", "a/L'été.mp3") && Same("P07-002.mp3", "b/2.mp3"));
}

TEST_F(PlaylistsCommandRoad,
       AnImportedLineWithAFolderBesideTheListIsKeptAsWrittenAndNotFoundAgain) {
  Run(0, {"new", "Hall", "--mode", "5"});
  k.Cartella.Write("music/l.m3u", "b\\2.mp3\r\n");
  Session("import " + Music("l.m3u") + "\n");
  const auto run = Run(1, {"record", "Hall", k.Host("card")});
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().ends_with("\nb\\2.mp3")) << run.Errori;
  EXPECT_THAT(OnCard(), ElementsAre());
}

TEST_F(PlaylistsCommandRoad, ATrackThatIsGoneStopsTheRecordingWithItsName) {
  Run(0, {"new", "Hall", "--mode", "5"});
  Session("add " + Music("a/welcome.mp3") + " " + Music("b/2.mp3") + "\n");
  std::filesystem::remove(Music("b/2.mp3"));
  const auto run = Run(1, {"record", "Hall", k.Host("card")});
  ASSERT_EQ(run.Box().size(), 1U);
  EXPECT_TRUE(run.Box()[0]["text"].get<std::string>().ends_with("\n" + Music("b/2.mp3")))
      << run.Errori;
  EXPECT_THAT(OnCard(), ElementsAre()) << "not even the one that is there";
  EXPECT_TRUE(k.Cartella.Same("card/playlist.mdb", "program/Projects/Hall/playlist.mdb"));
  const auto shown = Run(0, {"show", "Hall"}).Oggetti();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0]["tracks"], 2);
  EXPECT_EQ(shown[0]["missing"].size(), 1U) << shown[0];
}

TEST_F(PlaylistsCommandRoad, NamedListsGoToTheCardUnderTheirNamesAndTheirFilesUnderTheirs) {
  k.CreaProgetto("Hall", 3, 9);
  Session("new Noon\nadd " + Music("a/welcome.mp3") + "\nnew Night\nadd " + Music("b/2.mp3") + " " +
          Music("b/10.mp3") + "\n");
  k.Cartella.Write("program/Projects/Hall/Noon_LOCAL_.m3u", "left by another program\r\n");
  Record();
  EXPECT_THAT(OnCard(), ElementsAre("10.mp3", "2.mp3", "welcome.mp3"));
  EXPECT_EQ(Named(), OnCard());
  EXPECT_FALSE(k.Cartella.Exists("card/Noon_LOCAL_.m3u"));
  EXPECT_TRUE(k.Cartella.Exists("program/Projects/Hall/Noon_LOCAL_.m3u"));
}

TEST_F(PlaylistsCommandRoad, OneListOfAnOlderModelIsRecordedAsTheSetOfItsFiles) {
  k.CreaProgetto("Hall", 2, 0);
  Session("addall " + k.Host("music/b") + "\nadd " + Music("b/2.mp3") + "\n");
  EXPECT_EQ(k.Cartella.Read("program/Projects/Hall/PLAYLIST.TXT"),
            "P01-001\r\nP01-002\r\nP01-003\r\nP01-001\r\n");
  Record();
  EXPECT_TRUE(k.Cartella.Same("card/PLAYLIST.M3U", "program/Projects/Hall/PLAYLIST.TXT"));
  EXPECT_FALSE(k.Cartella.Exists("card/PLAYLIST.TXT"));
  EXPECT_THAT(OnCard(), ElementsAre("P01-001.mp3", "P01-002.mp3", "P01-003.mp3"));
}

}  // namespace
}  // namespace kvr5
