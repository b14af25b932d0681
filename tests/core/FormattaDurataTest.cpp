#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <nlohmann/json.hpp>

#include "core/FormattaDurata.h"

namespace kvr5 {
namespace {

TEST(FormattaDurata, GivesTheTextOfEverySample) {
  std::ifstream in(std::filesystem::path(KVR5_TEST_DATA) / "durations.json");
  const auto samples = nlohmann::json::parse(in);
  ASSERT_GT(samples.size(), 100U);
  for (const auto& sample : samples) {
    const double seconds = sample.at("seconds").get<double>();
    EXPECT_EQ(FormattaDurata(seconds), sample.at("text").get<std::string>()) << seconds;
  }
}

TEST(FormattaDurata, ShowsHoursMinutesAndSecondsWithPoints) {
  EXPECT_EQ(FormattaDurata(3723), "01.02.03");
  EXPECT_EQ(FormattaDurata(0), "00.00.00");
}

TEST(FormattaDurata, HoursAbove99TakeThreeDigits) {
  EXPECT_EQ(FormattaDurata(99 * 3600.0 + 3599), "99.59.59");
  EXPECT_EQ(FormattaDurata(100 * 3600.0), "100.00.00");
}

TEST(FormattaDurata, JustUnderABoundaryLeavesANegativeRest) {
  EXPECT_EQ(FormattaDurata(59.6), "00.01.-00");
  EXPECT_EQ(FormattaDurata(119.5), "00.02.-01");
}

TEST(FormattaDurata, HalfASecondDecidesForTheEvenOne) {
  EXPECT_EQ(FormattaDurata(59.5), "00.01.-01");  // 60 is even
  EXPECT_EQ(FormattaDurata(60.5), "00.01.01");
  EXPECT_EQ(FormattaDurata(3599.5), "01.00.-01");
}

TEST(FormattaDurata, WhatDoesNotFitIsTheErrorText) {
  EXPECT_EQ(FormattaDurata(2147483648.0), "00:00:00");
  EXPECT_EQ(FormattaDurata(std::numeric_limits<double>::infinity()), "00:00:00");
  EXPECT_EQ(FormattaDurata(std::numeric_limits<double>::quiet_NaN()), "00:00:00");
}

}  // namespace
}  // namespace kvr5
