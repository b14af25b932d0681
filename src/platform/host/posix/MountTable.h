#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kvr5::host {

/// A line of the mount table.
struct MountEntry {
  unsigned Major = 0;  ///< the device; 0 for volumes that stand on none, or on several
  unsigned Minor = 0;
  std::string Root;    ///< which folder of the volume is mounted; "/" for all of it
  std::string Folder;  ///< where
  std::string Type;    ///< "ext4", "vfat", "fuseblk"
  std::string Source;  ///< the device's file, or any text
};

/// Reads the text of /proc/self/mountinfo (proc(5)). A volume that another one was mounted over is
/// left out, and so are lines that can't be read.
std::vector<MountEntry> ParseMountTable(std::string_view text);

/// True for a folder that the running system lives in, such as "/", "/boot/efi" or "/home".
bool IsSystemFolder(std::string_view mountFolder);

}  // namespace kvr5::host
