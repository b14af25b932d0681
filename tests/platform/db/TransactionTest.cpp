#include <memory>

#include "DatabaseTest.h"
#include "RawDatabase.h"

namespace kvr5::test {
namespace {

class TransactionTest : public DatabaseTest {
 protected:
  /// Rows of `List` as another program sees them.
  std::string Stored() {
    return RawDatabase(folder.Host() / "a.mdb").Value("SELECT COUNT(*) FROM List");
  }

  /// Whether the index of a run is there.
  bool HasRunIndex() {
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(
        sqlite3_prepare_v2(connection.Handle(), "SELECT 1 FROM sqlite_master WHERE name='KVR5_Run'",
                           -1, &statement, nullptr),
        SQLITE_OK);
    const bool there = sqlite3_step(statement) == SQLITE_ROW;
    sqlite3_finalize(statement);
    return there;
  }

  void GiveAlias(int pos) {
    const std::string place = std::to_string(pos);
    DatabaseTest::GiveAlias("P" + place, place + ".mp3", "C:\\Music\\");
  }
};

TEST_F(TransactionTest, StoresARunAtItsEnd) {
  {
    const Transaction run(connection);
    AddTrack(1, 1, "a.mp3");
    AddTrack(1, 2, "b.mp3");
    EXPECT_EQ(Stored(), "0");
    EXPECT_EQ(Column("SELECT * FROM [List]", "ID").size(), 2U);
  }
  EXPECT_EQ(Stored(), "2");
}

TEST_F(TransactionTest, JoinsARunThatIsUnderWay) {
  {
    const Transaction outer(connection);
    AddTrack(1, 1, "a.mp3");
    {
      Transaction inner(connection);
      AddTrack(1, 2, "b.mp3");
      EXPECT_FALSE(inner.End());
    }
    EXPECT_EQ(Stored(), "0");
    AddTrack(1, 3, "c.mp3");
  }
  EXPECT_EQ(Stored(), "3");
}

TEST_F(TransactionTest, KeepsWhatWasDoneBeforeAndAfterAFailure) {
  {
    const Transaction run(connection);
    AddTrack(1, 1, "a.mp3");
    EXPECT_EQ(connection.Execute("UPDATE [List] SET [Alias]='it's'").Number(),
              errors::BadStatement);
    EXPECT_EQ(connection.Execute("UPDATE [List] SET [Place]=1").Number(), errors::BadStatement);
    Recordset rows;
    ASSERT_FALSE(rows.Open(connection, "SELECT * FROM [List]"));
    EXPECT_EQ(rows.Set("Pos", "x").Number(), errors::TypeMismatch);
    AddTrack(1, 2, "b.mp3");
  }
  EXPECT_EQ(Stored(), "2");
}

TEST_F(TransactionTest, UndoesOnlyTheStatementThatFailsHalfway) {
  connection.Close();
  RawDatabase(folder.Host() / "a.mdb").Run("CREATE UNIQUE INDEX Once ON List (Pos)");
  ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
  {
    const Transaction run(connection);
    for (int i = 1; i <= 5; ++i) AddTrack(1, i, "a.mp3");
    EXPECT_EQ(connection.Execute("UPDATE [List] SET [Pos]=9").Number(), errors::CannotOpen);
  }
  EXPECT_EQ(Column("SELECT * FROM [List]", "Pos"), (Texts{"1", "2", "3", "4", "5"}));
  EXPECT_EQ(connection.Execute("UPDATE [List] SET [Pos]=9").Number(), errors::CannotOpen);
  EXPECT_EQ(Column("SELECT * FROM [List]", "Pos"), (Texts{"1", "2", "3", "4", "5"}));
  Run("DELETE * FROM [List] WHERE [Pos]=5");
  EXPECT_EQ(Stored(), "4");  // the failure left no transaction open
}

TEST_F(TransactionTest, IsStoredWhenTheConnectionIsClosedAmidIt) {
  {
    Transaction run(connection);
    AddTrack(1, 1, "a.mp3");
    connection.Close();
    EXPECT_EQ(Stored(), "1");
    ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
    const Transaction second(connection);
    AddTrack(1, 2, "b.mp3");
    EXPECT_FALSE(run.End());
    EXPECT_EQ(Stored(), "1");
  }
  EXPECT_EQ(Stored(), "2");
}

TEST_F(TransactionTest, TellsWhenItCouldNotBeStored) {
  AddTrack(1, 1, "a.mp3");
  RawDatabase reader(folder.Host() / "a.mdb");
  reader.Run("BEGIN; SELECT * FROM List");
  Transaction run(connection);
  Run("DELETE * FROM [List]");
  EXPECT_EQ(run.End().Number(), errors::CannotOpen);
  reader.Run("COMMIT");
  EXPECT_EQ(Stored(), "1");
  Run("DELETE * FROM [List]");
  EXPECT_EQ(Stored(), "0");
}

TEST_F(TransactionTest, DoesNothingWithoutAnOpenConnection) {
  connection.Close();
  Transaction run(connection);
  EXPECT_FALSE(run.End());
}

TEST_F(TransactionTest, LeavesEachChangeToItselfWhileTheFileIsLocked) {
  auto raw = std::make_unique<RawDatabase>(folder.Host() / "a.mdb");
  raw->Run("BEGIN IMMEDIATE");
  const Transaction run(connection);
  raw.reset();
  AddTrack(1, 1, "a.mp3");
  EXPECT_EQ(Stored(), "1");
}

TEST_F(TransactionTest, SurvivesAFullDiskInTheMiddle) {
  AddTrack(1, 1, "a.mp3");
  {
    const Transaction run(connection);
    AddTrack(1, 2, "b.mp3");
    // The page limit stands for a disk that is full.
    ASSERT_EQ(
        sqlite3_exec(connection.Handle(), "PRAGMA max_page_count=1", nullptr, nullptr, nullptr),
        SQLITE_OK);
    Error outcome;
    for (int i = 0; i < 500 && !outcome; ++i) {
      outcome = connection.Execute("INSERT INTO [List] ([FilePath]) VALUES ('" +
                                   std::string(200, 'x') + "')");
    }
    EXPECT_EQ(outcome.Number(), errors::CannotOpen);
    EXPECT_FALSE(outcome.Description().empty());
    EXPECT_NE(Column("SELECT * FROM [List]", "ID").size(), 0U);
  }
  EXPECT_EQ(RawDatabase(folder.Host() / "a.mdb").Value("PRAGMA integrity_check"), "ok");
  EXPECT_NE(Stored(), "0");
}

TEST_F(TransactionTest, IndexesFileNamesForTheLengthOfARunThatLooksThemUp) {
  for (int i = 1; i <= 40; ++i) AddTrack(1, i, std::to_string(i) + ".mp3");
  for (int i = 1; i <= 10; ++i) GiveAlias(i);
  EXPECT_FALSE(HasRunIndex());  // each by itself: none
  const auto size = std::filesystem::file_size(folder.Host() / "a.mdb");
  {
    const Transaction run(connection);
    GiveAlias(11);
    EXPECT_FALSE(HasRunIndex());
    for (int i = 12; i <= 30; ++i) GiveAlias(i);
    EXPECT_TRUE(HasRunIndex());
  }
  EXPECT_FALSE(HasRunIndex());
  EXPECT_EQ(std::filesystem::file_size(folder.Host() / "a.mdb"), size);
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE NOT ISNULL([Alias])", "ID").size(), 30U);
}

TEST_F(TransactionTest, DropsTheIndexOfARunWhenTheConnectionIsClosedAmidIt) {
  {
    const Transaction run(connection);
    for (int i = 1; i <= 20; ++i) GiveAlias(i);
    EXPECT_TRUE(HasRunIndex());
    connection.Close();
  }
  ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
  EXPECT_FALSE(HasRunIndex());
  {
    const Transaction run(connection);
    for (int i = 1; i <= 20; ++i) GiveAlias(i);
    EXPECT_TRUE(HasRunIndex());
  }
  EXPECT_FALSE(HasRunIndex());
}

}  // namespace
}  // namespace kvr5::test
