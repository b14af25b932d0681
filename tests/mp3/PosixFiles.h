#pragma once

#include "platform/FileSystem.h"

namespace kvr5::test {

/// The host's files under "C:\" = "/" by the plain calls of POSIX, for reading only: what writes,
/// lists or maps fails with 5. It keeps count of what a reader asks for.
class PosixFiles : public FileSystem {
 public:
  int Reads = 0;            ///< calls of Read and ReadAt
  std::size_t Wanted = 0;   ///< bytes that the reads asked for
  int OpenFiles = 0;        ///< files open at this moment
  int FailingRead = 0;      ///< the number of the read that fails with 57, from 1; 0 is none
  bool RefuseOpen = false;  ///< every Open fails with 70

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

  /// "C:\Music\a.mp3" of "/Music/a.mp3".
  static std::string FromHost(std::string path);
};

}  // namespace kvr5::test
