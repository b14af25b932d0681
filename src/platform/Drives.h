#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Path.h"

namespace kvr5 {

/// A removable drive, offered as a card.
struct Drive {
  char Letter = '\0';      ///< 'D' to 'Z', the same for the life of the process
  std::string Label;       ///< UTF-8; "" when the volume has none
  std::string FileSystem;  ///< as the host calls it ("vfat", "exfat"); "" for a plain folder
  std::string Mount;       ///< the folder in the host's form
  std::string Device;      ///< the block device as sysfs calls it ("sdb1"); "" for a plain folder
  std::uint64_t Size = 0;  ///< bytes
  std::uint64_t Free = 0;  ///< bytes free for this user
  bool ReadOnly = false;
  /// False for an entry of Drives.ini whose folder isn't there, or is but the empty place where a
  /// card was mounted.
  bool HasMedium = true;

  /// The drive's root in the system's form, such as "D:\".
  std::string Root() const { return std::string(1, Letter) + ":\\"; }
  bool operator==(const Drive&) const = default;
};

/// A removable volume that the host has mounted.
struct Volume {
  std::string Mount;
  std::string Label;
  std::string FileSystem;
  std::string Device = {};  ///< the block device as sysfs calls it, such as "sdb1"
};

/// Room under a folder.
struct VolumeRoom {
  std::uint64_t Size = 0;  ///< bytes
  std::uint64_t Free = 0;  ///< bytes free for this user
  bool ReadOnly = false;
  bool OwnVolume = false;  ///< the folder is the root of a volume, not a folder of its parent's one
};

/// What the host tells of its volumes.
class VolumeSource {
 public:
  virtual ~VolumeSource() = default;
  /// The mounted volumes that may be taken for a card; in doubt a volume is none of them.
  virtual std::vector<Volume> Removable() const = 0;
  /// The room under a folder of the host; nothing when it isn't there.
  virtual std::optional<VolumeRoom> Room(const std::string& folder) const = 0;
};

/// The volumes of this computer.
std::unique_ptr<VolumeSource> HostVolumes();

/// The entries of section [Removable] of a Drives.ini: folders of the host by their letter, 'D' to
/// 'Z'. Entries that name no letter or no absolute folder, in either form, or the root of all,
/// which must never be taken for a card, are passed over.
std::map<char, std::string> RemovableFolders(std::string_view iniText);

/// The removable drives, looked up afresh at each call.
class Drives {
 public:
  /// `iniText` gives the content of Drives.ini (UTF-8), or "" when there is none. All must outlive
  /// the object.
  Drives(PathMap& paths, const VolumeSource& volumes, std::function<std::string()> iniText)
      : paths_(paths), volumes_(volumes), iniText_(std::move(iniText)) {}

  /// All drives by letter. An entry of Drives.ini wins over a volume mounted at the same folder;
  /// one whose letter already stands for another folder is left out. A folder of Drives.ini that
  /// was once seen as the root of a volume has a medium only while it is: without the card it is an
  /// empty folder of the system's disk.
  std::vector<Drive> List();

 private:
  /// The room of a folder of Drives.ini; nothing while the card that belongs there is out.
  std::optional<VolumeRoom> RoomOfEntry(const std::string& folder);

  PathMap& paths_;
  const VolumeSource& volumes_;
  std::function<std::string()> iniText_;
  std::set<std::string> seenAsVolumes_;  ///< folders of Drives.ini
};

}  // namespace kvr5
