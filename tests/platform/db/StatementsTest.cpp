// Every statement that the system has, in all its spellings, on the real tables.

#include "DatabaseTest.h"

namespace kvr5::test {
namespace {

/// Two playlists, the second entered first and from behind.
class PlaylistStatements : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    const Transaction run(connection);
    AddTrack(2, 2, "d.mp3");
    AddTrack(2, 1, "c.mp3");
    AddTrack(1, 2, "b.mp3");
    AddTrack(1, 1, "a.mp3");
    Run("INSERT INTO [HEAD] ([NScheduler],[Descript]) VALUES(1,'Morning')");
    Run("INSERT INTO [HEAD] ([NScheduler],[Descript]) VALUES(2,'Evening')");
  }
};

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

TEST_F(PlaylistStatements, ReadsAllRowsInTheOrderOfTheirPlaces) {
  EXPECT_EQ(Column("SELECT * FROM [List] ORDER BY [Pos] ASC", "FileName"),
            (Texts{"c.mp3", "a.mp3", "d.mp3", "b.mp3"}));
  const Texts all{"a.mp3", "b.mp3", "c.mp3", "d.mp3"};
  EXPECT_EQ(Column("SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC", "Filename"), all);
  EXPECT_EQ(Column("SELECT * FROM [List] ORDER BY [NPlaylist] ASC,[Pos] ASC", "FILENAME"), all);
}

TEST_F(PlaylistStatements, ReadsOnePlaylist) {
  EXPECT_EQ(
      Column("SELECT * FROM [List] WHERE [NPlaylist]=1 ORDER BY [NPlaylist],[Pos] ASC", "pos"),
      (Texts{"1", "2"}));
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [NPlaylist]=2", "FileName"),
            (Texts{"d.mp3", "c.mp3"}));
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [NPlaylist]=2 ORDER BY [Pos] ASC", "FileName"),
            (Texts{"c.mp3", "d.mp3"}));
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [NPlaylist]=9", "ID"), Texts{});
}

TEST_F(PlaylistStatements, CountsAPlaylist) {
  EXPECT_EQ(Column("SELECT COUNT(Pos) as UltimaPos FROM [List] WHERE [NPlaylist]=1", "UltimaPos"),
            Texts{"2"});
  EXPECT_EQ(Column("SELECT COUNT([Filename]) AS Brani FROM [LIST] WHERE [NPlaylist]=9", "Brani"),
            Texts{"0"});
  EXPECT_EQ(Column("SELECT COUNT(*) AS N FROM [LIST]", "N"), Texts{"4"});
}

TEST_F(PlaylistStatements, ListsThePlaylistsInUse) {
  Recordset rows;
  ASSERT_FALSE(rows.Open(connection, "SELECT DISTINCT [NPlaylist] FROM [LIST]"));
  EXPECT_EQ(rows.RecordCount(), 2);
}

TEST_F(PlaylistStatements, ListsTheNamedPlaylists) {
  Run("INSERT INTO [HEAD] ([NScheduler],[Descript]) VALUES(2,'Evening')");
  const std::string all = "SELECT DISTINCT [Descript],[NScheduler] FROM [HEAD] ";
  EXPECT_EQ(Column(all + "ORDER BY [Descript] ASC", "Descript"), (Texts{"Evening", "Morning"}));
  EXPECT_EQ(Column(all + "ORDER BY [Descript] ASC", "NScheduler"), (Texts{"2", "1"}));
  EXPECT_EQ(Column(all + "WHERE [Descript]='mORNing' ORDER BY [Descript] ASC", "NScheduler"),
            Texts{"1"});
  EXPECT_EQ(Column(all + "WHERE [Descript]='Noon'", "NScheduler"), Texts{});
  EXPECT_EQ(OpenError(all + "WHERE [Descript]='Rock'n'Roll' ORDER BY [Descript] ASC"),
            errors::BadStatement);
}

TEST_F(PlaylistStatements, ReadsTheNewestHead) {
  EXPECT_EQ(Column("SELECT TOP 1 * FROM [HEAD]", "ID"), Texts{"1"});
  EXPECT_EQ(Column("SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC", "id"), Texts{"2"});
  EXPECT_EQ(Column("SELECT TOP 1 * FROM [HEAD] WHERE [HEAD].[ID]<>1", "ID"), Texts{"2"});
  EXPECT_EQ(Column("SELECT MAX ([NScheduler]) AS ValoreMax FROM [HEAD]", "ValoreMax"), Texts{"2"});
}

TEST_F(PlaylistStatements, GivesNullForTheLargestOfNothing) {
  Run("DELETE * FROM [HEAD] WHERE [NScheduler]=1");
  Run("DELETE * FROM [HEAD] WHERE [ID]=2");
  EXPECT_EQ(Column("SELECT MAX ([NScheduler]) AS ValoreMax FROM [HEAD]", "valoremax"),
            Texts{"NULL"});
  EXPECT_EQ(Column("SELECT MAX([NScheduler])+1 AS N FROM [HEAD]", "N"), Texts{"NULL"});
  EXPECT_EQ(
      Column("SELECT max(starttime) as UltimaOra FROM [HEAD] WHERE [NScheduler]=3", "UltimaOra"),
      Texts{"NULL"});
}

TEST_F(PlaylistStatements, JoinsTracksWithTheNamesOfTheirPlaylists) {
  const std::string join =
      "SELECT [HEAD].[NScheduler],[HEAD].[Descript],[List].[ID],[List].[Filename],"
      "[List].[FilePath],[List].[NPlaylist],[List].[Pos] FROM [List] INNER JOIN [HEAD] ON "
      "[HEAD].[NScheduler]=[LIST].[NPlaylist] ORDER BY [Descript],[Pos] ASC";
  EXPECT_EQ(Column(join, "FileName"), (Texts{"c.mp3", "d.mp3", "a.mp3", "b.mp3"}));
  EXPECT_EQ(Column(join, "Descript"), (Texts{"Evening", "Evening", "Morning", "Morning"}));
  EXPECT_EQ(Column(join, "ID"), (Texts{"2", "1", "4", "3"}));
  EXPECT_EQ(Column(join, "FilePath").front(), "C:\\Music\\");
}

TEST_F(PlaylistStatements, ChangesPlaces) {
  Run("UPDATE [List] SET [Pos]=7 WHERE ID=3");
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [ID]=3", "Pos"), Texts{"7"});
}

TEST_F(PlaylistStatements, ChangesPathsAndAliases) {
  Run(R"(UPDATE [List] SET [FilePath]='C:\Projects\One\')");
  EXPECT_EQ(Column("SELECT * FROM [List]", "Filepath"), Texts(4, "C:\\Projects\\One\\"));
  Run("UPDATE [List] SET [Alias]=[FileName]");
  EXPECT_EQ(Column("SELECT * FROM [List]", "Alias"), Column("SELECT * FROM [List]", "FileName"));
  Run("UPDATE [List] SET [Alias]=Null");
  EXPECT_EQ(Column("SELECT * FROM [List]", "Alias"), Texts(4, "NULL"));
}

TEST_F(PlaylistStatements, GivesAnAliasToTheRowsOfAFileThatHaveNone) {
  AddTrack(3, 1, "A.MP3", "c:\\music\\");
  AddTrack(3, 2, "a.mp3", "C:\\Other\\");
  Run("UPDATE [List] SET [Alias]='mine' WHERE [ID]=4");
  Run("UPDATE [List] SET [Alias]='P01-001.mp3' WHERE [Filename]='a.mp3' AND "
      "[Filepath]='C:\\Music\\' AND ISNULL([Alias])");
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [FileName]='a.mp3'", "Alias"),
            (Texts{"mine", "P01-001.mp3", "NULL"}));
}

TEST_F(PlaylistStatements, DeletesRows) {
  Run("DELETE * FROM [List] WHERE [NPlaylist]=1");
  EXPECT_EQ(Column("SELECT * FROM [List]", "ID"), (Texts{"1", "2"}));
  Run("DELETE * FROM [List] WHERE [Pos]=2 AND NPlaylist=2");
  EXPECT_EQ(Column("SELECT * FROM [List]", "ID"), Texts{"2"});
  Run("DELETE * FROM [HEAD] WHERE [NScheduler]=2");
  EXPECT_EQ(Column("SELECT * FROM [HEAD]", "Descript"), Texts{"Morning"});
}

TEST_F(PlaylistStatements, NeverGivesANumberTwice) {
  Run("DELETE * FROM [List]");
  AddTrack(1, 1, "new.mp3");
  EXPECT_EQ(Column("SELECT * FROM [List]", "ID"), Texts{"5"});
}

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

TEST_F(ScheduleStatements, DeletesASegmentWithItsSpots) {
  Run("DELETE * FROM [HEAD] WHERE [ID]=1");
  Run("DELETE * FROM [List] WHERE [IDSched]=1");
  Run("DELETE * FROM [List] WHERE [Pos]=1 AND IDSched=2");
  EXPECT_EQ(Column("SELECT * FROM [List]", "FileName"), (Texts{"early2", "night"}));
}

TEST_F(PlaylistStatements, ComparesTextsWithoutRegardToCaseAccentsIncluded) {
  AddTrack(3, 1, "Città è Più.MP3");
  AddTrack(3, 2, "Песня.mp3");
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [Filename]='CITTÀ È PIÙ.mp3'", "Pos"), Texts{"1"});
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [Filename]='Citta e Piu.mp3'", "Pos"), Texts{});
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [Filename]='ПЕСНЯ.MP3'", "Pos"), Texts{"2"});
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE [Filename]<>'D.MP3' AND NPlaylist=2", "Pos"),
            Texts{"1"});
}

TEST_F(PlaylistStatements, RefusesUnknownTablesAndColumns) {
  for (const std::string_view statement :
       {"UPDATE [Tracks] SET [Pos]=1", "UPDATE [List] SET [Place]=1",
        "UPDATE [List] SET [Pos]=1 WHERE [Place]=2", "UPDATE [List] SET [Pos]=abc",
        "INSERT INTO [HEAD] ([Alias]) VALUES ('a')",
        "INSERT INTO [HEAD] ([Descript]) VALUES ('a','b')",
        "DELETE * FROM [List] WHERE [HEAD].[ID]=1",
        R"(UPDATE [List] SET [Alias]="Pos" WHERE Pos="x"")"}) {
    EXPECT_EQ(connection.Execute(statement).Number(), errors::BadStatement) << statement;
  }
  EXPECT_EQ(OpenError("SELECT [Place] FROM [List]"), errors::BadStatement);
  EXPECT_EQ(OpenError("SELECT * FROM [List] ORDER BY [Place]"), errors::BadStatement);
  EXPECT_EQ(OpenError("SELECT * FROM [Tracks]"), errors::BadStatement);
  EXPECT_EQ(OpenError("SELECT ID FROM [List] INNER JOIN [HEAD] ON [HEAD].[ID]=[List].[ID]"),
            errors::BadStatement);
}

TEST_F(PlaylistStatements, TakesDoubleQuotesForTextsAndNeverForNames) {
  Run("UPDATE [List] SET [Alias]=\"Pos\"");
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE ID=1", "Alias"), Texts{"Pos"});
}

TEST_F(PlaylistStatements, LeavesEverythingAsItWasWhenAStatementFails) {
  EXPECT_EQ(
      connection
          .Execute("UPDATE [List] SET [Alias]='Rock'n'Roll.mp3' WHERE [Filename]='Rock'n'Roll'")
          .Number(),
      errors::BadStatement);
  EXPECT_EQ(connection.Execute("UPDATE [List] SET [FilePath]='C:\\Bob's\\'").Number(),
            errors::BadStatement);
  EXPECT_EQ(Column("SELECT * FROM [List]", "Alias"), Texts(4, "NULL"));
  EXPECT_EQ(Column("SELECT * FROM [List]", "FilePath"), Texts(4, "C:\\Music\\"));
}

TEST_F(PlaylistStatements, RunsConditionsAsDeepAsTheDialectTakesThem) {
  const std::string all = "SELECT * FROM [List] WHERE ";
  EXPECT_EQ(Column(all + std::string(40, '(') + "Pos=1" + std::string(40, ')'), "ID"),
            (Texts{"2", "4"}));
  std::string nots;
  for (int i = 0; i < 40; ++i) nots += "NOT ";
  EXPECT_EQ(Column(all + nots + "Pos=1", "ID"), (Texts{"2", "4"}));
}

TEST_F(PlaylistStatements, KeepsQueriesAndChangesApart) {
  EXPECT_EQ(connection.Execute("SELECT * FROM [List]").Number(), errors::BadStatement);
  EXPECT_EQ(OpenError("DELETE * FROM [List]"), errors::BadStatement);
  EXPECT_EQ(Column("SELECT * FROM [List]", "ID").size(), 4U);
}

}  // namespace
}  // namespace kvr5::test
