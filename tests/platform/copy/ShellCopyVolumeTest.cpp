#include <sys/vfs.h>

#include "CopyTest.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

using Names = std::vector<std::string>;

class ShellCopyOnAVolume : public test::CopyTest {
 protected:
  void Files(std::size_t count, std::size_t size, char fill) const {
    for (std::size_t i = 0; i < count; ++i) {
      folder_.Write("from/" + std::to_string(i) + ".mp3", std::string(size, fill));
    }
  }
};

TEST_F(ShellCopyOnAVolume, StopsWhenItIsFullAndKeepsWhatFitted) {
  const auto volume = test::SmallVolume::InMemory(Host("card"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  Files(5, 300'000, 'x');
  const CopyOutcome outcome = Copy({{From("*.mp3"), Card()}});
  EXPECT_EQ(outcome.Result, 61);
  EXPECT_EQ(outcome.FilesCopied, 3U);
  EXPECT_EQ(OnCard(), (Names{"0.mp3", "1.mp3", "2.mp3"}));
  EXPECT_EQ(folder_.Read("card/2.mp3"), std::string(300'000, 'x'));
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_EQ(watcher_.Failures[0].File, Card("3.mp3"));
  EXPECT_TRUE(volume->Unmount()) << "every file is closed";
}

TEST_F(ShellCopyOnAVolume, RecordsAgainWhereOldAndNewDoNotFitTogether) {
  const auto volume = test::SmallVolume::InMemory(Host("card"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  Files(3, 330'000, 'x');
  ASSERT_EQ(Copy({{From("*.mp3"), Card()}}).Result, 0);
  Files(3, 330'000, 'y');
  EXPECT_EQ(Copy({{From("*.mp3"), Card()}}).Result, 0);
  for (const char* name : {"card/0.mp3", "card/1.mp3", "card/2.mp3"}) {
    EXPECT_EQ(folder_.Read(name), std::string(330'000, 'y'));
  }
  EXPECT_EQ(OnCard().size(), 3U);
}

TEST_F(ShellCopyOnAVolume, TellsThatItIsProtected) {
  const auto volume = test::SmallVolume::InMemory(Host("card"), 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  Files(1, 10, 'x');
  ASSERT_TRUE(volume->Protect());
  EXPECT_EQ(Copy({{From("0.mp3"), Card()}}).Result, 70);
  EXPECT_EQ(Copy({{From("*.mp3"), Card("sub")}}).Result, 70);
  ASSERT_EQ(watcher_.Failures.size(), 2U);
  EXPECT_FALSE(watcher_.Failures[0].Source);
  EXPECT_FALSE(watcher_.Failures[1].Source);
}

TEST_F(ShellCopyOnAVolume, ThatIgnoresCaseKeepsTheSpellings) {
  const auto volume = test::SmallVolume::ExFat(Host("card"), 16);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  folder_.Write("card/Config.TXT", "old");
  folder_.Write("from/config.txt", "new");
  folder_.Write("from/sub/Città.mp3", std::string(3'000'000, 'c'));
  EXPECT_EQ(Copy({{From("*.*"), Card()}}).Result, 0);
  EXPECT_EQ(OnCard(), (Names{"Config.TXT", "sub"}));
  EXPECT_EQ(folder_.Read("card/Config.TXT"), "new");
  EXPECT_EQ(folder_.Read("card/sub/Città.mp3"), std::string(3'000'000, 'c'));
  EXPECT_EQ(Copy({{Card("CONFIG.txt"), Card("config.TXT")}}).FilesCopied, 0U) << "the same file";
  EXPECT_TRUE(volume->Unmount());
}

TEST_F(ShellCopyOnAVolume, OfAUserSpaceDriverStopsWhenItIsFull) {
  const auto volume = test::SmallVolume::ExFat(Host("card"), 8);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  Files(6, 2'000'000, 'x');
  const CopyOutcome outcome = Copy({{From("*.mp3"), Card()}});
  EXPECT_EQ(outcome.Result, 61);
  EXPECT_GE(outcome.FilesCopied, 2U);
  EXPECT_EQ(OnCard().size(), outcome.FilesCopied);
  for (const std::string& name : OnCard()) {
    EXPECT_EQ(folder_.Read("card/" + name).size(), 2'000'000U);
  }
}

}  // namespace
}  // namespace kvr5
