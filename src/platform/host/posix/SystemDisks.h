#pragma once

#include <filesystem>
#include <set>
#include <vector>

#include "platform/host/posix/BlockDevices.h"
#include "platform/host/posix/MountTable.h"
#include "platform/host/posix/UdevDatabase.h"

namespace kvr5::host {

/// The disks that the running system stands on.
///
/// They are found through partitions and mapped devices, through the file that a loop device reads
/// from, through the folders that a live system lays over each other, and through all members of a
/// btrfs or ZFS that has several.
class SystemDisks {
 public:
  SystemDisks(const std::vector<MountEntry>& mounts, const BlockDevices& devices,
              const UdevDatabase& udev);

  bool Contains(const std::filesystem::path& disk) const { return disks_.contains(disk); }

 private:
  void AddWhatCarries(const MountEntry& entry);
  void AddDisksOf(const std::filesystem::path& device);
  void AddMountOf(const std::filesystem::path& file);
  void AddMembersOfZfs();

  const std::vector<MountEntry>& mounts_;
  const BlockDevices& devices_;
  const UdevDatabase& udev_;
  std::set<std::filesystem::path> disks_;
  std::set<const MountEntry*> seen_;
};

}  // namespace kvr5::host
