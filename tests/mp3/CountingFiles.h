#pragma once

#include <memory>
#include <string>

#include "platform/HostFileSystem.h"
#include "platform/Path.h"

namespace kvr5::test {

/// The real disk, which counts what a reader asks of its files and fails where a test wants it to.
class CountingFiles : public HostFileSystem {
 public:
  CountingFiles() : HostFileSystem(paths_) {}

  int Reads = 0;            ///< calls of Read and ReadAt
  std::size_t Wanted = 0;   ///< bytes that the reads asked for
  int OpenFiles = 0;        ///< files open at this moment
  int FailingRead = 0;      ///< the number of the read that fails with 57, from 1; 0 is none
  bool RefuseOpen = false;  ///< every Open fails with 70

  Result<std::unique_ptr<File>> Open(std::string_view path, OpenMode mode) override;

  /// "C:\Music\a.mp3" of "/Music/a.mp3".
  static std::string FromHost(std::string path);

 private:
  PathMap paths_;
};

}  // namespace kvr5::test
