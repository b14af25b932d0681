#include "platform/host/posix/PosixFile.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "platform/host/posix/Errno.h"

namespace kvr5::host {
namespace {

/// True when the host can't copy between these two files this way, whatever their content.
bool IsRefusal(int code) {
  return code == EXDEV || code == EINVAL || code == ENOSYS || code == EOPNOTSUPP || code == EBADF ||
         code == EPERM || code == ETXTBSY || code == EOVERFLOW;
}

}  // namespace

PosixFile::~PosixFile() {
  Ignora(PosixFile::Close());
}

Result<std::size_t> PosixFile::Read(std::span<char> buffer) {
  std::size_t done = 0;
  while (done < buffer.size()) {
    const auto rest = buffer.subspan(done);
    const ssize_t count = Retry([&] { return ::read(descriptor_, rest.data(), rest.size()); });
    if (count < 0) return FromErrno(errno);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  return done;
}

Result<std::size_t> PosixFile::ReadAt(std::uint64_t offset, std::span<char> buffer) {
  std::size_t done = 0;
  while (done < buffer.size()) {
    const auto rest = buffer.subspan(done);
    const auto place = static_cast<off_t>(offset + done);
    const ssize_t count =
        Retry([&] { return ::pread(descriptor_, rest.data(), rest.size(), place); });
    if (count < 0) return FromErrno(errno);
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  return done;
}

std::size_t PosixFile::WriteSome(std::string_view bytes, int& code) {
  std::size_t done = 0;
  code = 0;
  while (done < bytes.size()) {
    const std::string_view rest = bytes.substr(done);
    const ssize_t count = Retry([&] { return ::write(descriptor_, rest.data(), rest.size()); });
    if (count < 0) {
      code = errno;
      break;
    }
    done += static_cast<std::size_t>(count);
  }
  return done;
}

Error PosixFile::Write(std::string_view bytes) {
  int code = 0;
  WriteSome(bytes, code);
  return FromErrno(code);
}

void PosixFile::StartWriteBack() {
  // A hint; where the volume doesn't take it, Flush does all the work.
  ::sync_file_range(descriptor_, 0, 0, SYNC_FILE_RANGE_WRITE);
}

void PosixFile::Settle(std::uint64_t end) {
  if (end <= settled_) return;
  constexpr unsigned kWriteAndWait =
      SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
  const int result = Retry([&] {
    return ::sync_file_range(descriptor_, static_cast<off_t>(settled_),
                             static_cast<off_t>(end - settled_), kWriteAndWait);
  });
  if (result != 0 && errno != ESPIPE && errno != EINVAL && errno != ENOSYS && !failed_) {
    failed_ = FromErrno(errno);
  }
  settled_ = end;
}

void PosixFile::ForgetCached() {
  ::posix_fadvise(descriptor_, 0, 0, POSIX_FADV_DONTNEED);
  ::posix_fadvise(descriptor_, 0, 0, POSIX_FADV_SEQUENTIAL);
}

Error PosixFile::Flush() {
  if (failed_) return failed_;
  if (Retry([&] { return ::fdatasync(descriptor_); }) != 0) failed_ = FromErrno(errno);
  return failed_;
}

Error PosixFile::SetModified(std::int64_t seconds) {
  std::array<timespec, 2> times{};
  times[0].tv_nsec = UTIME_OMIT;
  times[1].tv_sec = static_cast<time_t>(seconds);
  return ::futimens(descriptor_, times.data()) == 0 ? Error() : FromErrno(errno);
}

Error PosixFile::Close() {
  if (descriptor_ < 0) return {};
  const int descriptor = std::exchange(descriptor_, -1);
  // The descriptor is gone after an interrupted close as well; another could have its number.
  if (::close(descriptor) == 0 || errno == EINTR) return {};
  return FromErrno(errno);
}

Result<std::uint64_t> PosixFile::Size() {
  struct stat status {};
  if (::fstat(descriptor_, &status) != 0) return FromErrno(errno);
  return static_cast<std::uint64_t>(status.st_size);
}

Result<std::size_t> PosixFile::CopyFrom(PosixFile& from, std::size_t size) {
  while (way_ != Way::Buffer) {
    const ssize_t count = Retry([&] {
      return way_ == Way::CopyFileRange
                 ? ::copy_file_range(from.descriptor_, nullptr, descriptor_, nullptr, size, 0)
                 : ::sendfile(descriptor_, from.descriptor_, nullptr, size);
    });
    if (count >= 0) return static_cast<std::size_t>(count);
    if (!IsRefusal(errno)) return FromErrno(errno);
    way_ = way_ == Way::CopyFileRange ? Way::SendFile : Way::Buffer;
  }
  return CopyThroughBuffer(from, size);
}

Result<std::size_t> PosixFile::CopyThroughBuffer(PosixFile& from, std::size_t size) {
  constexpr std::size_t kBuffer = std::size_t{256} << 10U;
  std::string buffer(std::min(size, kBuffer), '\0');
  Result<std::size_t> read = from.Read(buffer);
  if (!read || read.Value() == 0) return read;
  int code = 0;
  const std::size_t written = WriteSome(std::string_view(buffer).substr(0, read.Value()), code);
  const auto unwritten = static_cast<off_t>(read.Value() - written);
  if (unwritten > 0) ::lseek(from.descriptor_, -unwritten, SEEK_CUR);
  if (written == 0) return FromErrno(code);
  return written;
}

}  // namespace kvr5::host
