// The statements about segments and spots, in all their spellings, on the real tables.

#include "DatabaseTest.h"

namespace kvr5::test {
namespace {

/// Two segments of day 3, the later one first, with two spots each; one of day 4.
class ScheduleStatements : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    const Transaction run(connection);
    Run("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(3,#12.30#)");
    Run("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(3,#08.00#)");
    Run("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(4,#00.00#)");
    for (const std::string_view values :
         {"2,'noon2','C:\\',Null,3,1", "1,'noon1','C:\\',Null,3,1", "1,'early1','C:\\',Null,3,2",
          "2,'early2','C:\\',Null,3,2", "1,'night','C:\\',Null,4,3"}) {
      Run("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) VALUES(" +
          std::string(values) + ")");
    }
  }

  static std::string Grid(const std::string& head, int day) {
    const std::string playlist = day < 0 ? "[HEAD].[NScheduler]" : std::to_string(day);
    std::string sql = head;
    for (int place = 1; place <= 8; ++place) {
      const std::string text = std::to_string(place);
      sql.append(",(SELECT TOP 1 [Filename] FROM [List] WHERE [NPlaylist]=").append(playlist);
      sql.append(" AND Pos=").append(text);
      sql.append(" AND IDSched=[HEAD].ID) AS Spot").append(text);
    }
    return sql;
  }
};

TEST_F(ScheduleStatements, ReadsTheSpotsOfASegment) {
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE IDSCHED=1", "Pos"), (Texts{"2", "1"}));
  EXPECT_EQ(Column("SELECT * FROM [LIST] WHERE [IDSched]=1 ORDER BY ID DESC", "Pos"),
            (Texts{"1", "2"}));
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE IDSCHED=2 ORDER BY [IDSched],[Pos] ASC", "FileName"),
            (Texts{"early1", "early2"}));
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [NPlaylist]=3 AND IDSched=1 ORDER BY [Pos],[ID] ASC",
                   "FileName"),
            (Texts{"noon1", "noon2"}));
}

TEST_F(ScheduleStatements, ReadsAllSpots) {
  const Texts all{"noon1", "noon2", "early1", "early2", "night"};
  EXPECT_EQ(Column("SELECT * FROM [List] ORDER BY [IDSched],[Pos] ASC", "FileName"), all);
  EXPECT_EQ(Column("SELECT * FROM [LIST] ORDER BY [NPlaylist],[IDSChed],[Pos]", "FileName"), all);
}

TEST_F(ScheduleStatements, FindsTheLatestTimeOfADay) {
  EXPECT_EQ(
      Column("SELECT max(starttime) as UltimaOra FROM [HEAD] WHERE [NScheduler]=3", "ultimaora"),
      Texts{"12:30:00"});
}

TEST_F(ScheduleStatements, ShowsTheSpotsOfADayAsAGrid) {
  const std::string grid = Grid("SELECT [HEAD].ID,[HEAD].[StartTime]", 3) +
                           " FROM [HEAD] WHERE [NScheduler]=3 ORDER BY [StartTime] ASC";
  EXPECT_EQ(Column(grid, "ID"), (Texts{"2", "1"}));
  EXPECT_EQ(Column(grid, "starttime"), (Texts{"08:00:00", "12:30:00"}));
  EXPECT_EQ(Column(grid, "Spot1"), (Texts{"early1", "noon1"}));
  EXPECT_EQ(Column(grid, "spot2"), (Texts{"early2", "noon2"}));
  EXPECT_EQ(Column(grid, "Spot8"), (Texts{"NULL", "NULL"}));
}

TEST_F(ScheduleStatements, ShowsTheSpotsOfAllDaysForTheReport) {
  const std::string grid = Grid("SELECT [HEAD].ID,[HEAD].[NScheduler],[HEAD].[StartTime]", -1) +
                           " FROM [HEAD] ORDER BY [HEAD].[NScheduler],[HEAD].[StartTime] ASC";
  EXPECT_EQ(Column(grid, "NScheduler"), (Texts{"3", "3", "4"}));
  EXPECT_EQ(Column(grid, "Spot1"), (Texts{"early1", "noon1", "night"}));
}

TEST_F(ScheduleStatements, TakesTheFirstAddedOfTwoSpotsInOnePlace) {
  Run("UPDATE [List] SET [Pos]=1 WHERE [FileName]='noon2'");
  const std::string grid = Grid("SELECT [HEAD].ID,[HEAD].[StartTime]", 3) +
                           " FROM [HEAD] WHERE [NScheduler]=3 ORDER BY [StartTime] ASC";
  EXPECT_EQ(Column(grid, "Spot1"), (Texts{"early1", "noon2"}));
}

TEST_F(ScheduleStatements, FindsASegmentInTheGridByItsNumber) {
  const std::string grid = Grid("SELECT [HEAD].ID,[HEAD].[StartTime]", 3) +
                           " FROM [HEAD] WHERE [NScheduler]=3 ORDER BY [StartTime] ASC";
  Recordset rows;
  ASSERT_FALSE(rows.Open(connection, grid));
  ASSERT_EQ(rows.RecordCount(), 2);
  ASSERT_FALSE(rows.Find("ID=1"));
  EXPECT_EQ(rows.AbsolutePosition(), 2);
  EXPECT_EQ(rows.Text("StartTime"), "12:30:00");
  EXPECT_EQ(rows.Text("Spot2"), "noon2");
  ASSERT_FALSE(rows.MoveFirst());
  ASSERT_FALSE(rows.Find("ID=2"));
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_EQ(rows.Text("Spot1"), "early1");
  ASSERT_FALSE(rows.Find("ID=3"));
  EXPECT_TRUE(rows.Eof()) << "a segment of another day";
}

TEST_F(ScheduleStatements, FindsASegmentInTheGridWhereItsNewTimePutsIt) {
  const std::string grid = Grid("SELECT [HEAD].ID,[HEAD].[StartTime]", 3) +
                           " FROM [HEAD] WHERE [NScheduler]=3 ORDER BY [StartTime] ASC";
  Recordset rows;
  ASSERT_FALSE(rows.Open(connection, grid));
  Run("UPDATE [HEAD] SET [StartTime]=#07.15# WHERE ID=1");
  ASSERT_FALSE(rows.Requery());
  ASSERT_FALSE(rows.Find("ID=1"));
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_EQ(rows.Text("StartTime"), "07:15:00");
  EXPECT_EQ(rows.Text("Spot1"), "noon1");
}

TEST_F(ScheduleStatements, JoinsSpotsWithTheirTimesForTheExport) {
  const std::string join =
      "SELECT [HEAD].[StartTime],[List].[NPlaylist],[List].[IDSched],[List].[Pos],"
      "[List].[FileName],[List].[FilePath],[List].[Alias] FROM [List] INNER JOIN [HEAD] ON "
      "[HEAD].[ID]=[LIST].[IDSched] ORDER BY [List].[NPlaylist],[List].[IDSched],[List].[Pos] ASC";
  EXPECT_EQ(Column(join, "FileName"), (Texts{"noon1", "noon2", "early1", "early2", "night"}));
  EXPECT_EQ(Column(join, "StartTime"),
            (Texts{"12:30:00", "12:30:00", "08:00:00", "08:00:00", "00:00:00"}));
  EXPECT_EQ(Column(join, "Alias"), Texts(5, "NULL"));
}

TEST_F(ScheduleStatements, ChangesATimeAndFindsItsDouble) {
  Run("UPDATE [HEAD] SET [StartTime]=#12.30# WHERE ID=2");
  const std::string others = "SELECT TOP 1 * FROM [HEAD] WHERE [HEAD].[ID]<>2 AND [StartTime]=";
  EXPECT_EQ(Column(others + "#12.30# AND [NScheduler]=3 ORDER BY ID DESC", "ID"), Texts{"1"});
  EXPECT_EQ(Column(others + "#12.30# AND [NScheduler]=4 ORDER BY ID DESC", "ID"), Texts{});
  EXPECT_EQ(connection.Execute("UPDATE [HEAD] SET [StartTime]=#24.00# WHERE ID=2").Number(),
            errors::BadStatement);
  EXPECT_EQ(Column("SELECT * FROM [HEAD] WHERE ID=2", "StartTime"), Texts{"12:30:00"});
}

TEST_F(ScheduleStatements, CopiesTheRowsOfASegment) {
  Run("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) "
      "VALUES(1,'noon1','C:\\','',0,4)");
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [IDSched]=4", "NPlaylist"), Texts{"0"});
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [IDSched]=4", "Alias"), Texts{""});
}

TEST_F(ScheduleStatements, CopiesARowWithADoubledApostropheAsOne) {
  Run("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) "
      "VALUES(1,'Rock''n''Roll.mp3','C:\\Bob''s\\','',0,4)");
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [IDSched]=4", "FileName"), Texts{"Rock'n'Roll.mp3"});
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [IDSched]=4", "FilePath"), Texts{"C:\\Bob's\\"});
}

TEST_F(ScheduleStatements, CopiesNoRowWhoseTextHasASingleApostrophe) {
  EXPECT_EQ(connection
                .Execute("INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],"
                         "[IDSched]) VALUES(1,'don't.mp3','C:\\','',0,4)")
                .Number(),
            errors::BadStatement);
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [IDSched]=4", "ID"), Texts{});
}

// A number that is Null leaves its place empty when it is joined into the text.
TEST_F(ScheduleStatements, CopiesNoRowWithAnEmptyPlaceAmongTheValues) {
  const std::string insert =
      "INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) VALUES(";
  for (const std::string_view values :
       {",'noon1','C:\\','',0,4", "1,,'C:\\','',0,4", "1,'noon1','C:\\','',,4",
        "1,'noon1','C:\\','',0,", "1,'noon1','C:\\','',0", ""}) {
    EXPECT_EQ(connection.Execute(insert + std::string(values) + ")").Number(), errors::BadStatement)
        << values;
  }
  EXPECT_EQ(Column("SELECT COUNT(*) AS N FROM [List]", "N"), Texts{"5"});
}

TEST_F(ScheduleStatements, DeletesASegmentWithItsSpots) {
  Run("DELETE * FROM [HEAD] WHERE [ID]=1");
  Run("DELETE * FROM [List] WHERE [IDSched]=1");
  Run("DELETE * FROM [List] WHERE [Pos]=1 AND IDSched=2");
  EXPECT_EQ(Column("SELECT * FROM [List]", "FileName"), (Texts{"early2", "night"}));
}

}  // namespace
}  // namespace kvr5::test
