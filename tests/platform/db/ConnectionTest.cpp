#include <unistd.h>

#include <random>
#include <set>

#include "DatabaseTest.h"
#include "RawDatabase.h"
#include "platform/db/Connection.h"

namespace kvr5::test {
namespace {

namespace fs = std::filesystem;

/// Gives up the rights of root, who may write everywhere, for a scope.
class AsUser {
 public:
  AsUser() : root_(::geteuid() == 0) { Become(65534); }
  ~AsUser() { Become(0); }
  AsUser(const AsUser&) = delete;
  AsUser& operator=(const AsUser&) = delete;

 private:
  void Become(uid_t user) const {
    if (root_) {
      EXPECT_EQ(::seteuid(user), 0);
    }
  }

  bool root_;
};

class ConnectionTest : public DatabaseTest {
 protected:
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.Host())) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  /// The outcome of opening a file with these bytes, which it must leave alone.
  int OpenBytes(const std::string& bytes) {
    folder.Write("b.mdb", bytes);
    Connection other(files);
    const int outcome = other.Open(folder.System("b.mdb")).Number();
    EXPECT_FALSE(other.IsOpen() && outcome != 0);
    EXPECT_EQ(folder.Read("b.mdb"), bytes);
    return outcome;
  }

  /// Adds enough rows for many pages.
  void AddManyTracks() {
    const Transaction run(connection);
    for (int i = 1; i <= 2000; ++i) AddTrack(1, i, "track " + std::to_string(i) + ".mp3");
  }
};

TEST_F(ConnectionTest, KeepsThePathOfTheLastFileOverItsClosing) {
  EXPECT_TRUE(connection.IsOpen());
  EXPECT_EQ(connection.Path(), folder.System("a.mdb"));
  connection.Close();
  connection.Close();
  EXPECT_FALSE(connection.IsOpen());
  EXPECT_EQ(connection.Handle(), nullptr);
  EXPECT_EQ(connection.Path(), folder.System("a.mdb"));
  ASSERT_FALSE(connection.Open(connection.Path()));
  EXPECT_EQ(connection.Open(folder.System("b.mdb")).Number(), errors::CannotOpen);
  EXPECT_FALSE(connection.IsOpen());
  EXPECT_EQ(connection.Path(), folder.System("a.mdb"));
}

TEST_F(ConnectionTest, RefusesStatementsWhileClosed) {
  connection.Close();
  EXPECT_EQ(connection.Execute("DELETE * FROM [List]").Number(), errors::ObjectClosed);
  EXPECT_EQ(OpenError("SELECT * FROM [List]"), errors::ObjectClosed);
}

TEST_F(ConnectionTest, NeverMakesAFile) {
  Connection other(files);
  for (const std::string& path : {folder.System("none.mdb"), folder.System("no\\none.mdb"),
                                  std::string(), std::string("Q:\\a.mdb"), folder.System()}) {
    EXPECT_EQ(other.Open(path).Number(), errors::CannotOpen) << path;
  }
  EXPECT_EQ(Names(), std::set<std::string>{"a.mdb"});
}

TEST_F(ConnectionTest, RefusesAFolderOfThatName) {
  fs::create_directory(folder.Host() / "b.mdb");
  Connection other(files);
  EXPECT_EQ(other.Open(folder.System("b.mdb")).Number(), errors::CannotOpen);
}

TEST_F(ConnectionTest, RefusesWhatIsNoDatabase) {
  EXPECT_EQ(OpenBytes(""), errors::CannotOpen);
  EXPECT_EQ(OpenBytes("[CONFIG]\r\nLOUT=1\r\n"), errors::CannotOpen);
  EXPECT_EQ(OpenBytes(std::string(100, 'x')), errors::CannotOpen);
  for (const std::size_t size : {1U, 512U, 4096U, 24576U}) {
    EXPECT_EQ(OpenBytes(std::string(size, '\0')), errors::CannotOpen) << size;
  }
  std::mt19937 random(7);
  std::string noise(24576, '\0');
  for (char& c : noise) c = static_cast<char>(random());
  EXPECT_EQ(OpenBytes(noise), errors::CannotOpen);
  EXPECT_EQ(Names(), (std::set<std::string>{"a.mdb", "b.mdb"}));
}

TEST_F(ConnectionTest, RefusesADatabaseThatIsCutShort) {
  AddManyTracks();
  connection.Close();
  const std::string whole = folder.Read("a.mdb");
  for (const std::size_t size :
       {std::size_t{1}, std::size_t{15}, std::size_t{16}, std::size_t{99}, std::size_t{100},
        std::size_t{511}, std::size_t{512}, std::size_t{4095}, std::size_t{4096}, std::size_t{8192},
        whole.size() / 2, whole.size() - 4096, whole.size() - 1}) {
    EXPECT_EQ(OpenBytes(whole.substr(0, size)), errors::CannotOpen) << size;
  }
  EXPECT_EQ(OpenBytes(whole), 0);
}

TEST_F(ConnectionTest, FailsInsteadOfCrashingOnDamagedPages) {
  AddManyTracks();
  connection.Close();
  const std::string whole = folder.Read("a.mdb");
  std::mt19937 random(11);
  int refused = 0;
  for (int round = 0; round < 60; ++round) {
    std::string bytes = whole;
    for (int i = 0; i < 200; ++i) {
      bytes[100 + random() % (bytes.size() - 100)] = static_cast<char>(random());
    }
    folder.Write("b.mdb", bytes);
    Connection other(files);
    Recordset rows;
    if (other.Open(folder.System("b.mdb")) ||
        rows.Open(other, "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC")) {
      ++refused;
      continue;
    }
    for (int i = 0; i < 3000 && !rows.Eof(); ++i) {
      if (rows.MoveNext()) break;
    }
    Ignora(other.Execute("UPDATE [List] SET [Alias]=[FileName]"));
  }
  EXPECT_GT(refused, 0);
}

TEST_F(ConnectionTest, RefusesADatabaseWithoutOurTables) {
  const fs::path path = folder.Host() / "b.mdb";
  const std::string key = "(ID INTEGER PRIMARY KEY, ";
  const std::string columns = "FileName, FilePath, Alias, Pos, NPlaylist, IDSched)";
  const std::string list = "CREATE TABLE List " + key + columns + ";";
  const std::string head = "CREATE TABLE HEAD " + key + "NScheduler, Descript, StartTime);";
  const std::vector<std::string> schemas{
      "CREATE TABLE x (a)",
      list,
      head,
      head + "CREATE TABLE List " + key + "FileName, FilePath, Alias, Pos, NPlaylist)",
      head + "CREATE TABLE List (ID, " + columns,
      head + "CREATE TABLE T " + key + columns + "; CREATE VIEW List AS SELECT * FROM T",
  };
  Connection other(files);
  for (const std::string& schema : schemas) {
    fs::remove(path);
    RawDatabase(path).Run(schema);
    EXPECT_EQ(other.Open(folder.System("b.mdb")).Number(), errors::CannotOpen) << schema;
  }
  fs::remove(path);
  RawDatabase(path).Run(head + "CREATE TABLE LIST " + key + "More, " + columns);
  EXPECT_FALSE(other.Open(folder.System("b.mdb")));
}

TEST_F(ConnectionTest, LeavesTheFileAloneWhenNothingIsChanged) {
  AddManyTracks();
  connection.Close();
  const std::string before = folder.Read("a.mdb");
  ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
  EXPECT_EQ(Column("SELECT * FROM [List] ORDER BY [Pos] ASC", "ID").size(), 2000U);
  { const Transaction run(connection); }
  connection.Close();
  EXPECT_EQ(folder.Read("a.mdb"), before);
}

TEST_F(ConnectionTest, LeavesNoSideFile) {
  const std::set<std::string> alone{"a.mdb"};
  AddManyTracks();
  EXPECT_EQ(Names(), alone);
  {
    const Transaction run(connection);
    Run("UPDATE [List] SET [Alias]='x'");
    Run("DELETE * FROM [List] WHERE Pos=7");
  }
  EXPECT_EQ(Names(), alone);
  connection.Close();
  EXPECT_EQ(Names(), alone);
}

TEST_F(ConnectionTest, GivesSpaceBackWhenAListShrinks) {
  connection.Close();
  const auto empty = fs::file_size(folder.Host() / "a.mdb");
  ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
  AddManyTracks();
  Run("DELETE * FROM [List]");
  connection.Close();
  EXPECT_EQ(fs::file_size(folder.Host() / "a.mdb"), empty);
}

TEST_F(ConnectionTest, UndoesWhatACrashLeftHalfDone) {
  AddManyTracks();
  connection.Close();
  {
    RawDatabase raw(folder.Host() / "a.mdb");
    raw.Run("PRAGMA cache_size=2");  // so that changed pages go to the file at once
    raw.Run("BEGIN; UPDATE List SET Alias='half', FileName='gone'; DELETE FROM List WHERE Pos>9");
    fs::copy_file(folder.Host() / "a.mdb", folder.Host() / "c.mdb");
    fs::copy_file(folder.Host() / "a.mdb-journal", folder.Host() / "c.mdb-journal");
  }
  ASSERT_NE(folder.Read("c.mdb"), folder.Read("a.mdb"));
  ASSERT_FALSE(connection.Open(folder.System("c.mdb")));
  EXPECT_EQ(Column("SELECT * FROM [List] WHERE ISNULL([Alias]) AND FileName<>'gone'", "ID").size(),
            2000U);
  connection.Close();
  EXPECT_FALSE(folder.Exists("c.mdb-journal"));
}

TEST_F(ConnectionTest, BringsAFileInWalModeBackToOneFile) {
  connection.Close();
  RawDatabase(folder.Host() / "a.mdb").Run("PRAGMA journal_mode=WAL; DELETE FROM List");
  ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
  AddTrack(1, 1, "a.mp3");
  EXPECT_EQ(Names(), std::set<std::string>{"a.mdb"});
}

TEST_F(ConnectionTest, FailsWhileAnotherProgramHoldsTheFile) {
  AddTrack(1, 1, "a.mp3");
  RawDatabase raw(folder.Host() / "a.mdb");
  raw.Run("BEGIN IMMEDIATE");
  EXPECT_EQ(Column("SELECT * FROM [List]", "ID"), Texts{"1"});
  EXPECT_EQ(connection.Execute("DELETE * FROM [List]").Number(), errors::CannotOpen);
  raw.Run("ROLLBACK; BEGIN EXCLUSIVE");
  EXPECT_EQ(OpenError("SELECT * FROM [List]"), errors::CannotOpen);
  EXPECT_EQ(Connection(files).Open(folder.System("a.mdb")).Number(), errors::CannotOpen);
  raw.Run("ROLLBACK");
  EXPECT_EQ(Column("SELECT * FROM [List]", "ID"), Texts{"1"});
  Run("DELETE * FROM [List]");
}

TEST_F(ConnectionTest, UndoesAChangeThatCannotBeCommitted) {
  AddTrack(1, 1, "a.mp3");
  RawDatabase raw(folder.Host() / "a.mdb");
  raw.Run("BEGIN; SELECT * FROM List");  // a reader lets changes begin and not end
  EXPECT_EQ(connection.Execute("UPDATE [List] SET [Pos]=2").Number(), errors::CannotOpen);
  EXPECT_EQ(Column("SELECT * FROM [List]", "Pos"), Texts{"1"});
  raw.Run("COMMIT");
  Run("UPDATE [List] SET [Pos]=3");
  EXPECT_EQ(Column("SELECT * FROM [List]", "Pos"), Texts{"3"});
}

TEST_F(ConnectionTest, ReadsWhereItCannotWrite) {
  AddTrack(1, 1, "a.mp3");
  connection.Close();
  fs::permissions(folder.Host() / "a.mdb", fs::perms(0444));
  fs::permissions(folder.Host(), fs::perms(0555));
  {
    const AsUser user;
    ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
    EXPECT_EQ(Column("SELECT * FROM [List]", "FileName"), Texts{"a.mp3"});
    EXPECT_EQ(connection.Execute("DELETE * FROM [List]").Number(), errors::CannotOpen);
    const Transaction run(connection);
    EXPECT_EQ(connection.Execute("DELETE * FROM [List]").Number(), errors::CannotOpen);
    Recordset rows;
    ASSERT_FALSE(rows.Open(connection, "SELECT * FROM [List]"));
    EXPECT_EQ(rows.Delete().Number(), errors::CannotOpen);
    EXPECT_EQ(rows.Text("FileName"), "a.mp3");
    connection.Close();
  }
  fs::permissions(folder.Host(), fs::perms::owner_all);
  EXPECT_EQ(Names(), std::set<std::string>{"a.mdb"});
}

TEST_F(ConnectionTest, ReadsInAFolderWhereItCannotWrite) {
  AddTrack(1, 1, "a.mp3");
  connection.Close();
  fs::permissions(folder.Host() / "a.mdb", fs::perms(0666));
  fs::permissions(folder.Host(), fs::perms(0555));
  {
    const AsUser user;
    ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
    EXPECT_EQ(connection.Execute("DELETE * FROM [List]").Number(), errors::CannotOpen);
    EXPECT_EQ(Column("SELECT * FROM [List]", "FileName"), Texts{"a.mp3"});
    connection.Close();
  }
  fs::permissions(folder.Host(), fs::perms::owner_all);
}

TEST_F(ConnectionTest, RunsNothingThatAFileBringsAlong) {
  connection.Close();
  RawDatabase(folder.Host() / "a.mdb")
      .Run(
          "CREATE TRIGGER Spoil AFTER INSERT ON List BEGIN DELETE FROM HEAD; END;"
          "INSERT INTO HEAD (Descript) VALUES ('a')");
  ASSERT_FALSE(connection.Open(folder.System("a.mdb")));
  AddTrack(1, 1, "a.mp3");
  EXPECT_EQ(Column("SELECT * FROM [HEAD]", "Descript"), Texts{"a"});
}

TEST_F(ConnectionTest, HasTheSettingsThatKeepAFileWhole) {
  const auto value = [this](const char* sql) {
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(connection.Handle(), sql, -1, &statement, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW) << sql;
    std::string text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    return text;
  };
  EXPECT_EQ(value("PRAGMA journal_mode"), "delete");
  EXPECT_EQ(value("PRAGMA synchronous"), "2");
  EXPECT_EQ(value("PRAGMA trusted_schema"), "0");
  EXPECT_EQ(value("PRAGMA temp_store"), "2");
  EXPECT_EQ(sqlite3_limit(connection.Handle(), SQLITE_LIMIT_ATTACHED, -1), 0);
}

}  // namespace
}  // namespace kvr5::test
