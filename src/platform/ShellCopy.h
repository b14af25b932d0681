#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5 {

/// One source and where it goes. A source whose last component holds `*` or `?` takes every file
/// that matches (with `*.*` also the subfolders), and the destination is a folder; so is a
/// destination that ends in a backslash; any other is the file's new name. A source that names a
/// folder takes it with all that is in it. Folders that the destination lacks are made; with
/// subfolders the links of the host are left out, since they may lead anywhere, and so are names
/// that no card can hold (told by the outcome).
struct CopyPair {
  std::string Source;
  std::string Destination;
};

/// How far a copy has come.
struct CopyState {
  std::string File;            ///< system path of the source at work; while counting, a folder
  std::size_t FileNumber = 0;  ///< from 1; 0 while the files of folders are counted
  std::size_t FileCount = 0;
  std::uint64_t BytesDone = 0;
  std::uint64_t BytesTotal = 0;
  bool Stoppable = true;  ///< a cancel is heeded
};

/// A failure that ended a copy.
struct CopyFailure {
  std::string File;  ///< system path of the file at fault
  /// The fault is at the source (missing, unreadable), not at the destination.
  bool Source = false;
  Error Cause;
};

/// Who watches a copy: the copy window, the progress line of the terminal, a test.
class CopyObserver {
 public:
  virtual ~CopyObserver() = default;
  /// Called before the first and after the last of all other calls of one operation.
  virtual void Begin() {}
  virtual void End() {}
  /// Called for each folder that is counted, before each file and after each piece of at most
  /// 1 MiB; lets events run. False cancels.
  virtual bool Progress(const CopyState& state) = 0;
  /// Called once for the failure that ends the operation; returns when it was acknowledged.
  virtual void Failed(const CopyFailure& failure) = 0;
};

/// What a copy came to.
struct CopyOutcome {
  int Result = 0;               ///< 0, 1223 for a cancel, or the failure's number
  std::size_t FilesCopied = 0;  ///< under their good names
  std::uint64_t BytesCopied = 0;
  /// Files and folders of a whole tree that were left out for their names, which no card can hold
  /// or no path can say; as their folders list them, the first hundred.
  std::vector<std::string> LeftOut{};
};

/// Copies pairs one after another, overwriting without a question, read-only files too. A copy has
/// its source's time of change.
///
/// A file is written under a temporary name beside its place, flushed, then renamed, in batches;
/// so a cancel, a full card or one pulled out leaves no half file under a good name. Where the
/// volume has no room for old and new together the old file goes first. Source and destination
/// the same file: passed over. A wildcard that matches nothing is silent and no failure; a plain
/// source that is missing is failure 53. A failure or a cancel ends the operation; what was copied
/// stays. When the call returns the data is on the device.
CopyOutcome ShellCopy(FileSystem& files, const std::vector<CopyPair>& pairs,
                      CopyObserver& observer);

}  // namespace kvr5
