// Names in another case, where a folder's names were read a moment ago.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/FileOps.h"
#include "platform/HostFileSystem.h"
#include "platform/host/posix/Spellings.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

class Spellings : public testing::Test {
 protected:
  void SetUp() override { folder_.Write("music/Door.mp3", "x"); }
  /// Gives the folder a time of change that lies back, so that what is read of it is kept.
  void Settle() {
    const timespec back[2] = {{.tv_sec = 1'000'000'000, .tv_nsec = 0},
                              {.tv_sec = 1'000'000'000, .tv_nsec = 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, Music().c_str(), back, 0), 0);
  }
  std::string Music() const { return (folder_.Host() / "music").string(); }
  bool Exists(const std::string& name) {
    return FileExists(files_, folder_.System("music/" + name));
  }

  test::TempFolder folder_;
  PathMap paths_;
  HostFileSystem files_{paths_};
};

TEST_F(Spellings, ANameIsFoundInAnyCaseAgainAndAgain) {
  Settle();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(host::OtherSpelling(Music(), "DOOR.mp3"), "Door.mp3");
    EXPECT_EQ(host::OtherSpelling(Music(), "gone.mp3"), std::nullopt);
  }
  EXPECT_EQ(host::OtherSpelling(Music() + "/none", "a"), std::nullopt);
}

TEST_F(Spellings, OfSeveralTheFirstByItsBytesIsTaken) {
  folder_.Write("music/DOOR.mp3", "y");
  folder_.Write("music/door.MP3", "z");
  EXPECT_EQ(host::OtherSpelling(Music(), "dOOr.mp3"), "DOOR.mp3");
}

TEST_F(Spellings, WhatThisProcessChangesIsSeenAtOnce) {
  Settle();
  EXPECT_FALSE(Exists("NEW.MP3"));
  Settle();
  ASSERT_FALSE(ReplaceWhole(files_, folder_.System("music/new.mp3"), "n"));
  Settle();
  EXPECT_TRUE(Exists("NEW.MP3"));
  Settle();
  ASSERT_FALSE(files_.Rename(folder_.System("music/new.mp3"), folder_.System("music/old.mp3")));
  Settle();
  EXPECT_FALSE(Exists("NEW.MP3"));
  EXPECT_TRUE(Exists("OLD.MP3"));
  Settle();
  ASSERT_FALSE(files_.Delete(folder_.System("music/OLD.mp3")));
  Settle();
  EXPECT_FALSE(Exists("OLD.MP3"));
  Settle();
  ASSERT_FALSE(files_.CreateFolder(folder_.System("music/sub")));
  Settle();
  EXPECT_TRUE(FolderExists(files_, folder_.System("music/SUB")));
}

TEST_F(Spellings, WhatOthersChangeIsSeenByTheFoldersTime) {
  Settle();
  EXPECT_FALSE(Exists("THEIRS.MP3"));
  folder_.Write("music/theirs.mp3", "t");
  EXPECT_TRUE(Exists("THEIRS.MP3"));
  folder_.Write("music/more.mp3", "t");  // within the grain of the clock
  EXPECT_TRUE(Exists("MORE.MP3"));
}

}  // namespace
}  // namespace kvr5
