#include <gtest/gtest.h>

#include "projects/OraDelSegmento.h"

namespace kvr5 {
namespace {

TEST(SegmentTime, IsReadAsItIsStored) {
  EXPECT_EQ(OraDa("08:30:00"), (Ora{8, 30}));
  EXPECT_EQ(OraDa("00:00:00"), (Ora{0, 0}));
  EXPECT_EQ(OraDa("23:59:59"), (Ora{23, 59})) << "seconds count for nothing";
  EXPECT_EQ(OraDa("08:30"), (Ora{8, 30}));
  EXPECT_EQ(OraDa("08.30"), (Ora{8, 30}));
}

TEST(SegmentTime, ADateInFrontCountsForNothing) {
  EXPECT_EQ(OraDa("2019-03-04 08:30:00"), (Ora{8, 30}));
  EXPECT_EQ(OraDa("1899-12-30 21:05:00"), (Ora{21, 5}));
  EXPECT_EQ(OraDa("2019-03-04T08:30:00"), (Ora{8, 30}));
}

TEST(SegmentTime, ADateAloneIsMidnight) {
  EXPECT_EQ(OraDa("2019-03-04"), (Ora{0, 0}));
}

TEST(SegmentTime, OfNullAndOfWhatIsNoTimeIsNone) {
  for (const char* text :
       {"", " ", "24:00:00", "08:60:00", "08:30:60", "8:30", "-1:00:00", "noon", "0.354166",
        "08:30:00 x", "08:30:00.000", "2019-03-04 ", "2019-03-04x08:30", "2019-03-0408:30:00",
        "2019-03-04 25:00:00", "2019/03/04 08:30:00", "08-30-00", "::::::::"}) {
    EXPECT_FALSE(OraDa(text).has_value()) << "'" << text << "'";
  }
}

TEST(SegmentTime, HasTwoPictures) {
  EXPECT_EQ(OraConPunto(Ora{8, 5}), "08.05");
  EXPECT_EQ(OraConDuePunti(Ora{8, 5}), "08:05");
  EXPECT_EQ(OraConPunto(Ora{23, 59}), "23.59");
  EXPECT_EQ(OraConDuePunti(Ora{0, 0}), "00:00");
  EXPECT_EQ(OraConPunto({}), "");
  EXPECT_EQ(OraConDuePunti({}), "");
}

TEST(SegmentTime, OfEachMinuteOfADayComesBack) {
  for (int minute = 0; minute < 24 * 60; ++minute) {
    const Ora time{minute / 60, minute % 60};
    EXPECT_EQ(OraDa(OraConPunto(time)), time);
    EXPECT_EQ(OraDa(OraConDuePunti(time)), time);
    EXPECT_EQ(OraDa(OraConDuePunti(time) + ":00"), time);
  }
}

}  // namespace
}  // namespace kvr5
