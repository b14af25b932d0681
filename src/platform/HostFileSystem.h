#pragma once

#include <string>

#include "platform/FileSystem.h"
#include "platform/Path.h"

namespace kvr5 {

/// The real disk. Letters of removable volumes come from `paths`, which must outlive it.
class HostFileSystem : public FileSystem {
 public:
  explicit HostFileSystem(const PathMap& paths) : paths_(paths) {}

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
  bool SameFile(std::string_view a, std::string_view b) const override;
  std::string HostPath(std::string_view path) const override;
  Result<std::string> SystemPath(std::string_view given) const override;

 private:
  const PathMap& paths_;
};

}  // namespace kvr5
