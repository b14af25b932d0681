#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/HostFileSystem.h"
#include "support/TempFolder.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

class HostLookup : public testing::Test {
 protected:
  std::string Path(std::string_view name = {}) const { return folder_.System(name); }
  std::vector<std::string> Names(std::string_view name = {}) const {
    std::vector<std::string> names;
    const auto list = files_.List(Path(name));
    EXPECT_TRUE(list);
    if (list) {
      for (const FileInfo& info : list.Value()) names.push_back(info.Name);
    }
    return names;
  }

  test::TempFolder folder_;
  PathMap paths_;
  HostFileSystem files_{paths_};
};

TEST_F(HostLookup, TellsSizeTimeAndKind) {
  folder_.Write("a.mp3", "12345");
  fs::create_directory(folder_.Host() / "sub");
  fs::last_write_time(folder_.Host() / "a.mp3",
                      fs::file_time_type::clock::from_sys(
                          std::chrono::sys_seconds{std::chrono::seconds{1'234'567'890}}));
  const FileInfo file = files_.Info(Path("a.mp3")).Value();
  EXPECT_EQ(file.Name, "a.mp3");
  EXPECT_EQ(file.Size, 5U);
  EXPECT_EQ(file.Modified, 1'234'567'890);
  EXPECT_FALSE(file.IsFolder || file.Hidden || file.System || file.ReadOnly);
  EXPECT_TRUE(files_.Info(Path("sub")).Value().IsFolder);
  EXPECT_EQ(files_.Info(Path("sub")).Value().Size, 0U);
  EXPECT_TRUE(files_.Info("C:\\").Value().IsFolder);
}

TEST_F(HostLookup, TakesTheFlagsFromTheNameAndTheOwnersRights) {
  folder_.Write(".dot", "x");
  folder_.Write("locked", "x");
  fs::permissions(folder_.Host() / "locked", fs::perms::owner_read);
  mkfifo((folder_.Host() / "pipe").c_str(), 0600);
  EXPECT_TRUE(files_.Info(Path(".dot")).Value().Hidden);
  EXPECT_TRUE(files_.Info(Path("locked")).Value().ReadOnly);
  EXPECT_TRUE(files_.Info(Path("pipe")).Value().System);
}

TEST_F(HostLookup, TakesTheFlagsFromTheVolumeWhereItKeepsSome) {
  folder_.Write(".dot", "x");
  folder_.Write("a.txt", "x");
  const HostFileSystem files(paths_, [](const std::string& hostPath, std::uint64_t /*device*/) {
    const bool isA = hostPath.ends_with("/a.txt");
    return FatAttributes{.Hidden = isA, .System = isA, .ReadOnly = isA};
  });
  const FileInfo flagged = files.Info(Path("a.txt")).Value();
  EXPECT_TRUE(flagged.Hidden && flagged.System && flagged.ReadOnly);
  EXPECT_FALSE(files.Info(Path(".dot")).Value().Hidden);
  const auto list = files.List(Path()).Value();
  ASSERT_EQ(list.size(), 2U);
  EXPECT_FALSE(list[0].Hidden);
  EXPECT_TRUE(list[1].Hidden && list[1].System && list[1].ReadOnly);
}

TEST_F(HostLookup, ReadsNoAttributesWhereTheVolumeKeepsNone) {
  folder_.Write("a", "x");
  struct stat found {};
  ASSERT_EQ(stat((folder_.Host() / "a").c_str(), &found), 0);
  EXPECT_FALSE(ReadFatAttributes((folder_.Host() / "a").string(), found.st_dev));
  EXPECT_FALSE(ReadFatAttributes((folder_.Host() / "none").string(), found.st_dev));
}

TEST_F(HostLookup, TellsAMissingFileFromAMissingFolder) {
  folder_.Write("file", "x");
  EXPECT_EQ(files_.Info(Path("none")).Err().Number(), 53);
  EXPECT_EQ(files_.Info(Path("none\\none")).Err().Number(), 76);
  EXPECT_EQ(files_.Info(Path("file\\none")).Err().Number(), 76);
  EXPECT_EQ(files_.List(Path("none")).Err().Number(), 76);
  EXPECT_EQ(files_.List(Path("none\\none")).Err().Number(), 76);
  EXPECT_EQ(files_.List(Path("file")).Err().Number(), 76);
  EXPECT_EQ(files_.Open(Path("none"), OpenMode::Read).Err().Number(), 53);
  EXPECT_EQ(files_.Open(Path("none\\none"), OpenMode::Read).Err().Number(), 76);
}

TEST_F(HostLookup, RefusesPathsThatAreNone) {
  for (const char* path : {"", "a.mp3", "\\a.mp3", "/etc", "C:\\a*", "C:\\a?\\b", "C:\\a:b",
                           "C:\\a|b", "C:\\etc/passwd", "C:\\\xFF"}) {
    EXPECT_EQ(files_.Info(path).Err().Number(), 52) << path;
    EXPECT_EQ(files_.List(path).Err().Number(), 52) << path;
    EXPECT_EQ(files_.Open(path, OpenMode::Read).Err().Number(), 52) << path;
    EXPECT_EQ(files_.Open(path, OpenMode::Write).Err().Number(), 52) << path;
    EXPECT_EQ(files_.Delete(path).Number(), 52) << path;
    EXPECT_EQ(files_.CreateFolder(path).Number(), 52) << path;
  }
}

TEST_F(HostLookup, KnowsNoDriveThatWasNotBound) {
  EXPECT_EQ(files_.Info("Q:\\a").Err().Number(), 76);
  EXPECT_EQ(files_.List("Q:\\").Err().Number(), 76);
  EXPECT_EQ(files_.HostPath("Q:\\a.mp3"), "Q:\\a.mp3");
  EXPECT_EQ(files_.SystemPath("Q:\\a.mp3").Value(), "Q:\\a.mp3");
}

TEST_F(HostLookup, TellsADriveWithoutAMedium) {
  fs::create_directory(folder_.Host() / "card");
  ASSERT_TRUE(paths_.Bind('E', (folder_.Host() / "card").string()));
  EXPECT_TRUE(files_.List("E:\\"));
  fs::remove(folder_.Host() / "card");
  EXPECT_EQ(files_.List("E:\\").Err().Number(), 71);
  EXPECT_EQ(files_.Info("E:\\a.mp3").Err().Number(), 71);
  EXPECT_EQ(files_.Open("E:\\\\test.txt", OpenMode::Write).Err().Number(), 71);
  EXPECT_EQ(files_.CreateFolder("E:\\").Number(), 71) << "never made on the disk beneath";
  EXPECT_FALSE(fs::exists(folder_.Host() / "card"));
}

TEST_F(HostLookup, NeverTakesAnotherVolumeForAMissingOne) {
  folder_.Write("CARD/a.mp3", "x");
  ASSERT_TRUE(paths_.Bind('E', (folder_.Host() / "card").string()));
  EXPECT_EQ(files_.Info("E:\\a.mp3").Err().Number(), 71);
  EXPECT_EQ(files_.Open("E:\\a.mp3", OpenMode::Read).Err().Number(), 71);
  EXPECT_EQ(files_.Open("E:\\b.mp3", OpenMode::Write).Err().Number(), 71);
  EXPECT_EQ(files_.Open("E:\\b.mp3", OpenMode::New).Err().Number(), 71);
  EXPECT_EQ(files_.Delete("E:\\a.mp3").Number(), 71);
  EXPECT_EQ(files_.CreateFolder("E:\\sub").Number(), 71);
  EXPECT_EQ(files_.HostPath("E:\\a.mp3"), (folder_.Host() / "card/a.mp3").string());
}

TEST_F(HostLookup, FindsNamesInAnyCase) {
  folder_.Write("Musica/Città/Brano.MP3", "x");
  EXPECT_EQ(files_.Info(Path("MUSICA\\CITTÀ\\brano.mp3")).Value().Name, "Brano.MP3");
  EXPECT_TRUE(files_.Open(Path("musica\\città\\BRANO.mp3"), OpenMode::Read));
  EXPECT_EQ(files_.List(Path("musica")).Value().size(), 1U);
  EXPECT_EQ(files_.HostPath(Path("musica\\città\\BRANO.mp3")),
            (folder_.Host() / "Musica/Città/Brano.MP3").string());
  EXPECT_EQ(files_.HostPath(Path("musica\\NEU\\x.MP3")),
            (folder_.Host() / "Musica/NEU/x.MP3").string());
}

TEST_F(HostLookup, ShowsALastNameThatNoPathCanHoldInItsHostFolder) {
  const std::string folder = Path("music");
  EXPECT_EQ(files_.HostPath(folder + "\\AC/DC.mp3"), (folder_.Host() / "music/AC/DC.mp3").string());
  EXPECT_EQ(files_.HostPath(folder + "\\AC/DC\\a.mp3"), folder + "\\AC/DC\\a.mp3");
}

TEST_F(HostLookup, PrefersTheExactNameThenTheFirstInOrder) {
  folder_.Write("a.txt", "small");
  folder_.Write("A.txt", "big");
  EXPECT_EQ(files_.Info(Path("a.txt")).Value().Size, 5U);
  EXPECT_EQ(files_.Info(Path("A.txt")).Value().Size, 3U);
  EXPECT_EQ(files_.Info(Path("a.TXT")).Value().Name, "A.txt");
}

TEST_F(HostLookup, ListsByNameWithoutRegardToCase) {
  for (const char* name : {"b.mp3", "A.mp3", "a1.mp3", "Z.mp3", "_.mp3", "ä.mp3"}) {
    folder_.Write(name, "x");
  }
  EXPECT_EQ(Names(),
            (std::vector<std::string>{"_.mp3", "A.mp3", "a1.mp3", "b.mp3", "Z.mp3", "ä.mp3"}));
}

TEST_F(HostLookup, FlagsNamesThatNoPathCanHold) {
  folder_.Write("a*b.mp3", "x");
  folder_.Write("\xE9.mp3", "x");
  folder_.Write("good.mp3", "x");
  const auto list = files_.List(Path()).Value();
  ASSERT_EQ(list.size(), 3U);
  EXPECT_EQ(list[0].Name, "a*b.mp3");
  EXPECT_EQ(list[0].Unusable, NameFault::Reserved);
  EXPECT_EQ(list[1].Unusable, NameFault::None);
  EXPECT_EQ(list[2].Name, "\uFFFD.mp3");
  EXPECT_EQ(list[2].Unusable, NameFault::NotUtf8);
}

TEST_F(HostLookup, PassesOverLinksToNowhereAndRoundLinks) {
  fs::create_symlink("nowhere", folder_.Host() / "dead");
  fs::create_symlink("round", folder_.Host() / "round");
  folder_.Write("a", "x");
  fs::create_symlink("a", folder_.Host() / "link");
  EXPECT_EQ(Names(), (std::vector<std::string>{"a", "link"}));
  EXPECT_EQ(files_.Info(Path("dead")).Err().Number(), 53);
  EXPECT_EQ(files_.Info(Path("round")).Err().Number(), 75);
  EXPECT_EQ(files_.Info(Path("link")).Value().Size, 1U);
}

TEST_F(HostLookup, HandlesLongNamesAndFullFolders) {
  const std::string longName(200, 'n');
  folder_.Write(longName, "x");
  EXPECT_EQ(files_.Info(Path(longName)).Value().Name, longName);
  EXPECT_EQ(files_.Info(Path(std::string(300, 'n'))).Err().Number(), 52);
  for (int i = 0; i < 5000; ++i) folder_.Write("many/File" + std::to_string(i), "");
  EXPECT_EQ(files_.List(Path("many")).Value().size(), 5000U);
  EXPECT_EQ(files_.Info(Path("many\\FILE4999")).Value().Name, "File4999");
}

TEST_F(HostLookup, KnowsTheSameFileByAnyPath) {
  folder_.Write("sub/a", "x");
  folder_.Write("b", "x");
  fs::create_hard_link(folder_.Host() / "b", folder_.Host() / "c");
  ASSERT_TRUE(paths_.Bind('E', (folder_.Host() / "sub").string()));
  EXPECT_TRUE(files_.SameFile(Path("sub\\a"), Path("SUB\\A")));
  EXPECT_TRUE(files_.SameFile(Path("sub\\a"), "E:\\a"));
  EXPECT_TRUE(files_.SameFile(Path("b"), Path("c")));
  EXPECT_FALSE(files_.SameFile(Path("b"), Path("sub\\a")));
  EXPECT_FALSE(files_.SameFile(Path("none"), Path("none")));
}

TEST_F(HostLookup, TellsTheRoomThatIsLeft) {
  const auto space = files_.FreeSpace(Path());
  ASSERT_TRUE(space);
  EXPECT_EQ(space.Value() % 512, 0U);
  EXPECT_GT(space.Value(), 0U);
  EXPECT_EQ(files_.FreeSpace(Path("none")).Err().Number(), 53);
}

TEST_F(HostLookup, TellsTheVolumesSpaceInItsThreeFigures) {
  const auto space = files_.Space(Path());
  ASSERT_TRUE(space);
  EXPECT_GT(space.Value().Available, 0U);
  EXPECT_LE(space.Value().Available, space.Value().Free);
  EXPECT_LT(space.Value().Free, space.Value().Total);
  EXPECT_EQ(files_.Space(Path("none")).Err().Number(), 53);
}

TEST_F(HostLookup, TakesPathsInBothForms) {
  folder_.Write("Musica/Brano.MP3", "x");
  const std::string expected = Path("Musica\\Brano.MP3");
  const std::string host = folder_.Host().string();
  EXPECT_EQ(files_.SystemPath(expected).Value(), expected);
  EXPECT_EQ(files_.SystemPath(Path("MUSICA\\\\brano.mp3")).Value(), expected);
  EXPECT_EQ(files_.SystemPath(host + "/musica/./BRANO.mp3").Value(), expected);
  EXPECT_EQ(files_.SystemPath("C:" + host + "/Musica/Brano.MP3").Value(), expected);
  EXPECT_EQ(files_.SystemPath(host + "/musica/New.mp3/").Value(), Path("Musica\\New.mp3"));
  EXPECT_EQ(files_.SystemPath("/").Value(), "C:\\");
}

TEST_F(HostLookup, StartsRelativePathsAtTheWorkingFolder) {
  folder_.Write("Sub/a.mp3", "x");
  const fs::path before = fs::current_path();
  fs::current_path(folder_.Host());
  EXPECT_EQ(files_.SystemPath("sub/A.MP3").Value(), Path("Sub\\a.mp3"));
  EXPECT_EQ(files_.SystemPath("sub\\A.MP3").Value(), Path("Sub\\a.mp3"));
  EXPECT_EQ(files_.SystemPath("./Sub/../x").Value(), Path("x"));
  EXPECT_EQ(files_.SystemPath(".").Value(), Path());
  fs::current_path(before);
  EXPECT_EQ(files_.SystemPath("\\etc").Value(), "C:\\etc");
}

TEST_F(HostLookup, RefusesToTakeUnusableNames) {
  folder_.Write("a*b.mp3", "x");
  for (const std::string& given :
       {std::string(), folder_.Host().string() + "/a*b.mp3", Path("a*b.mp3"), std::string("a?b"),
        std::string("C:a.mp3"), std::string("/\xFF")}) {
    EXPECT_EQ(files_.SystemPath(given).Err().Number(), 52) << given;
  }
}

TEST_F(HostLookup, KeepsPathsOnRemovableDrivesFromDriveC) {
  folder_.Write("card/Brano.mp3", "x");
  ASSERT_TRUE(paths_.Bind('E', (folder_.Host() / "card").string()));
  EXPECT_EQ(files_.SystemPath("E:\\brano.MP3").Value(), Path("card\\Brano.mp3"));
  EXPECT_EQ(files_.SystemPath("e:/brano.MP3").Value(), Path("card\\Brano.mp3"));
  EXPECT_EQ(files_.HostPath("E:\\brano.MP3"), (folder_.Host() / "card/Brano.mp3").string());
}

TEST_F(HostLookup, LeavesPathsOnOtherComputersAsTheyAre) {
  EXPECT_EQ(files_.SystemPath("\\\\server\\music\\a.mp3").Value(), "\\\\server\\music\\a.mp3");
  EXPECT_FALSE(files_.Info("\\\\server\\music\\a.mp3"));
}

}  // namespace
}  // namespace kvr5
