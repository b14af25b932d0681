#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "road/screens/TabellaTesti.h"
#include "support/Lingue.h"

// The texts of the language files and the screens and sources that ask for them.

namespace kvr5 {
namespace {

TEST(Words, OfEveryFormAreCounted) {
  std::string numbers;
  for (const auto& [number, name] : test::NumeriDelleForm()) numbers += number + " ";
  EXPECT_EQ(numbers, "002 003 004 005 006 007 008 009 011 012 014 015 016 017 019 ");
}

TEST(Words, ThatAreAskedForStandInEveryLanguageFile) {
  EXPECT_GT(test::TestiInUso().size(), 600U);
  for (const auto& language : test::FileDiLingua()) {
    const auto texts = test::VociDiLingua(language, "Strings");
    for (const auto& [key, places] : test::TestiInUso()) {
      ASSERT_TRUE(texts.contains(key)) << language << ": " << key << " of " << *places.begin();
      EXPECT_FALSE(texts.at(key).empty()) << language << ": " << key;
    }
  }
}

TEST(Words, ThatNobodyAsksForAreNotShipped) {
  for (const auto& [key, text] : test::VociDiLingua("English.lan", "Strings")) {
    EXPECT_TRUE(test::TestiInUso().contains(key)) << key;
  }
}

TEST(Words, AreToldOfInTheDocumentation) {
  const std::filesystem::path page = std::filesystem::path(KVR5_SOURCE_TREE) / "docs/texts.md";
  if (std::getenv("KVR5_WRITE_TEXTS") != nullptr) std::ofstream(page) << test::TabellaTesti();
  std::ifstream in(page, std::ios::binary);
  const std::string written{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  EXPECT_TRUE(written == test::TabellaTesti()) << "run script/texts, it writes docs/texts.md anew";
}

}  // namespace
}  // namespace kvr5
