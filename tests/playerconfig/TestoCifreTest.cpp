#include <gtest/gtest.h>

#include "playerconfig/TestoCifre.h"

namespace kvr5 {
namespace {

TEST(DigitBoxes, LoseTheZerosInFrontAndTheCaretFollows) {
  const auto strip = [](const char* text, std::size_t caret) {
    return TogliZeriInizialiTextBox({text, caret}, {});
  };
  EXPECT_EQ(strip("007", 3), (TestoConCaret{"7", 1}));
  EXPECT_EQ(strip("007", 1), (TestoConCaret{"7", 0})) << "never in front of the text";
  EXPECT_EQ(strip("100", 2), (TestoConCaret{"100", 2}));
  EXPECT_EQ(strip("000", 3), (TestoConCaret{"0", 1}));
  EXPECT_EQ(strip("0", 0), (TestoConCaret{"0", 0}));
  EXPECT_EQ(strip("", 0), (TestoConCaret{"", 0}));
  EXPECT_EQ(strip("00x", 2), (TestoConCaret{"00x", 2})) << "no number";
}

TEST(DigitBoxes, KeepTheirDigitsOnlyUnlessTheyAreNumeric) {
  const auto filter = [](const char* text, std::size_t caret) {
    return FiltraCifreTextBox({text, caret}, {});
  };
  EXPECT_EQ(filter("1a2", 2), (TestoConCaret{"12", 2}));
  EXPECT_EQ(filter("a1", 1), (TestoConCaret{"1", 1}));
  EXPECT_EQ(filter("abc", 3), (TestoConCaret{"", 0}));
  EXPECT_EQ(filter("12è", 3), (TestoConCaret{"12", 2}));
  EXPECT_EQ(filter("-5", 1), (TestoConCaret{"-5", 1})) << "numeric as it stands";
  EXPECT_EQ(filter("", 0), (TestoConCaret{"", 0}));
}

}  // namespace
}  // namespace kvr5
