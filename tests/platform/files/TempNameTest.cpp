#include <gtest/gtest.h>

#include <set>

#include "platform/FileOps.h"
#include "platform/Path.h"
#include "platform/TempName.h"

namespace kvr5 {
namespace {

TEST(TempName, FitsACardAndLooksLikeNoFileOfTheProgram) {
  const std::string name = NewTempName();
  EXPECT_TRUE(CardCanHold(name)) << name;
  EXPECT_LE(name.find('.'), 8U) << "one directory entry only";
  for (const char* pattern : {"*.mp3", "*.m3u", "*.pal", "*.htm", "*.jpg", "*.txt", "*.mdb"}) {
    EXPECT_FALSE(MatchesWildcard(name, pattern)) << name;
  }
}

TEST(TempName, IsRecognised) {
  for (int i = 0; i < 100; ++i) EXPECT_TRUE(IsTempName(NewTempName()));
  for (const char* name : {"", "~", "a.kv5", "~1234567.mp3", "~123456.kv5", "~12345678.kv5",
                           "x1234567.kv5", "~12345A7.kv5", "~1234 67.kv5"}) {
    EXPECT_FALSE(IsTempName(name)) << name;
  }
}

TEST(TempName, HardlyEverComesTwice) {
  std::set<std::string> names;
  for (int i = 0; i < 10000; ++i) names.insert(NewTempName());
  EXPECT_EQ(names.size(), 10000U);
}

}  // namespace
}  // namespace kvr5
