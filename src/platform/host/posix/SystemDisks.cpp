#include "platform/host/posix/SystemDisks.h"

#include <algorithm>

namespace kvr5::host {

namespace fs = std::filesystem;

namespace {

bool IsLoop(const fs::path& disk) {
  return disk.filename().string().starts_with("loop");
}

/// True when `file` is `folder` or lies below it.
bool IsBelow(const fs::path& file, const fs::path& folder) {
  return std::ranges::mismatch(folder, file).in1 == folder.end();
}

/// The folders that an overlay is made of, by the options of its mount.
std::vector<fs::path> LayersOf(std::string_view options) {
  std::vector<fs::path> layers;
  while (!options.empty()) {
    std::string_view option = options.substr(0, options.find(','));
    options.remove_prefix(std::min(option.size() + 1, options.size()));
    if (!option.starts_with("lowerdir=") && !option.starts_with("upperdir=")) continue;
    option.remove_prefix(option.find('=') + 1);
    while (!option.empty()) {
      const std::string_view layer = option.substr(0, option.find(':'));
      option.remove_prefix(std::min(layer.size() + 1, option.size()));
      if (layer.starts_with('/')) layers.emplace_back(layer);
    }
  }
  return layers;
}

}  // namespace

SystemDisks::SystemDisks(const std::vector<MountEntry>& mounts, const BlockDevices& devices,
                         const UdevDatabase& udev)
    : mounts_(mounts), devices_(devices), udev_(udev) {
  const bool hasOwnDisk = std::ranges::any_of(mounts, [&](const MountEntry& entry) {
    return entry.Folder == "/" && !entry.Covered && devices.DeviceOf(entry);
  });
  for (const MountEntry& entry : mounts) {
    const auto device = devices.DeviceOf(entry);
    // A live system reads from pictures of a disk, wherever they are mounted.
    const bool mayBeLive = !hasOwnDisk && device && IsLoop(*device);
    if (IsSystemFolder(entry.Folder) || mayBeLive) AddWhatCarries(entry);
  }
}

void SystemDisks::AddWhatCarries(const MountEntry& entry) {
  if (!seen_.insert(&entry).second) return;
  const std::optional<fs::path> device = devices_.DeviceOf(entry);
  if (device) AddDisksOf(*device);
  if (entry.Type == "btrfs") {
    for (const fs::path& member : devices_.BtrfsMembers(device)) AddDisksOf(member);
  }
  if (entry.Type == "zfs") AddMembersOfZfs();
  if (entry.Type == "overlay") {
    for (const fs::path& layer : LayersOf(entry.Options)) AddMountOf(layer);
  }
}

void SystemDisks::AddDisksOf(const fs::path& device) {
  for (const fs::path& disk : devices_.DisksOf(device)) {
    disks_.insert(disk);
    const fs::path file = devices_.FileBehind(disk);
    if (!file.empty()) AddMountOf(file);
  }
}

/// What is mounted nearest above a file, all of it where one lies over another.
void SystemDisks::AddMountOf(const fs::path& file) {
  std::size_t nearest = 0;
  for (const MountEntry& entry : mounts_) {
    if (IsBelow(file, entry.Folder)) nearest = std::max(nearest, entry.Folder.size());
  }
  for (const MountEntry& entry : mounts_) {
    if (entry.Folder.size() == nearest && IsBelow(file, entry.Folder)) AddWhatCarries(entry);
  }
}

/// The kernel doesn't tell which disks a pool has.
void SystemDisks::AddMembersOfZfs() {
  for (const fs::path& device : devices_.All()) {
    if (udev_.Property(device, "ID_FS_TYPE") == "zfs_member") AddDisksOf(device);
  }
}

}  // namespace kvr5::host
