#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>

#include "platform/Locale.h"

namespace kvr5 {
namespace {

Locale With(std::string decimalMark, std::string groupMark) {
  Locale locale;
  locale.DecimalMark = std::move(decimalMark);
  locale.GroupMark = std::move(groupMark);
  return locale;
}

const Locale kEnglish = With(".", ",");
const Locale kItalian = With(",", ".");
const Locale kSwiss = With(".", "’");
const Locale kFrench = With(",", "\u202F");
const Locale kUngrouped = With(",", "");

struct TextCase {
  const Locale& Marks;
  std::string Text;
  std::optional<double> Number;
};

void ExpectNumbers(std::initializer_list<TextCase> cases) {
  for (const auto& [locale, text, number] : cases) {
    EXPECT_EQ(TextToNumber(text, locale), number) << '"' << text << '"';
  }
}

TEST(TextToNumber, TakesBlanksASignAndADecimalMark) {
  ExpectNumbers(
      {TextCase{kEnglish, "0", 0}, TextCase{kEnglish, "42", 42}, TextCase{kEnglish, "007", 7},
       TextCase{kEnglish, " \t42\r\n ", 42}, TextCase{kEnglish, "+5", 5},
       TextCase{kEnglish, "-5", -5}, TextCase{kEnglish, "- 5", -5}, TextCase{kEnglish, "5-", -5},
       TextCase{kEnglish, "5 +", 5}, TextCase{kEnglish, "(5)", -5}, TextCase{kEnglish, "1.5", 1.5},
       TextCase{kEnglish, ".5", 0.5}, TextCase{kEnglish, "5.", 5}, TextCase{kItalian, "1,5", 1.5},
       TextCase{kEnglish, "0.1", 0.1}, TextCase{kEnglish, "4.9406564584124654E-324", 5e-324}});
}

TEST(TextToNumber, TakesGroupMarksBehindTheFirstDigit) {
  ExpectNumbers({TextCase{kEnglish, "1,234,567.5", 1234567.5}, TextCase{kEnglish, "1,2,3", 123},
                 TextCase{kEnglish, "5,", 5}, TextCase{kEnglish, ",5", std::nullopt},
                 TextCase{kEnglish, "1.2,3", std::nullopt}, TextCase{kItalian, "1.234,5", 1234.5},
                 TextCase{kItalian, "1.5", 15}, TextCase{kSwiss, "1’234.5", 1234.5},
                 TextCase{kSwiss, "1'234.5", 1234.5}, TextCase{kFrench, "1\u202F234,5", 1234.5},
                 TextCase{kFrench, "1\u00A0234", 1234}, TextCase{kFrench, "1 234 ", 1234},
                 TextCase{kUngrouped, "1.5", std::nullopt}, TextCase{kUngrouped, "1,5", 1.5}});
}

TEST(TextToNumber, TakesExponents) {
  ExpectNumbers({TextCase{kEnglish, "1E3", 1000}, TextCase{kEnglish, "1e+3", 1000},
                 TextCase{kEnglish, "15D-1", 1.5}, TextCase{kEnglish, "1.5d2", 150},
                 TextCase{kEnglish, ".5E1", 5}, TextCase{kEnglish, "1E-400", 0},
                 TextCase{kEnglish, "0E999999999999999999999", 0},
                 TextCase{kEnglish, "1E-999999999999999999999", 0},
                 TextCase{kEnglish, "1E308", 1e308}, TextCase{kEnglish, "1E309", std::nullopt},
                 TextCase{kEnglish, "1E999999999999999999999", std::nullopt},
                 TextCase{kEnglish, "0.00001E310", 1e305}, TextCase{kEnglish, "1E", std::nullopt},
                 TextCase{kEnglish, "1E+", std::nullopt}, TextCase{kEnglish, "E5", std::nullopt},
                 TextCase{kEnglish, "1E1.5", std::nullopt},
                 TextCase{kEnglish, "1E5E5", std::nullopt}});
}

TEST(TextToNumber, TakesTwosComplementOfSixteenOrThirtyTwoBits) {
  ExpectNumbers({TextCase{kEnglish, "&H0", 0},
                 TextCase{kEnglish, "&hff", 255},
                 TextCase{kEnglish, "&H7FFF", 32767},
                 TextCase{kEnglish, "&H8000", -32768},
                 TextCase{kEnglish, "&HFFFF", -1},
                 TextCase{kEnglish, "&H0000FFFF", -1},
                 TextCase{kEnglish, "&H10000", 65536},
                 TextCase{kEnglish, "&H7FFFFFFF", 2147483647},
                 TextCase{kEnglish, "&H80000000", -2147483648.0},
                 TextCase{kEnglish, "&HFFFFFFFF", -1},
                 TextCase{kEnglish, "&H100000000", std::nullopt},
                 TextCase{kEnglish, " -&H10 ", -16},
                 TextCase{kEnglish, "&O17", 15},
                 TextCase{kEnglish, "&o177777", -1},
                 TextCase{kEnglish, "&O200000", 65536},
                 TextCase{kEnglish, "&O37777777777", -1},
                 TextCase{kEnglish, "&O40000000000", std::nullopt},
                 TextCase{kEnglish, "&H", std::nullopt},
                 TextCase{kEnglish, "&O8", std::nullopt},
                 TextCase{kEnglish, "&HG", std::nullopt},
                 TextCase{kEnglish, "&H1.5", std::nullopt},
                 TextCase{kEnglish, "&H-1", std::nullopt},
                 TextCase{kEnglish, "&12", std::nullopt}});
}

TEST(TextToNumber, TakesNothingElse) {
  ExpectNumbers({TextCase{kEnglish, "", std::nullopt},
                 TextCase{kEnglish, "  ", std::nullopt},
                 TextCase{kEnglish, "-", std::nullopt},
                 TextCase{kEnglish, ".", std::nullopt},
                 TextCase{kEnglish, "abc", std::nullopt},
                 TextCase{kEnglish, "1a", std::nullopt},
                 TextCase{kEnglish, "1 2", std::nullopt},
                 TextCase{kEnglish, "--1", std::nullopt},
                 TextCase{kEnglish, "-1-", std::nullopt},
                 TextCase{kEnglish, "(1", std::nullopt},
                 TextCase{kEnglish, "1)", std::nullopt},
                 TextCase{kEnglish, "(-1)", std::nullopt},
                 TextCase{kEnglish, "1..2", std::nullopt},
                 TextCase{kEnglish, "1.2.3", std::nullopt},
                 TextCase{kEnglish, "inf", std::nullopt},
                 TextCase{kEnglish, "nan", std::nullopt},
                 TextCase{kEnglish, "0x10", std::nullopt},
                 TextCase{kEnglish, "$1", std::nullopt},
                 TextCase{kEnglish, std::string("1\0", 2), std::nullopt},
                 TextCase{kEnglish, "\xFF", std::nullopt}});
}

TEST(TextToNumber, TakesMillionsOfDigits) {
  EXPECT_EQ(TextToNumber("0." + std::string(1'000'000, '0') + "1", kEnglish), 0);
  EXPECT_EQ(TextToNumber(std::string(1'000'000, '9'), kEnglish), std::nullopt);
  EXPECT_EQ(TextToNumber(std::string(1'000'000, '0') + "1", kEnglish), 1);
}

struct IntegerCase {
  std::string Text;
  std::int32_t Number;
  int Error;
};

void ExpectIntegers16(std::initializer_list<IntegerCase> cases) {
  for (const auto& [text, number, error] : cases) {
    const auto result = TextToInt16(text, kEnglish);
    EXPECT_EQ(result.Err().Number(), error) << text;
    if (result) {
      EXPECT_EQ(result.Value(), number) << text;
    }
  }
}

void ExpectIntegers32(std::initializer_list<IntegerCase> cases) {
  for (const auto& [text, number, error] : cases) {
    const auto result = TextToInt32(text, kEnglish);
    EXPECT_EQ(result.Err().Number(), error) << text;
    if (result) {
      EXPECT_EQ(result.Value(), number) << text;
    }
  }
}

TEST(TextToInt16, RoundsToEvenOrFails) {
  ExpectIntegers16({IntegerCase{"2.5", 2, 0}, IntegerCase{"3.5", 4, 0}, IntegerCase{"-2.5", -2, 0},
                    IntegerCase{"-0.5", 0, 0}, IntegerCase{"0.50000001", 1, 0},
                    IntegerCase{"32767.4", 32767, 0}, IntegerCase{"32767.5", 0, 6},
                    IntegerCase{"-32768.5", -32768, 0}, IntegerCase{"-32768.6", 0, 6},
                    IntegerCase{"&HFFFF", -1, 0}, IntegerCase{"&H10000", 0, 6},
                    IntegerCase{"&H100000000", 0, 6}, IntegerCase{"1E300", 0, 6},
                    IntegerCase{"1E999", 0, 6}, IntegerCase{"-1E999", 0, 6}, IntegerCase{"", 0, 13},
                    IntegerCase{"x", 0, 13}, IntegerCase{"1E999x", 0, 13}});
}

TEST(TextToInt32, RoundsToEvenOrFails) {
  ExpectIntegers32({IntegerCase{"32768", 32768, 0}, IntegerCase{"2147483647.4", 2147483647, 0},
                    IntegerCase{"2147483647.5", 0, 6},
                    IntegerCase{"-2147483648.5", std::numeric_limits<std::int32_t>::min(), 0},
                    IntegerCase{"-2147483649", 0, 6}, IntegerCase{"1E10", 0, 6},
                    IntegerCase{"&HFFFFFFFF", -1, 0}, IntegerCase{" ", 0, 13}});
}

TEST(ArrotondaPari, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(ArrotondaPari(0.5), 0);
  EXPECT_EQ(ArrotondaPari(1.5), 2);
  EXPECT_EQ(ArrotondaPari(2.5), 2);
  EXPECT_EQ(ArrotondaPari(-0.5), 0);
  EXPECT_EQ(ArrotondaPari(-1.5), -2);
  EXPECT_EQ(ArrotondaPari(-2.5), -2);
  EXPECT_EQ(ArrotondaPari(2.4999), 2);
  EXPECT_EQ(ArrotondaPari(std::nextafter(0.5, 1)), 1);
  EXPECT_EQ(ArrotondaPari(std::nextafter(0.5, 0)), 0);
  EXPECT_EQ(ArrotondaPari(1e300), 1e300);
  EXPECT_EQ(ArrotondaPari(4503599627370497.5), 4503599627370498);
}

TEST(FormatDigits, PadsAndRoundsHalvesAwayFromZero) {
  EXPECT_EQ(FormatDigits(0, 2), "00");
  EXPECT_EQ(FormatDigits(7, 3), "007");
  EXPECT_EQ(FormatDigits(12345, 4), "12345");
  EXPECT_EQ(FormatDigits(0.5, 2), "01");
  EXPECT_EQ(FormatDigits(2.5, 2), "03");
  EXPECT_EQ(FormatDigits(9.5, 2), "10");
  EXPECT_EQ(FormatDigits(99.5, 2), "100");
  EXPECT_EQ(FormatDigits(0.49, 2), "00");
}

TEST(FormatDigits, KeepsTheSignInFrontOfThePicture) {
  EXPECT_EQ(FormatDigits(-0.4, 2), "-00");
  EXPECT_EQ(FormatDigits(59.6 - 60, 2), "-00");
  EXPECT_EQ(FormatDigits(-0.5, 2), "-01");
  EXPECT_EQ(FormatDigits(-3, 3), "-003");
  EXPECT_EQ(FormatDigits(-0.0, 2), "00");
}

TEST(FormatDigits, HoldsTheLargestNumbers) {
  EXPECT_EQ(FormatDigits(-2147483648.0, 2), "-2147483648");
  EXPECT_EQ(FormatDigits(999999999999999, 2), "999999999999999");
  EXPECT_EQ(FormatDigits(1e300, 2), "1" + std::string(300, '0'));
  EXPECT_EQ(FormatDigits(std::numeric_limits<double>::infinity(), 2), "1.#INF");
  EXPECT_EQ(FormatDigits(std::numeric_limits<double>::quiet_NaN(), 2), "-1.#IND");
}

TEST(FormatGrouped, PutsTheMarkOfTheLocaleBetweenGroupsOfThree) {
  EXPECT_EQ(FormatGrouped(0, kEnglish), "0");
  EXPECT_EQ(FormatGrouped(999, kEnglish), "999");
  EXPECT_EQ(FormatGrouped(1536, kEnglish), "1,536");
  EXPECT_EQ(FormatGrouped(999999.5, kItalian), "1.000.000");
  EXPECT_EQ(FormatGrouped(-1234.5, kSwiss), "-1’235");
  EXPECT_EQ(FormatGrouped(-0.4, kEnglish), "-0");
  EXPECT_EQ(FormatGrouped(1234567, kFrench), "1\u202F234\u202F567");
  EXPECT_EQ(FormatGrouped(1234567, kUngrouped), "1234567");
  EXPECT_EQ(FormatGrouped(1e18, kEnglish), "1,000,000,000,000,000,000");
}

TEST(FormatTwoDecimals, RoundsTheDigitsThatAPersonSees) {
  EXPECT_EQ(FormatTwoDecimals(0, kEnglish), "0.00");
  EXPECT_EQ(FormatTwoDecimals(1.005, kEnglish), "1.01");
  EXPECT_EQ(FormatTwoDecimals(0.285, kEnglish), "0.29");
  EXPECT_EQ(FormatTwoDecimals(0.005, kEnglish), "0.01");
  EXPECT_EQ(FormatTwoDecimals(0.0049, kEnglish), "0.00");
  EXPECT_EQ(FormatTwoDecimals(9.995, kItalian), "10,00");
  EXPECT_EQ(FormatTwoDecimals(-1.5, kItalian), "-1,50");
  EXPECT_EQ(FormatTwoDecimals(-0.001, kEnglish), "-0.00");
  EXPECT_EQ(FormatTwoDecimals(1234567.891, kEnglish), "1234567.89");
  EXPECT_EQ(FormatTwoDecimals(1e20, kEnglish), "1" + std::string(20, '0') + ".00");
}

struct NumberCase {
  double Number;
  std::string Text;
};

void ExpectTexts(std::initializer_list<NumberCase> cases) {
  for (const auto& [number, text] : cases) EXPECT_EQ(NumberToText(number, kItalian), text);
}

TEST(NumberToText, HasUpToFifteenDigits) {
  ExpectTexts({NumberCase{0, "0"},
               NumberCase{-0.0, "0"},
               NumberCase{5, "5"},
               NumberCase{-5, "-5"},
               NumberCase{1.5, "1,5"},
               NumberCase{0.1, "0,1"},
               NumberCase{100, "100"},
               NumberCase{0.1 + 0.2, "0,3"},
               NumberCase{1.0 / 3, "0,333333333333333"},
               NumberCase{2.0 / 3, "0,666666666666667"},
               NumberCase{1.0 / 30, "3,33333333333333E-02"},
               NumberCase{0.00001, "0,00001"},
               NumberCase{1e-15, "0,000000000000001"},
               NumberCase{1e-16, "1E-16"},
               NumberCase{1.25e-16, "1,25E-16"},
               NumberCase{1234567.891, "1234567,891"},
               NumberCase{999999999999999, "999999999999999"},
               NumberCase{1e15, "1E+15"},
               NumberCase{999999999999999.9, "1E+15"},
               NumberCase{123456789012345678.0, "1,23456789012346E+17"},
               NumberCase{-1e300, "-1E+300"},
               NumberCase{5e-324, "4,94065645841247E-324"},
               NumberCase{std::numeric_limits<double>::infinity(), "1.#INF"},
               NumberCase{-std::numeric_limits<double>::infinity(), "-1.#INF"}});
}

TEST(NumberToText, IsReadBackAsTheSameNumber) {
  for (const double number : {0.1, 1234.5678, 1e15, 3.5e-20, -42.0, 1e300}) {
    for (const Locale* locale : {&kEnglish, &kItalian, &kSwiss, &kFrench}) {
      EXPECT_EQ(TextToNumber(NumberToText(number, *locale), *locale), number);
    }
  }
}

}  // namespace
}  // namespace kvr5
