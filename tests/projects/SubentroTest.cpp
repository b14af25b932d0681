// The databases of a project that the Jet engine made become ours.
#include <algorithm>

#include "projects/BancoSubentro.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using jet::Fault;

class Subentro : public test::BancoSubentro {};

TEST_F(Subentro, AProjectOfOursIsLeftAlone) {
  const std::string before = b.Cartella.Read(Project("inputcfg.mdb"));
  const Names names = Nomi();
  EXPECT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Nulla);
  EXPECT_TRUE(b.Cartella.Read(Project("inputcfg.mdb")) == before);
  ExpectNothingChanged(names);
  SubentraEDillo(b.C);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Subentro, TheNewDatabaseHasEveryRowAndTheOriginalLiesInItsFolder) {
  Put("a_inputs", "inputcfg.mdb");
  const EsitoSubentro outcome = SubentraNeiDatabase(b.C);
  EXPECT_EQ(outcome.Fine, FineSubentro::Compiuto);
  ASSERT_EQ(outcome.Database.size(), 1U);
  EXPECT_EQ(outcome.Database[0].File, 12U);
  EXPECT_TRUE(IsSame(Project("Originals/inputcfg.mdb"), "a_inputs"));
  EXPECT_EQ(Column("inputcfg.mdb", "SELECT * FROM [List]", "ID").size(), 12U);
}

TEST_F(Subentro, NumbersGoOnAfterTheHighest) {
  Put("i_edited", "playlist.mdb");
  ASSERT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Compiuto);
  const auto last = Column("playlist.mdb", "SELECT TOP 1 * FROM [List] ORDER BY ID DESC", "ID");
  Connection connection(b.C.Files);
  ASSERT_FALSE(connection.Open(FileDelProgetto(b.C, "playlist.mdb")));
  ASSERT_FALSE(connection.Execute("DELETE * FROM [List] WHERE [ID]=" + last[0]));
  ASSERT_FALSE(connection.Execute("INSERT INTO [LIST] ([Pos]) VALUES(1)"));
  connection.Close();
  const auto next = Column("playlist.mdb", "SELECT TOP 1 * FROM [List] ORDER BY ID DESC", "ID");
  EXPECT_EQ(std::stoi(next[0]), std::stoi(last[0]) + 1);
}

TEST_F(Subentro, AnAliasThatIsNullStaysNull) {
  Put("a_inputs", "inputcfg.mdb");
  ASSERT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Compiuto);
  const auto null = Column("inputcfg.mdb", "SELECT * FROM [List] WHERE ISNULL([Alias])", "ID");
  EXPECT_FALSE(null.empty());
}

TEST_F(Subentro, StartTimesAreTimesOfDay) {
  Put("d_schedule", "scheduler.mdb");
  ASSERT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Compiuto);
  const auto times = Column("scheduler.mdb", "SELECT * FROM [HEAD] ORDER BY ID ASC", "StartTime");
  ASSERT_EQ(times.size(), 24U);
  EXPECT_EQ((Names{times[0], times[1], times[2]}), (Names{"00:00:00", "08:30:00", "23:59:00"}));
}

TEST_F(Subentro, OneThatCannotBeReadLeavesAllAsTheyWere) {
  Put("a_inputs", "inputcfg.mdb");
  Put("x_trunc_half", "playlist.mdb");
  const Names names = Nomi();
  const EsitoSubentro outcome = SubentraNeiDatabase(b.C);
  EXPECT_EQ(outcome.Fine, FineSubentro::Fallito);
  EXPECT_EQ(outcome.Database[1].Guasto.What, Fault::Damaged);
  EXPECT_TRUE(IsSame(Project("inputcfg.mdb"), "a_inputs"));
  EXPECT_TRUE(IsSame(Project("playlist.mdb"), "x_trunc_half"));
  ExpectNothingChanged(names);
}

TEST_F(Subentro, ADryRunWritesNothing) {
  Put("d_schedule", "scheduler.mdb");
  const Names names = Nomi();
  const EsitoSubentro outcome = SubentraNeiDatabase(b.C, {.Prova = true});
  EXPECT_EQ(outcome.Fine, FineSubentro::Compiuto);
  EXPECT_EQ(outcome.Database[0].File, 72U);
  EXPECT_EQ(outcome.Database[0].Segmenti, 24U);
  EXPECT_TRUE(IsSame(Project("scheduler.mdb"), "d_schedule"));
  ExpectNothingChanged(names);
}

TEST_F(Subentro, AnEarlierOriginalIsNeverReplaced) {
  b.Cartella.Write(Project("Originals/inputcfg.mdb"), "another");
  Put("a_inputs", "inputcfg.mdb");
  ASSERT_EQ(SubentraNeiDatabase(b.C).Fine, FineSubentro::Compiuto);
  EXPECT_EQ(b.Cartella.Read(Project("Originals/inputcfg.mdb")), "another");
  EXPECT_TRUE(IsSame(Project("Originals/(2) inputcfg.mdb"), "a_inputs"));
}

TEST_F(Subentro, EachOperationThatFailsLeavesTheOriginalOrTheNewDatabase) {
  const std::string folder = b.Percorso(Project(""));
  std::size_t whole = 0;
  for (std::size_t index = 0; whole == 0 && index < 400; ++index) {
    SCOPED_TRACE(index);
    fs::remove_all(b.Cartella.Host() / Project("Originals"));
    Put("a_inputs", "inputcfg.mdb");
    Put("d_schedule", "scheduler.mdb");
    faults->FailOperation(folder, index, errors::DiskFull);
    const EsitoSubentro outcome = SubentraNeiDatabase(b.C);
    if (faults->FailedOperation().empty()) ++whole;
    faults->Repair();
    for (const auto& [database, sample] :
         {std::pair{"inputcfg.mdb", "a_inputs"}, std::pair{"scheduler.mdb", "d_schedule"}}) {
      const bool original = IsSame(Project(database), sample);
      const std::size_t rows = original ? 0 : Column(database, "SELECT * FROM [List]", "ID").size();
      EXPECT_TRUE(original || rows == (std::string(sample) == "a_inputs" ? 12U : 72U)) << database;
      if (!original) {
        EXPECT_TRUE(IsSame(std::string(Project("Originals/")) + database, sample));
      }
      if (outcome.Fine == FineSubentro::Compiuto) {
        const auto is = [&](const DatabaseSubentrato& each) { return each.Nome == database; };
        EXPECT_EQ(original, std::ranges::none_of(outcome.Database, is)) << "not seen, not touched";
      } else if (!outcome.Cambiato()) {
        EXPECT_TRUE(original);
        EXPECT_FALSE(b.Cartella.Exists(Project("Originals/") + database));
      }
    }
  }
  EXPECT_EQ(whole, 1U);
}

}  // namespace
}  // namespace kvr5
