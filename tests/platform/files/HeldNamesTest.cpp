// A run of renames into one folder whose names are held meanwhile.
#include <gtest/gtest.h>

#include "platform/FileOps.h"
#include "platform/HostFileSystem.h"
#include "platform/ShellCopy.h"
#include "platform/host/posix/Spellings.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

using Names = std::vector<std::string>;

class HeldNames : public testing::Test {
 protected:
  void SetUp() override {
    folder_.Write("card/other.txt", "o");
    for (const char* name : {"one", "two", "three"})
      folder_.Write(std::string("card/~") + name, name);
  }
  std::string Card(const std::string& name) const { return folder_.System("card/" + name); }
  Error Bring(const std::string& from, const std::string& to) {
    return files_.Replace(Card("~" + from), Card(to));
  }
  /// The names in the card's folder that no "~" begins, as the disk spells them.
  Names OnDisk() const {
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Host() / "card")) {
      const std::string name = entry.path().filename().string();
      if (!name.starts_with('~')) names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
  }

  test::TempFolder folder_;
  PathMap paths_;
  HostFileSystem files_{paths_};
};

TEST_F(HeldNames, TwoNamesOfOneRunThatDifferByCaseEndAsOneFile) {
  const auto held = files_.HoldNames();
  ASSERT_FALSE(Bring("one", "Door.mp3"));
  ASSERT_FALSE(Bring("two", "DOOR.MP3"));
  ASSERT_FALSE(Bring("three", "door.mp3"));
  EXPECT_EQ(OnDisk(), (Names{"Door.mp3", "other.txt"}));
  EXPECT_EQ(folder_.Read("card/Door.mp3"), "three");
}

TEST_F(HeldNames, TheFileThatWasMovedAwayIsNotFoundAnyMore) {
  const auto held = files_.HoldNames();
  EXPECT_TRUE(FileExists(files_, Card("~ONE")));
  ASSERT_FALSE(Bring("one", "Door.mp3"));
  EXPECT_EQ(host::OtherSpelling((folder_.Host() / "card").string(), "~ONE"), std::nullopt);
  EXPECT_FALSE(FileExists(files_, Card("~ONE")));
  EXPECT_TRUE(FileExists(files_, Card("DOOR.mp3")));
}

TEST_F(HeldNames, ADeleteMeanwhileIsSeen) {
  const auto held = files_.HoldNames();
  ASSERT_FALSE(Bring("one", "Door.mp3"));
  ASSERT_FALSE(files_.Delete(Card("DOOR.mp3")));
  EXPECT_EQ(host::OtherSpelling((folder_.Host() / "card").string(), "door.mp3"), std::nullopt);
  ASSERT_FALSE(Bring("two", "door.MP3"));
  EXPECT_EQ(OnDisk(), (Names{"door.MP3", "other.txt"})) << "in the case of the new one";
}

TEST_F(HeldNames, AfterTheHoldWhatOthersChangedIsSeenAgain) {
  {
    const auto held = files_.HoldNames();
    ASSERT_FALSE(Bring("one", "Door.mp3"));
    folder_.Write("card/Window.mp3", "of another program");
  }
  EXPECT_TRUE(FileExists(files_, Card("WINDOW.mp3")));
  const auto again = files_.HoldNames();
  EXPECT_TRUE(FileExists(files_, Card("window.MP3"))) << "a new hold reads anew";
}

TEST_F(HeldNames, OfOneCopyTwoTargetsThatDifferByCaseAreOneFileTheLastOnes) {
  class Silent : public CopyObserver {
   public:
    bool Progress(const CopyState& /*state*/) override { return true; }
    void Failed(const CopyFailure& failure) override { ADD_FAILURE() << failure.File; }
  } silent;
  const CopyOutcome outcome = ShellCopy(files_,
                                        {{Card("~one"), Card("A.mp3")},
                                         {Card("~two"), Card("b.mp3")},
                                         {Card("~three"), Card("a.MP3")}},
                                        silent);
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_EQ(OnDisk(), (Names{"A.mp3", "b.mp3", "other.txt"}));
  EXPECT_EQ(folder_.Read("card/A.mp3"), "three");
}

}  // namespace
}  // namespace kvr5
