#include <sys/stat.h>

#include "CopyTest.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class ShellCopyOfATree : public test::CopyTest {};

TEST_F(ShellCopyOfATree, TakesSubfoldersAlong) {
  folder_.Write("from/a.mp3", "A");
  folder_.Write("from/.hidden", "H");
  folder_.Write("from/Sub/b.mp3", "B");
  folder_.Write("from/Sub/Deep/c.mp3", "C");
  fs::create_directory(Host("from/empty"));
  const CopyOutcome outcome = Copy({{From("*.*"), Card()}});
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_EQ(outcome.FilesCopied, 4U);
  EXPECT_EQ(OnCard(), (Names{".hidden", "a.mp3", "empty", "Sub"}));
  EXPECT_EQ(folder_.Read("card/Sub/Deep/c.mp3"), "C");
  EXPECT_TRUE(fs::is_directory(Host("card/empty")));
}

TEST_F(ShellCopyOfATree, MakesTheDestination) {
  folder_.Write("from/sub/a", "A");
  EXPECT_EQ(Copy({{From("*.*"), Card("new\\deep")}}).Result, 0);
  EXPECT_EQ(folder_.Read("card/new/deep/sub/a"), "A");
}

TEST_F(ShellCopyOfATree, TakesAFolderThatIsNamedItself) {
  folder_.Write("from/Sub/a", "A");
  EXPECT_EQ(Copy({{From("sub"), Card()}, {From("sub"), Card("other")}}).Result, 0);
  EXPECT_EQ(folder_.Read("card/Sub/a"), "A");
  EXPECT_EQ(folder_.Read("card/other/a"), "A");
}

TEST_F(ShellCopyOfATree, LeavesOutWhatTheSystemKeepsThere) {
  for (const char* name : {"from/System Volume Information/x", "from/LOST+FOUND/x",
                           "from/.Trash-1000/x", "from/.Trashes/x", "from/$Recycle.Bin/x",
                           "from/RECYCLER/x", "from/a*b", "from/\xFF", "from/c|d/x"}) {
    folder_.Write(name, "x");
  }
  folder_.Write("from/" + NewTempName(), "left by a crash");
  folder_.Write("from/good", "x");
  mkfifo(Host("from/pipe").c_str(), 0600);
  EXPECT_EQ(Copy({{From("*.*"), Card()}}).Result, 0);
  EXPECT_EQ(OnCard(), (Names{"good"}));
}

TEST_F(ShellCopyOfATree, LeavesLinksOut) {
  folder_.Write("from/sub/a", "A");
  folder_.Write("elsewhere/b", "B");
  fs::create_directory_symlink("..", Host("from/sub/up"));
  fs::create_directory_symlink(Host("from/sub"), Host("from/sub/self"));
  fs::create_directory_symlink(Host("elsewhere"), Host("from/link"));
  fs::create_symlink("nowhere", Host("from/dead"));
  EXPECT_EQ(Copy({{From("*.*"), Card()}}).Result, 0);
  EXPECT_EQ(OnCard(), (Names{"sub"})) << "they may lead anywhere on the host";
  EXPECT_EQ(OnCard("sub"), (Names{"a"}));
}

TEST_F(ShellCopyOfATree, DoesNotCopyItsOwnDestination) {
  folder_.Write("from/a", "A");
  folder_.Write("from/sub/old", "O");
  EXPECT_EQ(Copy({{From("*.*"), From("sub")}}).Result, 0);
  EXPECT_EQ(Copy({{From("*.*"), From("new\\deep")}}).Result, 0);
  EXPECT_TRUE(folder_.Exists("from/sub/a"));
  EXPECT_FALSE(folder_.Exists("from/sub/sub"));
  EXPECT_TRUE(folder_.Exists("from/new/deep/sub/old"));
  EXPECT_FALSE(folder_.Exists("from/new/deep/new/deep"));
}

TEST_F(ShellCopyOfATree, OntoItselfChangesNothing) {
  folder_.Write("from/a", "A");
  folder_.Write("from/sub/b", "B");
  const CopyOutcome outcome = Copy({{From("*.*"), From()}});
  EXPECT_EQ(outcome.Result, 0);
  EXPECT_EQ(outcome.FilesCopied, 0U);
}

TEST_F(ShellCopyOfATree, EndsAtAFolderThatCannotBeRead) {
  folder_.Write("from/a", "A");
  folder_.Write("from/sub/b", "B");
  folder_.Write("from/z", "Z");
  files_.FailReadsAfter(From("sub"), 0, 57);
  EXPECT_EQ(Copy({{From("*.*"), Card()}}).Result, 57);
  ASSERT_EQ(watcher_.Failures.size(), 1U);
  EXPECT_EQ(watcher_.Failures[0].File, From("sub\\b"));
  EXPECT_TRUE(watcher_.Failures[0].Source);
  EXPECT_EQ(OnCard(), (Names{"a", "sub"}));
  EXPECT_TRUE(OnCard("sub").empty());
}

TEST_F(ShellCopyOfATree, FindsAFileInTheWayOfAFolder) {
  folder_.Write("from/sub/a", "A");
  folder_.Write("card/sub", "a file");
  EXPECT_EQ(Copy({{From("*.*"), Card()}}).Result, 75);
  EXPECT_EQ(folder_.Read("card/sub"), "a file");
}

TEST_F(ShellCopyOfATree, CountsBeforeItCopiesAndCanBeCancelledThen) {
  folder_.Write("from/a", "A");
  folder_.Write("from/sub/b", "BB");
  Copy({{From("*.*"), Card()}});
  EXPECT_EQ(watcher_.States.front().FileNumber, 0U) << "still counting";
  EXPECT_EQ(watcher_.States.back().FileCount, 2U);
  EXPECT_EQ(watcher_.States.back().BytesTotal, 3U);
  watcher_.OnProgress = [this](const CopyState& state) { return state.File != From("sub"); };
  EXPECT_EQ(Copy({{From("*.*"), Card("second")}}).Result, 1223);
  EXPECT_FALSE(folder_.Exists("card/second"));
}

TEST_F(ShellCopyOfATree, CopiesAFullFolder) {
  for (int i = 0; i < 1500; ++i) folder_.Write("from/" + std::to_string(i), "x");
  EXPECT_EQ(Copy({{From("*.*"), Card("all")}}).FilesCopied, 1500U);
  EXPECT_EQ(OnCard("all").size(), 1500U);
}

}  // namespace
}  // namespace kvr5
