#include <gtest/gtest.h>

#include "platform/Drives.h"

namespace kvr5 {
namespace {

class FakeVolumes : public VolumeSource {
 public:
  std::vector<Volume> Removable() const override { return Mounted; }
  std::optional<VolumeRoom> Room(const std::string& folder) const override {
    const auto found = Rooms.find(folder);
    return found == Rooms.end() ? std::nullopt : std::optional(found->second);
  }

  std::vector<Volume> Mounted;
  std::map<std::string, VolumeRoom> Rooms;
};

class DrivesOf : public testing::Test {
 protected:
  void Mount(const std::string& folder, const std::string& label = "", bool readOnly = false) {
    volumes_.Mounted.push_back({folder, label, "vfat", "sdb1"});
    volumes_.Rooms[folder] = {1000, 400, readOnly};
  }
  std::string Letters() {
    std::string letters;
    for (const Drive& drive : drives_.List()) letters += drive.Letter;
    return letters;
  }

  PathMap paths_;
  FakeVolumes volumes_;
  std::string ini_;
  Drives drives_{paths_, volumes_, [this] { return ini_; }};
};

TEST_F(DrivesOf, NoVolumeIsNone) {
  EXPECT_TRUE(drives_.List().empty());
}

TEST_F(DrivesOf, AMountedVolumeTellsAllAboutIt) {
  Mount("/media/anna/CARD", "My card", true);
  const std::vector<Drive> drives = drives_.List();
  ASSERT_EQ(drives.size(), 1U);
  EXPECT_EQ(drives[0].Letter, 'D');
  EXPECT_EQ(drives[0].Root(), "D:\\");
  EXPECT_EQ(drives[0].Label, "My card");
  EXPECT_EQ(drives[0].FileSystem, "vfat");
  EXPECT_EQ(drives[0].Mount, "/media/anna/CARD");
  EXPECT_EQ(drives[0].Device, "sdb1");
  EXPECT_EQ(drives[0].Size, 1000U);
  EXPECT_EQ(drives[0].Free, 400U);
  EXPECT_TRUE(drives[0].ReadOnly);
  EXPECT_TRUE(drives[0].HasMedium);
  EXPECT_EQ(paths_.ToHost("D:\\a.mp3"), "/media/anna/CARD/a.mp3");
}

TEST_F(DrivesOf, VolumesKeepTheirLettersForGood) {
  Mount("/media/a");
  Mount("/media/b");
  EXPECT_EQ(Letters(), "DE");
  volumes_.Mounted.erase(volumes_.Mounted.begin());
  EXPECT_EQ(Letters(), "E");
  Mount("/media/c");
  EXPECT_EQ(Letters(), "EF") << "D belongs to the one that was taken out";
  Mount("/media/a");
  EXPECT_EQ(Letters(), "DEF");
}

TEST_F(DrivesOf, TheIniFileWins) {
  Mount("/media/a", "CARD");
  Mount("/media/b");
  ini_ = "[Removable]\r\nM=/media/a\r\nD=/srv/card\r\n";
  volumes_.Rooms["/srv/card"] = {50, 20, false};
  const std::vector<Drive> drives = drives_.List();
  ASSERT_EQ(drives.size(), 3U);
  EXPECT_EQ(drives[0].Letter, 'D');
  EXPECT_EQ(drives[0].Mount, "/srv/card");
  EXPECT_EQ(drives[0].FileSystem, "");
  EXPECT_EQ(drives[0].Device, "");
  EXPECT_EQ(drives[0].Free, 20U);
  EXPECT_EQ(drives[1].Letter, 'E');
  EXPECT_EQ(drives[1].Mount, "/media/b");
  EXPECT_EQ(drives[2].Letter, 'M');
  EXPECT_EQ(drives[2].Label, "CARD") << "the volume is offered once, under its own letter";
}

TEST_F(DrivesOf, AnEntryWhoseFolderIsGoneHasNoMedium) {
  ini_ = "[Removable]\nE=/srv/card\n";
  const std::vector<Drive> drives = drives_.List();
  ASSERT_EQ(drives.size(), 1U);
  EXPECT_FALSE(drives[0].HasMedium);
}

TEST_F(DrivesOf, TheFolderThatACardLeavesBehindIsNoMedium) {
  ini_ = "[Removable]\nE=/mnt/reader\n";
  volumes_.Rooms["/mnt/reader"] = {.Size = 1000, .Free = 400, .OwnVolume = true};
  EXPECT_TRUE(drives_.List()[0].HasMedium);
  volumes_.Rooms["/mnt/reader"] = {.Size = 500000, .Free = 300000};
  const Drive out = drives_.List()[0];
  EXPECT_FALSE(out.HasMedium);
  EXPECT_EQ(out.Free, 0U) << "the room of the system's disk is none of the card's";
  volumes_.Rooms.clear();
  EXPECT_FALSE(drives_.List()[0].HasMedium);
  volumes_.Rooms["/mnt/reader"] = {.Size = 1000, .Free = 400, .OwnVolume = true};
  EXPECT_TRUE(drives_.List()[0].HasMedium) << "put back in";
}

TEST_F(DrivesOf, APlainFolderCountsAsLongAsItIsThere) {
  ini_ = "[Removable]\nE=/srv/card\nF=/mnt/reader\n";
  volumes_.Rooms["/srv/card"] = {.Size = 1000, .Free = 400};
  volumes_.Rooms["/mnt/reader"] = {.Size = 1000, .Free = 400, .OwnVolume = true};
  EXPECT_TRUE(drives_.List()[0].HasMedium);
  volumes_.Rooms["/mnt/reader"].OwnVolume = false;
  EXPECT_TRUE(drives_.List()[0].HasMedium) << "what is seen of one folder tells nothing of another";
  EXPECT_FALSE(drives_.List()[1].HasMedium);
  volumes_.Rooms.erase("/srv/card");
  EXPECT_FALSE(drives_.List()[0].HasMedium);
}

TEST_F(DrivesOf, AnEntryDoesNotTakeALetterAway) {
  Mount("/media/a");
  EXPECT_EQ(Letters(), "D");
  ini_ = "[Removable]\nD=/srv/card\n";
  volumes_.Rooms["/srv/card"] = {};
  const std::vector<Drive> drives = drives_.List();
  ASSERT_EQ(drives.size(), 1U);
  EXPECT_EQ(drives[0].Mount, "/media/a");
}

TEST_F(DrivesOf, AVolumeThatGetsAnEntryLaterIsOfferedOnce) {
  Mount("/media/a");
  EXPECT_EQ(Letters(), "D");
  ini_ = "[Removable]\nX=/media/a\n";
  EXPECT_EQ(Letters().size(), 1U);
}

TEST(RemovableFolders, ReadsItsSectionOnly) {
  const auto folders = RemovableFolders(
      "\xEF\xBB\xBF; a comment\n[Other]\nE=/no\n\n[REMOVABLE]\n f = /media/my card \r\n"
      ";G=/no\nH=C:\\media\\card\nnonsense\n[Other]\nI=/no");
  EXPECT_EQ(folders, (std::map<char, std::string>{{'F', "/media/my card"}, {'H', "/media/card"}}));
}

TEST(RemovableFolders, PassesOverWhatIsNoDrive) {
  EXPECT_TRUE(RemovableFolders("").empty());
  EXPECT_TRUE(RemovableFolders("[Removable]\nA=/a\nB=/b\nC=/c\n1=/d\nEE=/e\nF=\nG=relative\n"
                               "H=Q:\\unknown\n=/i")
                  .empty());
  EXPECT_EQ(RemovableFolders("[Removable]\ne=/small\nQQ=/x\n").at('E'), "/small");
  EXPECT_EQ(RemovableFolders("[Removable]\nE=/first\nE=/second").at('E'), "/first");
}

}  // namespace
}  // namespace kvr5
