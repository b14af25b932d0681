// The reader of Jet 4 files on made-up bytes: no crash, no hang, and never more memory than ten
// times the file.
#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

#include "platform/jet/Tabelle.h"
#include "support/MemoryFileSystem.h"

namespace {

std::size_t g_held = 0;
std::size_t g_peak = 0;

void* Allocate(std::size_t size) {
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) std::abort();
  g_held += malloc_usable_size(memory);
  g_peak = std::max(g_peak, g_held);
  return memory;
}

void Release(void* memory) {
  if (memory != nullptr) g_held -= malloc_usable_size(memory);
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) {
  return Allocate(size);
}
void operator delete(void* memory) noexcept {
  Release(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  Release(memory);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kvr5;
  constexpr std::size_t kGrowth = 10;
  constexpr std::size_t kPagesAtWork = 64 * 1024;  // whatever the file's size
  test::MemoryFileSystem files;
  // NOLINTNEXTLINE(*-reinterpret-cast): bytes as the file system takes them
  files.AddFile("C:\\a.mdb", {reinterpret_cast<const char*>(data), size});
  const std::size_t before = g_peak = g_held;
  {
    jet::JetFile file;
    const jet::TakeRow take = [](const std::vector<DbValue>&) { return true; };
    if (!file.Open(files, "C:\\a.mdb") && !file.Read("List", test::kList, take)) {
      static_cast<void>(file.Read("HEAD", test::kHead, take));
    }
  }
  if (g_peak - before > kGrowth * size + kPagesAtWork) {
    std::fprintf(stderr, "%zu bytes held for a file of %zu\n", g_peak - before, size);
    std::abort();
  }
  return 0;
}
