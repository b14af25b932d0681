#include "platform/host/posix/Errno.h"

namespace kvr5::host {
namespace {

int NumberOf(int code) {
  switch (code) {
    case ENOENT:
      return errors::FileNotFound;
    case ENOTDIR:
      return errors::PathNotFound;
    case EEXIST:
      return errors::FileExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return errors::DiskFull;
    case EIO:
    case EREMOTEIO:
      return errors::DeviceIo;
    case ENODEV:
    case ENXIO:
    case ENOTCONN:  // the volume's own process is gone
    case ESTALE:
    case ESHUTDOWN:
      return errors::DeviceUnavailable;
    case ENOMEDIUM:
      return errors::DiskNotReady;
    case EROFS:
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
      return errors::PermissionDenied;
    case ENAMETOOLONG:
    case EINVAL:  // a volume refuses a name that it can't hold with either
    case EILSEQ:
      return errors::BadFileName;
    case ENOMEM:
      return errors::OutOfMemory;
    default:  // EACCES, EPERM, EISDIR, ENOTEMPTY, ELOOP, EXDEV, ...
      return errors::PathFileAccess;
  }
}

constexpr int kTooManyFiles = 67;

}  // namespace

Error FromErrno(int code) {
  if (code == 0) return {};
  if (code == EMFILE || code == ENFILE) return {kTooManyFiles, "Too many files"};
  return Error(NumberOf(code));
}

}  // namespace kvr5::host
