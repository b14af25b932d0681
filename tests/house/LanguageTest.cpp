#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include "house/SourceTree.h"
#include "platform/CodePage.h"
#include "platform/IniFile.h"

namespace kvr5 {
namespace {

using Keys = std::set<std::string>;

bool IsKey(std::string text) {
  if (text.ends_with(' ')) text.pop_back();
  const bool digits =
      std::all_of(text.begin(), text.end(), [](char each) { return each >= '0' && each <= '9'; });
  return digits && (text.size() == 7 || text == "70008" || text == "50014");
}

/// The keys that stand as texts in the sources.
Keys LiteralKeys() {
  Keys keys;
  for (const auto& file : test::SourceFiles()) {
    for (const auto& literal : test::Literals(file.Text)) {
      if (IsKey(literal)) keys.insert(literal);
    }
  }
  return keys;
}

/// The keys that are put together at run time.
Keys RunTimeKeys() {
  Keys keys;
  const auto add = [&](const std::string& stem, int from, int to) {
    for (int i = from; i <= to; ++i) {
      const auto number = std::to_string(i);
      keys.insert(stem.substr(0, 7 - number.size()) + number);
    }
  };
  add("0100000", 0, 3);    // descriptions of model 2
  add("0110000", 12, 18);  // items of the serial screen
  add("0110000", 24, 29);
  add("0110000", 31, 32);
  add("0190000", 2, 3);  // items of the extra screen
  add("0190000", 13, 92);
  return keys;
}

std::string LanguageFile(const std::string& name) {
  std::ifstream in(std::string(KVR5_STAGED_PROGRAM) + "/Language/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class Languages : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::Values("English.lan", "Italiano.lan"),
                         [](const auto& each) {
                           const std::string name = each.param;
                           return name.substr(0, name.find('.'));
                         });

TEST_P(Languages, HoldEveryKeyThatTheProgramAsksFor) {
  const std::string file = LanguageFile(GetParam());
  const CodePage page(1252);
  Keys keys = LiteralKeys();
  keys.merge(RunTimeKeys());
  EXPECT_GT(keys.size(), 100U);
  for (const auto& key : keys) {
    const auto text = ini::Read(file, "Strings", key, "", 1000, page);
    EXPECT_FALSE(text.empty()) << key;
    EXPECT_LE(text.size(), 253U) << key;
  }
}

TEST_P(Languages, AreTextFilesOfTheSystem) {
  const std::string file = LanguageFile(GetParam());
  std::istringstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    EXPECT_EQ(line.find("\xC3"), std::string::npos) << "UTF-8 in " << line;
  }
}

TEST(Languages, HoldTheSameKeys) {
  const auto keys = [](const std::string& file) {
    Keys found;
    std::istringstream stream(file);
    for (std::string line; std::getline(stream, line);)
      found.insert(line.substr(0, line.find('=')));
    return found;
  };
  EXPECT_EQ(keys(LanguageFile("English.lan")), keys(LanguageFile("Italiano.lan")));
}

}  // namespace
}  // namespace kvr5
