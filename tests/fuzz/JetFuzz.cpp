// The reader of Jet 4 files on made-up bytes: no crash, no hang, and no more values than the file has
// bytes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/jet/Tabelle.h"
#include "support/MemoryFileSystem.h"

namespace {

using namespace kvr5;

/// The room that a row's values take.
std::size_t SizeOf(const std::vector<DbValue>& row) {
  std::size_t size = 0;
  for (const DbValue& value : row) {
    const auto* text = std::get_if<std::string>(&value);
    size += text == nullptr ? 1 : text->size();
  }
  return size;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kGrowth = 10;
  test::MemoryFileSystem files;
  // NOLINTNEXTLINE(*-reinterpret-cast): bytes as the file system takes them
  files.AddFile("C:\\a.mdb", {reinterpret_cast<const char*>(data), size});
  jet::JetFile file;
  std::size_t taken = 0;
  const jet::TakeRow take = [&](const std::vector<DbValue>& row) {
    taken += SizeOf(row);
    return true;
  };
  if (file.Open(files, "C:\\a.mdb")) return 0;
  for (int table = 0; table < 2; ++table) {
    taken = 0;
    if (table == 0) {
      static_cast<void>(file.Read("List", test::kList, take));
    } else {
      static_cast<void>(file.Read("HEAD", test::kHead, take));
    }
    if (taken > kGrowth * size) std::abort();
  }
  return 0;
}
