#include "mp3/PosixFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace kvr5::test {
namespace {

Error NotHere() {
  return Error(errors::InvalidCall);
}

class PosixFile : public File {
 public:
  PosixFile(PosixFiles& files, int descriptor) : files_(files), descriptor_(descriptor) {
    ++files_.OpenFiles;
  }
  ~PosixFile() override {
    close(descriptor_);
    --files_.OpenFiles;
  }
  PosixFile(const PosixFile&) = delete;
  PosixFile& operator=(const PosixFile&) = delete;

  Result<std::size_t> Read(std::span<char> /*buffer*/) override { return NotHere(); }
  Result<std::size_t> ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    files_.Wanted += buffer.size();
    if (++files_.Reads == files_.FailingRead) return Error(errors::DeviceIo);
    const ssize_t count =
        pread(descriptor_, buffer.data(), buffer.size(), static_cast<off_t>(offset));
    if (count < 0) return Error(errors::DeviceIo);
    return static_cast<std::size_t>(count);
  }
  Error Write(std::string_view /*bytes*/) override { return NotHere(); }
  Error Flush() override { return NotHere(); }
  Error Close() override { return NotHere(); }
  Result<std::uint64_t> Size() override { return NotHere(); }

 private:
  PosixFiles& files_;
  int descriptor_;
};

}  // namespace

Result<FileInfo> PosixFiles::Info(std::string_view path) const {
  const std::string host = HostPath(path);
  struct stat found {};
  if (stat(host.c_str(), &found) != 0) return Error(errors::FileNotFound);
  FileInfo info;
  info.Name = host.substr(host.rfind('/') + 1);
  info.IsFolder = S_ISDIR(found.st_mode);
  info.Hidden = info.Name.starts_with('.');
  info.Size = info.IsFolder ? 0 : static_cast<std::uint64_t>(found.st_size);
  return info;
}

Result<std::unique_ptr<File>> PosixFiles::Open(std::string_view path, OpenMode mode) {
  if (RefuseOpen || mode != OpenMode::Read) return Error(errors::PermissionDenied);
  const int descriptor = open(HostPath(path).c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return Error(errors::PathFileAccess);
  return std::unique_ptr<File>(std::make_unique<PosixFile>(*this, descriptor));
}

std::string PosixFiles::HostPath(std::string_view path) const {
  std::string host(path.substr(std::min<std::size_t>(2, path.size())));
  std::ranges::replace(host, '\\', '/');
  return host;
}

std::string PosixFiles::FromHost(std::string path) {
  std::ranges::replace(path, '/', '\\');
  return "C:" + path;
}

Result<std::vector<FileInfo>> PosixFiles::List(std::string_view /*folder*/) const {
  return NotHere();
}
Error PosixFiles::Delete(std::string_view /*path*/) {
  return NotHere();
}
Error PosixFiles::CreateFolder(std::string_view /*path*/) {
  return NotHere();
}
Error PosixFiles::Rename(std::string_view /*from*/, std::string_view /*to*/) {
  return NotHere();
}
Error PosixFiles::Replace(std::string_view /*from*/, std::string_view /*to*/) {
  return NotHere();
}
Result<std::size_t> PosixFiles::CopyRange(File& /*from*/, File& /*to*/, std::size_t /*size*/) {
  return NotHere();
}
Error PosixFiles::SyncVolume(std::string_view /*path*/) {
  return NotHere();
}
Result<std::uint64_t> PosixFiles::FreeSpace(std::string_view /*path*/) const {
  return NotHere();
}
bool PosixFiles::SameFile(std::string_view /*a*/, std::string_view /*b*/) const {
  return false;
}
Result<std::string> PosixFiles::SystemPath(std::string_view /*given*/) const {
  return NotHere();
}

}  // namespace kvr5::test
