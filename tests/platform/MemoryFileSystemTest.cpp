#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/MemoryFileSystem.h"

namespace kvr5 {
namespace {

using test::MemoryFileSystem;
using test::Operation;
using testing::ElementsAre;

TEST(MemoryFileSystem, FindsNamesWithoutRegardToCaseAndKeepsTheirSpelling) {
  MemoryFileSystem files;
  files.AddFile("C:\\Música\\Città.txt", "x");
  const auto info = files.Info("c:\\\\MÚSICA\\CITTÀ.TXT");
  ASSERT_TRUE(info);
  EXPECT_EQ(info.Value().Name, "Città.txt");
  EXPECT_EQ(info.Value().Size, 1U);
  EXPECT_EQ(files.SystemPath("/MÚSICA/città.TXT").Value(), "C:\\Música\\Città.txt");
  EXPECT_EQ(files.HostPath("C:\\"), "/");
}

TEST(MemoryFileSystem, TellsAMissingFileFromAMissingFolder) {
  MemoryFileSystem files;
  EXPECT_EQ(files.Open("C:\\a.txt", OpenMode::Read).Err().Number(), errors::FileNotFound);
  EXPECT_EQ(files.Open("C:\\no\\a.txt", OpenMode::Read).Err().Number(), errors::PathNotFound);
  EXPECT_EQ(files.Open("C:\\no\\a.txt", OpenMode::Write).Err().Number(), errors::PathNotFound);
  EXPECT_EQ(files.Open("C:\\", OpenMode::Write).Err().Number(), errors::PathFileAccess);
  EXPECT_EQ(files.Open("C:\\com1.txt", OpenMode::Write).Err().Number(), errors::BadFileName);
}

TEST(MemoryFileSystem, WritesWhatTheSpaceHoldsAndThenFails) {
  MemoryFileSystem files;
  files.SetFreeSpace(3);
  const auto file = files.Open("C:\\a", OpenMode::Write);
  ASSERT_TRUE(file);
  EXPECT_EQ(file.Value()->Write("abcd").Number(), errors::DiskFull);
  EXPECT_EQ(files.Content("C:\\a"), "abc");
  EXPECT_FALSE(files.Delete("C:\\a"));
  EXPECT_EQ(files.FreeSpace("C:\\").Value(), 3U);
  EXPECT_EQ(files.Space("C:\\").Value().Available, 3U);
}

TEST(MemoryFileSystem, AppendsAndListsByName) {
  MemoryFileSystem files;
  files.AddFile("C:\\d\\b", "1");
  files.AddFile("C:\\d\\A", "2");
  files.AddFile(R"(C:\d\sub\c)", "3");
  const auto file = files.Open("C:\\d\\b", OpenMode::Append);
  ASSERT_TRUE(file);
  EXPECT_FALSE(file.Value()->Write("0"));
  EXPECT_EQ(files.Content("C:\\d\\B"), "10");
  std::vector<std::string> names;
  const auto infos = files.List("C:\\d");
  ASSERT_TRUE(infos);
  for (const FileInfo& info : infos.Value()) names.push_back(info.Name);
  EXPECT_THAT(names, ElementsAre("A", "b", "sub"));
  EXPECT_EQ(files.List("C:\\e").Err().Number(), errors::PathNotFound);
}

TEST(MemoryFileSystem, MovesAFolderWithAllInItAndRefusesATakenName) {
  MemoryFileSystem files;
  files.AddFile("C:\\d\\b", "1");
  files.AddFolder("C:\\e");
  EXPECT_EQ(files.Rename("C:\\d", "C:\\E").Number(), errors::FileExists);
  EXPECT_FALSE(files.Rename("C:\\d", "C:\\F"));
  EXPECT_EQ(files.Content("C:\\f\\B"), "1");
  EXPECT_FALSE(files.Exists("C:\\d"));
}

TEST(MemoryFileSystem, ReplacesKeepingTheSpellingOfTheOldFile) {
  MemoryFileSystem files;
  files.AddFile("C:\\Old.ini", "1");
  files.AddFile("C:\\new", "2");
  EXPECT_FALSE(files.Replace("C:\\new", "C:\\OLD.INI"));
  EXPECT_EQ(files.Info("C:\\old.ini").Value().Name, "Old.ini");
  EXPECT_EQ(files.Content("C:\\old.ini"), "2");
  EXPECT_FALSE(files.Exists("C:\\new"));
  EXPECT_THAT(files.Calls(), ElementsAre("replace C:\\new C:\\Old.ini"));
}

TEST(MemoryFileSystem, FailsWhereItIsToldTo) {
  MemoryFileSystem files;
  files.AddFile("C:\\a", "1");
  files.Fail("C:\\A", errors::DiskNotReady, Operation::Read);
  std::string buffer(4, ' ');
  const auto file = files.Open("C:\\a", OpenMode::Read);
  ASSERT_TRUE(file);
  EXPECT_EQ(file.Value()->Read(buffer).Err().Number(), errors::DiskNotReady);
  files.Fail("C:\\a", 0, Operation::Read);
  EXPECT_EQ(file.Value()->Read(buffer).Value(), 1U);
  files.Fail("C:\\a", errors::PermissionDenied);
  EXPECT_EQ(files.Delete("C:\\a").Number(), errors::PermissionDenied);
}

}  // namespace
}  // namespace kvr5
