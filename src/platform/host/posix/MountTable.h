#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kvr5::host {

/// A line of the mount table.
struct MountEntry {
  unsigned Id = 0;
  unsigned Parent = 0;  ///< the mount that this one's folder belongs to
  unsigned Major = 0;   ///< the device; 0 for volumes that stand on none, or on several
  unsigned Minor = 0;
  std::string Root;      ///< which folder of the volume is mounted; "/" for all of it
  std::string Folder;    ///< where
  std::string Type;      ///< "ext4", "vfat", "fuseblk"
  std::string Source;    ///< the device's file, or any text
  std::string Options;   ///< of the volume, such as "rw,lowerdir=/a:/b"
  bool Covered = false;  ///< another volume was mounted over this one, here or at a folder above
};

/// Reads the text of /proc/self/mountinfo (proc(5)). Lines that can't be read are left out.
std::vector<MountEntry> ParseMountTable(std::string_view text);

/// True for a folder that the running system lives in, such as "/", "/boot/efi" or "/home".
bool IsSystemFolder(std::string_view mountFolder);

}  // namespace kvr5::host
