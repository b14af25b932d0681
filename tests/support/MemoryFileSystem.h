#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5::test {

/// What a file system is asked to do; for failing one of them.
enum class Operation {
  Any,
  Info,
  List,
  Open,
  Read,
  Write,
  Flush,
  Close,
  Delete,
  CreateFolder,
  Rename,   ///< asked of either path
  Replace,  ///< asked of either path
  SyncVolume,
};

/// Files and folders in memory behind the whole FileSystem interface, with the errors of the real
/// one, names without regard to case, and failures on demand. Drive "C:" is there from the start;
/// others come with the first file or folder added on them. Times count up from 1 at each change.
class MemoryFileSystem : public FileSystem {
 public:
  MemoryFileSystem();

  /// Puts a file there, with the folders it needs; replaces the content of one that is there.
  void AddFile(std::string_view path, std::string_view bytes);
  /// Makes a folder and those above it.
  void AddFolder(std::string_view path);
  /// Sets the attributes of a file or folder that is there.
  void SetAttributes(std::string_view path, bool hidden, bool system, bool readOnly);
  /// A file's bytes; a missing one fails the test.
  std::string Content(std::string_view path) const;
  bool Exists(std::string_view path) const;

  /// From now on the operation fails on this path ("" is every path) with this number; 0 lifts it.
  void Fail(std::string_view path, int number, Operation operation = Operation::Any);
  /// Bytes that can still be written; deleting and replacing give theirs back.
  void SetFreeSpace(std::uint64_t bytes) { free_ = bytes; }
  /// What was done to the disk, in order: "write C:\a", "flush C:\a", "close C:\a",
  /// "delete C:\a", "folder C:\a", "rename C:\a C:\b", "replace C:\a C:\b", "sync C:\".
  std::vector<std::string>& Calls() { return calls_; }

  Result<FileInfo> Info(std::string_view path) const override;
  Result<std::vector<FileInfo>> List(std::string_view folder) const override;
  Result<std::unique_ptr<File>> Open(std::string_view path, OpenMode mode) override;
  Error Delete(std::string_view path) override;
  Error CreateFolder(std::string_view path) override;
  Error Rename(std::string_view from, std::string_view to) override;
  Error Replace(std::string_view from, std::string_view to) override;
  Result<std::size_t> CopyRange(File& from, File& to, std::size_t size) override;
  Error SyncVolume(std::string_view path) override;
  Result<std::uint64_t> FreeSpace(std::string_view path) const override;
  Result<VolumeSpace> Space(std::string_view path) const override;
  bool SameFile(std::string_view a, std::string_view b) const override;
  /// "C:\a\b" as "/a/b", other drives as "/media/e/b".
  std::string HostPath(std::string_view path) const override;
  Result<std::string> SystemPath(std::string_view given) const override;

 private:
  struct Node {
    FileInfo Info;
    std::string Bytes;
  };
  class OpenFile;

  Error Failure(std::string_view path, Operation operation) const;
  std::shared_ptr<Node> Find(std::string_view path) const;
  /// 53 or 76 for a path that isn't there.
  Error Missing(std::string_view path) const;
  /// An error where nothing can be made under that path.
  Error CannotCreate(std::string_view path) const;
  std::shared_ptr<Node> Create(std::string_view path, bool folder);
  void Touch(Node& node) { node.Info.Modified = ++clock_; }
  void Move(const std::string& from, const std::string& to, const std::string& name);
  std::string Spelled(std::string_view path) const;

  std::map<std::string, std::shared_ptr<Node>> nodes_;  ///< by folded path
  std::map<std::pair<std::string, Operation>, int> failures_;
  std::uint64_t free_ = std::numeric_limits<std::uint64_t>::max() / 2;  // never overflows
  std::int64_t clock_ = 0;
  std::vector<std::string> calls_;
};

}  // namespace kvr5::test
