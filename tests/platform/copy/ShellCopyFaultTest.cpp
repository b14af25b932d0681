#include <set>

#include "CopyTest.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// Three files to record onto a card that holds two older ones.
class ShellCopyOnAFailingDevice : public test::CopyTest {
 protected:
  static constexpr std::size_t kSize = 150'000;

  void Prepare() {
    for (const char* name : {"a", "b", "c"}) {
      folder_.Write(std::string("from/") + name, New(name));
      fs::remove(Host(std::string("card/") + name));
    }
    folder_.Write("card/a", Old());
    folder_.Write("card/b", Old());
    watcher_.Failures.clear();
    pairs_ = {{From("a"), Card("a")}, {From("b"), Card("b")}, {From("c"), Card("sub\\c")}};
    fs::remove_all(Host("card/sub"));
  }
  static std::string New(const std::string& name) {
    std::string bytes(kSize, name[0]);
    return bytes;
  }
  static std::string Old() {
    std::string bytes(1000, 'o');
    return bytes;
  }

  /// No good name stands for anything but a whole file, old or new.
  void ExpectWholeFiles() const {
    for (const char* name : {"a", "b"}) {
      const std::string path = std::string("card/") + name;
      if (!folder_.Exists(path)) continue;
      const std::string bytes = folder_.Read(path);
      EXPECT_TRUE(bytes == Old() || bytes == New(name)) << name << " " << bytes.size();
    }
    if (folder_.Exists("card/sub/c")) {
      EXPECT_EQ(folder_.Read("card/sub/c"), New("c"));
    }
  }
  bool AnyTemp() const {
    const Names sub = OnCard("sub");
    return AnyTempOnCard() || std::ranges::any_of(sub, [](const auto& n) { return IsTempName(n); });
  }
  bool AllCopied() const {
    return folder_.Read("card/a") == New("a") && folder_.Read("card/b") == New("b") &&
           folder_.Exists("card/sub/c");
  }

  std::vector<CopyPair> pairs_;
};

TEST_F(ShellCopyOnAFailingDevice, FreesTheRoomThatACopyCutOffLeftTaken) {
  Prepare();
  folder_.Write("card/" + NewTempName(), std::string(4 * kSize, 'x'));
  folder_.Write("card/sub/" + NewTempName(), "x");
  files_.LimitRoom("E:\\", 4 * kSize);
  EXPECT_EQ(Copy(pairs_).Result, 0);
  EXPECT_TRUE(AllCopied());
  EXPECT_FALSE(AnyTemp());
}

TEST_F(ShellCopyOnAFailingDevice, LeavesWholeFilesWhicheverOperationFails) {
  std::size_t failures = 0;
  std::set<std::string> fatal;
  for (std::size_t index = 0; index < 200; ++index) {
    Prepare();
    files_.FailOperation("", index, errors::DeviceIo);
    const CopyOutcome outcome = Copy(pairs_);
    const std::string failed = files_.FailedOperation();
    files_.Repair();
    SCOPED_TRACE(std::to_string(index) + " " + failed);
    ExpectWholeFiles();
    EXPECT_FALSE(AnyTemp());
    EXPECT_EQ(watcher_.Failures.size(), outcome.Result == 0 ? 0U : 1U);
    if (outcome.Result == 0) {
      EXPECT_TRUE(AllCopied());
    } else {
      EXPECT_EQ(outcome.Result, 57);
      ++failures;
      fatal.insert(failed);
    }
    if (failed.empty()) {
      EXPECT_EQ(outcome.Result, 0);
      EXPECT_GT(failures, 20U) << "most operations matter";
      for (const char* step : {"Open", "CopyRange", "Close", "Replace", "SyncVolume"}) {
        EXPECT_TRUE(fatal.contains(step)) << step;
      }
      return;
    }
  }
  FAIL() << "the copy never came to its end";
}

TEST_F(ShellCopyOnAFailingDevice, LeavesWholeFilesWheneverTheCardIsPulledOut) {
  for (std::size_t operations = 0; operations < 200; ++operations) {
    Prepare();
    files_.VanishAfter("E:", operations);
    const CopyOutcome outcome = Copy(pairs_);
    files_.Repair();
    SCOPED_TRACE(operations);
    ExpectWholeFiles();
    if (outcome.Result == 0) {
      EXPECT_TRUE(AllCopied());
      EXPECT_GT(operations, 20U);
      return;
    }
    ASSERT_EQ(watcher_.Failures.size(), 1U);
    EXPECT_FALSE(watcher_.Failures[0].Source) << watcher_.Failures[0].File;
    EXPECT_EQ(outcome.Result, watcher_.Failures[0].Cause.Number());
    for (const std::string& name : OnCard()) {
      if (IsTempName(name)) fs::remove(Host("card/" + name));
    }
  }
  FAIL() << "the copy never came to its end";
}

TEST_F(ShellCopyOnAFailingDevice, LeavesWholeFilesWhereverWritingFails) {
  for (std::uint64_t bytes = 0; bytes < 3 * kSize; bytes += 37'500) {
    Prepare();
    files_.FailWritesAfter("E:", bytes, errors::DeviceIo);
    const CopyOutcome outcome = Copy(pairs_);
    files_.Repair();
    SCOPED_TRACE(bytes);
    EXPECT_EQ(outcome.Result, 57);
    EXPECT_EQ(outcome.FilesCopied, bytes / kSize);
    ExpectWholeFiles();
    EXPECT_FALSE(AnyTemp());
    ASSERT_EQ(watcher_.Failures.size(), 1U);
    EXPECT_EQ(watcher_.Failures[0].File, pairs_[bytes / kSize].Destination);
    EXPECT_FALSE(watcher_.Failures[0].Source);
  }
}

TEST_F(ShellCopyOnAFailingDevice, BlamesASourceThatCannotBeRead) {
  Prepare();
  files_.FailReadsAfter(From("b"), 100'000, errors::DeviceIo);
  const CopyOutcome outcome = Copy(pairs_);
  EXPECT_EQ(outcome.Result, 57);
  EXPECT_EQ(outcome.FilesCopied, 1U);
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_EQ(watcher_.Failures[0].File, From("b"));
  EXPECT_TRUE(watcher_.Failures[0].Source);
  EXPECT_EQ(folder_.Read("card/a"), New("a"));
  EXPECT_EQ(folder_.Read("card/b"), Old());
  EXPECT_FALSE(AnyTemp());
}

TEST_F(ShellCopyOnAFailingDevice, TellsAProtectedCard) {
  Prepare();
  files_.Protect("E:");
  EXPECT_EQ(Copy(pairs_).Result, 70);
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_EQ(watcher_.Failures[0].File, Card("a"));
  EXPECT_FALSE(watcher_.Failures[0].Source);
}

TEST_F(ShellCopyOnAFailingDevice, KeepsTheFilesWhoseFlushSucceeded) {
  Prepare();
  files_.FailFlush(Card("sub"), errors::DeviceIo);
  const CopyOutcome outcome = Copy(pairs_);
  EXPECT_EQ(outcome.Result, 57);
  EXPECT_EQ(outcome.FilesCopied, 2U);
  EXPECT_EQ(folder_.Read("card/b"), New("b"));
  EXPECT_FALSE(folder_.Exists("card/sub/c"));
  EXPECT_FALSE(AnyTemp());
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_EQ(watcher_.Failures[0].File, Card("sub\\c"));
}

TEST_F(ShellCopyOnAFailingDevice, KeepsTheOldFilesWhereNoFlushSucceeds) {
  Prepare();
  files_.FailFlush("E:", errors::DiskFull);
  const CopyOutcome outcome = Copy(pairs_);
  EXPECT_EQ(outcome.Result, 61);
  EXPECT_EQ(outcome.FilesCopied, 0U);
  EXPECT_EQ(folder_.Read("card/a"), Old());
  EXPECT_FALSE(AnyTemp());
}

TEST_F(ShellCopyOnAFailingDevice, LeavesWholeFilesOnAFullCard) {
  for (std::uint64_t room = 2000; room < 3 * kSize + 2000; room += 10'000) {
    Prepare();
    files_.LimitRoom(Card(), room);
    const CopyOutcome outcome = Copy(pairs_);
    files_.Repair();
    SCOPED_TRACE(room);
    ExpectWholeFiles();
    EXPECT_FALSE(AnyTemp());
    const std::size_t fit = room >= 3 * kSize ? 3 : room >= 2 * kSize ? 2 : room / kSize;
    if (outcome.Result == 0) {
      EXPECT_EQ(fit, 3U);
      continue;
    }
    EXPECT_EQ(outcome.Result, 61);
    EXPECT_EQ(watcher_.Failures.size(), 1U);
    EXPECT_LE(outcome.FilesCopied, fit);
  }
}

TEST_F(ShellCopyOnAFailingDevice, RecordsAgainOnACardThatIsNearlyFull) {
  Prepare();
  folder_.Write("card/a", std::string(kSize, 'x'));
  folder_.Write("card/b", std::string(kSize, 'x'));
  files_.LimitRoom(Card(), 2 * kSize + 5000);
  const CopyOutcome outcome = Copy({{From("a"), Card("a")}, {From("b"), Card("b")}});
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_EQ(folder_.Read("card/a"), New("a"));
  EXPECT_EQ(folder_.Read("card/b"), New("b"));
  EXPECT_FALSE(AnyTemp());
}

TEST_F(ShellCopyOnAFailingDevice, KeepsTheOldFileWhereTheNewOneWouldNotFitInItsPlace) {
  Prepare();
  folder_.Write("card/a", std::string(50'000, 'x'));
  files_.LimitRoom(Card(), 100'000);
  EXPECT_EQ(Copy({{From("a"), Card("a")}}).Result, 61);
  EXPECT_EQ(folder_.Read("card/a"), std::string(50'000, 'x'));
  EXPECT_FALSE(AnyTemp());
}

TEST_F(ShellCopyOnAFailingDevice, LeavesTheFilesBesideAlone) {
  Prepare();
  folder_.Write("card/other.mp3", "mine");
  files_.LimitRoom(Card(), 10'000);
  Copy(pairs_);
  EXPECT_EQ(folder_.Read("card/other.mp3"), "mine");
}

}  // namespace
}  // namespace kvr5
