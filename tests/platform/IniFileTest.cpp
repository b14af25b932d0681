#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/IniFile.h"
#include "support/MemoryFileSystem.h"

namespace kvr5 {
namespace {

using test::MemoryFileSystem;
using test::Operation;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kPath = "C:\\Card\\Config.cfg";
constexpr const char* kBefore = "[Main]\r\nKey=old\r\n";

class IniFileTest : public testing::Test {
 protected:
  IniFileTest() { files_.AddFile(kPath, kBefore); }

  void ExpectUntouched() {
    EXPECT_EQ(files_.Content(kPath), kBefore);
    EXPECT_EQ(files_.List("C:\\Card").Value().size(), 1U) << "a temporary file was left";
  }

  MemoryFileSystem files_;
  IniFile file_{files_, kPath, CodePage(1252)};
};

TEST_F(IniFileTest, ReadsAndWritesTextInThePageOfTheFile) {
  EXPECT_FALSE(file_.Write("Caffè", "Città", "€ è ж"));
  EXPECT_EQ(files_.Content(kPath), std::string(kBefore) + "[Caff\xE8]\r\nCitt\xE0=\x80 \xE8 ?\r\n");
  EXPECT_EQ(file_.Read("CAFFÈ", "CITTÀ", "", 100), "€ è ?");
}

TEST_F(IniFileTest, CountsCharactersAndNotBytes) {
  IniFile utf8(files_, "C:\\Card\\Settings.ini", CodePage(65001));
  EXPECT_FALSE(utf8.Write("Path", "Dir", "C:\\Ж日è"));
  EXPECT_EQ(files_.Content("C:\\Card\\Settings.ini"), "[Path]\r\nDir=C:\\Ж日è\r\n");
  EXPECT_EQ(utf8.Read("PATH", "dir", "", 6), "C:\\Ж日");
  EXPECT_EQ(utf8.Read("Path", "None", "日日日", 3), "日日");
}

TEST_F(IniFileTest, MakesTheFileThatIsMissing) {
  IniFile fresh(files_, "C:\\Card\\New.ini", CodePage(1252));
  EXPECT_EQ(fresh.Read("A", "B", "default", 100), "default");
  EXPECT_FALSE(files_.Exists("C:\\Card\\New.ini"));
  EXPECT_FALSE(fresh.Write("A", "B", "1"));
  EXPECT_EQ(files_.Content("C:\\Card\\New.ini"), "[A]\r\nB=1\r\n");
}

TEST_F(IniFileTest, SeesTheChangesOfOthers) {
  EXPECT_EQ(file_.Read("Main", "Key", "", 100), "old");
  files_.AddFile(kPath, "[Main]\nKey=theirs\nOther=1\n");
  EXPECT_EQ(file_.Read("Main", "Key", "", 100), "theirs");
  EXPECT_FALSE(file_.Write("Main", "Key", "ours"));
  EXPECT_EQ(files_.Content(kPath), "[Main]\nKey=ours\r\nOther=1\n");
}

TEST_F(IniFileTest, PutsTheNewFileOnTheDiskBeforeItTakesThePlaceOfTheOld) {
  EXPECT_FALSE(file_.Write("Main", "Key", "new"));
  EXPECT_THAT(files_.Calls(),
              ElementsAre(StartsWith("write C:\\Card\\~"), StartsWith("flush C:\\Card\\~"),
                          StartsWith("close C:\\Card\\~"),
                          AllOf(StartsWith("replace C:\\Card\\~"), EndsWith(kPath))));
}

TEST_F(IniFileTest, WritesNothingWhereNothingChanges) {
  EXPECT_FALSE(file_.Write("Main", "Key", "old"));
  EXPECT_THAT(files_.Calls(), IsEmpty());
}

TEST_F(IniFileTest, KeepsTheOldFileWhateverStepFails) {
  for (const auto& [operation, number] : {std::pair{Operation::Write, errors::DeviceIo},
                                          {Operation::Flush, errors::DiskFull},
                                          {Operation::Close, errors::DeviceIo},
                                          {Operation::Replace, errors::PathFileAccess}}) {
    files_.Fail("", number, operation);
    EXPECT_EQ(file_.Write("Main", "Key", "new").Number(), number);
    ExpectUntouched();
    files_.Fail("", 0, operation);
  }
  EXPECT_FALSE(file_.Write("Main", "Key", "new"));
}

/// A folder that an administrator set up: its files can be written, no new one can be made.
class LockedFolder : public MemoryFileSystem {
 public:
  Result<std::unique_ptr<File>> Open(std::string_view path, OpenMode mode) override {
    if (mode == OpenMode::New) return Error(errors::PathFileAccess);
    return MemoryFileSystem::Open(path, mode);
  }
};

TEST(IniFileInALockedFolder, IsWrittenInItsPlace) {
  LockedFolder files;
  files.AddFile(kPath, kBefore);
  IniFile file(files, kPath, CodePage(1252));
  EXPECT_EQ(file.Write("Main", "Key", "new").Number(), 0);
  EXPECT_EQ(files.Content(kPath), "[Main]\r\nKey=new\r\n");
  files.SetFreeSpace(10);
  EXPECT_EQ(file.Write("Main", "Key", "newer").Number(), errors::DiskFull);
  files.SetFreeSpace(1000);
  files.Fail("", errors::DeviceIo, Operation::Flush);
  EXPECT_EQ(file.Write("Main", "Key", "newer").Number(), errors::DeviceIo);
  EXPECT_EQ(files.Content(kPath), "[Main]\r\nKey=new\r\n") << "what was there is put back";
}

TEST(IniFileInALockedFolder, StaysReadOnlyWhereItIs) {
  LockedFolder files;
  files.AddFile(kPath, kBefore);
  files.SetAttributes(kPath, false, false, true);
  IniFile file(files, kPath, CodePage(1252));
  EXPECT_EQ(file.Write("Main", "Key", "new").Number(), errors::PathFileAccess);
  EXPECT_EQ(files.Content(kPath), kBefore);
}

TEST_F(IniFileTest, KeepsTheOldFileOnAFullDisk) {
  files_.SetFreeSpace(10);
  EXPECT_EQ(file_.Write("Main", "Key", "new").Number(), errors::DiskFull);
  ExpectUntouched();
}

TEST_F(IniFileTest, NeverWritesOverAFileThatItCannotRead) {
  files_.Fail(kPath, errors::DiskNotReady, Operation::Read);
  EXPECT_EQ(file_.Read("Main", "Key", "default", 100), "default");
  EXPECT_EQ(file_.Write("Main", "Key", "new").Number(), errors::DiskNotReady);
  ExpectUntouched();
  files_.Fail(kPath, errors::PermissionDenied, Operation::Open);
  EXPECT_EQ(file_.Write("Main", "Key", "new").Number(), errors::PermissionDenied);
  ExpectUntouched();
}

TEST_F(IniFileTest, ReportsAMissingFolder) {
  IniFile lost(files_, "C:\\No\\a.ini", CodePage(1252));
  EXPECT_EQ(lost.Read("A", "B", "default", 100), "default");
  EXPECT_EQ(lost.Write("A", "B", "1").Number(), errors::PathNotFound);
}

TEST_F(IniFileTest, ReadsFilesLongerThanItsBuffer) {
  std::string lines = "[M]\n";
  for (int i = 0; i < 40000; ++i) lines += "k" + std::to_string(i) + "=" + std::to_string(i) + "\n";
  files_.AddFile(kPath, lines);
  EXPECT_EQ(file_.Read("M", "k39999", "", 100), "39999");
  files_.AddFile(kPath, "[M]\nA=" + std::string(65536 - 6, 'x'));
  EXPECT_EQ(file_.Read("M", "A", "", 100000).size(), 65530U);
}

}  // namespace
}  // namespace kvr5
