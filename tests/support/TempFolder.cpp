#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kvr5::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
  std::string pattern = (fs::temp_directory_path() / "kvr5-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder_ = fs::canonical(pattern);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  for (fs::recursive_directory_iterator it(folder_, ignored), end; it != end;
       it.increment(ignored)) {
    if (it->is_directory(ignored)) {
      fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    }
  }
  fs::remove_all(folder_, ignored);
}

std::string TempFolder::System(std::string_view name) const {
  std::string path = "C:" + folder_.string();
  if (!name.empty()) path += "/" + std::string(name);
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

void TempFolder::Write(const std::string& name, std::string_view bytes) const {
  const fs::path path = folder_ / name;
  fs::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  ASSERT_TRUE(out.good()) << path;
}

std::string TempFolder::Read(const std::string& name) const {
  std::ifstream in(folder_ / name, std::ios::binary);
  EXPECT_TRUE(in.good()) << (folder_ / name);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool TempFolder::Exists(const std::string& name) const {
  return fs::exists(folder_ / name);
}

}  // namespace kvr5::test
