// Files of many rows, made by the tests' own writer, which mdbtools reads too.
#include <gtest/gtest.h>

#include <limits>

#include "platform/HostFileSystem.h"
#include "platform/jet/Tabelle.h"
#include "support/ScriviJet.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

using test::Read;
using test::Rows;

Rows NumberedTracks(std::int64_t count) {
  Rows rows;
  for (std::int64_t i = 1; i <= count; ++i) {
    const std::string number = std::to_string(i);
    rows.push_back({i, "Ärger " + number + ".mp3", "D:\\Музыка\\", DbValue(), i % 500 + 1, i / 500,
                    std::int64_t{-7}});
  }
  return rows;
}

TEST(JetWritten, ManyRowsOverManyPagesAreReadAsTheyWereWritten) {
  const Rows tracks = NumberedTracks(20'000);
  const auto read = Read(test::FileJet(tracks, {}));
  EXPECT_EQ(read.Guasto.What, jet::Fault::None);
  EXPECT_TRUE(read.Lista == tracks);
}

TEST(JetWritten, TimesOfDayComeFromDaysWhateverTheDay) {
  const auto read = Read(test::FileJet({}, {{std::int64_t{1}, std::int64_t{1}, "a", 0.5},
                                            {std::int64_t{2}, std::int64_t{1}, "b", 38'000.25},
                                            {std::int64_t{3}, std::int64_t{1}, "c", -1.75},
                                            {std::int64_t{4}, std::int64_t{1}, "d", 0.9999999},
                                            {std::int64_t{5}, std::int64_t{1}, "e", DbValue()}}));
  ASSERT_EQ(read.Testa.size(), 5U);
  EXPECT_EQ(read.Testa[0][3], DbValue("12:00:00"));
  EXPECT_EQ(read.Testa[1][3], DbValue("06:00:00"));
  EXPECT_EQ(read.Testa[2][3], DbValue("18:00:00"));
  EXPECT_EQ(read.Testa[3][3], DbValue("23:59:59")) << "not the day's beginning";
  EXPECT_TRUE(IsNull(read.Testa[4][3]));
}

TEST(JetWritten, ATimeThatIsNoNumberIsDamage) {
  for (const double time :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e300}) {
    EXPECT_EQ(Read(test::FileJet({}, {{std::int64_t{1}, std::int64_t{1}, "a", time}})).Guasto.What,
              jet::Fault::Damaged);
  }
}

TEST(JetWritten, AFileOfTwoGigabytesOfHolesIsReadWhereItsTablesAreAndALargerOneIsRefused) {
  constexpr std::uint64_t kLargest = std::uint64_t{1} << 31U;
  const test::TempFolder folder;
  const PathMap paths;
  HostFileSystem files(paths);
  folder.Write("a.mdb", test::FileJet(NumberedTracks(10), {}));
  std::filesystem::resize_file(folder.Host() / "a.mdb", kLargest);
  EXPECT_EQ(test::LeggiTutto(files, folder.System("a.mdb")).Lista, NumberedTracks(10));
  std::filesystem::resize_file(folder.Host() / "a.mdb", kLargest + jet::kPageSize);
  EXPECT_EQ(test::LeggiTutto(files, folder.System("a.mdb")).Guasto.What, jet::Fault::Damaged);
}

}  // namespace
}  // namespace kvr5
