// The statements about playlists and names, in all their spellings, and what every statement
// keeps to, on the real tables.

#include "DatabaseTest.h"

namespace kvr5::test {
namespace {

/// The tracks with the names of their playlists.
constexpr std::string_view kNamedTracks =
    "SELECT [HEAD].[NScheduler],[HEAD].[Descript],[List].[ID],[List].[Filename],"
    "[List].[FilePath],[List].[NPlaylist],[List].[Pos] FROM [List] INNER JOIN [HEAD] ON "
    "[HEAD].[NScheduler]=[LIST].[NPlaylist] ORDER BY [Descript],[Pos] ASC";

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

TEST_F(PlaylistStatements, CountsTheRowsThatHoldAName) {
  Run("INSERT INTO [LIST] ([NPlaylist],[Pos],[FileName]) VALUES(1,3,Null)");
  Run("INSERT INTO [LIST] ([NPlaylist],[Pos]) VALUES(1,4)");
  Run("INSERT INTO [LIST] ([NPlaylist],[FileName]) VALUES(1,'')");
  const std::string names = "SELECT COUNT([Filename]) AS Brani FROM [LIST] WHERE [NPlaylist]=";
  EXPECT_EQ(Column(names + "1", "Brani"), Texts{"3"}) << "an empty name is one, a Null is none";
  EXPECT_EQ(Column(names + "2", "Brani"), Texts{"2"});
  const std::string places = "SELECT COUNT(Pos) as UltimaPos FROM [List] WHERE [NPlaylist]=";
  EXPECT_EQ(Column(places + "1", "UltimaPos"), Texts{"4"});
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
  EXPECT_EQ(Column(kNamedTracks, "FileName"), (Texts{"c.mp3", "d.mp3", "a.mp3", "b.mp3"}));
  EXPECT_EQ(Column(kNamedTracks, "Descript"), (Texts{"Evening", "Evening", "Morning", "Morning"}));
  EXPECT_EQ(Column(kNamedTracks, "ID"), (Texts{"2", "1", "4", "3"}));
  EXPECT_EQ(Column(kNamedTracks, "FilePath").front(), "C:\\Music\\");
}

TEST_F(PlaylistStatements, JoinsTheTracksWithEachNameOfTheirNumber) {
  Run("INSERT INTO [HEAD] ([NScheduler],[Descript]) VALUES(1,'Afternoon')");
  Run("INSERT INTO [HEAD] ([NScheduler],[Descript]) VALUES(7,'Empty')");
  EXPECT_EQ(Column(kNamedTracks, "Descript"),
            (Texts{"Afternoon", "Afternoon", "Evening", "Evening", "Morning", "Morning"}));
  EXPECT_EQ(Column(kNamedTracks, "FileName"),
            (Texts{"a.mp3", "b.mp3", "c.mp3", "d.mp3", "a.mp3", "b.mp3"}));
  EXPECT_EQ(Column(kNamedTracks, "ID"), (Texts{"4", "3", "2", "1", "4", "3"}));
}

TEST_F(PlaylistStatements, AddsANameThroughTheFirstHeadAlone) {
  Recordset heads;
  ASSERT_FALSE(heads.Open(connection, "SELECT TOP 1 * FROM [HEAD]"));
  ASSERT_FALSE(heads.AddNew());
  ASSERT_FALSE(heads.Set("Descript", "Night"));
  ASSERT_FALSE(heads.Set("NScheduler", 3));
  ASSERT_FALSE(heads.Update());
  EXPECT_EQ(heads.Number("ID"), 3);
  heads.Close();
  EXPECT_EQ(Column("SELECT * FROM [HEAD]", "Descript"), (Texts{"Morning", "Evening", "Night"}));
  EXPECT_EQ(Column("SELECT * FROM [HEAD]", "NScheduler"), (Texts{"1", "2", "3"}));
}

TEST_F(PlaylistStatements, AddsTheFirstNameOfAll) {
  Run("DELETE * FROM [HEAD]");
  Recordset heads;
  ASSERT_FALSE(heads.Open(connection, "SELECT TOP 1 * FROM [HEAD]"));
  EXPECT_EQ(heads.RecordCount(), 0);
  ASSERT_FALSE(heads.AddNew());
  ASSERT_FALSE(heads.Set("Descript", "Night"));
  ASSERT_FALSE(heads.Update());
  heads.Close();
  EXPECT_EQ(Column("SELECT TOP 1 * FROM [HEAD]", "Descript"), Texts{"Night"});
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
