#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>
#include <vector>

#include "house/SourceTree.h"
#include "platform/CodePage.h"
#include "platform/IniFile.h"
#include "playerconfig/Parametri.h"
#include "support/Lingue.h"

// What holds of every language file as it is shipped.

namespace kvr5 {
namespace {

using Keys = std::set<std::string>;

class Languages : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(All, Languages, testing::ValuesIn(test::FileDiLingua()),
                         test::NomeDiProva);

TEST(Languages, AreFive) {
  EXPECT_EQ(test::FileDiLingua(),
            (std::vector<std::string>{"Deutsch.lan", "English.lan", "Espa\xC3\xB1ol.lan",
                                      "Fran\xC3\xA7"
                                      "ais.lan",
                                      "Italiano.lan"}));
}

TEST_P(Languages, HoldEveryKeyThatTheProgramAsksFor) {
  const std::string file = test::LinguaSpedita(GetParam());
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
  std::istringstream stream(test::LinguaSpedita(GetParam()));
  for (std::string line; std::getline(stream, line);) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    EXPECT_EQ(line.find('\xC3'), std::string::npos) << "UTF-8 in " << line;
  }
}

/// The keys of a language file in the order of its lines, sections with them.
std::vector<std::string> KeysInOrder(const std::string& language) {
  std::vector<std::string> keys;
  std::istringstream stream(test::LinguaSpedita(language));
  for (std::string line; std::getline(stream, line);)
    keys.push_back(line.substr(0, line.find('=')));
  return keys;
}

TEST_P(Languages, HoldTheSameKeysInOneOrder) {
  EXPECT_EQ(KeysInOrder(GetParam()), KeysInOrder("English.lan"));
}

/// The places of a text that the program fills, such as %1, each as often as it stands there.
std::multiset<char> Places(const std::string& text) {
  std::multiset<char> places;
  for (auto at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
    if (at + 1 < text.size() && std::isdigit(static_cast<unsigned char>(text[at + 1])) != 0) {
      places.insert(text[at + 1]);
    }
  }
  return places;
}

TEST_P(Languages, HaveThePlacesThatTheProgramFills) {
  const auto english = test::VociDiLingua("English.lan", "Strings");
  for (const auto& [key, text] : test::VociDiLingua(GetParam(), "Strings")) {
    EXPECT_EQ(Places(text), Places(english.at(key))) << key << ": " << text;
  }
}

TEST_P(Languages, KeepTheBlanksBetweenPiecesThatAreJoined) {
  const auto english = test::VociDiLingua("English.lan", "Strings");
  for (const auto& [key, text] : test::VociDiLingua(GetParam(), "Strings")) {
    ASSERT_FALSE(text.empty()) << key;
    EXPECT_EQ(text.starts_with(' '), english.at(key).starts_with(' ')) << key;
    EXPECT_EQ(text.ends_with(' '), english.at(key).ends_with(' ')) << key;
  }
}

TEST_P(Languages, HaveNoTextLongerThanTheProgramReads) {
  const CodePage page(1252);
  for (const auto& [key, text] : test::VociDiLingua(GetParam(), "Strings")) {
    EXPECT_LE(page.Encode(text).size(), 253U) << key;
  }
}

TEST_P(Languages, NeverShout) {
  for (const auto& [key, text] : test::VociDiLingua(GetParam(), "Strings")) {
    EXPECT_EQ(text.find('!'), std::string::npos) << key << ": " << text;
  }
}

TEST_P(Languages, NameHelpDocumentsThatAreThere) {
  const auto documents = test::VociDiLingua(GetParam(), "HelpFiles");
  EXPECT_EQ(documents.size(), 1U);
  const std::filesystem::path help = std::filesystem::path(KVR5_STAGED_PROGRAM) / "Help";
  for (const auto& [key, document] : documents) {
    EXPECT_EQ(key, "001");
    EXPECT_TRUE(std::filesystem::is_regular_file(help / document)) << "\"" << document << "\"";
  }
}

}  // namespace
}  // namespace kvr5
