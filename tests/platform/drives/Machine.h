#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "platform/host/posix/LinuxVolumes.h"
#include "support/TempFolder.h"

namespace kvr5::test {

/// A computer as its kernel and udev describe it, read from a sample. Its lines:
///
///     device PATH NUMBER [FILE=CONTENT...]   a block device below /sys/devices; "slaves=" takes
///     names btrfs NAME...                          the members of one udev NUMBER PROPERTY=VALUE
///     an entry of udev's database label LINK NAME                        a link of
///     /dev/disk/by-label mount LINE                             a line of /proc/self/mountinfo
///     offered DEVICE|LABEL|TYPE|FOLDER       a volume that must be offered, in this order
///
/// Empty lines and those that start with "#" are for the reader.
class Machine {
 public:
  explicit Machine(const std::filesystem::path& sample);

  std::vector<Volume> Volumes() const;
  /// What must be offered, each in the form of the sample's lines.
  const std::vector<std::string>& Expected() const { return expected_; }

 private:
  void Read(const std::string& line);
  void AddDevice(std::istringstream& words);
  void AddMembers(std::istringstream& words);
  void Link(const std::filesystem::path& link, const std::filesystem::path& target) const;
  std::filesystem::path ByName(const std::string& device) const;

  TempFolder folder_;
  std::string mounts_;
  int members_ = 0;
  std::vector<std::string> expected_;
};

}  // namespace kvr5::test
