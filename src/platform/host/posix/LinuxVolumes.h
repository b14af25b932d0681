#pragma once

#include <filesystem>
#include <functional>

#include "platform/Drives.h"

namespace kvr5::host {

/// The removable volumes by the mount table and sysfs.
///
/// Never offered: a disk that "/" or another folder of the running system stands on, in whole or
/// in part; what only a part of a volume is mounted of; what another volume is mounted over; CDs
/// and floppies; what isn't known well enough to tell.
class LinuxVolumes : public VolumeSource {
 public:
  /// Where the system tells about its volumes.
  struct Places {
    std::filesystem::path MountTable = "/proc/self/mountinfo";
    std::filesystem::path Sys = "/sys";
    std::filesystem::path Udev = "/run/udev/data";
    std::filesystem::path Labels = "/dev/disk/by-label";
  };

  LinuxVolumes() = default;
  explicit LinuxVolumes(Places places) : places_(std::move(places)) {}

  std::vector<Volume> Removable() const override;
  std::optional<VolumeRoom> Room(const std::string& folder) const override;

 private:
  Places places_;
};

}  // namespace kvr5::host
