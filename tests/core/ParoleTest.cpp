#include <gtest/gtest.h>

#include <ctime>
#include <limits>

#include "core/Parole.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

TEST(Words, FillTheirPlacesInAnyOrder) {
  EXPECT_EQ(ConValori("%2 of %1, %2", {"a", "b"}), "b of a, b");
  EXPECT_EQ(ConValori("100% of %1%", {"x"}), "100% of x%");
  EXPECT_EQ(ConValori("%1 %3 %0 %", {"x"}), "x %3 %0 %") << "what has no value stays";
  EXPECT_EQ(ConValori("%1%2", {"%2", "%1"}), "%2%1") << "a value is no pattern";
}

TEST(Words, OfOthersFitOneLine) {
  EXPECT_EQ(SuUnaRiga("Caf\xC3\xA9"), "Caf\xC3\xA9");
  EXPECT_EQ(SuUnaRiga("a\r\nb\x1B[0m\x7F"),
            "a\xEF\xBF\xBD\xEF\xBF\xBD"
            "b\xEF\xBF\xBD[0m\xEF\xBF\xBD");
  EXPECT_EQ(SuUnaRiga("\xC2\x85 \xFF"), "\xEF\xBF\xBD \xEF\xBF\xBD");
  EXPECT_EQ(SuUnaRiga("\xE2\x80\xA8\xE2\x80\xAE\xE2\x81\xA6"),
            "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(SuUnaRiga(""), "");
}

TEST(Words, TellBytesInTheLocalesForm) {
  constexpr std::uint64_t kGiga = 1ULL << 30U;
  Locale italian;
  italian.DecimalMark = ",";
  EXPECT_EQ(QuantitaInParole(7'945'689'498, italian), "7,4 GB");
  const Locale english;
  EXPECT_EQ(QuantitaInParole(0, english), "0 KB");
  EXPECT_EQ(QuantitaInParole(512 * kGiga / 1024, english), "512 MB");
  EXPECT_EQ(QuantitaInParole(8 * kGiga, english), "8 GB");
  EXPECT_EQ(QuantitaInParole(kGiga - 1, english), "1 GB") << "never 1024 MB";
  EXPECT_EQ(QuantitaInParole(2048 * kGiga, english), "2 TB");
  EXPECT_EQ(QuantitaInParole(~0ULL, english), "16777216 TB");
}

class WhenInWords : public testing::Test {
 protected:
  /// Seconds since 1970 of a moment here, wherever that is.
  static std::int64_t At(int year, int month, int day, int hour, int minute) {
    std::tm time{};
    time.tm_year = year - 1900;
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    time.tm_isdst = -1;
    return std::mktime(&time);
  }
  void Now(int year, int month, int day) {
    b.Ora.Ora = std::tm{0, 0, 12, day, month - 1, year - 1900, 0, 0, 0, 0, nullptr};
  }
  std::string When(std::int64_t seconds) { return QuandoInParole(b.C, seconds); }

  test::Banco b;
};

TEST_F(WhenInWords, TodayAndYesterdayHaveTheirTime) {
  Now(2006, 10, 20);
  EXPECT_EQ(When(At(2006, 10, 20, 14, 32)), "today 14:32");
  EXPECT_EQ(When(At(2006, 10, 20, 0, 0)), "today 00:00");
  EXPECT_EQ(When(At(2006, 10, 19, 23, 59)), "yesterday 23:59");
  EXPECT_EQ(When(At(2006, 10, 19, 9, 10)), "yesterday 09:10");
}

TEST_F(WhenInWords, OtherDaysAreDates) {
  Now(2006, 10, 20);
  EXPECT_EQ(When(At(2006, 10, 18, 23, 59)), "2006-10-18");
  EXPECT_EQ(When(At(2006, 10, 21, 9, 10)), "2006-10-21") << "a card from a clock that is ahead";
  EXPECT_EQ(When(At(1999, 3, 4, 12, 0)), "1999-03-04");
}

TEST_F(WhenInWords, YesterdayGoesBackOverMonthsAndYears) {
  Now(2007, 1, 1);
  EXPECT_EQ(When(At(2006, 12, 31, 12, 0)), "yesterday 12:00");
  Now(2004, 3, 1);
  EXPECT_EQ(When(At(2004, 2, 29, 12, 0)), "yesterday 12:00");
}

TEST_F(WhenInWords, AMomentBeyondAllYearsIsToldWithoutHarm) {
  EXPECT_EQ(When(std::numeric_limits<std::int64_t>::max()), "1970-01-01");
}

}  // namespace
}  // namespace kvr5
