#include "projects/RipristinaDatabase.h"

#include <array>

#include "platform/FileOps.h"
#include "platform/db/Connection.h"

namespace kvr5 {
namespace {

/// True for a file whose header says that its changes go into a log first, which a card's database
/// must not: the player knows the one file only. (SQLite's file format, 1.3.3: bytes 18 and 19.)
bool KeepsLog(FileSystem& files, const std::string& path) {
  constexpr std::size_t kWriteVersion = 18;
  constexpr char kLog = 2;
  std::array<char, kWriteVersion + 2> header{};
  const auto file = files.Open(path, OpenMode::Read);
  if (!file) return false;
  const auto length = file.Value()->Read(header);
  return length && length.Value() == header.size() &&
         (header[kWriteVersion] == kLog || header[kWriteVersion + 1] == kLog);
}

}  // namespace

Error RipristinaDatabase(Contesto& contesto, const std::string& percorso) {
  // What lies beside a database lies beside the file itself, not beside a link to it.
  const std::string real = contesto.Files.BehindLink(percorso);
  if (!FileExists(contesto.Files, real + "-journal") &&
      !FileExists(contesto.Files, real + "-wal") && !KeepsLog(contesto.Files, real)) {
    return {};
  }
  Connection connection(contesto.Files);
  return connection.Open(real);
}

}  // namespace kvr5
