#include <gtest/gtest.h>

#include "platform/FileOps.h"
#include "platform/HostFileSystem.h"
#include "support/SmallVolume.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

class OnVolume : public testing::Test {
 protected:
  std::string Path(std::string_view name) const {
    return folder_.System("card\\" + std::string(name));
  }

  test::TempFolder folder_;
  PathMap paths_;
  HostFileSystem files_{paths_};
};

TEST_F(OnVolume, AFullOneIsToldAndKeepsTheOldFile) {
  const auto volume = test::SmallVolume::InMemory(folder_.Host() / "card", 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  EXPECT_EQ(ReplaceWhole(files_, Path("a"), "old").Number(), 0);
  EXPECT_EQ(ReplaceWhole(files_, Path("a"), std::string(2'000'000, 'x')).Number(), 61);
  EXPECT_EQ(ReadWhole(files_, Path("a")).Value(), "old");
  EXPECT_EQ(ListMatching(files_, Path("*.*")).size(), 1U);
  const std::uint64_t before = files_.FreeSpace(Path("")).Value();
  EXPECT_EQ(ReplaceWhole(files_, Path("b"), std::string(500'000, 'x')).Number(), 0);
  EXPECT_GE(before - files_.FreeSpace(Path("")).Value(), 500'000U);
  EXPECT_TRUE(volume->Unmount()) << "every file is closed";
}

TEST_F(OnVolume, ACopyGoesOnFromWhereItWasFull) {
  const auto volume = test::SmallVolume::InMemory(folder_.Host() / "card", 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  std::string bytes;
  for (int i = 0; bytes.size() < 900'000; ++i) bytes += std::to_string(i);
  folder_.Write("from", bytes);
  // A file to append to is copied through a buffer, a new one by the kernel.
  for (const OpenMode mode : {OpenMode::New, OpenMode::Append}) {
    folder_.Write("card/filler", std::string(400'000, 'f'));
    auto from = files_.Open(folder_.System("from"), OpenMode::Read);
    auto to = files_.Open(Path("to"), mode);
    ASSERT_TRUE(from && to);
    Result<std::size_t> copied = std::size_t{1};
    while (copied && copied.Value() > 0) {
      copied = files_.CopyRange(*from.Value(), *to.Value(), std::size_t{1} << 20U);
    }
    EXPECT_EQ(copied.Err().Number(), 61);
    EXPECT_EQ(files_.Delete(Path("filler")).Number(), 0);
    do {
      copied = files_.CopyRange(*from.Value(), *to.Value(), std::size_t{1} << 20U);
    } while (copied && copied.Value() > 0);
    EXPECT_TRUE(copied);
    EXPECT_TRUE(ReadWhole(files_, Path("to")).Value() == bytes);
    EXPECT_EQ(files_.Delete(Path("to")).Number(), 0);
  }
}

TEST_F(OnVolume, AProtectedOneIsTold) {
  const auto volume = test::SmallVolume::InMemory(folder_.Host() / "card", 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  ASSERT_EQ(ReplaceWhole(files_, Path("a"), "old").Number(), 0);
  ASSERT_TRUE(volume->Protect());
  EXPECT_EQ(files_.Open(Path("test.txt"), OpenMode::Write).Err().Number(), 70);
  EXPECT_EQ(files_.Open(Path("a"), OpenMode::Write).Err().Number(), 70);
  EXPECT_EQ(files_.Delete(Path("a")).Number(), 70);
  EXPECT_EQ(files_.CreateFolder(Path("sub")).Number(), 70);
  EXPECT_EQ(files_.Rename(Path("a"), Path("b")).Number(), 70);
  EXPECT_EQ(ReplaceWhole(files_, Path("a"), "new").Number(), 70);
  EXPECT_EQ(ReadWhole(files_, Path("a")).Value(), "old");
}

TEST_F(OnVolume, OneThatIgnoresCaseTellsItsOwnSpelling) {
  const auto volume = test::SmallVolume::ExFat(folder_.Host() / "card", 8);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  ASSERT_EQ(files_.CreateFolder(Path("Sub")).Number(), 0);
  ASSERT_EQ(ReplaceWhole(files_, Path("Sub\\Config.TXT"), "old").Number(), 0);
  EXPECT_EQ(files_.Info(Path("SUB\\config.txt")).Value().Name, "Config.TXT");
  EXPECT_EQ(files_.HostPath(Path("SUB\\config.txt")),
            (folder_.Host() / "card/Sub/Config.TXT").string());
  EXPECT_EQ(files_.SystemPath((folder_.Host() / "card/sub/CONFIG.txt").string()).Value(),
            Path("Sub\\Config.TXT"));
  EXPECT_EQ(ReplaceWhole(files_, Path("sub\\CONFIG.txt"), "new").Number(), 0);
  EXPECT_EQ(ReadWhole(files_, Path("Sub\\Config.TXT")).Value(), "new");
  const auto list = files_.List(Path("Sub")).Value();
  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(list[0].Name, "Config.TXT") << "an overwritten file keeps its spelling";
  EXPECT_EQ(files_.Rename(Path("Sub\\config.txt"), Path("Sub\\CONFIG.txt")).Number(), 0);
  EXPECT_EQ(files_.List(Path("Sub")).Value()[0].Name, "CONFIG.txt");
  EXPECT_TRUE(files_.SameFile(Path("sub\\config.TXT"), Path("SUB\\config.txt")));
  EXPECT_EQ(files_.SyncVolume(Path("")).Number(), 0);
  EXPECT_TRUE(volume->Unmount());
}

}  // namespace
}  // namespace kvr5
