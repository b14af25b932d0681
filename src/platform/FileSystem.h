#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"

namespace kvr5 {

/// What a directory look-up tells of one file or folder.
struct FileInfo {
  std::string Name;  ///< the spelling of the disk, UTF-8, without a folder
  bool IsFolder = false;
  bool Hidden = false;        ///< FAT: the attribute; elsewhere: a name with a leading dot
  bool System = false;        ///< FAT only
  bool ReadOnly = false;      ///< FAT: the attribute; elsewhere: its owner can't write it
  std::uint64_t Size = 0;     ///< bytes; 0 for a folder
  std::int64_t Modified = 0;  ///< seconds since 1970-01-01 UTC
};

/// How a file is opened.
enum class OpenMode {
  Read,    ///< must exist
  Write,   ///< made, or emptied if it is there
  Append,  ///< made, or added to at its end
};

/// An open file. Closing is the destructor's work where nobody asks for the outcome.
class File {
 public:
  virtual ~File() = default;
  /// Reads from the current place up to the buffer's length; fewer bytes mean the file's end.
  virtual Result<std::size_t> Read(std::span<char> buffer) = 0;
  /// Reads at `offset` without moving the current place.
  virtual Result<std::size_t> ReadAt(std::uint64_t offset, std::span<char> buffer) = 0;
  /// Writes all bytes or fails (61 on a full disk, 70 on a protected one).
  virtual Error Write(std::string_view bytes) = 0;
  /// Puts what was written onto the device.
  virtual Error Flush() = 0;
  /// Closes; the outcome counts after writing. A second call does nothing.
  virtual Error Close() = 0;
  /// Length in bytes.
  virtual Result<std::uint64_t> Size() = 0;
};

/// The host's files under the system's own paths ("C:\Music\a.mp3", see Path.h).
///
/// All paths are UTF-8 in the system's form. Names match without regard to case: first exactly,
/// then component by component. Doubled backslashes count as one. A new file takes the case that
/// is given; one that is overwritten keeps its spelling. Creating a file or folder whose name a
/// card can't hold (`< > : " / \ | ? *`, control characters, a trailing dot or blank, the reserved
/// device names) is error 52. The interface is what tests replace to have a device fail.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// One file or folder; 53 when it isn't there, 76 when its folder isn't.
  virtual Result<FileInfo> Info(std::string_view path) const = 0;
  /// All entries of a folder but "." and "..", by name without regard to case; 76 when it isn't
  /// there, 71 when the drive holds no medium.
  virtual Result<std::vector<FileInfo>> List(std::string_view folder) const = 0;
  /// 53 or 76 when it isn't there, 75 for a folder or a file that is read-only, 70 where the
  /// volume is write-protected.
  virtual Result<std::unique_ptr<File>> Open(std::string_view path, OpenMode mode) = 0;
  /// Deletes one file (no wildcard); 53 when it isn't there, 75 for a folder or a read-only file.
  virtual Error Delete(std::string_view path) = 0;
  /// Makes one folder; 75 when the name is taken, 76 when its parent isn't there.
  virtual Error CreateFolder(std::string_view path) = 0;
  /// Renames; 58 when `to` exists, 53 when `from` doesn't.
  virtual Error Rename(std::string_view from, std::string_view to) = 0;
  /// Puts `from` in the place of `to` in one step; `to` keeps its spelling if it is there.
  virtual Error Replace(std::string_view from, std::string_view to) = 0;
  /// Copies up to `size` bytes from the current place of one file to that of another in the
  /// host's quickest way; 0 means the end of the source.
  virtual Result<std::size_t> CopyRange(File& from, File& to, std::size_t size) = 0;
  /// Puts everything written to the volume of `path` onto the device.
  virtual Error SyncVolume(std::string_view path) = 0;
  /// Bytes free for this user on the volume of `path`.
  virtual Result<std::uint64_t> FreeSpace(std::string_view path) const = 0;
  /// True when both exist and are the same file on the disk.
  virtual bool SameFile(std::string_view a, std::string_view b) const = 0;
  /// The path in the host's own form, with the spelling of the disk as far as it exists.
  virtual std::string HostPath(std::string_view path) const = 0;
  /// A path that a person or another program gave, in either form, in the system's form and with
  /// the spelling of the disk as far as it exists; a relative one starts at the working folder.
  /// Fails with 52 on a name that holds `| : \ * ?` or isn't UTF-8.
  virtual Result<std::string> SystemPath(std::string_view given) const = 0;
};

}  // namespace kvr5
