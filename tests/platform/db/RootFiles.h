#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5::test {

/// Just enough of a file system for a connection: "C:\" is the host's root directory.
class RootFiles : public FileSystem {
 public:
  std::string HostPath(std::string_view path) const override {
    if (!path.starts_with("C:\\")) return "";
    std::string host(path.substr(2));
    std::replace(host.begin(), host.end(), '\\', '/');
    return host;
  }

  Result<FileInfo> Info(std::string_view /*path*/) const override { return Unused(); }
  Result<std::vector<FileInfo>> List(std::string_view /*folder*/) const override {
    return Unused();
  }
  Result<std::unique_ptr<File>> Open(std::string_view /*path*/, OpenMode /*mode*/) override {
    return Unused();
  }
  Error Delete(std::string_view /*path*/) override { return Unused(); }
  Error CreateFolder(std::string_view /*path*/) override { return Unused(); }
  Error Rename(std::string_view /*from*/, std::string_view /*to*/) override { return Unused(); }
  Error Replace(std::string_view /*from*/, std::string_view /*to*/) override { return Unused(); }
  Result<std::size_t> CopyRange(File& /*from*/, File& /*to*/, std::size_t /*size*/) override {
    return Unused();
  }
  Error SyncVolume(std::string_view /*path*/) override { return Unused(); }
  Result<std::uint64_t> FreeSpace(std::string_view /*path*/) const override { return Unused(); }
  Result<VolumeSpace> Space(std::string_view /*path*/) const override { return Unused(); }
  bool SameFile(std::string_view /*a*/, std::string_view /*b*/) const override { return false; }
  Result<std::string> SystemPath(std::string_view /*given*/) const override { return Unused(); }

 private:
  static Error Unused() { return Error(errors::InvalidCall); }
};

}  // namespace kvr5::test
