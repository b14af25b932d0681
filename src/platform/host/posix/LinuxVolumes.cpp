#include "platform/host/posix/LinuxVolumes.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "platform/host/posix/BlockDevices.h"
#include "platform/host/posix/MountTable.h"
#include "platform/host/posix/SystemDisks.h"
#include "platform/host/posix/UdevDatabase.h"
#include "platform/host/posix/VolumeLabels.h"

namespace kvr5 {

namespace fs = std::filesystem;

namespace host {
namespace {

std::string ContentOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

bool IsPicture(const std::string& type) {
  return type == "iso9660" || type == "udf" || type == "squashfs" || type == "erofs";
}

/// True for a device that lies on removable disks alone and on none of the system's. One that is
/// mapped onto others (encrypted, a part of a larger volume) is none a player reads.
bool MayBeCard(const fs::path& device, const BlockDevices& devices, const SystemDisks& ofSystem) {
  if (devices.BtrfsMembers(device).size() > 1) return false;
  const std::set<fs::path> disks = devices.DisksOf(device);
  const bool isPlain = disks.contains(device) || disks.contains(device.parent_path());
  return isPlain && std::ranges::all_of(disks, [&](const fs::path& disk) {
           return devices.IsRemovable(disk) && !ofSystem.Contains(disk);
         });
}

/// True when a folder is the root of a volume, as far as its parent tells.
bool IsRootOfVolume(const std::string& folder) {
  struct stat own {};
  struct stat parent {};
  return ::stat(folder.c_str(), &own) == 0 && ::stat((folder + "/..").c_str(), &parent) == 0 &&
         own.st_dev != parent.st_dev;
}

}  // namespace

std::vector<Volume> LinuxVolumes::Removable() const {
  const std::vector<MountEntry> mounts = ParseMountTable(ContentOf(places_.MountTable));
  const BlockDevices devices(places_.Sys);
  const UdevDatabase udev(places_.Udev);
  const SystemDisks ofSystem(mounts, devices, udev);
  const VolumeLabels labels(udev, places_.Labels);
  std::vector<Volume> volumes;
  std::set<fs::path> offered;
  for (const MountEntry& entry : mounts) {
    if (entry.Root != "/" || entry.Covered || IsPicture(entry.Type)) continue;
    const std::optional<fs::path> device = devices.DeviceOf(entry);
    if (!device || offered.contains(*device) || !MayBeCard(*device, devices, ofSystem)) continue;
    offered.insert(*device);
    volumes.push_back({.Mount = entry.Folder,
                       .Label = labels.Of(*device),
                       .FileSystem = entry.Type,
                       .Device = device->filename().string()});
  }
  return volumes;
}

std::optional<VolumeRoom> LinuxVolumes::Room(const std::string& folder) const {
  struct statvfs volume {};
  std::error_code ignored;
  if (!fs::is_directory(folder, ignored)) return std::nullopt;
  if (::statvfs(folder.c_str(), &volume) != 0) return std::nullopt;
  return VolumeRoom{.Size = static_cast<std::uint64_t>(volume.f_blocks) * volume.f_frsize,
                    .Free = static_cast<std::uint64_t>(volume.f_bavail) * volume.f_frsize,
                    .ReadOnly = (volume.f_flag & ST_RDONLY) != 0,
                    .OwnVolume = IsRootOfVolume(folder)};
}

}  // namespace host

std::unique_ptr<VolumeSource> HostVolumes() {
  return std::make_unique<host::LinuxVolumes>();
}

}  // namespace kvr5
