#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "Watcher.h"
#include "platform/HostFileSystem.h"
#include "platform/TempName.h"
#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

namespace kvr5::test {

/// A folder "from" to copy from and a folder "card", drive E, to copy to.
class CopyTest : public testing::Test {
 protected:
  CopyTest() {
    std::filesystem::create_directory(folder_.Host() / "from");
    std::filesystem::create_directory(folder_.Host() / "card");
    paths_.Bind('E', (folder_.Host() / "card").string());
  }

  std::string From(std::string_view name = {}) const {
    return JoinPath(folder_.System("from"), name);
  }
  static std::string Card(std::string_view name = {}) { return JoinPath("E:\\", name); }
  CopyOutcome Copy(const std::vector<CopyPair>& pairs) {
    return ShellCopy(files_, pairs, watcher_);
  }
  /// The names in the card's folder, in order.
  std::vector<std::string> OnCard(std::string_view folder = {}) const {
    std::vector<std::string> names;
    const auto list = host_.List(Card(folder));
    if (!list) return names;
    for (const FileInfo& info : list.Value()) names.push_back(info.Name);
    return names;
  }
  bool AnyTempOnCard() const {
    const auto names = OnCard();
    return std::ranges::any_of(names, [](const std::string& name) { return IsTempName(name); });
  }
  std::filesystem::path Host(const std::string& name) const { return folder_.Host() / name; }

  TempFolder folder_;
  PathMap paths_;
  HostFileSystem host_{paths_};
  FaultyFileSystem files_{host_};
  Watcher watcher_;
};

}  // namespace kvr5::test
