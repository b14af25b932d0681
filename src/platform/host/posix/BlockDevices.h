#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <vector>

#include "platform/host/posix/MountTable.h"

namespace kvr5::host {

/// The kernel's tree of block devices (sysfs). A device is known by its folder there, with all
/// links resolved, such as ".../usb1/1-1/.../block/sdb/sdb1".
class BlockDevices {
 public:
  /// `sysFolder` is "/sys"; tests give a tree of their own.
  explicit BlockDevices(const std::filesystem::path& sysFolder);

  /// The device that a mounted volume stands on; nothing where there is none, or not one alone.
  std::optional<std::filesystem::path> DeviceOf(const MountEntry& entry) const;
  /// The whole disks beneath a device: through partitions, and through what is mapped onto others.
  std::set<std::filesystem::path> DisksOf(const std::filesystem::path& device) const;
  /// True for a disk that can be taken out: the kernel calls it removable, it hangs on USB, or it
  /// is an SD card (built-in readers and USB disks call themselves fixed). Never a floppy or a CD.
  bool IsRemovable(const std::filesystem::path& disk) const;
  /// The file that a loop device reads from; empty for any other device.
  static std::filesystem::path FileBehind(const std::filesystem::path& disk);
  /// The devices of the btrfs that `device` is a part of; of each one there is when it isn't known.
  std::vector<std::filesystem::path> BtrfsMembers(
      const std::optional<std::filesystem::path>& device) const;
  /// All disks, partitions and mapped devices.
  std::vector<std::filesystem::path> All() const;

 private:
  std::filesystem::path sys_;
};

}  // namespace kvr5::host
