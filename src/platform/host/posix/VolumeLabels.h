#pragma once

#include <filesystem>
#include <string>

#include "platform/host/posix/UdevDatabase.h"

namespace kvr5::host {

/// The labels of volumes.
///
/// udev's database has one for each volume. The links by label are known to more systems, but two
/// cards of the same label have one link between them.
class VolumeLabels {
 public:
  /// `links` is "/dev/disk/by-label".
  VolumeLabels(UdevDatabase udev, std::filesystem::path links)
      : udev_(std::move(udev)), links_(std::move(links)) {}

  /// The label of a device, which is known by its folder in sysfs; "" when it has none.
  std::string Of(const std::filesystem::path& device) const;

 private:
  std::string ByLink(const std::filesystem::path& deviceName) const;

  UdevDatabase udev_;
  std::filesystem::path links_;
};

}  // namespace kvr5::host
