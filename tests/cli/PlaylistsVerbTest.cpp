#include <algorithm>

#include "cli/Verbi.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Sessions of the playlists of a project named Hall.
class PlaylistsVerb : public test::Verbi {
 protected:
  void SetUp() override {
    for (const char* name : {"a", "b", "10", "2"}) {
      k.ScriviMp3(std::string("music/") + name + ".mp3", name[0]);
    }
    New("5");
  }
  auto Run(const std::string& commands, std::vector<std::string> options = {}) {
    options.insert(options.end(), {"playlists", "Hall"});
    return k.EseguiJson(options, commands);
  }
  std::string Music(const char* name) const { return k.Host(std::string("music/") + name); }
  /// The rows of the only list of a run, "1 a.mp3".
  static std::vector<std::string> Rows(const test::Corsa& run) {
    std::vector<std::string> rows;
    for (const auto& each : run.Oggetti()) {
      if (each.contains("end")) continue;
      rows.push_back(std::to_string(each["Pos"].get<int>()) + " " +
                     each["FileName"].get<std::string>());
    }
    return rows;
  }
  std::string Read(const std::string& name) const {
    return k.Cartella.Read("program/Projects/Hall/" + name);
  }
  bool Exists(const std::string& name) const {
    return k.Cartella.Exists("program/Projects/Hall/" + name);
  }
};

TEST_F(PlaylistsVerb, ARowIsAnObjectAndTheListTellsItsEnd) {
  const auto run = Run("add " + Music("a.mp3") + "\nlist\n");
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Oggetti()[0].dump(), nlohmann::json({{"ID", 1},
                                                     {"Pos", 1},
                                                     {"NPlaylist", 1},
                                                     {"FileName", "a.mp3"},
                                                     {"FilePath", k.Percorso("music") + "\\"},
                                                     {"Alias", nullptr}})
                                         .dump());
  EXPECT_EQ(run.Oggetti()[1].dump(), R"({"end":"list","rows":1})");
}

TEST_F(PlaylistsVerb, TheEndOfTheInputAndCancelLeaveTheDatabaseByteForByte) {
  const std::string before = Read("playlist.mdb");
  for (const char* end : {"", "cancel\n", "cancel\nnonsense\n"}) {
    EXPECT_EQ(Run("add " + Music("a.mp3") + "\n" + end).Stato, 0);
    EXPECT_EQ(Read("playlist.mdb"), before);
    EXPECT_FALSE(Exists("tmpPlaylist.mdb"));
  }
}

TEST_F(PlaylistsVerb, ASaveWritesListsAndNamesTheFilesOnTheCard) {
  const std::string list = "add " + Music("a.mp3") + " " + Music("b.mp3") + "\n";
  const auto run = Run(list + "select 2\n" + "add " + Music("b.mp3") + "\nsave\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(Read("1.m3u"), "P01-001\r\nP01-002\r\n");
  EXPECT_EQ(Read("3.m3u"), "P01-002\r\n");
  EXPECT_EQ(Read("3_LOCAL_.m3u"), Music("b.mp3") + "\r\n");
  EXPECT_FALSE(Exists("a.mp3")) << "the question counts as no";
  EXPECT_FALSE(Exists("tmpPlaylist.mdb"));
  EXPECT_THAT(Rows(Run("list\n")), ElementsAre("1 a.mp3", "2 b.mp3"));
}

TEST_F(PlaylistsVerb, AYesBringsTheFilesIn) {
  EXPECT_EQ(Run("add " + Music("a.mp3") + "\nyes\nsave\n").Stato, 0);
  EXPECT_TRUE(k.Cartella.Same("program/Projects/Hall/a.mp3", "music/a.mp3"));
  EXPECT_EQ(Run("list\n").Oggetti()[0]["FilePath"], k.Percorso("program/Projects/Hall") + "\\");
  EXPECT_EQ(Run("add " + Music("b.mp3") + "\nsave\n", {"--yes"}).Stato, 0);
  EXPECT_TRUE(Exists("b.mp3"));
}

TEST_F(PlaylistsVerb, AFolderComesInTheOrderOfThePane) {
  EXPECT_THAT(Rows(Run("addall " + k.Host("music") + "\nlist\n")),
              ElementsAre("1 2.mp3", "2 10.mp3", "3 a.mp3", "4 b.mp3"));
}

TEST_F(PlaylistsVerb, TracksMoveAndGo) {
  const std::string all = "addall " + k.Host("music") + "\n";
  EXPECT_THAT(Rows(Run(all + "up 3\ndown 1\nremove 4\nlist\n")),
              ElementsAre("1 a.mp3", "2 2.mp3", "3 10.mp3"));
  EXPECT_THAT(Rows(Run(all + "clear\nyes\nclear\nlist\n")), IsEmpty());
  EXPECT_EQ(Rows(Run(all + "clear\nlist\n")).size(), 4U) << "without an answer it is no";
}

TEST_F(PlaylistsVerb, ASeedGivesTheSameOrder) {
  const std::string all = "addall " + k.Host("music") + "\n";
  const auto once = Rows(Run(all + "shuffle 7\nlist\n"));
  EXPECT_EQ(Rows(Run(all + "shuffle 7\nlist\n")), once);
  EXPECT_THAT(once, ElementsAre("1 2.mp3", "2 a.mp3", "3 b.mp3", "4 10.mp3"));
}

TEST_F(PlaylistsVerb, ARefusalIsOneLineAndTheSessionGoesOn) {
  k.Cartella.Write("music/bad.mp3", "no music");
  k.Cartella.Write("music/c.txt", "text");
  const std::vector<std::string> refused{"add nowhere.mp3",
                                         "add " + Music("bad.mp3"),
                                         "add " + Music("c.txt"),
                                         "select 7",
                                         "inputs 3",
                                         "remove 2",
                                         "up 1",
                                         "down 1",
                                         "new Music",
                                         "delete",
                                         "addall /nowhere",
                                         "import /nowhere.m3u"};
  std::string commands = "add " + Music("a.mp3") + "\n";
  for (const auto& each : refused) commands += each + "\n";
  const auto run = Run(commands + "list\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_THAT(Rows(run), ElementsAre("1 a.mp3"));
  ASSERT_EQ(run.Box().size(), refused.size()) << run.Errori;
  for (std::size_t i = 0; i < refused.size(); ++i) {
    EXPECT_EQ(run.Box()[i]["refused"], refused[i]);
    EXPECT_NE(run.Box()[i]["why"], "");
    EXPECT_EQ(run.Box()[i].size(), 2U);
  }
}

TEST_F(PlaylistsVerb, OneRefusedFileOfManyDoesntStopTheOthers) {
  const auto run = Run("add nowhere.mp3 " + Music("a.mp3") + "\nlist\n");
  EXPECT_THAT(Rows(run), ElementsAre("1 a.mp3"));
  EXPECT_EQ(run.Box().size(), 1U);
}

TEST_F(PlaylistsVerb, WrongWordsEndItUnsavedWithStatusTwo) {
  const std::string before = Read("playlist.mdb");
  for (const char* wrong : {"nonsense", "add", "list all", "select", "select x", "inputs 8", "up",
                            "up one", "shuffle 2147483648", "new a b c", "SAVE", "yes please",
                            "add \"open", "report now", "remove 1 2"}) {
    const auto run = Run("add " + Music("a.mp3") + "\n" + wrong + "\nsave\n");
    EXPECT_EQ(run.Stato, 2) << wrong;
    EXPECT_EQ(Read("playlist.mdb"), before) << wrong;
    EXPECT_FALSE(Exists("tmpPlaylist.mdb")) << wrong;
  }
}

TEST_F(PlaylistsVerb, WordsMayBeQuotedWhollyOrInPart) {
  k.ScriviMp3("music/two words.mp3");
  const auto run = Run("\n   \nadd \"" + Music("two words.mp3") + "\"\n  add   " + k.Host("music") +
                       "/two\" \"words.mp3  \r\nlist\n");
  EXPECT_THAT(Rows(run), ElementsAre("1 two words.mp3", "2 two words.mp3"));
}

TEST_F(PlaylistsVerb, AListIsImported) {
  k.Cartella.Write("music/l.m3u",
                   "#EXTM3U\r\n#EXTINF:1,A\r\n" + Music("a.mp3") + "\r\n  b.mp3  \r\nnone.mp3\r\n");
  EXPECT_THAT(Rows(Run("import " + Music("l.m3u") + "\nlist\n")),
              ElementsAre("1 a.mp3", "2 b.mp3"));
}

TEST_F(PlaylistsVerb, TheReportIsWrittenFromTheWorkingCopy) {
  EXPECT_EQ(Run("add " + Music("a.mp3") + "\nreport\n").Stato, 0);
  EXPECT_NE(Read("Playlist.htm").find("Playlist 1.m3u"), std::string::npos);
  EXPECT_NE(Read("Playlist.htm").find("a.mp3<BR>"), std::string::npos);
}

/// The same of a project whose lists have names.
class NamedPlaylistsVerb : public PlaylistsVerb {
 protected:
  void SetUp() override {
    PlaylistsVerb::SetUp();
    k.CreaProgetto("Named", 3, 9);
  }
  auto Session(const std::string& commands, bool asJson = true) {
    const std::vector<std::string> verb{"playlists", "Named"};
    return asJson ? k.EseguiJson(verb, commands) : k.Esegui(verb, commands);
  }
  std::string List(const std::string& name) const {
    return k.Cartella.Read("program/Projects/Named/" + name + ".m3u");
  }
};

TEST_F(NamedPlaylistsVerb, MakesAndDeletesThem) {
  const auto run = Session("new Noon\nadd " + Music("a.mp3") + "\nnew Noon Evening\nadd " +
                           Music("b.mp3") + "\nselect 0\nlist\nsave\n");
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Box().size(), 2U) << "taken, and the save's question";
  EXPECT_THAT(Rows(run), ElementsAre("1 a.mp3", "2 b.mp3")) << "both at the first place";
  EXPECT_EQ(List("Noon"), "a\r\nb\r\n");
  EXPECT_THAT(Rows(Session("select 0\ndelete\nlist\n")), ElementsAre("1 a.mp3", "2 b.mp3"))
      << "without an answer it is no";
  EXPECT_EQ(Session("yes\nselect 1\ndelete\nlist\ndelete\nlist\nsave\n").Oggetti().size(), 4U)
      << "two tracks and an end while Noon is there, an end alone without it";
  EXPECT_FALSE(k.Cartella.Exists("program/Projects/Named/Noon.m3u"));
}

TEST_F(NamedPlaylistsVerb, RefuseNamesThatTheBoxWouldntTakeInOneLine) {
  for (const char* name : {"A:B", "\"  \"", "NineChars"}) {
    const auto run = Session(std::string("new ") + name + "\nlist\n", false);
    EXPECT_EQ(run.Stato, 0);
    EXPECT_TRUE(run.Errori.starts_with("new ")) << run.Errori;
    EXPECT_EQ(std::ranges::count(run.Errori, '\n'), 1) << run.Errori;
    EXPECT_EQ(std::ranges::count(run.Errori, '\r'), 0);
  }
  EXPECT_THAT(Session("new 12345678\nnew Free A:B\n").Box(), IsEmpty());
}

TEST_F(NamedPlaylistsVerb, WithoutANameRefuseFilesAndPassOverListsAndReports) {
  k.Cartella.Write("music/l.m3u", "b.mp3\r\n");
  const auto run = Session("add " + Music("a.mp3") + "\nimport " + Music("l.m3u") + "\nreport\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Box().size(), 1U);
  EXPECT_EQ(run.Box()[0]["refused"], "add " + Music("a.mp3"));
}

TEST_F(PlaylistsVerb, ANumberThatNoTrackOrEntryHasIsRefusedHoweverLarge) {
  const auto run =
      Run("add " + Music("a.mp3") +
          "\nremove -1\nup 99999999999999999999\nselect -1\nselect 5000000000\nlist\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Box().size(), 4U);
  EXPECT_THAT(Rows(run), ElementsAre("1 a.mp3"));
}

TEST_F(PlaylistsVerb, CommandsMayStandBehindAUtf8Mark) {
  const auto run =
      Run("\xEF\xBB\xBF"
          "add " +
          Music("a.mp3") + "\nlist\n");
  EXPECT_EQ(run.Stato, 0);
  EXPECT_THAT(Rows(run), ElementsAre("1 a.mp3"));
}

TEST_F(PlaylistsVerb, AnAddOfSeveralEndsAtTheFullList) {
  std::string commands;
  for (int i = 0; i < 499; ++i) commands += "add " + Music("a.mp3") + "\n";
  const std::string last = "add " + Music("b.mp3") + " " + Music("10.mp3") + " " + Music("2.mp3");
  const auto run = Run(commands + last + "\nlist\n");
  EXPECT_EQ(run.Stato, 0);
  ASSERT_EQ(run.Box().size(), 1U) << "told once";
  EXPECT_EQ(run.Box()[0]["refused"], last);
  const auto rows = Rows(run);
  ASSERT_EQ(rows.size(), 500U);
  EXPECT_EQ(rows.back(), "500 b.mp3");
}

TEST_F(PlaylistsVerb, AListForPeopleIsALineATrack) {
  const auto run =
      k.Esegui({"playlists", "Hall"}, "add " + Music("a.mp3") + " " + Music("b.mp3") + "\nlist\n");
  EXPECT_EQ(run.Uscita, "1  " + Music("a.mp3") + "\n2  " + Music("b.mp3") + "\n");
}

TEST_F(PlaylistsVerb, ASaveWhoseCopyFailsIsStatus1) {
  const auto run = Run("add " + Music("a.mp3") + "\nsave\n");
  ASSERT_EQ(run.Stato, 0);
  std::filesystem::remove(k.Host("music/a.mp3"));
  EXPECT_EQ(Run("yes\nsave\n").Stato, 1) << "the file to be brought in has gone";
  EXPECT_FALSE(Exists("tmpPlaylist.mdb"));
}

TEST_F(PlaylistsVerb, InputsAreSetAsByClicksAndTheSelectorHasTheLastWord) {
  const auto project = k.Host("program/Projects/Hall");
  std::string descriptor = Read("Config.cfg");
  const auto set = [&](const std::string& key, const std::string& value) {
    const auto at = descriptor.find(key + "=");
    ASSERT_NE(at, std::string::npos);
    const auto end = descriptor.find("\r\n", at);
    descriptor.replace(at, end - at, key + "=" + value);
  };
  set("PlayerType", "3");
  set("PlayerMode", "7");
  k.Cartella.Write("program/Projects/Hall/Config.cfg", descriptor);
  const auto run = Run("inputs 3\nadd " + Music("a.mp3") + "\nlist\n");
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  ASSERT_FALSE(run.Oggetti().empty());
  EXPECT_EQ(run.Oggetti()[0]["NPlaylist"], 4) << "the sum and one more";
}

TEST_F(PlaylistsVerb, ACommandOfAThousandFilesIsTakenWhole) {
  std::string command = "add";
  for (int i = 0; i < 499; ++i) command += " " + Music("a.mp3") + std::string(200, ' ');
  command += " " + Music("b.mp3");
  ASSERT_GT(command.size(), std::size_t{64} << 10U);
  const auto rows = Rows(Run(command + "\nlist\n"));
  ASSERT_EQ(rows.size(), 500U);
  EXPECT_EQ(rows.back(), "500 b.mp3");
}

TEST_F(PlaylistsVerb, AProjectWithoutTheDatabaseIsStatus3) {
  std::filesystem::remove(k.Host("program/Projects/Hall/playlist.mdb"));
  EXPECT_EQ(Run("list\n").Stato, 3);
}

}  // namespace
}  // namespace kvr5
