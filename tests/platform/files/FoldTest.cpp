#include <gtest/gtest.h>

#include "platform/Fold.h"
#include "platform/Utf8.h"

namespace kvr5 {
namespace {

TEST(FoldCase, MakesLatinGreekAndCyrillicCapitalsSmall) {
  EXPECT_EQ(FoldCase("ABCxyz_1.MP3"), "abcxyz_1.mp3");
  EXPECT_EQ(FoldCase("ÀÉÎÕÜŸŁŽŐ"), "àéîõüÿłžő");
  EXPECT_EQ(FoldCase("ΑΒΓΔΩΆ"), "αβγδωά");
  EXPECT_EQ(FoldCase("ЖЫЯЁЪ"), "жыяёъ");
}

TEST(FoldCase, LeavesWhatHasNoCase) {
  EXPECT_EQ(FoldCase("×÷ßØ 中文 🎵"), "×÷ßø 中文 🎵");
  EXPECT_EQ(FoldCase(""), "");
}

TEST(FoldCase, KeepsBytesThatAreNotUtf8) {
  EXPECT_EQ(FoldCase("A\xFF\xC3Z"), "a\xFF\xC3z");
}

TEST(FoldCase, KeepsTheLengthAndIsDoneInOneStep) {
  for (char32_t c = 1; c < 0x11000; ++c) {
    std::string text;
    utf8::Append(text, c);
    const std::string folded = FoldCase(text);
    EXPECT_EQ(folded.size(), text.size()) << static_cast<unsigned>(c);
    EXPECT_EQ(FoldCase(folded), folded) << static_cast<unsigned>(c);
  }
}

TEST(EqualFold, ComparesWithoutRegardToCaseOnly) {
  EXPECT_TRUE(EqualFold("Città.MP3", "CITTÀ.mp3"));
  EXPECT_FALSE(EqualFold("Città", "Citta"));
  EXPECT_FALSE(EqualFold("ab", "abc"));
  EXPECT_FALSE(EqualFold("\xFF", "\xFE"));
  EXPECT_TRUE(EqualFold("\xFF", "\xFF"));
}

}  // namespace
}  // namespace kvr5
