// Changing rows through a recordset.

#include <limits>

#include "DatabaseTest.h"
#include "RawDatabase.h"
#include "platform/db/DbError.h"

namespace kvr5::test {
namespace {

class RecordsetEditTest : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    {
      const Transaction run(connection);
      for (int i = 1; i <= 4; ++i) AddTrack(1, i, "track" + std::to_string(i) + ".mp3");
    }
    ASSERT_FALSE(rows.Open(connection, kAll));
  }

  /// `Pos` of all rows as the file has it now, in the order of their numbers.
  Texts Places() { return Column("SELECT * FROM [List] ORDER BY [ID]", "Pos"); }

  Recordset rows;
};

TEST_F(RecordsetEditTest, StoresWhatWasSetAtTheUpdate) {
  ASSERT_FALSE(rows.Set("Pos", 7));
  ASSERT_FALSE(rows.Set("ALIAS", "a"));
  ASSERT_FALSE(rows.Set("Pos", 8));
  EXPECT_EQ(rows.Number("Pos"), 8);
  EXPECT_EQ(rows.Text("FileName"), "track1.mp3");
  EXPECT_EQ(Places().front(), "1");
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(Places().front(), "8");
  EXPECT_EQ(rows.Text("Alias"), "a");
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_FALSE(rows.Update());  // nothing to store is no failure
}

TEST_F(RecordsetEditTest, StoresEachChangeAtOnceForOtherPrograms) {
  RawDatabase raw(folder.Host() / "a.mdb");
  ASSERT_FALSE(rows.Set("Pos", 7));
  EXPECT_EQ(raw.Value("SELECT Pos FROM List WHERE ID=1"), "1");
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(raw.Value("SELECT Pos FROM List WHERE ID=1"), "7");
}

TEST_F(RecordsetEditTest, DropsWhatWasSetAtTheCancel) {
  ASSERT_FALSE(rows.Set("Pos", 7));
  rows.CancelUpdate();
  EXPECT_EQ(rows.Number("Pos"), 1);
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(Places().front(), "1");
}

TEST_F(RecordsetEditTest, StoresWhatWasSetWhenItMoves) {
  ASSERT_FALSE(rows.Set("Pos", 11));
  ASSERT_FALSE(rows.MoveNext());
  ASSERT_FALSE(rows.Set("Pos", 12));
  ASSERT_FALSE(rows.MoveLast());
  ASSERT_FALSE(rows.Set("Pos", 14));
  ASSERT_FALSE(rows.MovePrevious());
  ASSERT_FALSE(rows.Set("Pos", 13));
  ASSERT_FALSE(rows.MoveFirst());
  EXPECT_EQ(Places(), (Texts{"11", "12", "13", "14"}));
  ASSERT_FALSE(rows.Set("Pos", 21));
  ASSERT_FALSE(rows.Find("ID=3"));
  EXPECT_EQ(Places(), (Texts{"21", "12", "13", "14"}));
  ASSERT_FALSE(rows.Set("Pos", 23));
  ASSERT_FALSE(rows.AddNew());
  EXPECT_EQ(Places(), (Texts{"21", "12", "23", "14"}));
}

TEST_F(RecordsetEditTest, DropsWhatWasSetWhenItIsRequeriedOrClosed) {
  ASSERT_FALSE(rows.Set("Pos", 11));
  ASSERT_FALSE(rows.Requery());
  EXPECT_EQ(rows.Number("Pos"), 1);
  ASSERT_FALSE(rows.AddNew());
  ASSERT_FALSE(rows.Set("Pos", 11));
  rows.Close();
  EXPECT_EQ(Places(), (Texts{"1", "2", "3", "4"}));
}

TEST_F(RecordsetEditTest, AddsARowBehindAllOthersAndStandsOnIt) {
  ASSERT_FALSE(rows.AddNew());
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  EXPECT_FALSE(rows.Bof());
  EXPECT_FALSE(rows.Eof());
  ASSERT_FALSE(rows.Set("FileName", "new.mp3"));
  ASSERT_FALSE(rows.Set("Pos", 0));
  EXPECT_EQ(rows.Text("FileName"), "new.mp3");
  EXPECT_EQ(rows.Get("Alias").Value(), DbValue());
  EXPECT_EQ(rows.Get("ID").Value(), DbValue());
  EXPECT_EQ(rows.Get("Place").Err().Number(), errors::ColumnNotFound);
  EXPECT_EQ(rows.RecordCount(), 4);
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(rows.RecordCount(), 5);
  EXPECT_EQ(rows.AbsolutePosition(), 5);
  EXPECT_EQ(rows.Number("ID"), 5);
  EXPECT_EQ(rows.Text("FileName"), "new.mp3");
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_TRUE(rows.Eof());
  ASSERT_FALSE(rows.Requery());
  ASSERT_FALSE(rows.Find("ID=5"));
  EXPECT_EQ(rows.AbsolutePosition(), 1);  // by its place now
}

TEST_F(RecordsetEditTest, AddsToAnEmptyTable) {
  Recordset heads;
  ASSERT_FALSE(heads.Open(connection, "SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC"));
  ASSERT_FALSE(heads.AddNew());
  ASSERT_FALSE(heads.Set("NScheduler", 3));
  ASSERT_FALSE(heads.Set("StartTime", "08.30"));
  ASSERT_FALSE(heads.Update());
  EXPECT_EQ(heads.Number("ID"), 1);
  EXPECT_EQ(heads.Text("StartTime"), "08:30:00");
  EXPECT_EQ(heads.RecordCount(), 1);
  heads.Close();
  ASSERT_FALSE(heads.Open(connection, "SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC"));
  ASSERT_FALSE(heads.AddNew());
  ASSERT_FALSE(heads.Update());  // a row of Nulls
  EXPECT_EQ(heads.Number("ID"), 2);
  EXPECT_EQ(heads.RecordCount(), 2);
}

TEST_F(RecordsetEditTest, ReturnsToTheRowBeforeWhenANewOneIsCancelled) {
  ASSERT_FALSE(rows.MoveNext());
  ASSERT_FALSE(rows.AddNew());
  ASSERT_FALSE(rows.Set("Pos", 9));
  EXPECT_EQ(rows.Delete().Number(), errors::NoCurrentRecord);
  rows.CancelUpdate();
  EXPECT_EQ(rows.AbsolutePosition(), 2);
  EXPECT_EQ(rows.Number("Pos"), 2);
  EXPECT_EQ(rows.RecordCount(), 4);
}

TEST_F(RecordsetEditTest, StoresANewRowWhenItMoves) {
  ASSERT_FALSE(rows.AddNew());
  ASSERT_FALSE(rows.Set("Pos", 5));
  ASSERT_FALSE(rows.MoveFirst());
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_EQ(rows.RecordCount(), 5);
  ASSERT_FALSE(rows.AddNew());
  ASSERT_FALSE(rows.Set("Pos", 6));
  ASSERT_FALSE(rows.AddNew());
  ASSERT_FALSE(rows.Set("Pos", 7));
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(rows.RecordCount(), 7);
  EXPECT_EQ(Places(), (Texts{"1", "2", "3", "4", "5", "6", "7"}));
}

TEST_F(RecordsetEditTest, WalksIntoTheRowsItAddsOnTheWay) {
  int visited = 0;
  for (; !rows.Eof(); Ignora(rows.MoveNext())) {
    ++visited;
    if (rows.Number("Pos") > 2) continue;
    const int place = rows.AbsolutePosition();
    ASSERT_FALSE(rows.AddNew());
    ASSERT_FALSE(rows.Set("Pos", 10));
    ASSERT_FALSE(rows.Update());
    ASSERT_FALSE(rows.MoveFirst());
    for (int i = 1; i < place; ++i) ASSERT_FALSE(rows.MoveNext());
  }
  EXPECT_EQ(visited, 6);
}

TEST_F(RecordsetEditTest, LeavesAHoleBehindItsDelete) {
  ASSERT_FALSE(rows.MoveNext());
  ASSERT_FALSE(rows.Delete());
  EXPECT_EQ(rows.RecordCount(), 3);
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  EXPECT_FALSE(rows.Bof());
  EXPECT_FALSE(rows.Eof());
  EXPECT_EQ(rows.Get("Pos").Err().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.Text("Pos"), "");
  EXPECT_EQ(rows.Set("Pos", 1).Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.Update().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.Delete().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.Find("Pos=3").Number(), errors::NoCurrentRecord);
  EXPECT_EQ(Places(), (Texts{"1", "3", "4"}));
}

TEST_F(RecordsetEditTest, GoesFromAHoleToItsNeighbours) {
  ASSERT_FALSE(rows.MoveNext());
  ASSERT_FALSE(rows.Delete());
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(rows.Number("Pos"), 3);
  EXPECT_EQ(rows.AbsolutePosition(), 2);
  ASSERT_FALSE(rows.Delete());
  ASSERT_FALSE(rows.MovePrevious());
  EXPECT_EQ(rows.Number("Pos"), 1);
  ASSERT_FALSE(rows.Delete());
  ASSERT_FALSE(rows.MovePrevious());
  EXPECT_TRUE(rows.Bof());
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(rows.Number("Pos"), 4);
  ASSERT_FALSE(rows.Delete());
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_FALSE(rows.Bof());
  EXPECT_FALSE(rows.Eof());
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_TRUE(rows.Eof());
  EXPECT_TRUE(rows.Bof());
  EXPECT_EQ(rows.MoveNext().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.MovePrevious().Number(), errors::NoCurrentRecord);
}

TEST_F(RecordsetEditTest, DeletesARowWithWhatWasSetOnIt) {
  ASSERT_FALSE(rows.Set("Pos", 9));
  ASSERT_FALSE(rows.Delete());
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(Places(), (Texts{"2", "3", "4"}));
  EXPECT_EQ(rows.Number("Pos"), 2);
}

TEST_F(RecordsetEditTest, AddsWhileStandingOnAHole) {
  ASSERT_FALSE(rows.Delete());
  ASSERT_FALSE(rows.AddNew());
  ASSERT_FALSE(rows.Set("Pos", 5));
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(rows.AbsolutePosition(), 4);
  ASSERT_FALSE(rows.MoveFirst());
  EXPECT_EQ(rows.Number("Pos"), 2);
}

TEST_F(RecordsetEditTest, TellsWhenTheRowHasGoneBeforeTheUpdate) {
  ASSERT_FALSE(rows.Set("Pos", 9));
  Run("DELETE * FROM [List] WHERE ID=1");
  EXPECT_EQ(rows.Update().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.AbsolutePosition(), -1);
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(rows.Number("Pos"), 2);
  ASSERT_FALSE(rows.Set("Pos", 9));
  Run("DELETE * FROM [List] WHERE ID=2");
  EXPECT_EQ(rows.Get("Pos").Err().Number(), errors::NoCurrentRecord);  // misses it first
  EXPECT_EQ(rows.Update().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.RecordCount(), 2);
  ASSERT_FALSE(rows.MoveNext());
  Run("DELETE * FROM [List] WHERE ID=3");
  EXPECT_EQ(rows.Delete().Number(), errors::NoCurrentRecord);
  EXPECT_EQ(rows.RecordCount(), 1);
}

TEST_F(RecordsetEditTest, KeepsWhatWasSetWhileTheFileIsLocked) {
  RawDatabase raw(folder.Host() / "a.mdb");
  raw.Run("BEGIN IMMEDIATE");
  ASSERT_FALSE(rows.Set("Pos", 9));
  EXPECT_EQ(rows.Update().Number(), errors::CannotOpen);
  EXPECT_EQ(rows.MoveNext().Number(), errors::CannotOpen);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_EQ(rows.Number("Pos"), 9);
  raw.Run("ROLLBACK");
  ASSERT_FALSE(rows.MoveNext());
  EXPECT_EQ(Places().front(), "9");
}

TEST_F(RecordsetEditTest, FitsValuesToTheirColumns) {
  const auto set = [this](std::string_view column, DbValue value) {
    const Error outcome = rows.Set(column, std::move(value));
    return outcome ? "error " + std::to_string(outcome.Number()) : rows.Text(column);
  };
  EXPECT_EQ(set("Pos", "12"), "12");
  EXPECT_EQ(set("Pos", " -3 "), "-3");
  EXPECT_EQ(set("Pos", 2.5), "2");
  EXPECT_EQ(set("Pos", 3.5), "4");
  EXPECT_EQ(set("Pos", "abc"), "error 13");
  EXPECT_EQ(set("Pos", ""), "error 13");
  EXPECT_EQ(set("Pos", "1x"), "error 13");
  EXPECT_EQ(set("Pos", "99999999999999999999"), "error 6");
  EXPECT_EQ(set("Pos", 1e300), "error 6");
  EXPECT_EQ(set("Pos", std::numeric_limits<double>::quiet_NaN()), "error 6");
  EXPECT_EQ(rows.Number("Pos"), 4);
  EXPECT_EQ(set("FileName", 12), "12");
  EXPECT_EQ(set("FileName", 0.5), "0.5");
  EXPECT_EQ(set("FileName", DbValue()), "");
  EXPECT_TRUE(IsNull(rows.Get("FileName").Value()));
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE ID=1", "FileName"), Texts{"NULL"});
  EXPECT_EQ(set("Place", 1), "error 3265");
}

TEST_F(RecordsetEditTest, FitsTimesOfDay) {
  Recordset heads;
  ASSERT_FALSE(heads.Open(connection, "SELECT * FROM [HEAD]"));
  ASSERT_FALSE(heads.AddNew());
  for (const DbValue& bad : {DbValue("24.00"), DbValue("8.30"), DbValue(""), DbValue(0.5)}) {
    EXPECT_EQ(heads.Set("StartTime", bad).Number(), errors::TypeMismatch);
  }
  for (const char* const good : {"08.30", "08:30", "08:30:00"}) {
    ASSERT_FALSE(heads.Set("starttime", good));
    EXPECT_EQ(heads.Text("StartTime"), "08:30:00");
  }
}

TEST_F(RecordsetEditTest, LeavesTheCounterToTheDatabase) {
  EXPECT_EQ(rows.Set("id", 9).Number(), errors::RecordsetReadOnly);
  ASSERT_FALSE(rows.AddNew());
  EXPECT_EQ(rows.Set("ID", 9).Number(), errors::RecordsetReadOnly);
}

TEST_F(RecordsetEditTest, ChangesRowsOfAQueryThatShowsSomeColumns) {
  Recordset some;
  ASSERT_FALSE(some.Open(connection, "SELECT [List].[Pos],[alias] FROM [LIST] WHERE [ID]>2"));
  EXPECT_EQ(some.Get("FileName").Err().Number(), errors::ColumnNotFound);
  EXPECT_EQ(some.Set("FileName", "x").Number(), errors::ColumnNotFound);
  ASSERT_FALSE(some.Set("Alias", "x"));
  ASSERT_FALSE(some.Update());
  EXPECT_EQ(some.Text("ALIAS"), "x");
  ASSERT_FALSE(some.MoveNext());
  ASSERT_FALSE(some.Delete());
  EXPECT_EQ(Column("SELECT * FROM [List]", "Alias"), (Texts{"NULL", "NULL", "x"}));
}

TEST_F(RecordsetEditTest, StoresTextsByteForByte) {
  const std::string text = "it's \"so\" \\ ; -- /* [x] #1# \r\n Ünï→漢 \xF0\x9F\x8E\xB5";
  ASSERT_FALSE(rows.Set("FileName", text));
  ASSERT_FALSE(rows.Update());
  rows.Close();
  ASSERT_FALSE(rows.Open(connection, kAll));
  EXPECT_EQ(rows.Text("FileName"), text);
}

TEST_F(RecordsetEditTest, ShowsTheChangesOfOneRecordsetInAnother) {
  Recordset other;
  ASSERT_FALSE(other.Open(connection, kAll));
  ASSERT_FALSE(rows.Set("Pos", 9));
  EXPECT_EQ(other.Number("Pos"), 1);
  ASSERT_FALSE(rows.Update());
  EXPECT_EQ(other.Number("Pos"), 9);
  ASSERT_FALSE(rows.Delete());
  EXPECT_EQ(other.Get("Pos").Err().Number(), errors::NoCurrentRecord);
  ASSERT_FALSE(other.MoveNext());
  EXPECT_EQ(other.Number("Pos"), 2);
}

}  // namespace
}  // namespace kvr5::test
