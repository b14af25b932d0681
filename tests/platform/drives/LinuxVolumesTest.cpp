#include <gtest/gtest.h>

#include "platform/host/posix/LinuxVolumes.h"
#include "platform/host/posix/UdevDatabase.h"
#include "support/TempFolder.h"

namespace kvr5::host {
namespace {

namespace fs = std::filesystem;

/// A computer made of a small tree of devices and a mount table.
class LinuxVolumesOf : public testing::Test {
 protected:
  LinuxVolumesOf() { fs::create_directories(Sys() / "class/block"); }

  fs::path Sys() const { return folder_.Host() / "sys"; }
  static std::string DevicesOf(const std::string& bus) { return "devices/" + bus + "/block/"; }

  /// Makes a device known under its number and its name.
  void Register(const std::string& path, const std::string& number) {
    const fs::path device = Sys() / path;
    fs::create_directories(device);
    folder_.Write("sys/" + path + "/dev", number + "\n");
    fs::create_directories(Sys() / "dev/block");
    fs::create_directory_symlink(device, Sys() / "dev/block" / number);
    fs::create_directory_symlink(device, Sys() / "class/block" / device.filename());
  }
  /// A disk and its first partition, with the minor number of the disk plus one.
  void Disk(const std::string& bus, const std::string& name, int minor, const char* removable,
            const char* type = "0") {
    const std::string path = DevicesOf(bus) + name;
    const std::string partition =
        name + (name.starts_with("mmcblk") || name.starts_with("nvme") ? "p1" : "1");
    Register(path, "8:" + std::to_string(minor));
    folder_.Write("sys/" + path + "/removable", removable);
    folder_.Write("sys/" + path + "/device/type", std::string(type) + "\n");
    Register(path + "/" + partition, "8:" + std::to_string(minor + 1));
    folder_.Write("sys/" + path + "/" + partition + "/partition", "1\n");
  }
  void Mapped(const std::string& name, const std::string& number, const std::string& mapName,
              const std::string& slavePath) {
    const std::string path = "devices/virtual/block/" + name;
    Register(path, number);
    folder_.Write("sys/" + path + "/removable", "0\n");
    folder_.Write("sys/" + path + "/dm/name", mapName + "\n");
    fs::create_directories(Sys() / path / "slaves");
    fs::create_directory_symlink(Sys() / slavePath,
                                 Sys() / path / "slaves" / fs::path(slavePath).filename());
  }
  void Mount(const std::string& number, const std::string& mounted,
             const std::string& type = "vfat", const std::string& source = "/dev/x",
             const std::string& root = "/") {
    const std::string ids = mounted == "/" ? "1 0" : std::to_string(++mounts_) + " 1";
    table_ +=
        ids + " " + number + " " + root + " " + mounted + " rw - " + type + " " + source + " rw\n";
  }
  std::vector<Volume> Removable() {
    folder_.Write("mountinfo", table_);
    return LinuxVolumes({.MountTable = folder_.Host() / "mountinfo",
                         .Sys = Sys(),
                         .Udev = folder_.Host() / "udev",
                         .Labels = folder_.Host() / "labels"})
        .Removable();
  }
  std::vector<std::string> Mounts() {
    std::vector<std::string> mounts;
    for (const Volume& volume : Removable()) mounts.push_back(volume.Mount);
    return mounts;
  }

  static constexpr const char* kUsb = "pci0/0000:00:14.0/usb1/1-2/host6/target6:0:0/6:0:0:0";
  static constexpr const char* kSata = "pci0/ata1/host0/target0:0:0/0:0:0:0";
  static constexpr const char* kReader = "pci0/mmc_host/mmc0/mmc0:aaaa";

  test::TempFolder folder_;
  std::string table_;
  int mounts_ = 1;
};

using Names = std::vector<std::string>;

TEST_F(LinuxVolumesOf, AnOrdinaryComputerOffersTheStick) {
  Disk(kSata, "sda", 0, "0");
  Disk(kUsb, "sdb", 16, "1");
  Mount("8:1", "/", "ext4");
  Mount("8:17", "/media/anna/MY\\040CARD", "exfat");
  Mount("0:22", "/proc", "proc", "proc");
  fs::create_directories(folder_.Host() / "labels");
  fs::create_symlink("../../sdb1", folder_.Host() / "labels" / R"(MY\x20C\xc3\xa0RD)");
  const std::vector<Volume> volumes = Removable();
  ASSERT_EQ(volumes.size(), 1U);
  EXPECT_EQ(volumes[0].Mount, "/media/anna/MY CARD");
  EXPECT_EQ(volumes[0].FileSystem, "exfat");
  EXPECT_EQ(volumes[0].Label, "MY CàRD");
  EXPECT_EQ(volumes[0].Device, "sdb1");
}

TEST_F(LinuxVolumesOf, CardsOfOneLabelHaveItBoth) {
  Disk(kUsb, "sdb", 16, "1");
  Disk(kUsb, "sdc", 32, "1");
  Mount("8:17", "/media/anna/AUDIO");
  Mount("8:33", "/media/anna/AUDIO1");
  folder_.Write("udev/b8:17",
                "I:1\nE:ID_FS_LABEL=HALL_1\nE:ID_FS_LABEL_ENC=HALL\\x201\nG:systemd\n");
  folder_.Write("udev/b8:33", "E:ID_FS_LABEL_ENC=HALL\\x201");
  fs::create_directories(folder_.Host() / "labels");
  fs::create_symlink("../../sdc1", folder_.Host() / "labels" / R"(HALL\x201)");
  const std::vector<Volume> volumes = Removable();
  ASSERT_EQ(volumes.size(), 2U);
  EXPECT_EQ(volumes[0].Label, "HALL 1");
  EXPECT_EQ(volumes[1].Label, "HALL 1");
}

TEST_F(LinuxVolumesOf, WhereUdevKnowsNoLabelTheLinkTells) {
  Disk(kUsb, "sdb", 16, "1");
  Mount("0:50", "/media/anna/AUDIO", "fuse.exfat", "/dev/sdb1");
  folder_.Write("udev/b8:17", "E:ID_FS_TYPE=exfat\nE:XID_FS_LABEL_ENC=NO\n");
  folder_.Write("udev/b8:16", "E:ID_FS_LABEL_ENC=NO\n");
  EXPECT_EQ(Removable().at(0).Label, "");
  fs::create_directories(folder_.Host() / "labels");
  fs::create_symlink("../../sdb", folder_.Host() / "labels" / "NO");
  fs::create_symlink("../../sdb1", folder_.Host() / "labels" / "YES");
  EXPECT_EQ(Removable().at(0).Label, "YES");
}

TEST(DecodedUdevText, IsWhatTheVolumeCallsItself) {
  EXPECT_EQ(DecodedUdevText(""), "");
  EXPECT_EQ(DecodedUdevText(R"(A\x20B\x2fC)"), "A B/C");
  EXPECT_EQ(DecodedUdevText(R"(caff\xc3\xa8 è)"), "caffè è");
  EXPECT_EQ(DecodedUdevText(R"(\x5cx41)"), R"(\x41)");
  EXPECT_EQ(DecodedUdevText(R"(a\x2\xzz\x)"), R"(a\x2\xzz\x)");
  EXPECT_EQ(DecodedUdevText(R"(CITT\xb7\x0a\x1b)"), "CITT\uFFFD\uFFFD\uFFFD") << "no UTF-8";
}

TEST_F(LinuxVolumesOf, UsbDisksAndBuiltInReadersThatCallThemselvesFixedAreOffered) {
  Disk(kSata, "sda", 0, "0");
  Disk(kUsb, "sdb", 16, "0");
  Disk(kReader, "mmcblk0", 32, "0", "SD");
  Mount("8:1", "/", "ext4");
  Mount("8:17", "/mnt/usb");
  Mount("8:33", "/mnt/sd");
  EXPECT_EQ(Mounts(), (Names{"/mnt/usb", "/mnt/sd"}));
}

TEST_F(LinuxVolumesOf, FixedDisksAndSolderedMemoryAreNotOffered) {
  Disk(kSata, "sda", 0, "0");
  Disk(kReader, "mmcblk0", 32, "0", "MMC");
  Mount("8:1", "/mnt/disk");
  Mount("8:33", "/mnt/emmc");
  EXPECT_TRUE(Mounts().empty());
}

TEST_F(LinuxVolumesOf, AVolumeWithoutPartitionsIsOffered) {
  Disk(kUsb, "sdb", 16, "1");
  Mount("8:16", "/media/whole");
  EXPECT_EQ(Mounts(), (Names{"/media/whole"}));
}

TEST_F(LinuxVolumesOf, TheDiskThatTheSystemRunsFromIsNeverOffered) {
  Disk(kUsb, "sdb", 16, "1");
  Register(DevicesOf(kUsb) + "sdb/sdb2", "8:18");
  folder_.Write("sys/" + DevicesOf(kUsb) + "sdb/sdb2/partition", "2\n");
  Mount("8:17", "/", "ext4");
  Mount("8:18", "/media/anna/data");
  EXPECT_TRUE(Mounts().empty()) << "neither the root nor what lies beside it";
}

TEST_F(LinuxVolumesOf, TheDiskBeneathAnEncryptedSystemIsNeverOffered) {
  Disk(kUsb, "sdb", 16, "1");
  Register(DevicesOf(kUsb) + "sdb/sdb2", "8:18");
  folder_.Write("sys/" + DevicesOf(kUsb) + "sdb/sdb2/partition", "2\n");
  Mapped("dm-0", "253:0", "luks", DevicesOf(kUsb) + "sdb/sdb1");
  Mapped("dm-1", "253:1", "vg-root", "devices/virtual/block/dm-0");
  Mount("253:1", "/", "ext4", "/dev/mapper/vg-root");
  Mount("8:18", "/media/anna/data");
  EXPECT_TRUE(Mounts().empty());
}

TEST_F(LinuxVolumesOf, ASystemWithoutADeviceNumberIsFoundByItsSource) {
  Disk(kUsb, "sdb", 16, "1");
  Disk(kUsb, "sdc", 32, "1");
  Mapped("dm-0", "253:0", "crypt", DevicesOf(kUsb) + "sdc/sdc1");
  Mount("0:31", "/", "btrfs", "/dev/sdb1", "/@");
  Mount("0:32", "/home", "btrfs", "/dev/mapper/crypt", "/@home");
  Mount("8:16", "/media/a");
  Mount("8:32", "/media/b");
  EXPECT_TRUE(Mounts().empty());
}

TEST_F(LinuxVolumesOf, ADiskThatHoldsAnotherFolderOfTheSystemIsNotOffered) {
  Disk(kUsb, "sdb", 16, "1");
  Disk(kUsb, "sdc", 32, "1");
  Mount("0:20", "/", "overlay", "overlay");
  Mount("8:17", "/run/live/medium", "vfat");
  Mount("8:16", "/media/again", "vfat");
  Mount("8:33", "/media/card", "vfat");
  EXPECT_EQ(Mounts(), (Names{"/media/card"}));
}

TEST_F(LinuxVolumesOf, CdsFloppiesAndPicturesOfThemAreNotOffered) {
  Disk(kUsb, "sr0", 16, "1", "5");
  Disk("platform/floppy", "fd0", 32, "1");
  Disk(kUsb, "sdc", 48, "1");
  Disk(kUsb, "sdd", 64, "1", "5");
  Mount("8:16", "/media/cd", "udf");
  Mount("8:32", "/media/floppy");
  Mount("8:49", "/media/iso", "iso9660");
  Mount("8:65", "/media/dvdram");
  EXPECT_TRUE(Mounts().empty());
}

TEST_F(LinuxVolumesOf, EncryptedVolumesAreNotOffered) {
  Disk(kUsb, "sdb", 16, "1");
  Mapped("dm-0", "253:0", "luks", DevicesOf(kUsb) + "sdb/sdb1");
  Mount("253:0", "/media/secret", "ext4");
  EXPECT_TRUE(Mounts().empty());
}

TEST_F(LinuxVolumesOf, AVolumeIsOfferedOnceAndWhole) {
  Disk(kUsb, "sdb", 16, "1");
  Disk(kUsb, "sdc", 32, "1");
  Mount("8:17", "/media/first");
  Mount("8:17", "/media/second");
  Mount("8:33", "/media/part", "vfat", "/dev/sdc1", "/sub");
  EXPECT_EQ(Mounts(), (Names{"/media/first"}));
}

TEST_F(LinuxVolumesOf, UserSpaceDriversAreFoundByTheirSource) {
  Disk(kUsb, "sdb", 16, "1");
  Mount("0:50", "/media/card", "fuse.exfat", "/dev/sdb1");
  EXPECT_EQ(Mounts(), (Names{"/media/card"}));
}

TEST_F(LinuxVolumesOf, WhatIsNotKnownIsNotOffered) {
  Mount("8:17", "/media/a");
  Mount("0:50", "/media/b", "fuse.sshfs", "anna@host:");
  Mount("0:51", "/media/c", "nfs", "host:/music");
  Register(DevicesOf(kUsb) + "sdb", "8:32");  // tells nothing of itself
  Mount("8:32", "/media/d");
  EXPECT_TRUE(Mounts().empty());
}

TEST_F(LinuxVolumesOf, ATreeThatItselfLiesBelowAUsbFolderMakesNothingRemovable) {
  Disk(kSata, "sda", 0, "0");
  fs::rename(Sys(), folder_.Host() / "usb");
  fs::create_directory_symlink(folder_.Host() / "usb", Sys());
  Mount("8:1", "/mnt/disk");
  EXPECT_TRUE(Mounts().empty());
}

TEST_F(LinuxVolumesOf, NoTreeAndNoTableIsNoVolume) {
  EXPECT_TRUE(LinuxVolumes({.MountTable = folder_.Host() / "none",
                            .Sys = folder_.Host() / "none",
                            .Udev = folder_.Host() / "none",
                            .Labels = folder_.Host() / "none"})
                  .Removable()
                  .empty());
}

TEST(LinuxVolumes, TellsTheRoomOfAFolder) {
  const test::TempFolder folder;
  const auto room = LinuxVolumes().Room(folder.Host().string());
  ASSERT_TRUE(room);
  EXPECT_GT(room->Size, room->Free);
  EXPECT_FALSE(room->ReadOnly);
  EXPECT_FALSE(LinuxVolumes().Room((folder.Host() / "none").string()));
}

TEST(LinuxVolumes, TellsTheRootOfAVolumeFromAFolderOfOne) {
  const test::TempFolder folder;
  EXPECT_FALSE(LinuxVolumes().Room(folder.Host().string())->OwnVolume);
  EXPECT_TRUE(LinuxVolumes().Room("/proc")->OwnVolume);
  EXPECT_FALSE(LinuxVolumes().Room("/proc/self")->OwnVolume);
  fs::create_directory_symlink("/proc", folder.Host() / "link");
  EXPECT_TRUE(LinuxVolumes().Room((folder.Host() / "link").string())->OwnVolume);
}

TEST(LinuxVolumes, NeverOffersTheRootOfThisComputer) {
  for (const Volume& volume : HostVolumes()->Removable()) EXPECT_NE(volume.Mount, "/");
}

}  // namespace
}  // namespace kvr5::host
