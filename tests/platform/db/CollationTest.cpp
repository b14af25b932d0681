#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "platform/db/Collation.h"

namespace kvr5 {
namespace {

TEST(Collation, TakesCapitalAndSmallLettersForTheSame) {
  for (const auto& [small, capital] : std::array<std::array<std::string_view, 2>, 12>{{
           {"song.mp3", "SONG.MP3"},
           {"àéîõüçñøþ", "ÀÉÎÕÜÇÑØÞ"},
           {"ÿ", "Ÿ"},
           {"łąćęńśźż", "ŁĄĆĘŃŚŹŻ"},
           {"čďěňřšťůž", "ČĎĚŇŘŠŤŮŽ"},
           {"ğşőű", "ĞŞŐŰ"},
           {"șț", "ȘȚ"},
           {"αβγδω άέήίόύώ ϊϋ", "ΑΒΓΔΩ ΆΈΉΊΌΎΏ ΪΫ"},
           {"λόγος", "ΛΌΓΟΣ"},
           {"песня ёіїєґ", "ПЕСНЯ ЁІЇЄҐ"},
           {"ђјљњћџ", "ЂЈЉЊЋЏ"},
           {"ạắếỗ", "ẠẮẾỖ"},
       }}) {
    EXPECT_EQ(CompareNoCase(small, capital), 0) << small << ' ' << capital;
    EXPECT_EQ(CompareNoCase(capital, small), 0) << small << ' ' << capital;
  }
}

TEST(Collation, TellsLettersOfDifferentAccentsApart) {
  EXPECT_NE(CompareNoCase("e", "é"), 0);
  EXPECT_NE(CompareNoCase("é", "è"), 0);
  EXPECT_NE(CompareNoCase("ss", "ß"), 0);
  EXPECT_NE(CompareNoCase("×", "÷"), 0);  // signs amid the letters
  EXPECT_NE(CompareNoCase("i", "ı"), 0);
  EXPECT_NE(CompareNoCase("I", "İ"), 0);
}

TEST(Collation, PutsAShorterTextBeforeItsContinuation) {
  EXPECT_EQ(CompareNoCase("", ""), 0);
  EXPECT_LT(CompareNoCase("", "a"), 0);
  EXPECT_LT(CompareNoCase("a", "AB"), 0);
  EXPECT_GT(CompareNoCase("AB", "a"), 0);
  EXPECT_LT(CompareNoCase("a", "B"), 0);
  EXPECT_LT(CompareNoCase("A", "b"), 0);
  EXPECT_LT(CompareNoCase("z", "à"), 0);
}

TEST(Collation, PutsBytesThatAreNoTextBehindAllCharacters) {
  EXPECT_GT(CompareNoCase("\xFF", "\U0010FFFF"), 0);
  EXPECT_GT(CompareNoCase("\xC3", "Ã"), 0);  // cut in the middle of a letter
  EXPECT_NE(CompareNoCase("\x80", "\x81"), 0);
  EXPECT_EQ(CompareNoCase("a\xE9z", "A\xE9Z"), 0);
}

}  // namespace
}  // namespace kvr5
