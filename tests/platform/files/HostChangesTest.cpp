#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/HostFileSystem.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

class HostChanges : public testing::Test {
 protected:
  std::string Path(std::string_view name = {}) const { return folder_.System(name); }
  Error Write(std::string_view path, OpenMode mode, std::string_view bytes) {
    auto file = files_.Open(path, mode);
    if (!file) return file.Err();
    if (Error error = file.Value()->Write(bytes)) return error;
    return file.Value()->Close();
  }
  void Lock(const char* name) {
    fs::permissions(folder_.Host() / name, fs::perms::owner_write | fs::perms::group_write,
                    fs::perm_options::remove);
  }

  test::TempFolder folder_;
  PathMap paths_;
  HostFileSystem files_{paths_};
};

TEST_F(HostChanges, WritesReplacesAndAppends) {
  EXPECT_EQ(Write(Path("a.txt"), OpenMode::Write, "first").Number(), 0);
  EXPECT_EQ(Write(Path("a.txt"), OpenMode::Write, "2nd").Number(), 0);
  EXPECT_EQ(Write(Path("a.txt"), OpenMode::Append, "+more").Number(), 0);
  EXPECT_EQ(Write(Path("b.txt"), OpenMode::Append, "new").Number(), 0);
  EXPECT_EQ(folder_.Read("a.txt"), "2nd+more");
  EXPECT_EQ(folder_.Read("b.txt"), "new");
}

TEST_F(HostChanges, KeepsTheSpellingOfAFileThatIsOverwritten) {
  folder_.Write("Config.TXT", "old");
  EXPECT_EQ(Write(Path("config.txt"), OpenMode::Write, "new").Number(), 0);
  EXPECT_EQ(folder_.Read("Config.TXT"), "new");
  EXPECT_FALSE(folder_.Exists("config.txt"));
}

TEST_F(HostChanges, MakesANewFileOnlyWhereNoneIs) {
  EXPECT_EQ(Write(Path("a.txt"), OpenMode::New, "x").Number(), 0);
  EXPECT_EQ(Write(Path("a.txt"), OpenMode::New, "y").Number(), 58);
  EXPECT_EQ(Write(Path("none\\a.txt"), OpenMode::New, "y").Number(), 76);
  fs::create_directory(folder_.Host() / "Sub");
  EXPECT_EQ(Write(Path("sub\\a.txt"), OpenMode::New, "z").Number(), 0);
  EXPECT_EQ(folder_.Read("a.txt"), "x");
  EXPECT_EQ(folder_.Read("Sub/a.txt"), "z");
}

TEST_F(HostChanges, RefusesNewNamesThatACardCannotHold) {
  for (const char* name : {"a<b", "a\"b", "CON", "nul.txt", "a.", "a ", "a\x01"}) {
    EXPECT_EQ(Write(Path(name), OpenMode::Write, "x").Number(), 52) << name;
    EXPECT_EQ(Write(Path(name), OpenMode::New, "x").Number(), 52) << name;
    EXPECT_EQ(files_.CreateFolder(Path(name)).Number(), 52) << name;
  }
  folder_.Write("old", "x");
  EXPECT_EQ(files_.Rename(Path("old"), Path("lpt1")).Number(), 52);
  EXPECT_EQ(files_.Replace(Path("old"), Path("lpt1")).Number(), 52);
  folder_.Write("a<b", "x");
  EXPECT_EQ(Write(Path("a<b"), OpenMode::Write, "y").Number(), 0) << "this one is there already";
  EXPECT_EQ(Write(Path(std::string(255, 'x') + "y"), OpenMode::Write, "x").Number(), 52);
}

TEST_F(HostChanges, LeavesAProtectedFileAloneWhoeverAsks) {
  folder_.Write("a.txt", "old");
  Lock("a.txt");
  EXPECT_EQ(Write(Path("a.txt"), OpenMode::Write, "new").Number(), 75);
  EXPECT_EQ(Write(Path("a.txt"), OpenMode::Append, "new").Number(), 75);
  EXPECT_EQ(files_.Delete(Path("a.txt")).Number(), 75);
  EXPECT_EQ(folder_.Read("a.txt"), "old");
}

TEST_F(HostChanges, TakesAFolderForNoFile) {
  fs::create_directory(folder_.Host() / "sub.mp3");
  EXPECT_EQ(files_.Open(Path("sub.mp3"), OpenMode::Read).Err().Number(), 75);
  EXPECT_EQ(Write(Path("sub.mp3"), OpenMode::Write, "x").Number(), 75);
  EXPECT_EQ(files_.Delete(Path("sub.mp3")).Number(), 75);
  EXPECT_TRUE(folder_.Exists("sub.mp3"));
}

TEST_F(HostChanges, NeitherWaitsForAPipeNorReadsADevice) {
  mkfifo((folder_.Host() / "pipe").c_str(), 0600);
  EXPECT_EQ(files_.Open(Path("pipe"), OpenMode::Read).Err().Number(), 75);
  EXPECT_EQ(files_.Open(Path("pipe"), OpenMode::Write).Err().Number(), 75);
  EXPECT_EQ(files_.Open("C:\\dev\\zero", OpenMode::Read).Err().Number(), 75);
}

TEST_F(HostChanges, Deletes) {
  folder_.Write("A.txt", "x");
  EXPECT_EQ(files_.Delete(Path("a.TXT")).Number(), 0);
  EXPECT_FALSE(folder_.Exists("A.txt"));
  EXPECT_EQ(files_.Delete(Path("A.txt")).Number(), 53);
  EXPECT_EQ(files_.Delete(Path("none\\A.txt")).Number(), 76);
}

TEST_F(HostChanges, MakesFolders) {
  EXPECT_EQ(files_.CreateFolder(Path("Sub")).Number(), 0);
  EXPECT_TRUE(fs::is_directory(folder_.Host() / "Sub"));
  EXPECT_EQ(files_.CreateFolder(Path("sub")).Number(), 75);
  EXPECT_EQ(files_.CreateFolder(Path("a\\b")).Number(), 76);
  EXPECT_EQ(files_.CreateFolder(Path("SUB\\b\\")).Number(), 0);
  EXPECT_TRUE(fs::is_directory(folder_.Host() / "Sub/b"));
  EXPECT_EQ(files_.CreateFolder("C:\\").Number(), 75);
}

TEST_F(HostChanges, RenamesOntoNothingOnly) {
  folder_.Write("a", "A");
  folder_.Write("b", "B");
  EXPECT_EQ(files_.Rename(Path("a"), Path("B")).Number(), 58);
  EXPECT_EQ(files_.Rename(Path("a"), Path("b")).Number(), 58);
  EXPECT_EQ(files_.Rename(Path("none"), Path("c")).Number(), 53);
  EXPECT_EQ(files_.Rename(Path("a"), Path("none\\c")).Number(), 76);
  EXPECT_EQ(files_.Rename(Path("A"), Path("c")).Number(), 0);
  EXPECT_EQ(folder_.Read("c"), "A");
  EXPECT_EQ(folder_.Read("b"), "B");
  EXPECT_FALSE(folder_.Exists("a"));
}

TEST_F(HostChanges, RenamesToAnotherCase) {
  folder_.Write("song.mp3", "x");
  EXPECT_EQ(files_.Rename(Path("song.mp3"), Path("SONG.mp3")).Number(), 0);
  EXPECT_TRUE(folder_.Exists("SONG.mp3"));
  EXPECT_FALSE(folder_.Exists("song.mp3"));
  EXPECT_EQ(files_.CreateFolder(Path("sub")).Number(), 0);
  EXPECT_EQ(files_.Rename(Path("sub"), Path("Sub")).Number(), 0);
  EXPECT_TRUE(folder_.Exists("Sub"));
}

TEST_F(HostChanges, TakesAHardLinkForAnotherFile) {
  folder_.Write("a", "x");
  fs::create_hard_link(folder_.Host() / "a", folder_.Host() / "b");
  EXPECT_EQ(files_.Rename(Path("a"), Path("b")).Number(), 58);
}

TEST_F(HostChanges, ReplacesInOneStepUnderTheOldSpelling) {
  folder_.Write("new", "N");
  folder_.Write("Old.TXT", "O");
  EXPECT_EQ(files_.Replace(Path("new"), Path("old.txt")).Number(), 0);
  EXPECT_EQ(folder_.Read("Old.TXT"), "N");
  EXPECT_FALSE(folder_.Exists("new"));
  EXPECT_FALSE(folder_.Exists("old.txt"));
  EXPECT_EQ(files_.Replace(Path("none"), Path("old.txt")).Number(), 53);
}

TEST_F(HostChanges, PutsAFileWhereNoneWas) {
  folder_.Write("new", "N");
  EXPECT_EQ(files_.Replace(Path("new"), Path("Name.txt")).Number(), 0);
  EXPECT_EQ(folder_.Read("Name.txt"), "N");
  EXPECT_EQ(files_.Replace(Path("Name.txt"), Path("none\\x")).Number(), 76);
}

TEST_F(HostChanges, ReplacesAProtectedFileButNoFolder) {
  folder_.Write("new", "N");
  folder_.Write("old", "O");
  Lock("old");
  EXPECT_EQ(files_.Replace(Path("new"), Path("old")).Number(), 0);
  EXPECT_EQ(folder_.Read("old"), "N");
  EXPECT_FALSE(files_.Info(Path("old")).Value().ReadOnly);
  fs::create_directory(folder_.Host() / "sub");
  EXPECT_EQ(files_.Replace(Path("old"), Path("sub")).Number(), 75);
  EXPECT_EQ(folder_.Read("old"), "N");
}

TEST_F(HostChanges, LeavesWhoMayReadAReplacedFile) {
  folder_.Write("new", "N");
  folder_.Write("old", "O");
  fs::permissions(folder_.Host() / "old", fs::perms::owner_read | fs::perms::owner_write);
  ASSERT_EQ(files_.Replace(Path("new"), Path("old")).Number(), 0);
  EXPECT_EQ(fs::status(folder_.Host() / "old").permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(HostChanges, ReadsFromTheCurrentPlaceAndAtAnOffset) {
  folder_.Write("a", "0123456789");
  auto file = files_.Open(Path("a"), OpenMode::Read);
  ASSERT_TRUE(file);
  std::string buffer(4, '\0');
  EXPECT_EQ(file.Value()->Read(buffer).Value(), 4U);
  EXPECT_EQ(buffer, "0123");
  EXPECT_EQ(file.Value()->ReadAt(8, buffer).Value(), 2U);
  EXPECT_EQ(buffer.substr(0, 2), "89");
  EXPECT_EQ(file.Value()->Read(buffer).Value(), 4U);
  EXPECT_EQ(buffer, "4567");
  EXPECT_EQ(file.Value()->Read(buffer).Value(), 2U);
  EXPECT_EQ(file.Value()->Read(buffer).Value(), 0U);
  EXPECT_EQ(file.Value()->Size().Value(), 10U);
  EXPECT_EQ(file.Value()->Close().Number(), 0);
  EXPECT_EQ(file.Value()->Close().Number(), 0) << "a second close does nothing";
}

TEST_F(HostChanges, CopiesRangesFromPlaceToPlace) {
  folder_.Write("from", std::string(100'000, 'x') + "end");
  auto from = files_.Open(Path("from"), OpenMode::Read);
  auto to = files_.Open(Path("to"), OpenMode::New);
  ASSERT_TRUE(from && to);
  std::size_t pieces = 0;
  for (std::size_t copied = 1; copied > 0; ++pieces) {
    const auto result = files_.CopyRange(*from.Value(), *to.Value(), 4096);
    ASSERT_TRUE(result);
    copied = result.Value();
    EXPECT_LE(copied, 4096U);
  }
  EXPECT_GE(pieces, 25U);
  EXPECT_EQ(folder_.Read("to"), folder_.Read("from"));
}

TEST_F(HostChanges, CopiesRangesWhereTheKernelCannot) {
  folder_.Write("from", std::string(1'000'000, 'y') + "end");
  auto from = files_.Open(Path("from"), OpenMode::Read);
  auto to = files_.Open(Path("to"), OpenMode::Append);  // refused by both ways of the kernel
  ASSERT_TRUE(from && to);
  for (std::size_t copied = 1; copied > 0;) {
    copied = files_.CopyRange(*from.Value(), *to.Value(), 1 << 20U).Value();
  }
  EXPECT_EQ(folder_.Read("to"), folder_.Read("from"));
}

TEST_F(HostChanges, FlushesFilesAndVolumes) {
  auto a = files_.Open(Path("a"), OpenMode::New);
  auto b = files_.Open(Path("b"), OpenMode::New);
  ASSERT_TRUE(a && b);
  EXPECT_EQ(a.Value()->Write("a").Number(), 0);
  EXPECT_EQ(b.Value()->Write("b").Number(), 0);
  a.Value()->Settle(1);
  const std::vector<File*> both{a.Value().get(), b.Value().get()};
  EXPECT_EQ(files_.FlushAll(both).Number(), 0);
  EXPECT_EQ(files_.FlushAll({}).Number(), 0);
  EXPECT_EQ(a.Value()->Flush().Number(), 0);
  EXPECT_EQ(files_.SyncVolume(Path()).Number(), 0);
  EXPECT_EQ(files_.SyncVolume(Path("none")).Number(), 53);
}

TEST_F(HostChanges, SetsTheTimeOfChange) {
  auto file = files_.Open(Path("a"), OpenMode::New);
  ASSERT_TRUE(file);
  EXPECT_EQ(file.Value()->SetModified(1'000'000'000).Number(), 0);
  EXPECT_EQ(files_.Info(Path("a")).Value().Modified, 1'000'000'000);
}

}  // namespace
}  // namespace kvr5
