// The reader of Jet 4 files on made-up bytes: no crash, no hang, and never more memory than ten
// times the file.
#include <sanitizer/allocator_interface.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/jet/Tabelle.h"
#include "support/MemoryFileSystem.h"

namespace {

std::size_t g_held = 0;
std::size_t g_peak = 0;

void Allocated(const volatile void* /*memory*/, std::size_t size) {
  g_held += size;
  g_peak = std::max(g_peak, g_held);
}

void Freed(const volatile void* memory) {
  const std::size_t size = __sanitizer_get_allocated_size(memory);
  g_held -= std::min(g_held, size);  // what was there before the first look is freed too
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*words*/) {
  if (__sanitizer_install_malloc_and_free_hooks(Allocated, Freed) == 0) std::abort();
  return 0;
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
