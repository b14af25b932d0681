#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/FileSystem.h"
#include "platform/Path.h"

namespace kvr5 {

namespace host {
struct Place;
}

/// The attributes that a FAT volume keeps with a file or folder.
struct FatAttributes {
  bool Hidden = false;
  bool System = false;
  bool ReadOnly = false;
};

/// Asks the disk for the attributes of a file or folder, named by its path in the host's form and
/// the host's number of the device that it was found on; nothing where the volume keeps none.
using AttributeReader =
    std::function<std::optional<FatAttributes>(const std::string& hostPath, std::uint64_t device)>;

/// Asks the volume itself.
std::optional<FatAttributes> ReadFatAttributes(const std::string& hostPath, std::uint64_t device);

/// The real disk. Letters of removable volumes come from `paths`, which must outlive it.
///
/// A path that isn't absolute or that holds a name no path can hold is error 52; one on an unknown
/// drive 76; one on a removable drive whose folder is gone 71.
class HostFileSystem : public FileSystem {
 public:
  explicit HostFileSystem(const PathMap& paths, AttributeReader attributes = ReadFatAttributes)
      : paths_(paths), attributes_(std::move(attributes)) {}

  Result<FileInfo> Info(std::string_view path) const override;
  Result<std::vector<FileInfo>> List(std::string_view folder) const override;
  Result<std::unique_ptr<File>> Open(std::string_view path, OpenMode mode) override;
  Error Delete(std::string_view path) override;
  Error DeleteUnheld(std::string_view path) override;
  Result<std::shared_ptr<void>> Hold(std::string_view path) override;
  std::string BehindLink(std::string_view path) const override;
  Error CreateFolder(std::string_view path) override;
  Error DeleteFolder(std::string_view path) override;
  Error Rename(std::string_view from, std::string_view to) override;
  Error Replace(std::string_view from, std::string_view to) override;
  std::shared_ptr<void> HoldNames() override;
  Result<std::size_t> CopyRange(File& from, File& to, std::size_t size) override;
  Error FlushAll(std::span<File* const> files) override;
  Error SyncVolume(std::string_view path) override;
  Result<std::uint64_t> FreeSpace(std::string_view path) const override;
  Result<VolumeSpace> Space(std::string_view path) const override;
  bool SameFile(std::string_view a, std::string_view b) const override;
  std::string HostPath(std::string_view path) const override;
  Result<std::string> SystemPath(std::string_view given) const override;

 private:
  /// The path in the host's form as it is given, without a look at the disk.
  Result<std::string> Map(std::string_view path) const;
  /// Where the path leads on the disk, be it to nothing.
  Result<host::Place> Find(std::string_view path) const;
  /// The error for what the host answered about `path`; a missing one is 53, 76 or 71.
  Error Failure(std::string_view path, int code) const;
  Result<std::unique_ptr<File>> OpenToRead(std::string_view path) const;
  Result<std::unique_ptr<File>> OpenToMake(std::string_view path) const;
  /// `how` is what open(2) is told besides: to empty the file or to append to it.
  Result<std::unique_ptr<File>> OpenToWrite(std::string_view path, int how) const;

  const PathMap& paths_;
  AttributeReader attributes_;
};

}  // namespace kvr5
