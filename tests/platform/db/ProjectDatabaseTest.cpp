#include "DatabaseTest.h"
#include "RawDatabase.h"

namespace kvr5::test {
namespace {

class ProjectDatabase : public testing::Test {
 protected:
  void SetUp() override { Make("source.mdb"); }

  void Make(const std::string& name) const {
    const Error made = CreateProjectDatabase((folder.Host() / name).string(), ProjectSchema());
    ASSERT_FALSE(made) << made.Description();
  }

  TempFolder folder;
};

TEST_F(ProjectDatabase, BearsItsMarks) {
  RawDatabase raw(folder.Host() / "source.mdb");
  EXPECT_EQ(raw.Value("PRAGMA application_id"), std::to_string(0x4B565235));
  EXPECT_EQ(raw.Value("PRAGMA user_version"), "1");
  EXPECT_EQ(raw.Value("PRAGMA journal_mode"), "delete");
  EXPECT_EQ(raw.Value("PRAGMA encoding"), "UTF-8");
  EXPECT_EQ(raw.Value("SELECT group_concat(name, ' ') FROM pragma_table_info('List')"),
            "ID FileName FilePath Alias Pos NPlaylist IDSched");
  EXPECT_EQ(raw.Value("SELECT group_concat(name, ' ') FROM pragma_table_info('HEAD')"),
            "ID NScheduler Descript StartTime");
}

TEST_F(ProjectDatabase, IsTheSameToTheLastByteEachTime) {
  Make("again.mdb");
  EXPECT_EQ(folder.Read("source.mdb"), folder.Read("again.mdb"));
}

TEST_F(ProjectDatabase, IsOneFile) {
  std::size_t entries = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.Host())) {
    ++entries;
  }
  EXPECT_EQ(entries, 1U);
}

TEST_F(ProjectDatabase, DoesNotReplaceAFile) {
  const std::string before = folder.Read("source.mdb");
  const std::string path = (folder.Host() / "source.mdb").string();
  EXPECT_EQ(CreateProjectDatabase(path, ProjectSchema()).Number(), errors::FileExists);
  EXPECT_EQ(folder.Read("source.mdb"), before);
}

TEST_F(ProjectDatabase, LeavesNothingBehindWhereItCannotBeMade) {
  const std::string path = (folder.Host() / "bad.mdb").string();
  EXPECT_EQ(CreateProjectDatabase(path, "CREATE TABLE List (ID); nonsense").Number(),
            errors::CannotOpen);
  EXPECT_FALSE(folder.Exists("bad.mdb"));
  EXPECT_EQ(
      CreateProjectDatabase((folder.Host() / "no" / "a.mdb").string(), ProjectSchema()).Number(),
      errors::CannotOpen);
}

TEST_F(ProjectDatabase, TakesRowsFromAnyProgramThatKnowsSqlite) {
  {
    RawDatabase raw(folder.Host() / "source.mdb");
    raw.Run(
        "INSERT INTO List (FileName, FilePath, Pos, NPlaylist) VALUES "
        "('È.mp3', 'C:\\', 1, 1), ('b.mp3', 'C:\\', 2, 1)");
    raw.Run("INSERT INTO HEAD (NScheduler, StartTime) VALUES (3, '08:30:00')");
    raw.Run("UPDATE List SET Alias = 'x.mp3' WHERE Pos = 2");
    raw.Run("DELETE FROM List WHERE ID = 2");
    EXPECT_EQ(raw.Value("SELECT FileName FROM List ORDER BY Pos"), "È.mp3");
    EXPECT_EQ(raw.Value("PRAGMA integrity_check"), "ok");
  }
  RootFiles files;
  Connection connection(files);
  ASSERT_FALSE(connection.Open(folder.System("source.mdb")));
  Recordset rows;
  ASSERT_FALSE(rows.Open(connection, "SELECT * FROM [List] WHERE [FileName]='è.MP3'"));
  EXPECT_EQ(rows.Number("ID"), 1);
}

}  // namespace
}  // namespace kvr5::test
