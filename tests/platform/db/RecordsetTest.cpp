// Moving over rows and reading them.

#include <memory>

#include "DatabaseTest.h"
#include "RawDatabase.h"
#include "platform/db/DbError.h"
#include "platform/db/Recordset.h"

namespace kvr5::test {
namespace {

/// Five tracks, 1 to 5, in one playlist.
class RecordsetTest : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    {
      const Transaction run(connection);
      for (int i = 1; i <= 5; ++i) AddTrack(1, i, "track" + std::to_string(i) + ".mp3");
    }
    ASSERT_FALSE(rows.Open(connection, kAll));
  }

  std::int64_t Pos() const { return rows.Number("Pos", -1); }

  Recordset rows;
};

TEST_F(RecordsetTest, OpensOnItsFirstRow) {
  EXPECT_TRUE(rows.IsOpen());
  EXPECT_EQ(rows.RecordCount(), 5);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_FALSE(rows.Bof());
  EXPECT_FALSE(rows.Eof());
  EXPECT_EQ(Pos(), 1);
}

TEST_F(RecordsetTest, MovesOverItsRowsAndOffBothEnds) {
  for (int place = 1; place <= 5; ++place) {
    EXPECT_EQ(rows.AbsolutePosition(), place);
    EXPECT_EQ(Pos(), place);
    EXPECT_FALSE(rows.MoveNext());
  }
  EXPECT_TRUE(rows.Eof());
  EXPECT_FALSE(rows.Bof());
  EXPECT_EQ(rows.AbsolutePosition(), -3);
  EXPECT_EQ(rows.MoveNext().Number(), errors::NoCurrentRecord);
  EXPECT_FALSE(rows.MovePrevious());
  EXPECT_EQ(Pos(), 5);
  EXPECT_FALSE(rows.MoveFirst());
  EXPECT_FALSE(rows.MovePrevious());
  EXPECT_TRUE(rows.Bof());
  EXPECT_FALSE(rows.Eof());
  EXPECT_EQ(rows.AbsolutePosition(), -2);
  EXPECT_EQ(rows.MovePrevious().Number(), errors::NoCurrentRecord);
  EXPECT_FALSE(rows.MoveNext());
  EXPECT_EQ(Pos(), 1);
  EXPECT_FALSE(rows.MoveLast());
  EXPECT_EQ(rows.AbsolutePosition(), 5);
}

TEST_F(RecordsetTest, StandsAtBothEndsWhenEmpty) {
  Recordset empty;
  ASSERT_FALSE(empty.Open(connection, "SELECT * FROM [List] WHERE [NPlaylist]=2"));
  EXPECT_EQ(empty.RecordCount(), 0);
  EXPECT_TRUE(empty.Bof());
  EXPECT_TRUE(empty.Eof());
  EXPECT_EQ(empty.AbsolutePosition(), -3);
  for (const auto move : {&Recordset::MoveFirst, &Recordset::MoveLast, &Recordset::MoveNext,
                          &Recordset::MovePrevious, &Recordset::Update, &Recordset::Delete}) {
    EXPECT_EQ((empty.*move)().Number(), errors::NoCurrentRecord);
  }
  EXPECT_EQ(empty.Get("ID").Err().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(empty.Set("Pos", 1).Number(), errors::NoCurrentRecord);
  EXPECT_EQ(empty.Find("ID=1").Number(), errors::NoCurrentRecord);
  EXPECT_TRUE(empty.Bof());
  EXPECT_TRUE(empty.Eof());
}

TEST_F(RecordsetTest, ReadsColumnsWithoutRegardToTheCaseOfTheirNames) {
  EXPECT_EQ(rows.Text("FileName"), "track1.mp3");
  EXPECT_EQ(rows.Text("FILENAME"), "track1.mp3");
  EXPECT_EQ(rows.Get("nplaylist").Value(), DbValue(std::int64_t{1}));
  EXPECT_EQ(rows.Get("IDSched").Value(), DbValue());
  EXPECT_EQ(rows.Get("Descript").Err().Number(), errors::ColumnNotFound);
  EXPECT_EQ(rows.Text("Descript"), "");
}

TEST_F(RecordsetTest, ReadsValuesAsTextsAndNumbers) {
  EXPECT_EQ(rows.Text("Pos"), "1");
  EXPECT_EQ(rows.Text("Alias"), "");
  EXPECT_EQ(rows.Number("Alias", 7), 7);
  EXPECT_EQ(rows.Number("FileName", 7), 7);
  EXPECT_EQ(rows.Number("Nothing", 7), 7);
  Run("UPDATE [List] SET [Alias]=' -12 ',[Pos]=2.5,[FilePath]='12.5' WHERE ID=1");
  EXPECT_EQ(rows.Number("Alias"), -12);
  EXPECT_EQ(rows.Text("Pos"), "2.5");
  EXPECT_EQ(rows.Number("Pos"), 2);
  EXPECT_EQ(rows.Number("FilePath", 7), 7);
  EXPECT_FALSE(rows.MoveLast());
  EXPECT_FALSE(rows.MoveNext());
  EXPECT_EQ(rows.Number("Pos", 9), 9);
}

TEST_F(RecordsetTest, ShowsWhatAStatementHasWrittenInBetween) {
  Run("UPDATE [List] SET [Alias]='now' WHERE ID=1");
  EXPECT_EQ(rows.Text("Alias"), "now");
  Run("UPDATE [List] SET [Alias]='then' WHERE ID>=2");
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(rows.Text("Alias"), "then");
}

TEST_F(RecordsetTest, ShowsWhatAnotherProgramHasWrittenAtTheVisit) {
  RawDatabase raw(folder.Host() / "a.mdb");
  for (int i = 1; i <= 5; ++i) {
    raw.Run("UPDATE List SET Alias='" + std::to_string(i) + "'");
    ASSERT_FALSE(i == 1 ? rows.MoveFirst() : rows.MoveNext());
    EXPECT_EQ(rows.Text("Alias"), std::to_string(i));
  }
  raw.Run("DELETE FROM List WHERE ID=2");
  ASSERT_FALSE(rows.MoveFirst());
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(rows.Number("ID"), 3);
}

TEST_F(RecordsetTest, KeepsItsRowsAndTheirOrderUntilItIsRequeried) {
  Run("UPDATE [List] SET [Pos]=6-Pos");
  AddTrack(1, 0, "late.mp3");
  EXPECT_EQ(rows.RecordCount(), 5);
  EXPECT_EQ(Pos(), 5);
  ASSERT_FALSE(rows.MoveLast());
  EXPECT_EQ(Pos(), 1);
  ASSERT_FALSE(rows.Requery());
  EXPECT_EQ(rows.RecordCount(), 6);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_EQ(rows.Text("FileName"), "late.mp3");
}

TEST_F(RecordsetTest, PassesOverRowsThatAStatementHasDeleted) {
  Run("DELETE * FROM [List] WHERE [Pos]=2");
  Run("DELETE * FROM [List] WHERE [Pos]=3");
  EXPECT_EQ(rows.RecordCount(), 5);  // not yet missed
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(Pos(), 4);
  EXPECT_EQ(rows.AbsolutePosition(), 2);
  EXPECT_EQ(rows.RecordCount(), 3);
  Run("DELETE * FROM [List] WHERE [Pos]=1");
  ASSERT_FALSE(rows.MovePrevious());
  EXPECT_TRUE(rows.Bof());
  EXPECT_EQ(rows.RecordCount(), 2);
  Run("DELETE * FROM [List] WHERE [Pos]=5");
  ASSERT_FALSE(rows.MoveLast());
  EXPECT_EQ(Pos(), 4);
  EXPECT_EQ(rows.AbsolutePosition(), rows.RecordCount());
}

TEST_F(RecordsetTest, EndsAtBothEndsWhenAllItsRowsAreGone) {
  Run("DELETE * FROM [List]");
  EXPECT_EQ(rows.MoveFirst().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_TRUE(rows.Bof());
  EXPECT_TRUE(rows.Eof());
  ASSERT_FALSE(rows.Requery());
  EXPECT_TRUE(rows.Bof());
  EXPECT_TRUE(rows.Eof());
}

TEST_F(RecordsetTest, StandsOnAHoleWhenAStatementDeletesTheCurrentRow) {
  ASSERT_FALSE(rows.MoveNext());
  Run("DELETE * FROM [List] WHERE [Pos]=2");
  EXPECT_EQ(rows.Get("Pos").Err().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  EXPECT_FALSE(rows.Bof());
  EXPECT_FALSE(rows.Eof());
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(Pos(), 3);
}

TEST_F(RecordsetTest, FindsForwardFromTheCurrentRowOn) {
  EXPECT_FALSE(rows.Find("ID=1"));
  EXPECT_EQ(Pos(), 1);
  EXPECT_FALSE(rows.Find("[Pos] = 4"));
  EXPECT_EQ(rows.AbsolutePosition(), 4);
  EXPECT_FALSE(rows.Find("Pos=2"));  // behind it
  EXPECT_TRUE(rows.Eof());
  EXPECT_EQ(rows.Find("Pos=2").Number(), errors::NoCurrentRecord);
  ASSERT_FALSE(rows.MoveFirst());
  EXPECT_FALSE(rows.Find("filename='TRACK3.mp3'"));
  EXPECT_EQ(Pos(), 3);
  EXPECT_FALSE(rows.Find("Pos<>3"));
  EXPECT_EQ(Pos(), 4);
  EXPECT_FALSE(rows.Find("Pos>4"));
  EXPECT_EQ(Pos(), 5);
  ASSERT_FALSE(rows.MoveFirst());
  EXPECT_FALSE(rows.Find("Pos>=2"));
  EXPECT_EQ(Pos(), 2);
  EXPECT_FALSE(rows.Find("Pos<2"));
  EXPECT_TRUE(rows.Eof());
  ASSERT_FALSE(rows.MoveFirst());
  EXPECT_FALSE(rows.Find("Pos<=1;"));
  EXPECT_EQ(Pos(), 1);
  EXPECT_FALSE(rows.Find("Pos>-1"));
  EXPECT_EQ(Pos(), 1);
  EXPECT_FALSE(rows.Find("Pos>2.5"));
  EXPECT_EQ(Pos(), 3);
}

TEST_F(RecordsetTest, FindsByTextAndTimeAndNeverNull) {
  Run("UPDATE [List] SET [Alias]='città' WHERE ID=4");
  EXPECT_FALSE(rows.Find("Alias=\"CITTÀ\""));
  EXPECT_EQ(Pos(), 4);
  ASSERT_FALSE(rows.MoveFirst());
  EXPECT_FALSE(rows.Find("Alias<>'x'"));
  EXPECT_EQ(Pos(), 4);
  Run("INSERT INTO [HEAD] ([StartTime]) VALUES (#08.00#)");
  Run("INSERT INTO [HEAD] ([StartTime]) VALUES (#12.30#)");
  Recordset heads;
  ASSERT_FALSE(heads.Open(connection, "SELECT * FROM [HEAD]"));
  EXPECT_FALSE(heads.Find("StartTime=#12.30#"));
  EXPECT_EQ(heads.Number("ID"), 2);
}

TEST_F(RecordsetTest, LeavesItsPlaceOnABadCriterion) {
  ASSERT_FALSE(rows.MoveNext());
  for (const std::string_view criterion :
       {"", "ID", "ID=", "=7", "ID==7", "ID=7 AND Pos=1", "ID=x", "ID='7'", "FileName=7", "ID=Null",
        "7=ID", "FileName='it's'", "ID=--7", "List.ID=7", "ID LIKE 7", "FileName=-'a'", "ID=(7)",
        "ID=7,8"}) {
    EXPECT_EQ(rows.Find(criterion).Number(), errors::BadCriterion) << criterion;
    EXPECT_EQ(rows.AbsolutePosition(), 2);
  }
  EXPECT_EQ(rows.Find("Place=7").Number(), errors::ColumnNotFound);
  EXPECT_EQ(rows.AbsolutePosition(), 2);
}

TEST_F(RecordsetTest, FindsOverRowsThatAreGone) {
  Run("DELETE * FROM [List] WHERE [Pos]=3");
  EXPECT_FALSE(rows.Find("Pos>2"));
  EXPECT_EQ(Pos(), 4);
  EXPECT_EQ(rows.AbsolutePosition(), 3);
  EXPECT_EQ(rows.RecordCount(), 4);
}

TEST_F(RecordsetTest, FindsARowAgainAfterARequery) {
  ASSERT_FALSE(rows.Find("Pos=2"));
  const std::int64_t id = rows.Number("ID");
  Run("UPDATE [List] SET [Pos]=9 WHERE ID=" + std::to_string(id));
  ASSERT_FALSE(rows.Requery());
  ASSERT_FALSE(rows.Find("ID=" + std::to_string(id)));
  EXPECT_EQ(rows.AbsolutePosition(), 5);
  EXPECT_EQ(Pos(), 9);
}

TEST_F(RecordsetTest, WalksOverAliasesThatStatementsGiveOnTheWay) {
  {
    const Transaction run(connection);
    AddTrack(2, 1, "TRACK2.MP3");
    AddTrack(2, 2, "it");
    AddTrack(2, 3, "track2.mp3", "C:\\Other\\");
  }
  ASSERT_FALSE(rows.Requery());
  int statements = 0;
  for (; !rows.Eof(); Ignora(rows.MoveNext())) {
    if (!IsNull(rows.Get("Alias").Value())) continue;
    const std::string alias = "P" + rows.Text("NPlaylist") + "-" + rows.Text("Pos");
    const std::string file = rows.Text("FileName");
    const std::string path = rows.Text("FilePath");
    ASSERT_FALSE(rows.Set("Alias", alias));
    ASSERT_FALSE(rows.Update());
    GiveAlias(alias, file, path);
    ++statements;
  }
  EXPECT_EQ(statements, 7);
  EXPECT_EQ(Column(kAll, "Alias"),
            (Texts{"P1-1", "P1-2", "P1-3", "P1-4", "P1-5", "P1-2", "P2-2", "P2-3"}));
}

TEST_F(RecordsetTest, TakesNoSecondQueryWhileOpen) {
  EXPECT_EQ(rows.Open(connection, kAll).Number(), errors::ObjectOpen);
  rows.Close();
  EXPECT_FALSE(rows.IsOpen());
  EXPECT_FALSE(rows.Open(connection, "SELECT * FROM [HEAD]"));
  EXPECT_EQ(rows.RecordCount(), 0);
}

TEST_F(RecordsetTest, StaysClosedAfterABadStatement) {
  rows.Close();
  EXPECT_EQ(rows.Open(connection, "SELECT * FROM [List] WHERE [NPlaylist]=").Number(),
            errors::BadStatement);
  EXPECT_FALSE(rows.IsOpen());
}

TEST_F(RecordsetTest, RefusesEverythingWhileClosed) {
  rows.Close();
  rows.Close();
  for (const auto call :
       {&Recordset::MoveFirst, &Recordset::MoveLast, &Recordset::MoveNext, &Recordset::MovePrevious,
        &Recordset::Requery, &Recordset::AddNew, &Recordset::Update, &Recordset::Delete}) {
    EXPECT_EQ((rows.*call)().Number(), errors::ObjectClosed);
  }
  rows.CancelUpdate();
  EXPECT_EQ(rows.Find("ID=1").Number(), errors::ObjectClosed);
  EXPECT_EQ(rows.Set("Pos", 1).Number(), errors::ObjectClosed);
  EXPECT_EQ(rows.Get("Pos").Err().Number(), errors::ObjectClosed);
  EXPECT_EQ(rows.RecordCount(), -1);
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  EXPECT_TRUE(rows.Bof());
  EXPECT_TRUE(rows.Eof());
}

TEST_F(RecordsetTest, IsClosedWithItsConnection) {
  ASSERT_FALSE(rows.Set("Pos", 9));
  connection.Close();
  EXPECT_FALSE(rows.IsOpen());
  EXPECT_EQ(rows.RecordCount(), -1);
  EXPECT_EQ(rows.Update().Number(), errors::ObjectClosed);
  ASSERT_FALSE(connection.Open(connection.Path()));
  EXPECT_FALSE(rows.IsOpen());
  EXPECT_EQ(rows.MoveNext().Number(), errors::ObjectClosed);
  ASSERT_FALSE(rows.Open(connection, kAll));
  EXPECT_EQ(Pos(), 1);
}

TEST_F(RecordsetTest, OutlivesItsConnection) {
  auto other = std::make_unique<Connection>(files);
  ASSERT_FALSE(other->Open(folder.System("a.mdb")));
  Recordset orphan;
  ASSERT_FALSE(orphan.Open(*other, kAll));
  ASSERT_FALSE(orphan.MoveNext());
  other.reset();
  EXPECT_FALSE(orphan.IsOpen());
  EXPECT_EQ(orphan.MoveNext().Number(), errors::ObjectClosed);
}

TEST_F(RecordsetTest, KeepsItsPlaceWhileTheFileIsLocked) {
  ASSERT_FALSE(rows.MoveNext());
  RawDatabase raw(folder.Host() / "a.mdb");
  raw.Run("BEGIN EXCLUSIVE; UPDATE List SET Alias='x'");
  EXPECT_EQ(rows.MoveLast().Number(), errors::CannotOpen);
  EXPECT_EQ(rows.Requery().Number(), errors::CannotOpen);
  EXPECT_EQ(rows.AbsolutePosition(), 2);
  raw.Run("COMMIT");
  EXPECT_FALSE(rows.MoveNext());
  EXPECT_EQ(Pos(), 3);
}

TEST_F(RecordsetTest, MovesOverACopyOfAJoin) {
  Run("INSERT INTO [HEAD] ([NScheduler],[Descript]) VALUES (1,'One')");
  Recordset join;
  ASSERT_FALSE(join.Open(connection,
                         "SELECT [HEAD].[Descript],[List].[Pos] FROM [List] INNER JOIN [HEAD] ON "
                         "[HEAD].[NScheduler]=[List].[NPlaylist] ORDER BY [Pos] ASC"));
  Run("DELETE * FROM [List]");
  EXPECT_EQ(join.RecordCount(), 5);
  EXPECT_FALSE(join.Find("Pos=4"));
  EXPECT_EQ(join.AbsolutePosition(), 4);
  EXPECT_EQ(join.Text("DESCRIPT"), "One");
  EXPECT_EQ(join.Find("Descript=4").Number(), errors::BadCriterion);
  EXPECT_FALSE(join.MoveNext());
  EXPECT_EQ(join.Number("Pos"), 5);
  ASSERT_FALSE(join.Requery());
  EXPECT_EQ(join.RecordCount(), 0);
}

TEST_F(RecordsetTest, RefusesToChangeWhatIsNoRowOfATable) {
  Run("INSERT INTO [HEAD] ([NScheduler],[Descript]) VALUES (1,'One')");
  for (const std::string_view query :
       {"SELECT [HEAD].ID,[List].[Pos] FROM [List] INNER JOIN [HEAD] ON [HEAD].[ID]=[NPlaylist]",
        "SELECT DISTINCT [NPlaylist],[Pos] FROM [List]", "SELECT COUNT([Pos]) AS Pos FROM [List]",
        "SELECT [Pos]+1 AS Pos FROM [List]", "SELECT [Pos] AS Place,[Pos] FROM [List]",
        "SELECT ID,(SELECT TOP 1 Pos FROM [List]) AS Pos FROM [HEAD]"}) {
    Recordset fixed;
    ASSERT_FALSE(fixed.Open(connection, query)) << query;
    EXPECT_GT(fixed.RecordCount(), 0) << query;
    EXPECT_EQ(fixed.AddNew().Number(), errors::RecordsetReadOnly) << query;
    EXPECT_EQ(fixed.Set("Pos", 1).Number(), errors::RecordsetReadOnly) << query;
    EXPECT_EQ(fixed.Update().Number(), errors::RecordsetReadOnly) << query;
    EXPECT_EQ(fixed.Delete().Number(), errors::RecordsetReadOnly) << query;
    EXPECT_FALSE(fixed.Eof());
  }
}

}  // namespace
}  // namespace kvr5::test
