#include "platform/host/posix/BlockDevices.h"

#include <algorithm>
#include <fstream>

namespace kvr5::host {

namespace fs = std::filesystem;

namespace {

/// The first line of a small file; "" when it can't be read.
std::string LineOf(const fs::path& file) {
  std::ifstream in(file);
  std::string line;
  std::getline(in, line);
  return line;
}

std::optional<fs::path> Resolved(const fs::path& link) {
  std::error_code failed;
  fs::path folder = fs::canonical(link, failed);
  if (failed) return std::nullopt;
  return folder;
}

/// The entries of a folder; none when it can't be read.
std::vector<fs::path> EntriesOf(const fs::path& folder) {
  std::vector<fs::path> entries;
  std::error_code failed;
  for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
    entries.push_back(it->path());
  }
  return entries;
}

bool Exists(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

/// Where the links of a folder lead to.
std::vector<fs::path> TargetsIn(const fs::path& folder) {
  std::vector<fs::path> targets;
  for (const fs::path& link : EntriesOf(folder)) {
    if (auto target = Resolved(link)) targets.push_back(std::move(*target));
  }
  return targets;
}

constexpr std::string_view kScsiOptical = "5";

}  // namespace

BlockDevices::BlockDevices(const fs::path& sysFolder)
    : sys_(Resolved(sysFolder).value_or(sysFolder)) {}

std::optional<fs::path> BlockDevices::DeviceOf(const MountEntry& entry) const {
  if (entry.Major != 0) {
    const std::string number = std::to_string(entry.Major) + ":" + std::to_string(entry.Minor);
    return Resolved(sys_ / "dev" / "block" / number);
  }
  const fs::path source = entry.Source;  // btrfs and some processes tell no number
  if (source.parent_path() == "/dev") {
    return Resolved(sys_ / "class" / "block" / source.filename());
  }
  if (source.parent_path() != "/dev/mapper") return std::nullopt;
  for (const fs::path& device : All()) {
    if (LineOf(device / "dm" / "name") == source.filename()) return device;
  }
  return std::nullopt;
}

std::set<fs::path> BlockDevices::DisksOf(const fs::path& device) const {
  std::set<fs::path> disks;
  for (const fs::path& beneath : TargetsIn(device / "slaves")) disks.merge(DisksOf(beneath));
  if (disks.empty()) disks.insert(Exists(device / "partition") ? device.parent_path() : device);
  return disks;
}

bool BlockDevices::IsRemovable(const fs::path& disk) const {
  const std::string name = disk.filename().string();
  const std::string type = LineOf(disk / "device" / "type");
  if (name.starts_with("fd") || name.starts_with("sr") || type == kScsiOptical) return false;
  const std::string removable = LineOf(disk / "removable");
  if (removable.empty()) return false;
  const std::string inTree = disk.string().substr(sys_.string().size());
  return removable == "1" || type == "SD" || inTree.find("/usb") != std::string::npos;
}

fs::path BlockDevices::FileBehind(const fs::path& disk) {
  return LineOf(disk / "loop" / "backing_file");
}

std::vector<fs::path> BlockDevices::BtrfsMembers(const std::optional<fs::path>& device) const {
  std::vector<fs::path> members;
  for (const fs::path& volume : EntriesOf(sys_ / "fs" / "btrfs")) {
    const std::vector<fs::path> own = TargetsIn(volume / "devices");
    if (device && std::ranges::find(own, *device) == own.end()) continue;
    members.insert(members.end(), own.begin(), own.end());
  }
  return members;
}

std::vector<fs::path> BlockDevices::All() const {
  return TargetsIn(sys_ / "class" / "block");
}

}  // namespace kvr5::host
