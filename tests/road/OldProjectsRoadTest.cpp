#include "platform/db/Walk.h"
#include "road/StradaDeiGeneri.h"
#include "support/ScriviJet.h"

// Each kind of project as an earlier program left it, from another computer: taken over, its files
// found again, edited, recorded.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using Rows = std::vector<std::vector<DbValue>>;

constexpr const char* kElsewhere = "C:\\Musica\\Negozio\\";
constexpr std::array kDatabases{"inputcfg.mdb", "playlist.mdb", "scheduler.mdb"};

class OldProjectsRoad : public test::StradaDeiGeneri {
 protected:
  Rows RowsOf(const std::string& path, const std::string& table, const Names& columns) {
    Rows rows;
    Connection connection(k.Disco);
    EXPECT_FALSE(connection.Open(k.Percorso(path)));
    Recordset all;
    EXPECT_FALSE(all.Open(connection, "SELECT * FROM [" + table + "] ORDER BY [ID]"));
    EXPECT_FALSE(WalkRows(all, [&] {
      auto& row = rows.emplace_back();
      for (const std::string& column : columns) row.push_back(all.Get(column).Value());
      return true;
    }));
    return rows;
  }
  Rows List(const std::string& path) {
    return RowsOf(path, "List",
                  {"ID", "FileName", "FilePath", "Alias", "Pos", "NPlaylist", "IDSched"});
  }
  Rows Head(const std::string& path) {
    return RowsOf(path, "HEAD", {"ID", "NScheduler", "Descript", "StartTime"});
  }
  /// "HH:MM:SS" as a part of a day.
  static DbValue Days(const DbValue& time) {
    const auto* text = std::get_if<std::string>(&time);
    if (text == nullptr) return {};
    const auto part = [text](std::size_t at) { return std::stoi(text->substr(at, 2)); };
    return (part(0) * 3600 + part(3) * 60 + part(6)) / 86'400.0;
  }
  /// The project Hall as the earlier program has it, in a folder Old.
  void MakeOld() {
    fs::copy(k.Host("program/Projects/Hall"), k.Host(Old("")), fs::copy_options::recursive);
    for (const char* database : kDatabases) {
      if (!k.Cartella.Exists(Old(database))) continue;
      Rows list = List(Old(database));
      Rows head = Head(Old(database));
      for (auto& row : list) row[2] = kElsewhere;
      for (auto& row : head) row[3] = Days(row[3]);
      k.Cartella.Write(Old(database), test::FileJet(list, head));
    }
  }
  static std::string Old(const std::string& file) { return "program/Projects/Old/" + file; }
  static std::string Hall(const std::string& file) { return "program/Projects/Hall/" + file; }
};

TEST_P(OldProjectsRoad, IsTakenOverFoundAgainEditedAndRecorded) {
  MakeHall("--no");
  Run(0, {"record", "Hall", k.Host("card")});
  MakeOld();
  const auto taken = Run(0, {"takeover", "Old"});
  EXPECT_FALSE(taken.Oggetti().empty());
  for (const auto& each : taken.Oggetti()) EXPECT_EQ(each["state"], "taken") << each;
  Run(1, {"record", "Old", k.Host("second")});  // nothing of the other computer's is here
  Run(0, {"relocate", "Old", k.Host("music")});
  for (const char* database : kDatabases) {
    if (!k.Cartella.Exists(Old(database))) continue;
    EXPECT_EQ(List(Old(database)), List(Hall(database))) << database;
    EXPECT_EQ(Head(Old(database)), Head(Hall(database))) << database;
  }
  if (GetParam().Playlists != nullptr) Run(0, {"--no", "playlists", "Old"}, "save\n");
  if (GetParam().Schedule != nullptr) Run(0, {"--no", "schedule", "Old"}, "save\n");
  Run(0, {"record", "Old", k.Host("second")});
  ExpectNothingFound("Old", "second");
  EXPECT_EQ(k.Nomi("second"), k.Nomi("card"));
  for (const std::string& name : Different()) EXPECT_TRUE(name.ends_with(".mdb")) << name;
}

INSTANTIATE_TEST_SUITE_P(EachKind, OldProjectsRoad, testing::ValuesIn(test::kKinds),
                         [](const auto& kind) { return std::string(kind.param.Name); });

}  // namespace
}  // namespace kvr5
