#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "platform/jet/JetFile.h"
#include "support/MemoryFileSystem.h"

namespace kvr5::test {

inline constexpr std::array<jet::WantedColumn, 7> kList{{{"ID", jet::Wanted::Counter},
                                                         {"FileName", jet::Wanted::Text},
                                                         {"FilePath", jet::Wanted::Text},
                                                         {"Alias", jet::Wanted::Text},
                                                         {"Pos", jet::Wanted::Integer},
                                                         {"NPlaylist", jet::Wanted::Integer},
                                                         {"IDSched", jet::Wanted::Integer}}};
inline constexpr std::array<jet::WantedColumn, 4> kHead{{{"ID", jet::Wanted::Counter},
                                                         {"NScheduler", jet::Wanted::Integer},
                                                         {"Descript", jet::Wanted::Text},
                                                         {"StartTime", jet::Wanted::Time}}};

using Rows = std::vector<std::vector<DbValue>>;

/// What a reading came to.
struct Letto {
  jet::Trouble Guasto;
  Rows Lista;
  Rows Testa;
};

/// Both tables of a file.
inline Letto LeggiTutto(FileSystem& files, std::string_view path) {
  Letto read;
  jet::JetFile file;
  const auto into = [](Rows& rows) {
    return [&rows](const std::vector<DbValue>& row) {
      rows.push_back(row);
      return true;
    };
  };
  read.Guasto = file.Open(files, path);
  if (!read.Guasto) read.Guasto = file.Read("List", kList, into(read.Lista));
  if (!read.Guasto) read.Guasto = file.Read("HEAD", kHead, into(read.Testa));
  return read;
}

/// Both tables of a file of these bytes.
inline Letto Read(const std::string& content) {
  constexpr const char* kFile = "C:\\a.mdb";
  MemoryFileSystem files;
  files.AddFile(kFile, content);
  return LeggiTutto(files, kFile);
}

}  // namespace kvr5::test
