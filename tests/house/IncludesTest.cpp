#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "house/SourceTree.h"

namespace kvr5 {
namespace {

/// The floors of the house from the ground up; those on one floor don't know each other.
const std::map<std::string, int> kFloors = {{"platform", 0},  {"core", 1},     {"mp3", 2},
                                            {"projects", 3},  {"reports", 4},  {"playerconfig", 5},
                                            {"playlists", 6}, {"schedule", 6}, {"flashcard", 7},
                                            {"cli", 8},       {"app", 8}};

bool MayInclude(const std::string& from, const std::string& to) {
  return from == to ||
         (kFloors.contains(from) && kFloors.contains(to) && kFloors.at(to) < kFloors.at(from));
}

TEST(House, AnIncludeGoesDownOnly) {
  for (const auto& file : test::SourceFiles()) {
    EXPECT_TRUE(kFloors.contains(file.Subsystem)) << file.Path << " stands on no floor";
    for (const auto& included : test::QuotedIncludes(file.Text)) {
      const auto target = included.substr(0, included.find('/'));
      EXPECT_NE(included.find('/'), std::string::npos)
          << file.Path << " includes " << included << " without its folder";
      EXPECT_TRUE(MayInclude(file.Subsystem, target)) << file.Path << " includes " << included;
    }
  }
}

TEST(House, HouseIncludesAreQuoted) {
  for (const auto& file : test::SourceFiles()) {
    for (const auto& included : test::AngleIncludes(file.Text)) {
      EXPECT_FALSE(kFloors.contains(included.substr(0, included.find('/'))))
          << file.Path << " includes " << included;
    }
  }
}

TEST(House, AScreenKnowsTheScreensOfItsOwnSubsystemAndTheCoresOnly) {
  for (const auto& file : test::SourceFiles()) {
    if (file.Subsystem == "app") continue;
    for (const auto& included : test::QuotedIncludes(file.Text)) {
      EXPECT_TRUE(included.find("/screens/") == std::string::npos ||
                  included.starts_with("core/screens/") ||
                  included.starts_with(file.Subsystem + "/screens/"))
          << file.Path << " includes " << included;
    }
  }
}

TEST(House, IncludesAreFoundHoweverTheyAreSpaced) {
  const std::string text =
      "#include \"a/b.h\"\n  #  include\t\"c/d.h\"\n#include<e/f.h>\n// \"g.h\"\n";
  EXPECT_EQ(test::QuotedIncludes(text), (std::vector<std::string>{"a/b.h", "c/d.h"}));
  EXPECT_EQ(test::AngleIncludes(text), std::vector<std::string>{"e/f.h"});
}

TEST(House, TheLogicKnowsNoToolkit) {
  for (const auto& file : test::SourceFiles()) {
    const bool screen = file.Path.find("/screens/") != std::string::npos ||
                        file.Path.find("/qt/") != std::string::npos ||
                        file.Path.find("/udisks/") != std::string::npos || file.Subsystem == "app";
    if (screen) continue;
    for (const auto& included : test::AngleIncludes(file.Text)) {
      EXPECT_FALSE(included.starts_with("Q") || included.starts_with("Qt"))
          << file.Path << " includes " << included;
    }
  }
}

TEST(House, TheCompanionLinksNoToolkit) {
  std::ifstream in(KVR5_CARD, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  ASSERT_GT(bytes.size(), 10000U);
  EXPECT_EQ(bytes.find("libQt"), std::string::npos);
}

TEST(House, OnlyThePlatformAndTheTerminalSpeakToTheHost) {
  for (const auto& file : test::SourceFiles()) {
    if (file.Subsystem == "platform" || file.Subsystem == "cli") continue;
    for (const auto& included : test::AngleIncludes(file.Text)) {
      for (const char* host : {"unistd.h", "fcntl.h", "fstream", "filesystem", "cstdio", "stdio.h",
                               "sqlite3.h", "windows.h"}) {
        EXPECT_NE(included, host) << file.Path;
      }
      EXPECT_FALSE(included.starts_with("sys/")) << file.Path;
    }
  }
}

}  // namespace
}  // namespace kvr5
