#include <gtest/gtest.h>
#include <stdio.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/Fold.h"

namespace kvr5 {
namespace {

const std::filesystem::path kTemplate =
    std::filesystem::path(KVR5_STAGED_PROGRAM) / "Report" / "report.htm";

std::vector<std::string> Lines() {
  std::vector<std::string> lines;
  std::ifstream file(kTemplate, std::ios::binary);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

/// Numbers of the lines, from 0, that hold a text (small letters) in any case.
std::vector<std::ptrdiff_t> Holding(const std::vector<std::string>& lines, const char* text) {
  std::vector<std::ptrdiff_t> numbers;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (FoldCase(lines[i]).find(text) != std::string::npos) {
      numbers.push_back(static_cast<std::ptrdiff_t>(i));
    }
  }
  return numbers;
}

TEST(ReportTemplate, HasOnlyItsBandInTheLinesThatAMergeDrops) {
  const auto lines = Lines();
  const auto body = std::ranges::find(lines, "<BODY>") - lines.begin();
  EXPECT_EQ(Holding(lines, "div"), (std::vector<std::ptrdiff_t>{body + 1, body + 2}));
  EXPECT_EQ(std::ranges::find(lines, "</BODY>") - lines.begin(), body + 3);
}

TEST(ReportTemplate, ReadsAlikeInEveryCodePage) {
  for (const auto& line : Lines()) {
    EXPECT_TRUE(std::ranges::all_of(line, [](char each) { return each >= ' ' && each <= '~'; }))
        << line;
  }
}

TEST(ReportTemplate, IsValidHtml) {
  if (std::system("command -v tidy >/dev/null") != 0) {
    GTEST_SKIP() << "tidy isn't installed: script/bootstrap test installs it.";
  }
  const std::string command = "tidy -q -e '" + kTemplate.string() + "' 2>&1";
  FILE* tidy = popen(command.c_str(), "r");
  ASSERT_NE(tidy, nullptr);
  std::array<char, 4096> words{};
  const std::size_t count = fread(words.data(), 1, words.size(), tidy);
  pclose(tidy);
  EXPECT_EQ(std::string(words.data(), count), "");
}

}  // namespace
}  // namespace kvr5
