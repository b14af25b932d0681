#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellCopy.h"

namespace kvr5 {

/// Files that were written under passing names and wait for a common flush and their good names.
///
/// A flush costs a device about as much for many files as for one. The batch is bounded in files
/// (each is open until then) and in bytes (the old files are still there beside the new).
class CopyBatch {
 public:
  explicit CopyBatch(FileSystem& files) : files_(files) {}
  /// Removes the files that didn't get their good names.
  ~CopyBatch();
  CopyBatch(const CopyBatch&) = delete;
  CopyBatch& operator=(const CopyBatch&) = delete;

  /// Starts the current file: what goes to `target`, under a passing name beside it.
  Error Begin(const std::string& target);
  /// The file that was begun.
  File& Current() { return *current_->Content; }
  /// Tells that bytes were added to the current file. Waits where the device is too far behind, so
  /// that progress is the device's and the flush is short.
  void Added(std::size_t bytes);
  /// The current file is complete and waits with the others.
  void Finish();
  /// Removes the current file, if there is one.
  void Abandon();

  bool IsEmpty() const { return complete_.empty(); }
  bool IsFull() const;
  /// True when `path` is to be replaced by a file that waits.
  bool Awaits(std::string_view path) const;
  /// Flushes the complete files and gives them their good names, in their order. The first failure
  /// ends it: the files behind it are removed.
  std::optional<CopyFailure> Commit();

  std::size_t FilesCopied() const { return filesCopied_; }
  std::uint64_t BytesCopied() const { return bytesCopied_; }

 private:
  struct Entry {
    std::string Temp;
    std::string Target;
    std::unique_ptr<File> Content;
    std::uint64_t Size = 0;
    std::uint64_t Settled = 0;  ///< bytes from the start that the device has taken
  };

  void Remove(Entry& entry);
  /// Settles up to `bytes` more of one file.
  void Settle(Entry& entry, std::uint64_t bytes);
  Error FlushComplete();

  FileSystem& files_;
  std::optional<Entry> current_;
  std::vector<Entry> complete_;
  std::uint64_t bytes_ = 0;      ///< of the complete files
  std::uint64_t unsettled_ = 0;  ///< bytes that the device may not have taken yet
  std::size_t filesCopied_ = 0;
  std::uint64_t bytesCopied_ = 0;
};

}  // namespace kvr5
