#include <gtest/gtest.h>

#include <filesystem>

#include "platform/FileOps.h"
#include "platform/HostFileSystem.h"
#include "platform/TempName.h"
#include "support/FaultyFileSystem.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

class FileOps : public testing::Test {
 protected:
  std::string Path(std::string_view name = {}) const { return folder_.System(name); }
  std::vector<std::string> Matching(std::string_view pattern) {
    std::vector<std::string> names;
    for (const FileInfo& info : ListMatching(files_, Path(pattern))) names.push_back(info.Name);
    return names;
  }
  void Lock(const char* name) { fs::permissions(folder_.Host() / name, fs::perms::owner_read); }

  test::TempFolder folder_;
  PathMap paths_;
  HostFileSystem host_{paths_};
  test::FaultyFileSystem files_{host_};
};

TEST(MatchesWildcard, KnowsStarsAndQuestionMarks) {
  EXPECT_TRUE(MatchesWildcard("a.mp3", "*.mp3"));
  EXPECT_TRUE(MatchesWildcard("A.MP3", "*.mp3"));
  EXPECT_TRUE(MatchesWildcard("x_LOCAL_.m3u", "*_local_.M3U"));
  EXPECT_TRUE(MatchesWildcard("aXbXc", "a*b*c"));
  EXPECT_TRUE(MatchesWildcard("abc", "a?c"));
  EXPECT_TRUE(MatchesWildcard("aàc", "a?c"));
  EXPECT_TRUE(MatchesWildcard("CITTÀ.txt", "citt?.*"));
  EXPECT_TRUE(MatchesWildcard("a.b.mp3", "*.mp3"));
  EXPECT_TRUE(MatchesWildcard("aab", "*ab"));
  EXPECT_TRUE(MatchesWildcard("a", "a**"));
  EXPECT_FALSE(MatchesWildcard("a.mp3x", "*.mp3"));
  EXPECT_FALSE(MatchesWildcard("a.m3u8", "*.m3u"));
  EXPECT_FALSE(MatchesWildcard("ac", "a?c"));
  EXPECT_FALSE(MatchesWildcard("abc", "ab"));
  EXPECT_FALSE(MatchesWildcard("", "?"));
  EXPECT_TRUE(MatchesWildcard("", "*"));
}

TEST(MatchesWildcard, TakesEveryNameForStarDotStar) {
  for (const char* name : {"a", "a.b", ".a", "a.", "PALIN"}) {
    EXPECT_TRUE(MatchesWildcard(name, "*.*")) << name;
  }
  EXPECT_TRUE(MatchesWildcard("PALIN", "palin.*"));
  EXPECT_TRUE(MatchesWildcard("abc", "a*.*"));
  EXPECT_FALSE(MatchesWildcard("abc", "b*.*"));
}

TEST_F(FileOps, FindPlainFilesOnly) {
  folder_.Write("a.mp3", "x");
  folder_.Write(".hidden.mp3", "x");
  folder_.Write("locked.mp3", "x");
  Lock("locked.mp3");
  fs::create_directory(folder_.Host() / "sub.mp3");
  EXPECT_TRUE(FileExists(files_, Path("a.mp3")));
  EXPECT_TRUE(FileExists(files_, Path("A.Mp3")));
  EXPECT_TRUE(FileExists(files_, Path("locked.mp3")));
  EXPECT_FALSE(FileExists(files_, Path(".hidden.mp3")));
  EXPECT_FALSE(FileExists(files_, Path("sub.mp3")));
  EXPECT_FALSE(FileExists(files_, Path("none.mp3")));
  EXPECT_FALSE(FileExists(files_, ""));
  EXPECT_FALSE(FileExists(files_, "a.mp3"));
}

TEST_F(FileOps, FindFilesByWildcard) {
  folder_.Write("sub/a.pal", "x");
  folder_.Write("sub/b*.htm", "x");
  EXPECT_TRUE(FileExists(files_, Path("sub\\*.PAL")));
  EXPECT_FALSE(FileExists(files_, Path("sub\\*.htm"))) << "a name that no path can hold";
  EXPECT_FALSE(FileExists(files_, Path("*.pal")));
  EXPECT_FALSE(FileExists(files_, Path("none\\*.pal")));
  EXPECT_TRUE(FileExists(files_, Path("sub\\"))) << "any file in there";
  EXPECT_FALSE(FileExists(files_, Path() + "\\"));
}

TEST_F(FileOps, FindFolders) {
  folder_.Write("sub/a", "x");
  EXPECT_TRUE(FolderExists(files_, Path("sub")));
  EXPECT_TRUE(FolderExists(files_, Path("SUB\\")));
  EXPECT_TRUE(FolderExists(files_, "C:\\"));
  EXPECT_FALSE(FolderExists(files_, Path("sub\\a")));
  EXPECT_FALSE(FolderExists(files_, Path("none")));
  EXPECT_FALSE(FolderExists(files_, ""));
}

TEST_F(FileOps, ListMatchingFilesByName) {
  for (const char* name : {"b.mp3", "A.MP3", "c.txt", ".d.mp3", "e|.mp3"}) folder_.Write(name, "x");
  fs::create_directory(folder_.Host() / "f.mp3");
  EXPECT_EQ(Matching("*.mp3"), (std::vector<std::string>{"A.MP3", "b.mp3"}));
  EXPECT_EQ(Matching("*.*"), (std::vector<std::string>{"A.MP3", "b.mp3", "c.txt"}));
  EXPECT_TRUE(Matching("none\\*.*").empty());
}

TEST_F(FileOps, DeleteOneFileOrAllThatMatch) {
  for (const char* name : {"a.m3u", "B.M3U", "c.txt", ".d.m3u"}) folder_.Write(name, "x");
  EXPECT_EQ(DeleteMatching(files_, Path("*.m3u")).Number(), 0);
  EXPECT_FALSE(folder_.Exists("a.m3u"));
  EXPECT_FALSE(folder_.Exists("B.M3U"));
  EXPECT_TRUE(folder_.Exists("c.txt"));
  EXPECT_TRUE(folder_.Exists(".d.m3u"));
  EXPECT_EQ(DeleteMatching(files_, Path("C.TXT")).Number(), 0);
  EXPECT_FALSE(folder_.Exists("c.txt"));
}

TEST_F(FileOps, DeleteNothingWithAnError) {
  fs::create_directory(folder_.Host() / "sub");
  folder_.Write(".hidden", "x");
  for (const char* name : {"*.m3u", "none", "none\\*.*", "none\\a", "sub", "sub\\", ".hidden"}) {
    EXPECT_EQ(DeleteMatching(files_, Path(name)).Number(), 53) << name;
  }
  EXPECT_TRUE(folder_.Exists("sub"));
}

TEST_F(FileOps, StopDeletingAtTheFirstThatCannotBe) {
  for (const char* name : {"a.m3u", "b.m3u", "c.m3u"}) folder_.Write(name, "x");
  Lock("b.m3u");
  EXPECT_EQ(DeleteMatching(files_, Path("*.m3u")).Number(), 75);
  EXPECT_FALSE(folder_.Exists("a.m3u"));
  EXPECT_TRUE(folder_.Exists("b.m3u"));
  EXPECT_TRUE(folder_.Exists("c.m3u"));
  files_.Protect(Path());
  EXPECT_EQ(DeleteMatching(files_, Path("c.m3u")).Number(), 70);
}

TEST_F(FileOps, CopyAFileWithItsTime) {
  folder_.Write("from", std::string(3'000'000, 'x'));
  folder_.Write("To", "old");
  {
    auto file = host_.Open(Path("from"), OpenMode::Append);
    EXPECT_EQ(file.Value()->SetModified(1'000'000'000).Number(), 0);
  }
  EXPECT_EQ(CopyOneFile(files_, Path("from"), Path("to")).Number(), 0);
  EXPECT_EQ(folder_.Read("To"), folder_.Read("from"));
  EXPECT_EQ(host_.Info(Path("To")).Value().Modified, 1'000'000'000);
  EXPECT_EQ(host_.List(Path()).Value().size(), 2U);
}

TEST_F(FileOps, CopyTellsWhatIsInTheWay) {
  folder_.Write("from", "x");
  folder_.Write("locked", "old");
  Lock("locked");
  fs::create_directory(folder_.Host() / "sub");
  EXPECT_EQ(CopyOneFile(files_, Path("none"), Path("to")).Number(), 53);
  EXPECT_EQ(CopyOneFile(files_, Path("none\\a"), Path("to")).Number(), 76);
  EXPECT_EQ(CopyOneFile(files_, Path("sub"), Path("to")).Number(), 75);
  EXPECT_EQ(CopyOneFile(files_, Path("from"), Path("sub")).Number(), 75);
  EXPECT_EQ(CopyOneFile(files_, Path("from"), Path("locked")).Number(), 75);
  EXPECT_EQ(CopyOneFile(files_, Path("from"), Path("none\\to")).Number(), 76);
  EXPECT_EQ(CopyOneFile(files_, Path("from"), Path("con")).Number(), 52);
  EXPECT_EQ(CopyOneFile(files_, Path("from"), Path("FROM")).Number(), 0) << "onto itself";
  EXPECT_EQ(folder_.Read("from"), "x");
  EXPECT_EQ(folder_.Read("locked"), "old");
  EXPECT_FALSE(folder_.Exists("to"));
}

TEST_F(FileOps, ReadWholeFiles) {
  for (const std::size_t size : {0U, 1U, 65535U, 65536U, 65537U, 200000U}) {
    folder_.Write("a", std::string(size, 'z'));
    EXPECT_EQ(ReadWhole(files_, Path("a")).Value(), std::string(size, 'z'));
  }
  EXPECT_EQ(ReadWhole(files_, Path("none")).Err().Number(), 53);
  files_.FailReadsAfter(Path("a"), 100'000, 57);
  EXPECT_EQ(ReadWhole(files_, Path("a")).Err().Number(), 57);
}

TEST_F(FileOps, ALinkToAReplacedFileGoesOnLeadingThere) {
  folder_.Write("elsewhere/real.ini", "old");
  fs::create_symlink("elsewhere/real.ini", folder_.Host() / "link.ini");
  fs::create_symlink("elsewhere/none.ini", folder_.Host() / "dead.ini");
  EXPECT_EQ(ReplaceWhole(files_, Path("LINK.ini"), "new").Number(), 0);
  EXPECT_TRUE(fs::is_symlink(folder_.Host() / "link.ini"));
  EXPECT_EQ(folder_.Read("elsewhere/real.ini"), "new");
  EXPECT_EQ(ReplaceWhole(files_, Path("dead.ini"), "new").Number(), 0);
  EXPECT_EQ(folder_.Read("dead.ini"), "new");
}

TEST_F(FileOps, SweepsTheLeftoversOfCopiesThatWereCutOffButNoOthers) {
  const std::string dead = NewTempName();
  const std::string atWork = NewTempName();
  folder_.Write(dead, "half a fi");
  folder_.Write("~short.kv5", "a user's own");
  fs::create_directory(folder_.Host() / NewTempName());
  const auto open = files_.Open(Path(atWork), OpenMode::New);
  ASSERT_TRUE(open);
  SweepLeftovers(files_, Path());
  EXPECT_FALSE(folder_.Exists(dead));
  EXPECT_TRUE(folder_.Exists(atWork));
  EXPECT_TRUE(folder_.Exists("~short.kv5"));
  EXPECT_EQ(files_.List(Path()).Value().size(), 3U);
  SweepLeftovers(files_, Path("none"));
}

TEST_F(FileOps, ReplaceWholeFiles) {
  EXPECT_EQ(ReplaceWhole(files_, Path("Config.cfg"), "one").Number(), 0);
  EXPECT_EQ(ReplaceWhole(files_, Path("CONFIG.CFG"), "two").Number(), 0);
  EXPECT_EQ(folder_.Read("Config.cfg"), "two");
  Lock("Config.cfg");
  EXPECT_EQ(ReplaceWhole(files_, Path("Config.cfg"), "three").Number(), 75);
  fs::create_directory(folder_.Host() / "sub");
  EXPECT_EQ(ReplaceWhole(files_, Path("sub"), "x").Number(), 75);
  EXPECT_EQ(ReplaceWhole(files_, Path("none\\a"), "x").Number(), 76);
  EXPECT_EQ(folder_.Read("Config.cfg"), "two");
  EXPECT_EQ(host_.List(Path()).Value().size(), 2U);
}

TEST_F(FileOps, ReplaceTellsAProtectedAndAFullVolume) {
  folder_.Write("a", "old");
  files_.Protect(Path());
  EXPECT_EQ(ReplaceWhole(files_, Path("a"), "new").Number(), 70);
  files_.Repair();
  files_.LimitRoom(Path(), 5);
  EXPECT_EQ(ReplaceWhole(files_, Path("a"), "12345").Number(), 61);
  EXPECT_EQ(folder_.Read("a"), "old");
  files_.Repair();
  files_.FailFlush(Path(), 57);
  EXPECT_EQ(ReplaceWhole(files_, Path("a"), "new").Number(), 57);
  EXPECT_EQ(folder_.Read("a"), "old");
  EXPECT_EQ(host_.List(Path()).Value().size(), 1U);
}

/// Lets each single operation of a change fail in turn, until the change meets no fault.
template <typename Change>
void ForEachFault(test::FaultyFileSystem& files, const std::string& prefix, Change change) {
  for (std::size_t index = 0;; ++index) {
    ASSERT_LT(index, 100U);
    files.FailOperation(prefix, index, errors::DeviceIo);
    const Error error = change();
    const std::string failed = files.FailedOperation();
    files.Repair();
    if (failed.empty()) {
      EXPECT_EQ(error.Number(), 0);
      return;
    }
    SCOPED_TRACE(failed + " " + std::to_string(index));
    if (testing::Test::HasFailure()) return;
  }
}

TEST_F(FileOps, ReplaceLeavesTheOldOrTheNewFileWhateverFails) {
  ForEachFault(files_, Path(), [this] {
    folder_.Write("a", "old");
    Error error = ReplaceWhole(files_, Path("a"), "brand new");
    EXPECT_EQ(folder_.Read("a"), error ? "old" : "brand new");
    EXPECT_EQ(host_.List(Path()).Value().size(), 1U) << files_.FailedOperation();
    return error;
  });
}

TEST_F(FileOps, CopyLeavesTheOldOrTheNewFileWhateverFails) {
  ForEachFault(files_, Path(), [this] {
    folder_.Write("from", "brand new");
    folder_.Write("to", "old");
    Error error = CopyOneFile(files_, Path("from"), Path("to"));
    EXPECT_EQ(folder_.Read("to"), error ? "old" : "brand new");
    EXPECT_EQ(host_.List(Path()).Value().size(), 2U) << files_.FailedOperation();
    return error;
  });
}

}  // namespace
}  // namespace kvr5
