#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <map>

#include "platform/HostFileSystem.h"
#include "platform/host/posix/Errno.h"
#include "platform/host/posix/Lookup.h"
#include "platform/host/posix/PosixFile.h"

namespace kvr5 {
namespace {

using host::Place;
using host::PosixFile;

/// True where the volume is kept by another process, which alone knows what isn't on the device.
bool IsKeptByProcess(int descriptor) {
  struct statfs volume {};
  return ::fstatfs(descriptor, &volume) == 0 && volume.f_type == FUSE_SUPER_MAGIC;
}

}  // namespace

Result<std::size_t> HostFileSystem::CopyRange(File& from, File& to, std::size_t size) {
  auto* source = dynamic_cast<PosixFile*>(&from);
  auto* target = dynamic_cast<PosixFile*>(&to);
  if (source == nullptr || target == nullptr) return Error(errors::InvalidCall);
  Result<std::size_t> copied = target->CopyFrom(*source, size);
  // The device starts at once; left to itself the host would wait for seconds.
  if (copied) target->StartWriteBack();
  return copied;
}

Error HostFileSystem::FlushAll(std::span<File* const> files) {
  // First the content of each, whose failures belong to the one file; then, in one go, all that
  // the volume keeps about them and the device's own cache.
  std::map<dev_t, int> volumes;
  for (File* file : files) {
    auto* own = dynamic_cast<PosixFile*>(file);
    if (own == nullptr || IsKeptByProcess(own->Descriptor())) return FileSystem::FlushAll(files);
    struct stat status {};
    if (::fstat(own->Descriptor(), &status) != 0) return host::FromErrno(errno);
    own->Settle(static_cast<std::uint64_t>(status.st_size));
    if (own->Failed()) return own->Failed();
    volumes.emplace(status.st_dev, own->Descriptor());
  }
  for (const auto& [device, descriptor] : volumes) {
    if (::syncfs(descriptor) != 0) return host::FromErrno(errno);
  }
  return {};
}

Error HostFileSystem::SyncVolume(std::string_view path) {
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (!place.Found()) return Failure(path, place.Code);
  const int entry = ::open(place.Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (entry < 0) return host::FromErrno(errno);
  int code = 0;
  if (IsKeptByProcess(entry) && ::fsync(entry) != 0 && errno != EINVAL) code = errno;
  if (::syncfs(entry) != 0 && code == 0) code = errno;
  ::close(entry);
  return host::FromErrno(code);
}

}  // namespace kvr5
