#include <sqlite3.h>
#include <unistd.h>

#include <chrono>
#include <memory>

#include "cli/CardVerb.h"
#include "cli/Terminale.h"

// Cards that are stopped at, that go away, or hold what no other card could.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

/// A database that another program is changing, so that whoever opens it waits a while.
class Occupato {
 public:
  explicit Occupato(const std::string& path) {
    EXPECT_EQ(sqlite3_open(path.c_str(), &handle_), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(handle_, "BEGIN EXCLUSIVE; DELETE FROM List", nullptr, nullptr, nullptr),
              SQLITE_OK)
        << sqlite3_errmsg(handle_);
  }
  ~Occupato() { sqlite3_close(handle_); }  // nothing is changed after all
  Occupato(const Occupato&) = delete;
  Occupato& operator=(const Occupato&) = delete;

 private:
  sqlite3* handle_ = nullptr;
};

/// A series of two cards of a project of playlists one of whose tracks is gone.
class SeriesWithoutATrack : public test::CardVerb {
 protected:
  void SetUp() override {
    k.CreaProgetto("Hall", 4, 5);
    k.ScriviMp3("music/a.mp3", 1);
    k.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", k.Percorso("music") + "\\", "P01-001.mp3");
    k.AggiungiRiga("playlist.mdb", 1, 2, "b.mp3", k.Percorso("music") + "\\", "P01-002.mp3");
    fs::create_directories(k.Host("two"));
  }
  std::string Database(const std::string& name) const { return Project() + "/" + name; }
  std::vector<std::unique_ptr<Occupato>> Hold(const Names& databases) const {
    std::vector<std::unique_ptr<Occupato>> held;
    for (const auto& name : databases) held.push_back(std::make_unique<Occupato>(Database(name)));
    return held;
  }
  /// Waits until the run has come to the pass over the tracks and waits for their database: what
  /// the last stage copies is on the card, and another process than this has the database open.
  bool LooksForTracks() const {
    const auto last = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < last) {
      if (k.Cartella.Exists("card/last.jpg") && IsOpenElsewhere(Database("playlist.mdb"))) {
        return true;
      }
    }
    return false;
  }
  static bool IsOpenElsewhere(const std::string& path) {
    std::error_code gone;  // processes come and go
    for (const auto& process : fs::directory_iterator("/proc", gone)) {
      const std::string name = process.path().filename().string();
      if (name.find_first_not_of("0123456789") != std::string::npos) continue;
      if (name == std::to_string(getpid())) continue;
      for (const auto& open : fs::directory_iterator(process.path() / "fd", gone)) {
        if (fs::read_symlink(open.path(), gone) == path) return true;
      }
    }
    return false;
  }
  void ExpectSecondCardUntouched(test::Terminale& person) {
    EXPECT_EQ(person.Fine(), 1) << person.Schermo();
    EXPECT_TRUE(k.Cartella.Exists("card/Config.txt")) << "the first card was begun";
    EXPECT_EQ(k.Nomi("two"), Names{}) << person.Schermo();
    EXPECT_NE(person.Schermo().find("MP3 files not copied"), std::string::npos);
    EXPECT_NE(person.Schermo().find(k.Host("two") + ": not recorded whole"), std::string::npos)
        << person.Schermo();
  }
  Names Words() const { return {"record", "Hall", k.Host("card"), k.Host("two")}; }
};

TEST_F(SeriesWithoutATrack, CtrlCInAStageOfTheFirstCardLeavesTheSecondUntouched) {
  for (const char* name : {"inputcfg.mdb", "scheduler.mdb"}) {
    fs::copy_file(Database("playlist.mdb"), Database(name));
  }
  // Each has a journal beside it, so that the first stage opens it and waits a while.
  auto held = Hold({"inputcfg.mdb", "playlist.mdb", "scheduler.mdb"});
  test::Terminale person(k.Lavoro(Words()));
  ASSERT_TRUE(person.Aspetta("Writing the files of the project")) << person.Schermo();
  person.Scrivi("\x03");
  held.clear();
  ExpectSecondCardUntouched(person);
}

TEST_F(SeriesWithoutATrack, CtrlCWhileItsTracksAreLookedForLeavesTheSecondUntouched) {
  k.Cartella.Write("program/Projects/Hall/last.jpg", "x");
  auto held = Hold({"playlist.mdb"});
  test::Terminale person(k.Lavoro(Words()));
  ASSERT_TRUE(LooksForTracks()) << person.Schermo();
  person.Scrivi("\x03");
  ASSERT_TRUE(person.Aspetta("^C")) << person.Schermo();
  held.clear();
  ExpectSecondCardUntouched(person);
}

class CardTrouble : public test::CardVerb {
 protected:
  void SetUp() override { RecordHall(); }
  /// Hall is on the card alone.
  void FreeTheName() const { fs::remove_all(Project()); }
};

TEST_F(CardTrouble, AReadbackThatLeftFilesOutSaysSoAndPrintsTheFolderWithStatus1) {
  FreeTheName();
  k.Cartella.Write("card/Aux.mp3", "x");
  k.Cartella.Write("card/con\x01.txt", "x");
  const auto run = k.Esegui({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Righe(), Names{Project()});
  EXPECT_NE(run.Errori.find("weren't copied: Aux.mp3, con\uFFFD.txt"), std::string::npos)
      << run.Errori;
  EXPECT_EQ(k.Nomi("program/Projects/Hall"),
            (Names{"Config.cfg", "Config.txt", "a.mp3", "b.mp3", "inputcfg.mdb"}));
  FreeTheName();
  const auto program = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(program.Stato, 1);
  EXPECT_EQ(program.Oggetti(), Objects{(json{{"project", Project()}})});
  ASSERT_EQ(program.Box().size(), 1U) << program.Errori;
  EXPECT_EQ(program.Box()[0]["title"], "Not all of the card was copied");
}

TEST_F(CardTrouble, WhatOpeningLacksIsStatus3AlsoWhereFilesWereLeftOut) {
  FreeTheName();
  k.Cartella.Write("card/Aux.mp3", "x");
  fs::remove(k.Host("card/Config.txt"));
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Box().size(), 2U) << run.Errori;
}

TEST_F(CardTrouble, ACopyThatFailedIsStatus1AlsoWhereAFileOfTheProjectIsMissingForIt) {
  FreeTheName();
  k.SenzaDirittiDiRoot();
  fs::permissions(k.Host("program/Projects"), fs::perms::all);
  fs::permissions(k.Host("card/Config.txt"), fs::perms::none);
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  EXPECT_EQ(run.Stato, 1) << "what it lacks, it lacks for the copy\n" << run.Errori;
  EXPECT_EQ(run.Uscita, "");
  ASSERT_EQ(run.Box().size(), 2U) << run.Errori;
  EXPECT_EQ(run.Box()[0]["title"], "Copy stopped");
  EXPECT_EQ(run.Box()[1]["title"], "Project not complete");
}

TEST_F(CardTrouble, ACardThatShowsNoProjectsFileAnyMoreIsTold) {
  FreeTheName();
  k.SenzaDirittiDiRoot();
  fs::permissions(k.Host("program/Projects"), fs::perms::all);
  // Who may enter a folder but not list it finds the descriptor by its name and nothing else.
  fs::copy_file(k.Host("card/Config.cfg"), k.Host("card/config.cfg"));
  constexpr auto kEnter = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  fs::permissions(k.Host("card"), kEnter);
  const auto run = k.EseguiJson({"readback", k.Host("card")});
  fs::permissions(k.Host("card"), fs::perms::owner_all);
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_EQ(run.Box(), Objects{Said(k.Host("card") +
                                    ": no file is on the card any more; the folder stays empty")});
  EXPECT_EQ(k.Nomi("program/Projects/Hall"), Names{});
}

TEST_F(CardTrouble, AVerificationOfACardThatGoesAwayEndsWithTheCountsAndThatItWent) {
  // Sparse: there is more to compare than anybody waits for, and none of it lies on a disk.
  for (const char* name : {"music/b.mp3", "card/1.mp3"}) {
    fs::resize_file(k.Host(name), std::uintmax_t{64} << 30U);
  }
  k.Cartella.Write("card/stray", "x");
  test::Terminale person(k.Lavoro({"verify", "Hall", k.Host("card")}, k.Host("out")));
  ASSERT_TRUE(person.Aspetta("MB/s")) << person.Schermo();
  fs::rename(k.Host("card"), k.Host("away"));
  fs::resize_file(k.Host("away/1.mp3"), 100);  // what is open ends too, and differs for that
  EXPECT_EQ(person.Fine(), 1) << person.Schermo();
  const std::string out = k.Cartella.Read("out");
  EXPECT_TRUE(out.starts_with("different: 1.mp3\nunchecked: 1.mp3\n3 files as in the project, "))
      << "nothing that comes after it is told\n"
      << out;
  EXPECT_TRUE(
      out.ends_with("; different 1, unchecked 1; the card went away, not all was compared\n"))
      << out;
}

TEST_F(CardTrouble, ADriveThatIsNotThereIsToldWithOneColon) {
  for (const Names& words : {Names{"verify", "Hall", "X:"}, Names{"record", "Hall", "X:"},
                             Names{"erase", "X:"}, Names{"readback", "X:"}}) {
    const auto run = k.EseguiJson(words);
    EXPECT_EQ(run.Stato, 1);
    EXPECT_EQ(run.Box(), Objects{Said("X: there is no such card")})
        << testing::PrintToString(words) << run.Errori;
  }
}

TEST_F(CardTrouble, AFindingWhoseNameHoldsALineFeedIsOneLine) {
  k.Cartella.Write("card/a\nmissing: b.mp3", "x");
  const auto run = k.Esegui({"verify", "Hall", k.Host("card")});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Righe().size(), 2U) << run.Uscita;
  EXPECT_EQ(run.Righe()[0], "stray: a\uFFFDmissing: b.mp3");
}

}  // namespace
}  // namespace kvr5
