#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/db/Connection.h"
#include "support/TempFolder.h"

namespace kvr5::test {

std::string ProjectSchema() {
  std::ifstream in(KVR5_SCHEMA, std::ios::binary);
  EXPECT_TRUE(in.good()) << KVR5_SCHEMA;
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void MakeProjectDatabase(const std::filesystem::path& hostPath) {
  // Made once and then written anew each time: making one waits for the disk.
  static const std::string bytes = [] {
    const TempFolder folder;
    const std::string path = (folder.Host() / "source.mdb").string();
    const Error outcome = CreateProjectDatabase(path, ProjectSchema());
    EXPECT_FALSE(outcome) << outcome.Description();
    return folder.Read("source.mdb");
  }();
  ASSERT_FALSE(bytes.empty());
  ASSERT_FALSE(std::filesystem::exists(hostPath)) << hostPath;
  std::ofstream out(hostPath, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  ASSERT_TRUE(out.flush()) << hostPath;
}

}  // namespace kvr5::test
