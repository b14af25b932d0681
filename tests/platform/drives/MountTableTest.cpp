#include <gtest/gtest.h>

#include "platform/host/posix/MountTable.h"

namespace kvr5::host {
namespace {

TEST(ParseMountTable, ReadsDeviceFolderTypeAndSource) {
  const auto entries = ParseMountTable(
      "27 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw,discard\n"
      "98 27 8:17 /sub /media/anna/CARD ro,nosuid master:1 propagate_from:2 - vfat /dev/sdb1 rw\n"
      "99 27 0:45 / /mnt/x rw - fuse.sshfs anna@host: rw\n");
  ASSERT_EQ(entries.size(), 3U);
  EXPECT_EQ(entries[0].Folder, "/");
  EXPECT_EQ(entries[0].Options, "rw,discard");
  EXPECT_EQ(entries[1].Id, 98U);
  EXPECT_EQ(entries[1].Parent, 27U);
  EXPECT_EQ(entries[0].Major, 254U);
  EXPECT_EQ(entries[1].Minor, 17U);
  EXPECT_EQ(entries[1].Root, "/sub");
  EXPECT_EQ(entries[1].Folder, "/media/anna/CARD");
  EXPECT_EQ(entries[1].Type, "vfat");
  EXPECT_EQ(entries[1].Source, "/dev/sdb1");
  EXPECT_EQ(entries[2].Type, "fuse.sshfs");
}

TEST(ParseMountTable, TakesOptionalFieldsForWhatTheyAre) {
  const auto entries = ParseMountTable("36 35 98:0 / /mnt rw - ext3 /dev/root rw");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].Source, "/dev/root");
}

TEST(ParseMountTable, DecodesOctalSigns) {
  const auto entries =
      ParseMountTable("1 2 8:17 / /media/My\\040card\\134x\\011y\\04 rw - vfat /dev/sdb1 rw\n");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].Folder, "/media/My card\\x\ty\\04");
}

/// The folders that a path still leads to.
std::vector<std::string> Open(std::string_view text) {
  std::vector<std::string> sources;
  for (const MountEntry& entry : ParseMountTable(text)) {
    if (!entry.Covered) sources.push_back(entry.Source);
  }
  return sources;
}

using Sources = std::vector<std::string>;

TEST(ParseMountTable, TellsWhatWasMountedOver) {
  EXPECT_EQ(Open("1 9 8:17 / /media/a rw - vfat /dev/sdb1 rw\n"
                 "2 9 8:33 / /media/b rw - vfat /dev/sdc1 rw\n"
                 "3 1 8:49 / /media/a rw - vfat /dev/sdd1 rw\n"),
            (Sources{"/dev/sdc1", "/dev/sdd1"}));
}

TEST(ParseMountTable, TellsWhatLiesBelowAFolderThatWasMountedOver) {
  EXPECT_EQ(Open("2 1 0:5 / /dev rw - devtmpfs dev rw\n"
                 "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                 "3 1 8:17 / /m/a rw - vfat /dev/sdb1 rw\n"
                 "4 3 8:33 / /m/a/b rw - vfat /dev/sdc1 rw\n"
                 "5 1 0:9 / /m rw - tmpfs over rw\n"
                 "6 5 8:49 / /m/a rw - vfat /dev/sdd1 rw\n"
                 "7 1 8:65 / /ma rw - vfat /dev/sde1 rw\n"),
            (Sources{"dev", "/dev/sda1", "over", "/dev/sdd1", "/dev/sde1"}));
}

TEST(ParseMountTable, PassesOverBrokenLines) {
  for (const char* text : {"", "\n\n", "x", "1 2 8:17", "1 2 8x17 / /a rw - vfat /dev/sdb1 rw",
                           "1 2 8:17 / /a rw vfat", "1 2 : / /a rw - vfat /dev/sdb1 rw",
                           "1 2 8:17 / a rw - vfat /dev/sdb1 rw"}) {
    EXPECT_TRUE(ParseMountTable(text).empty()) << text;
  }
}

TEST(IsSystemFolder, KnowsWhereTheSystemLives) {
  for (const char* folder :
       {"/", "/boot", "/boot/efi", "/usr", "/var/lib/docker", "/home", "/home/anna",
        "/run/live/medium", "/cdrom", "/efi", "/run/archiso/bootmnt", "/live/boot-dev",
        "/lib/live/mount/medium", "/etc/hosts", "/run"}) {
    EXPECT_TRUE(IsSystemFolder(folder)) << folder;
  }
  for (const char* folder : {"/media/anna/CARD", "/run/media/anna/CARD", "/mnt", "/mnt/card",
                             "/home/anna/card", "/bootcard", "/srv/card"}) {
    EXPECT_FALSE(IsSystemFolder(folder)) << folder;
  }
}

}  // namespace
}  // namespace kvr5::host
