#include <gtest/gtest.h>

#include "playerconfig/CasellaNumero.h"

namespace kvr5 {
namespace {

/// What a box of 1 to 30 holds when it is left with this text.
std::string Left(const std::string& text, const Locale& locale = {}) {
  CasellaNumero box(text, 1, 30, locale);
  box.PerdeFuoco();
  return box.Testo();
}

TEST(NumberBox, IsHeldInItsBoundsWhenItIsLeft) {
  EXPECT_EQ(Left("45"), "30");
  EXPECT_EQ(Left("31"), "30");
  EXPECT_EQ(Left("30"), "30");
  EXPECT_EQ(Left("1"), "1");
  EXPECT_EQ(Left("0"), "1");
  EXPECT_EQ(Left(""), "1");
  EXPECT_EQ(Left("abc"), "1");
  EXPECT_EQ(Left("99999999999999999999999999"), "30");
}

TEST(NumberBox, KeepsDigitsAsTheyAreWritten) {
  EXPECT_EQ(Left("007"), "007");
  EXPECT_EQ(Left("000"), "1");
  EXPECT_EQ(Left("0031"), "30");
}

TEST(NumberBox, LeavesOnlyDigitsBehindWhateverWasPasted) {
  EXPECT_EQ(Left("-5"), "1");
  EXPECT_EQ(Left("1e1"), "10");
  EXPECT_EQ(Left("2.5"), "2") << "halves go to the even neighbour";
  EXPECT_EQ(Left("0.9"), "1");
  EXPECT_EQ(Left("30.7"), "30");
  EXPECT_EQ(Left("+7"), "7");
  EXPECT_EQ(Left(" 8 "), "8");
  EXPECT_EQ(Left("&H10"), "16");
  EXPECT_EQ(Left("3,5", {1040, 1252, ",", "."}), "4");
}

TEST(NumberBox, HoldsNoMoreCharactersThanAReadingGivesBack) {
  EXPECT_EQ(Left(std::string(98, '0') + "7"), std::string(98, '0') + "7");
  EXPECT_EQ(Left(std::string(99, '0') + "7"), "7");
  EXPECT_EQ(Left(std::string(300, '9')), "30");
  EXPECT_EQ(Left(std::string(100000, '9')), "1") << "no number holds that";
}

TEST(NumberBox, TakesDigitsAndControlKeysOnly) {
  CasellaNumero box("5", 1, 30, {});
  for (char32_t c = U'0'; c <= U'9'; ++c) EXPECT_TRUE(box.Tasto(c));
  for (const char32_t c : {U'\b', U'\t', char32_t{3}, char32_t{12}}) EXPECT_TRUE(box.Tasto(c));
  for (const char32_t c : {U'a', U' ', U'-', U'.', U'/', U':', U'è', U'٣', char32_t{14}}) {
    EXPECT_FALSE(box.Tasto(c)) << static_cast<unsigned>(c);
  }
  EXPECT_EQ(box.Testo(), "5");
}

TEST(NumberBox, EnterIsDroppedAndRunsTheCheck) {
  CasellaNumero box("45", 1, 30, {});
  EXPECT_FALSE(box.Tasto(13));
  EXPECT_EQ(box.Testo(), "30");
}

TEST(NumberBox, TheArrowsStepByOneInsideTheBounds) {
  CasellaNumero box("29", 1, 30, {});
  box.Su();
  box.Su();
  EXPECT_EQ(box.Testo(), "30");
  box.Cambia("2");
  box.Giu();
  box.Giu();
  EXPECT_EQ(box.Testo(), "1");
  box.Cambia("99");
  box.Giu();
  EXPECT_EQ(box.Testo(), "29");
}

}  // namespace
}  // namespace kvr5
