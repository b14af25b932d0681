#include <gtest/gtest.h>

#include "schedule/AliasSpot.h"

namespace kvr5 {
namespace {

TEST(SpotAlias, IsDaySegmentAndPlace) {
  EXPECT_EQ(AliasDelloSpot("3", 12, "2"), "F3-0122.mp3");
  EXPECT_EQ(AliasDelloSpot("0", 1, "1"), "F0-0011.mp3");
  EXPECT_EQ(AliasDelloSpot("7", 61, "8"), "F7-0618.mp3");
}

TEST(SpotAlias, OfMoreThanThreeDigitsHasThemAll) {
  EXPECT_EQ(AliasDelloSpot("0", 999, "1"), "F0-9991.mp3");
  EXPECT_EQ(AliasDelloSpot("0", 1000, "1"), "F0-10001.mp3");
}

TEST(SpotAlias, HasThePlaceAsAPlainNumber) {
  EXPECT_EQ(AliasDelloSpot("1", 1, "12"), "F1-00112.mp3");
  EXPECT_EQ(AliasDelloSpot("-1", 1, "1"), "F-1-0011.mp3");
  EXPECT_EQ(AliasDelloSpot("", 1, ""), "F-001.mp3") << "Null is nothing";
}

TEST(SegmentNumber, CountsTheSegmentsOfADayByTheChangesOfTheirId) {
  NumeroSegmento number;
  EXPECT_EQ(number.Di("1", "5"), 1);
  EXPECT_EQ(number.Di("1", "5"), 1);
  EXPECT_EQ(number.Di("1", "9"), 2);
  EXPECT_EQ(number.Di("1", "10"), 3) << "whatever the ID is";
  EXPECT_EQ(number.Di("1", "10"), 3);
}

TEST(SegmentNumber, StartsAnewOnEachDay) {
  NumeroSegmento number;
  number.Di("1", "5");
  number.Di("1", "9");
  EXPECT_EQ(number.Di("2", "11"), 1);
  EXPECT_EQ(number.Di("2", "12"), 2);
  EXPECT_EQ(number.Di("7", "20"), 1);
}

TEST(SegmentNumber, StartsAnewWhereTheDayChangesWithinASegment) {
  NumeroSegmento number;
  number.Di("0", "4");
  EXPECT_EQ(number.Di("0", "5"), 2);
  EXPECT_EQ(number.Di("3", "5"), 1);
  EXPECT_EQ(number.Di("3", "6"), 2);
}

TEST(SegmentNumber, CountsSpotsWithoutADayOrASegmentAsThoseOfOne) {
  NumeroSegmento number;
  EXPECT_EQ(number.Di("", ""), 1);
  EXPECT_EQ(number.Di("", ""), 1);
  EXPECT_EQ(number.Di("", "1"), 2);
  EXPECT_EQ(number.Di("0", "1"), 1);
}

}  // namespace
}  // namespace kvr5
