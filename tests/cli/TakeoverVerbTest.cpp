#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>

#include "cli/Verbi.h"
#include "platform/db/Recordset.h"
#include "support/CampioniJet.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::CampioneJet;

class TakeoverVerb : public test::Verbi {
 protected:
  void SetUp() override { New(); }
  void Put(const std::string& sample, const std::string& database) const {
    fs::copy_file(CampioneJet(sample + ".mdb"), Project() + "/" + database,
                  fs::copy_options::overwrite_existing);
  }
  std::string Bytes(const std::string& file) const {
    return k.Cartella.Read("program/Projects/Hall/" + file);
  }
  static std::string Sample(const std::string& sample) {
    std::ifstream stream(CampioneJet(sample + ".mdb"), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::int64_t Inputs() {
    Connection connection(k.Disco);
    Recordset rows;
    EXPECT_FALSE(connection.Open(k.Percorso("program/Projects/Hall/inputcfg.mdb")));
    EXPECT_FALSE(rows.Open(connection, "SELECT * FROM [List]"));
    return rows.RecordCount();
  }
};

TEST_F(TakeoverVerb, TakesTheDatabasesOverAndSaysWhereTheOriginalsAre) {
  Put("a_inputs", "inputcfg.mdb");
  const auto run = k.Esegui({"takeover", "Hall"});
  EXPECT_EQ(run.Stato, 0) << run.Errori;
  EXPECT_EQ(run.Uscita, "inputcfg.mdb: 12 files\n");
  EXPECT_NE(run.Errori.find(Project() + "/Originals"), std::string::npos) << run.Errori;
  EXPECT_TRUE(Bytes("Originals/inputcfg.mdb") == Sample("a_inputs"));
  EXPECT_EQ(k.Esegui({"takeover", "Hall"}).Uscita, "");
}

TEST_F(TakeoverVerb, ProgramsGetAnObjectForEachDatabase) {
  Put("a_inputs", "inputcfg.mdb");
  Put("d_schedule", "scheduler.mdb");
  const auto run = k.EseguiJson({"takeover", "Hall"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Oggetti(), (std::vector<json>{{{"database", "inputcfg.mdb"},
                                               {"state", "taken"},
                                               {"files", 12},
                                               {"segments", 0},
                                               {"why", nullptr}},
                                              {{"database", "scheduler.mdb"},
                                               {"state", "taken"},
                                               {"files", 72},
                                               {"segments", 24},
                                               {"why", nullptr}}}));
}

TEST_F(TakeoverVerb, ADryRunOnlyTells) {
  Put("a_inputs", "inputcfg.mdb");
  const auto before = k.Nomi("program");
  const auto run = k.Esegui({"takeover", "--dry-run", "Hall"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "inputcfg.mdb: 12 files\n");
  EXPECT_EQ(k.Nomi("program"), before);
  EXPECT_TRUE(Bytes("inputcfg.mdb") == Sample("a_inputs"));
}

TEST_F(TakeoverVerb, OneThatCannotBeReadIsToldAndNothingIsChanged) {
  Put("a_inputs", "inputcfg.mdb");
  Put("x_jet3_flag", "playlist.mdb");
  const auto before = k.Nomi("program");
  const auto run = k.EseguiJson({"takeover", "Hall"});
  EXPECT_EQ(run.Stato, 1);
  ASSERT_EQ(run.Oggetti().size(), 2U);
  EXPECT_EQ(run.Oggetti()[0]["state"], "kept");
  EXPECT_EQ(run.Oggetti()[1]["state"], "refused");
  EXPECT_EQ(k.Nomi("program"), before);
  EXPECT_TRUE(Bytes("inputcfg.mdb") == Sample("a_inputs"));
}

TEST_F(TakeoverVerb, AProjectOfOursHasNothingToBeTakenOver) {
  const auto run = k.Esegui({"takeover", "Hall"});
  EXPECT_EQ(run.Stato, 0);
  EXPECT_EQ(run.Uscita, "");
  EXPECT_NE(run.Errori.find("nothing is to be taken over"), std::string::npos) << run.Errori;
}

TEST_F(TakeoverVerb, OtherVerbsTellOfDatabasesThatWereNotTakenOverAndChangeNothing) {
  Put("a_inputs", "inputcfg.mdb");
  for (const char* verb : {"show", "save", "report"}) {
    const auto run = k.Esegui({verb, "Hall"});
    EXPECT_NE(run.Errori.find("inputcfg.mdb: made by an earlier program, and not read"),
              std::string::npos)
        << verb << run.Errori;
    EXPECT_NE(run.Errori.find("run kvr5card takeover Hall"), std::string::npos) << run.Errori;
  }
  const auto listed = k.EseguiJson({"inputs", "Hall", "list"});
  EXPECT_NE(listed.Stato, 0);
  EXPECT_TRUE(Bytes("inputcfg.mdb") == Sample("a_inputs"));
  ASSERT_EQ(k.Esegui({"takeover", "Hall"}).Stato, 0);
  EXPECT_EQ(k.Esegui({"show", "Hall"}).Errori.find("earlier program"), std::string::npos);
}

TEST_F(TakeoverVerb, TakesOneProject) {
  EXPECT_EQ(k.Esegui({"takeover"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"takeover", "Hall", "Shop"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"takeover", "--now", "Hall"}).Stato, 2);
  EXPECT_EQ(k.Esegui({"takeover", "Nowhere"}).Stato, 3);
}

TEST_F(TakeoverVerb, ADatabaseThatIsNobodysIsRefused) {
  Put("x_random", "playlist.mdb");
  const auto run = k.Esegui({"takeover", "Hall"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Uscita, "playlist.mdb: it is damaged; take it from a backup copy\n");
  EXPECT_TRUE(Bytes("playlist.mdb") == Sample("x_random"));
}

TEST_F(TakeoverVerb, NoVerbPlaysAJournalThatWasLeftBesideItIntoAnOldDatabase) {
  k.CreaProgetto("Clock", 4, 1);
  for (int i = 1; i < 200; ++i) k.AggiungiRiga("inputcfg.mdb", 0, i, "a.mp3", "D:\\", "");
  k.InterrompiModifica("inputcfg.mdb");
  const std::string database = "program/Projects/Clock/inputcfg.mdb";
  ASSERT_TRUE(k.Cartella.Exists(database + "-journal"));
  k.Cartella.Write(database, Sample("a_inputs"));
  k.Cartella.Write("program/Projects/Clock/playlist.mdb", Sample("x_trunc_half"));
  for (const std::vector<std::string>& verb : {std::vector<std::string>{"takeover", "Clock"},
                                               {"show", "Clock"},
                                               {"inputs", "Clock", "list"},
                                               {"--yes", "save", "Clock"},
                                               {"relocate", "Clock", k.Host("card")},
                                               {"record", "Clock", k.Host("card")},
                                               {"verify", "Clock", k.Host("card")}}) {
    k.Esegui(verb);
    EXPECT_TRUE(k.Cartella.Read(database) == Sample("a_inputs")) << verb[0] << verb[1];
  }
}

TEST_F(TakeoverVerb, WithoutTheEmptyDatabaseOfTheProgramTheStatusIs3) {
  Put("a_inputs", "inputcfg.mdb");
  fs::remove(k.Host("program/source.mdb"));
  const auto run = k.Esegui({"takeover", "Hall"});
  EXPECT_EQ(run.Stato, 3);
  EXPECT_NE(run.Errori.find("source.mdb is missing"), std::string::npos) << run.Errori;
  EXPECT_EQ(k.Esegui({"takeover", "Hall", "--dry-run"}).Stato, 0);
}

TEST_F(TakeoverVerb, ACardWhoseDatabaseCannotBeTakenOverIsReadBackWithStatus1) {
  k.Cartella.Write("card/Config.txt", Bytes("Config.txt"));
  k.Cartella.Write("card/Config.cfg", Bytes("Config.cfg"));
  k.Cartella.Write("card/inputcfg.mdb", Sample("a_inputs"));
  EXPECT_EQ(k.Esegui({"readback", k.Host("card"), "--name", "Sound"}).Stato, 0);
  k.Cartella.Write("card/inputcfg.mdb", Sample("x_trunc_half"));
  const auto run = k.Esegui({"readback", k.Host("card"), "--name", "Broken"});
  EXPECT_EQ(run.Stato, 1);
  EXPECT_EQ(run.Uscita, Project("Broken") + "\n");
  EXPECT_NE(run.Errori.find("inputcfg.mdb: it is damaged"), std::string::npos) << run.Errori;
}

/// A taking over that a signal meets at moments from its beginning to its end.
class TakeoverStopped : public TakeoverVerb {
 protected:
  using Clock = std::chrono::steady_clock;

  void SetUp() override {
    TakeoverVerb::SetUp();
    Put("a_inputs", "inputcfg.mdb");
    const auto start = Clock::now();
    ASSERT_EQ(k.Esegui({"takeover", "Hall"}).Stato, 0);
    whole = Clock::now() - start;
  }
  void Stop(int signal, int moment) {
    Put("a_inputs", "inputcfg.mdb");
    fs::remove_all(Project() + "/Originals");
    const auto end = Clock::now() + whole * moment / kMoments;
    const pid_t child = fork();
    if (child == 0) _exit(k.Lavoro({"takeover", "Hall"}, k.Host("out"))());
    while (Clock::now() < end) {
    }
    kill(child, signal);
    waitpid(child, nullptr, 0);
  }
  bool IsOriginal() const { return Bytes("inputcfg.mdb") == Sample("a_inputs"); }
  bool HasLeftovers() const {
    const auto isLeft = [](const std::string& name) { return name.find('~') != std::string::npos; };
    const auto names = k.Nomi("program/Projects/Hall");
    return std::ranges::any_of(names, isLeft);
  }

  static constexpr int kMoments = 40;
  Clock::duration whole{};
};

TEST_F(TakeoverStopped, KilledAtAnyMomentItLeavesTheOriginalOrTheNewDatabaseAndGoesOnTheNextTime) {
  int originals = 0;
  for (int moment = 0; moment <= kMoments; ++moment) {
    SCOPED_TRACE(moment);
    Stop(SIGKILL, moment);
    if (IsOriginal()) {
      ++originals;
      EXPECT_EQ(k.Esegui({"takeover", "Hall"}).Stato, 0);
    }
    EXPECT_EQ(Inputs(), 12);
    EXPECT_TRUE(Bytes("Originals/inputcfg.mdb") == Sample("a_inputs"));
    EXPECT_FALSE(HasLeftovers());
  }
  EXPECT_GT(originals, 0);
}

TEST_F(TakeoverStopped, ByCtrlCItLeavesNothingLyingAbout) {
  int originals = 0;
  for (int moment = 0; moment <= kMoments; ++moment) {
    SCOPED_TRACE(moment);
    Stop(SIGINT, moment);
    EXPECT_FALSE(HasLeftovers());
    if (IsOriginal()) {
      ++originals;
      EXPECT_FALSE(k.Cartella.Exists("program/Projects/Hall/Originals"));
    } else {
      EXPECT_EQ(Inputs(), 12);
    }
  }
  EXPECT_GT(originals, 0);
}

}  // namespace
}  // namespace kvr5
