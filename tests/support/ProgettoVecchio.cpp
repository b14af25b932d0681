#include "support/ProgettoVecchio.h"

#include <gtest/gtest.h>

#include "platform/Path.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "support/ScriviJet.h"

namespace kvr5::test {
namespace {

constexpr std::size_t kFilePath = 2;
constexpr std::size_t kStartTime = 3;

RigheDb RowsOf(FileSystem& disk, const std::string& path, const std::string& table,
               const std::vector<std::string>& columns) {
  RigheDb rows;
  Connection connection(disk);
  EXPECT_FALSE(connection.Open(path));
  Recordset all;
  EXPECT_FALSE(all.Open(connection, "SELECT * FROM [" + table + "] ORDER BY [ID]"));
  EXPECT_FALSE(WalkRows(all, [&] {
    auto& row = rows.emplace_back();
    for (const std::string& column : columns) row.push_back(all.Get(column).Value());
    return true;
  }));
  return rows;
}

void MoveAway(DbValue& folder) {
  const auto* path = std::get_if<std::string>(&folder);
  if (path == nullptr) return;
  const std::string_view bare = std::string_view(*path).substr(0, path->find_last_not_of('\\') + 1);
  folder = "C:\\Musica\\" + std::string(LastName(bare)) + "\\";
}

/// "HH:MM:SS" as a part of a day.
void ToDays(DbValue& time) {
  const auto* text = std::get_if<std::string>(&time);
  if (text == nullptr) return;
  const auto part = [text](std::size_t at) { return std::stoi(text->substr(at, 2)); };
  time = (part(0) * 3600 + part(3) * 60 + part(6)) / 86'400.0;
}

}  // namespace

RigheDb RigheList(FileSystem& disco, const std::string& percorso) {
  return RowsOf(disco, percorso, "List",
                {"ID", "FileName", "FilePath", "Alias", "Pos", "NPlaylist", "IDSched"});
}

RigheDb RigheHead(FileSystem& disco, const std::string& percorso) {
  return RowsOf(disco, percorso, "HEAD", {"ID", "NScheduler", "Descript", "StartTime"});
}

void RendiVecchio(FileSystem& disco, const TempFolder& cartella, const std::string& nome) {
  if (!cartella.Exists(nome)) return;
  RigheDb list = RigheList(disco, cartella.System(nome));
  RigheDb head = RigheHead(disco, cartella.System(nome));
  for (auto& row : list) MoveAway(row[kFilePath]);
  for (auto& row : head) ToDays(row[kStartTime]);
  cartella.Write(nome, FileJet(list, head));
}

}  // namespace kvr5::test
