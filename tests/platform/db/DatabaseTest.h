#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "RootFiles.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

namespace kvr5::test {

/// All tracks, in the order of their lists.
inline constexpr std::string_view kAll = "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC";

/// A test with an empty project database `a.mdb`, open.
class DatabaseTest : public testing::Test {
 protected:
  void SetUp() override {
    MakeProjectDatabase(folder.Host() / "a.mdb");
    const Error opened = connection.Open(folder.System("a.mdb"));
    ASSERT_FALSE(opened) << opened.Description();
  }

  /// Runs a statement that must succeed.
  void Run(std::string_view statement) {
    const Error outcome = connection.Execute(statement);
    ASSERT_FALSE(outcome) << statement << ": " << outcome.Description();
  }

  /// Adds a track.
  void AddTrack(int playlist, int pos, const std::string& name,
                const std::string& path = "C:\\Music\\") {
    Run("INSERT INTO [LIST] ([NPlaylist],[Pos],[FileName],[FilePath]) VALUES(" +
        std::to_string(playlist) + "," + std::to_string(pos) + ",'" + name + "','" + path + "')");
  }

  /// Gives an alias to the rows of a file that have none.
  void GiveAlias(const std::string& alias, const std::string& file, const std::string& path) {
    std::string sql = "UPDATE [List] SET [Alias]='";
    sql.append(alias).append("' WHERE [Filename]='").append(file);
    sql.append("' AND [Filepath]='").append(path).append("' AND ISNULL([Alias])");
    Run(sql);
  }

  /// One column of all rows of a query as texts; Null is "NULL".
  std::vector<std::string> Column(std::string_view statement, std::string_view column) {
    Recordset rows;
    const Error opened = rows.Open(connection, statement);
    EXPECT_FALSE(opened) << statement << ": " << opened.Description();
    std::vector<std::string> values;
    while (!rows.Eof()) {
      const Result<DbValue> value = rows.Get(column);
      EXPECT_TRUE(value) << column << ": " << value.Err().Number();
      const bool null = value && IsNull(value.Value());
      values.push_back(null ? "NULL" : rows.Text(column));
      EXPECT_FALSE(rows.MoveNext());
    }
    return values;
  }

  /// The error number of opening a query.
  int OpenError(std::string_view statement) {
    Recordset rows;
    return rows.Open(connection, statement).Number();
  }

  TempFolder folder;
  RootFiles files;
  Connection connection{files};
};

using Texts = std::vector<std::string>;

}  // namespace kvr5::test
