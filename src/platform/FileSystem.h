#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"
#include "platform/Path.h"

namespace kvr5 {

/// What a directory look-up tells of one file or folder.
struct FileInfo {
  /// The spelling of the disk, UTF-8, without a folder; U+FFFD in place of what isn't UTF-8.
  std::string Name;
  bool IsFolder = false;
  bool Hidden = false;     ///< FAT: the attribute; elsewhere: a name with a leading dot
  bool System = false;     ///< FAT: the attribute; elsewhere: a pipe, device or socket
  bool ReadOnly = false;   ///< FAT: the attribute; elsewhere: its owner can't write it
  bool IsLink = false;     ///< what the rest tells is of where it leads; only List tells of links
  std::uint64_t Size = 0;  ///< bytes; 0 for a folder
  std::int64_t Modified = 0;  ///< seconds since 1970-01-01 UTC
  /// Why no path can name it: shown, but never opened. Only List tells of such names.
  NameFault Unusable = NameFault::None;
};

/// How a file is opened.
enum class OpenMode {
  Read,    ///< must exist
  Write,   ///< made, or emptied if it is there
  Append,  ///< made, or added to at its end
  New,     ///< made; 58 when something of this very name is there
};

/// The bytes of a volume.
struct VolumeSpace {
  std::uint64_t Available = 0;  ///< free for this user
  std::uint64_t Total = 0;
  std::uint64_t Free = 0;  ///< free at all, with what is kept for the administrator
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
  /// Has the bytes before `end` written and waits for them, so that little is left for Flush. A
  /// hint that makes nothing sure; a failure is kept for Flush.
  virtual void Settle(std::uint64_t /*end*/) {}
  /// Has the host forget what it keeps of the content in memory, so that reading asks the device;
  /// what isn't on the device yet is kept. A hint.
  virtual void ForgetCached() {}
  /// Puts what was written onto the device. A failure of an earlier write-back is told again.
  virtual Error Flush() = 0;
  /// Sets the time of the last change, in seconds since 1970-01-01 UTC.
  virtual Error SetModified(std::int64_t /*seconds*/) { return {}; }
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
  /// Deletes a file unless a program that made it (OpenMode::New) still has it open: 70 then.
  virtual Error DeleteUnheld(std::string_view path) { return Delete(path); }
  /// Marks a file as in use by this program for as long as what is returned lives: 70 where another
  /// holds it. A volume that knows no such marks has it held by everyone.
  virtual Result<std::shared_ptr<void>> Hold(std::string_view /*path*/) {
    return std::shared_ptr<void>();
  }
  /// Where a link at `path` leads to, so that what it names can be replaced and the link stays;
  /// `path` itself where there is none.
  virtual std::string BehindLink(std::string_view path) const { return std::string(path); }
  /// Makes one folder; 75 when the name is taken, 76 when its parent isn't there.
  virtual Error CreateFolder(std::string_view path) = 0;
  /// Deletes an empty folder; 76 when it isn't there, 75 when it holds something or is no folder.
  virtual Error DeleteFolder(std::string_view /*path*/) { return Error(errors::PathFileAccess); }
  /// Renames; 58 when `to` exists, 53 when `from` doesn't.
  virtual Error Rename(std::string_view from, std::string_view to) = 0;
  /// Puts `from` in the place of `to` in one step, also where `to` is read-only; `to` keeps its
  /// spelling if it is there. 75 where `to` is a folder.
  virtual Error Replace(std::string_view from, std::string_view to) = 0;
  /// For a run of Replace into one folder: while what is returned lives, the folder need not be
  /// read anew for each. Names that others change meanwhile may be missed.
  virtual std::shared_ptr<void> HoldNames() { return {}; }
  /// Copies up to `size` bytes from the current place of one file to that of another in the
  /// host's quickest way; 0 means the end of the source. A failure leaves both places where the
  /// bytes that were copied end, so that the copy can go on from there.
  virtual Result<std::size_t> CopyRange(File& from, File& to, std::size_t size) = 0;
  /// Puts what was written to all these files onto the device, where the host can at the cost of
  /// one. After a failure each file's own Flush tells whether it got there.
  virtual Error FlushAll(std::span<File* const> files);
  /// Puts everything written to the volume of `path` onto the device.
  virtual Error SyncVolume(std::string_view path) = 0;
  /// Bytes free for this user on the volume of `path`.
  virtual Result<std::uint64_t> FreeSpace(std::string_view path) const = 0;
  /// All three figures of the volume of `path`; fails as FreeSpace does.
  virtual Result<VolumeSpace> Space(std::string_view path) const = 0;
  /// True when both exist and are the same file on the disk.
  virtual bool SameFile(std::string_view a, std::string_view b) const = 0;
  /// The path in the host's own form, with the spelling of the disk as far as it exists; a path of
  /// a drive that isn't known comes back as it is.
  virtual std::string HostPath(std::string_view path) const = 0;
  /// A path that a person or another program gave, in either form, in the system's form and with
  /// the spelling of the disk as far as it exists; a relative one starts at the working folder. A
  /// path on a drive that the host mounts comes back from "C:\", so that it can be kept; one on an
  /// unknown drive stays as it is. Fails with 52 on a name that holds `| : \ * ?` or isn't UTF-8.
  virtual Result<std::string> SystemPath(std::string_view given) const = 0;
};

}  // namespace kvr5
