// What long lists cost, counted in steps of SQLite's machine and not in time.

#include <sqlite3.h>

#include "DatabaseTest.h"

namespace kvr5::test {
namespace {

class Scale : public DatabaseTest {
 protected:
  void Fill(int count) {
    const Transaction run(connection);
    Run("DELETE * FROM [List]");
    Recordset rows;
    ASSERT_FALSE(rows.Open(connection, kAll));
    for (int i = 0; i < count; ++i) {
      ASSERT_FALSE(rows.AddNew());
      ASSERT_FALSE(rows.Set("NPlaylist", i / 500 + 1));
      ASSERT_FALSE(rows.Set("Pos", i % 500 + 1));
      ASSERT_FALSE(rows.Set("FileName", "Titolo " + std::to_string(i * 7 % count / 2) + ".mp3"));
      ASSERT_FALSE(rows.Set("FilePath", "C:\\Musica\\"));
      ASSERT_FALSE(rows.Update());
    }
    ASSERT_EQ(rows.RecordCount(), count);
  }

  /// Steps that `work` takes.
  template <typename Work>
  double Steps(Work work) {
    int steps = 0;
    const auto count = [](void* counter) {
      ++*static_cast<int*>(counter);
      return 0;
    };
    sqlite3_progress_handler(connection.Handle(), 1, count, &steps);
    work();
    sqlite3_progress_handler(connection.Handle(), 0, nullptr, nullptr);
    return steps;
  }

  /// How many times the steps of `work` grow when the list is eight times as long.
  template <typename Work>
  double Growth(Work work) {
    Fill(1000);
    const double few = Steps(work);
    Fill(8000);
    return Steps(work) / few;
  }
};

TEST_F(Scale, WalksAndEditsInStepsThatGrowWithTheRows) {
  EXPECT_LT(Growth([this] {
              const Transaction run(connection);
              Recordset rows;
              ASSERT_FALSE(rows.Open(connection, kAll));
              for (; !rows.Eof(); Ignora(rows.MoveNext())) {
                ASSERT_EQ(rows.Text("FilePath"), "C:\\Musica\\");
                ASSERT_GE(rows.RecordCount(), rows.AbsolutePosition());
                ASSERT_FALSE(rows.Set("Pos", rows.Number("Pos") + 1));
                ASSERT_FALSE(rows.Update());
              }
            }),
            12);
}

TEST_F(Scale, GivesAliasesInStepsThatGrowWithTheRows) {
  EXPECT_LT(Growth([this] {
              const Transaction run(connection);
              Recordset rows;
              Run("UPDATE [List] SET [Alias]=Null");
              ASSERT_FALSE(rows.Open(connection, kAll));
              for (; !rows.Eof(); Ignora(rows.MoveNext())) {
                if (!rows.Text("Alias").empty()) continue;
                const std::string alias = "P" + rows.Text("NPlaylist") + "-" + rows.Text("Pos");
                const std::string file = rows.Text("FileName");
                ASSERT_FALSE(rows.Set("Alias", alias));
                ASSERT_FALSE(rows.Update());
                GiveAlias(alias, file, "C:\\Musica\\");
              }
            }),
            12);
}

TEST_F(Scale, CountsOnePlaylistWithoutReadingTheOthers) {
  EXPECT_LT(Growth([this] {
              for (int i = 0; i < 100; ++i) {
                EXPECT_EQ(Column("SELECT COUNT(Pos) as UltimaPos FROM [List] WHERE [NPlaylist]=2",
                                 "UltimaPos"),
                          Texts{"500"});
              }
            }),
            2);
}

TEST_F(Scale, ReadsALongWalkAsItStands) {
  Fill(8000);
  Recordset rows;
  ASSERT_FALSE(rows.Open(connection, kAll));
  int visited = 0;
  for (; !rows.Eof(); Ignora(rows.MoveNext())) {
    ASSERT_EQ(rows.Number("NPlaylist"), visited / 500 + 1);
    ASSERT_EQ(rows.Number("Pos"), visited % 500 + 1);
    ++visited;
  }
  EXPECT_EQ(visited, 8000);
  for (; !rows.Bof(); Ignora(rows.MovePrevious())) --visited;
  EXPECT_EQ(visited, -1);
}

}  // namespace
}  // namespace kvr5::test
