#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "support/Banco.h"

namespace kvr5::test {

inline constexpr const char* kTuttiBrani = "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC";

/// The rows of a query on a database of the open project, read by a connection of its own, each as
/// `parole` words it.
template <typename Parole>
std::vector<std::string> RigheDelDatabase(Banco& b, const char* database, const char* statement,
                                          Parole parole) {
  std::vector<std::string> rows;
  Connection other(b.Disco);
  EXPECT_FALSE(other.Open(FileDelProgetto(b.C, database)));
  Recordset all;
  EXPECT_FALSE(all.Open(other, statement));
  EXPECT_FALSE(WalkRows(all, [&] {
    rows.push_back(parole(all));
    return true;
  }));
  return rows;
}

/// All tracks of a database, "1-2 a.mp3".
inline std::vector<std::string> TuttiIBrani(Banco& b, const char* database) {
  return RigheDelDatabase(b, database, kTuttiBrani, [](const Recordset& row) {
    return row.Text("NPlaylist") + "-" + row.Text("Pos") + " " + row.Text("FileName");
  });
}

/// A column of all tracks of playlist.mdb.
inline std::vector<std::string> ColonnaDeiBrani(Banco& b, const char* colonna) {
  return RigheDelDatabase(b, "playlist.mdb", kTuttiBrani,
                          [colonna](const Recordset& row) { return row.Text(colonna); });
}

}  // namespace kvr5::test
