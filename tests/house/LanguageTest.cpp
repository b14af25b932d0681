#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <vector>

#include "house/SourceTree.h"
#include "platform/CodePage.h"
#include "platform/IniFile.h"
#include "playerconfig/Parametri.h"

namespace kvr5 {
namespace {

using Keys = std::set<std::string>;

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
  Keys keys = test::LiteralKeys();
  for (const auto& key : ChiaviDelleVoci()) keys.insert(key);
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

/// The documents that key 001 of section [HelpFiles] of a language file names.
std::vector<std::string> HelpDocuments(const std::string& file) {
  std::vector<std::string> documents;
  bool inside = false;
  std::istringstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[')) inside = line == "[HelpFiles]";
    const auto sign = line.find('=');
    if (inside && line.substr(0, sign) == "001") documents.push_back(line.substr(sign + 1));
  }
  return documents;
}

TEST_P(Languages, NameHelpDocumentsThatAreThere) {
  const std::filesystem::path help = std::filesystem::path(KVR5_SOURCE_TREE) / "data/Help";
  const auto documents = HelpDocuments(LanguageFile(GetParam()));
  EXPECT_EQ(documents.size(), 1U);
  for (const auto& document : documents) {
    EXPECT_TRUE(std::filesystem::is_regular_file(help / document)) << "\"" << document << "\"";
  }
}

}  // namespace
}  // namespace kvr5
