#include <gtest/gtest.h>

#include <array>
#include <string>

#include "playerconfig/Scale.h"

namespace kvr5 {
namespace {

struct Row {
  int index;
  const char* output;
  const char* loudness;
  const char* tone;
  const char* percent;
};

constexpr std::array kRows{
    Row{0, "OFF", "0 dB", "-12", "OFF"},           Row{1, "-55 dB", "+0.5 dB", "-10 dB", "2%"},
    Row{2, "-35 dB", "+1 dB", "-8 dB", "5%"},      Row{3, "-28 dB", "+1.5 dB", "-7 dB", "9%"},
    Row{4, "-23 dB", "+2 dB", "-6 dB", "14%"},     Row{5, "-20 dB", "+2.5 dB", "-5 dB", "20%"},
    Row{6, "-17 dB", "+3 dB", "-4 dB", "26%"},     Row{7, "-14 dB", "+4 dB", "-3 dB", "33%"},
    Row{8, "-12 dB", "+5 dB", "-2 dB", "40%"},     Row{9, "-10 dB", "+6 dB", "-1 dB", "48%"},
    Row{10, "-8 dB", "+7 dB", "0 dB", "56%"},      Row{11, "-6 dB", "+8 dB", "+1 dB", "66%"},
    Row{12, "-4 dB", "+9 dB", "+2 dB", "77%"},     Row{13, "-2 dB", "+10 dB", "+3 dB", "88%"},
    Row{14, "0 dB", "+11 dB", "+4 dB", "100%"},    Row{15, "+2 dB", "+12 dB", "+5 dB", "112%"},
    Row{16, "+4 dB", "+13 dB", "+6 dB", "128%"},   Row{17, "+6 dB", "+14 dB", "+7 dB", "144%"},
    Row{18, "+8 dB", "+15 dB", "+8 dB", "161%"},   Row{19, "+10 dB", "+16 dB", "+10 dB", "178%"},
    Row{20, "+12 dB", "+17 dB", "+12 dB", "200%"},
};

TEST(Scales, ShowTheTextOfEachPosition) {
  for (const auto& row : kRows) {
    EXPECT_EQ(TestoScalaVolume(row.index), row.output);
    EXPECT_EQ(TestoScalaLoudness(row.index), row.loudness);
    EXPECT_EQ(TestoScalaToni(row.index), row.tone);
    EXPECT_EQ(TestoScalaPercento(row.index), row.percent);
  }
}

TEST(Scales, AnyOtherValueGetsTheTextOfZero) {
  for (const int index : {-32768, -1, 21, 100, 32767}) {
    EXPECT_EQ(TestoScalaVolume(index), "OFF");
    EXPECT_EQ(TestoScalaLoudness(index), "0 dB");
    EXPECT_EQ(TestoScalaToni(index), "-12");
    EXPECT_EQ(TestoScalaPercento(index), "OFF");
  }
}

}  // namespace
}  // namespace kvr5
