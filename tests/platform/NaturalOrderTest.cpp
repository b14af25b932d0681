#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "platform/NaturalOrder.h"

namespace kvr5 {
namespace {

TEST(NaturalOrder, TakesNumbersByTheirValueAndLettersWithoutTheirCase) {
  const std::vector<std::string> sorted{"",
                                        "1.mp3",
                                        "02.mp3",
                                        "2.mp3",
                                        "10.mp3",
                                        "a.mp3",
                                        "A2.mp3",
                                        "a10.mp3",
                                        "Città 9",
                                        "città 10",
                                        "z99999999999999999999",
                                        "z100000000000000000000"};
  std::vector<std::string> names = sorted;
  std::shuffle(names.begin(), names.end(), std::mt19937(1));
  std::ranges::sort(names, NaturalLess);
  EXPECT_EQ(names, sorted);
}

TEST(NaturalOrder, TellsNamesApartThatDifferInTheCaseOrInZerosAlone) {
  EXPECT_NE(NaturalLess("A", "a"), NaturalLess("a", "A"));
  EXPECT_NE(NaturalLess("01", "1"), NaturalLess("1", "01"));
  EXPECT_FALSE(NaturalLess("a", "a"));
}

}  // namespace
}  // namespace kvr5
