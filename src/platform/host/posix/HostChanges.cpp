#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Fold.h"
#include "platform/HostFileSystem.h"
#include "platform/host/posix/Errno.h"
#include "platform/host/posix/Lookup.h"
#include "platform/host/posix/PosixFile.h"
#include "platform/host/posix/Spellings.h"

namespace kvr5 {
namespace {

using host::FromErrno;
using host::Place;
using host::PosixFile;

constexpr mode_t kNewFile = 0666;  // less what the user's mask takes away
constexpr mode_t kNewFolder = 0777;
constexpr mode_t kPermissions = 07777;

bool OwnerCanWrite(const struct stat& status) {
  return (status.st_mode & S_IWUSR) != 0;
}

/// Marks an open file as in use by this program, until it is closed in whatever way; false when
/// another one holds it, or where the volume knows no such marks.
bool Mark(int descriptor) {
  return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

/// Opens without waiting for the other end of a pipe, and hands out plain files only.
Result<std::unique_ptr<File>> OpenPlain(const std::string& hostPath, int flags, int& code) {
  constexpr int kAlways = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const int descriptor =
      host::Retry([&] { return ::open(hostPath.c_str(), flags | kAlways, kNewFile); });
  code = descriptor < 0 ? errno : 0;
  if (code != 0) return FromErrno(code);
  std::unique_ptr<File> file = std::make_unique<PosixFile>(descriptor);
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) return FromErrno(errno);
  if (!S_ISREG(status.st_mode)) return Error(errors::PathFileAccess);
  if ((flags & O_EXCL) != 0) static_cast<void>(Mark(descriptor));
  return file;
}

/// Renames where nothing is in the way; EEXIST otherwise.
int RenameOntoNothing(const std::string& from, const std::string& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;  // volumes that can't do it in one step
  struct stat status {};
  if (::lstat(to.c_str(), &status) == 0) return EEXIST;
  return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

/// True when two places are one entry of one folder, be it in another case.
bool SameEntry(const Place& a, const Place& b) {
  return EqualFold(a.Path, b.Path) && host::Respelled(a.Path) == host::Respelled(b.Path);
}

/// What was read of a folder's names is no longer true once this process changes some.
class ChangesNames {
 public:
  ChangesNames() = default;
  ~ChangesNames() {
    if (!noted_) host::ForgetSpellings();
  }
  ChangesNames(const ChangesNames&) = delete;
  ChangesNames& operator=(const ChangesNames&) = delete;

  /// What was read has been changed in the same way.
  void Noted() { noted_ = true; }

 private:
  bool noted_ = false;
};

}  // namespace

Result<std::unique_ptr<File>> HostFileSystem::Open(std::string_view path, OpenMode mode) {
  switch (mode) {
    case OpenMode::Read:
      return OpenToRead(path);
    case OpenMode::New:
      return OpenToMake(path);
    case OpenMode::Write:
      return OpenToWrite(path, O_TRUNC);
    case OpenMode::Append:
      return OpenToWrite(path, O_APPEND);
  }
  return Error(errors::InvalidCall);
}

Result<std::unique_ptr<File>> HostFileSystem::OpenToRead(std::string_view path) const {
  const auto mapped = Map(path);
  if (!mapped) return mapped.Err();
  int code = 0;
  auto file = OpenPlain(mapped.Value(), O_RDONLY, code);
  if (code != ENOENT && code != ENOTDIR) return file;
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  if (!found.Value().Found()) return Failure(path, found.Value().Code);
  return OpenPlain(found.Value().Path, O_RDONLY, code);
}

Result<std::unique_ptr<File>> HostFileSystem::OpenToMake(std::string_view path) const {
  const ChangesNames change;
  const auto mapped = Map(path);
  if (!mapped) return mapped.Err();
  if (!CardCanHold(host::NameOf(mapped.Value()))) return Error(errors::BadFileName);
  int code = 0;
  auto file = OpenPlain(mapped.Value(), O_WRONLY | O_CREAT | O_EXCL, code);
  if (code != ENOENT && code != ENOTDIR) return file;
  // The caller made the name up, so that only its folder can stand there in another case.
  const Result<Place> folder = Find(FolderOf(path));
  if (!folder) return folder.Err();
  if (!folder.Value().IsFolder()) return Failure(path, code);
  const std::string spelled = folder.Value().Path + '/' + std::string(LastName(path));
  return OpenPlain(spelled, O_WRONLY | O_CREAT | O_EXCL, code);
}

Result<std::unique_ptr<File>> HostFileSystem::OpenToWrite(std::string_view path, int how) const {
  const ChangesNames change;
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (place.Found() && (!S_ISREG(place.Stat.st_mode) || !OwnerCanWrite(place.Stat))) {
    return Error(errors::PathFileAccess);
  }
  if (!place.Found() && !CardCanHold(host::NameOf(place.Path))) return Error(errors::BadFileName);
  int code = 0;
  auto file = OpenPlain(place.Path, O_WRONLY | O_CREAT | how, code);
  if (code == ENOENT || code == ENOTDIR) return Failure(path, code);
  return file;
}

Error HostFileSystem::Delete(std::string_view path) {
  const ChangesNames change;
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (!place.Found()) return Failure(path, place.Code);
  if (place.IsFolder() || !OwnerCanWrite(place.Stat)) return Error(errors::PathFileAccess);
  return ::unlink(place.Path.c_str()) == 0 ? Error() : Failure(path, errno);
}

Error HostFileSystem::DeleteUnheld(std::string_view path) {
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  constexpr int kFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW;
  const int descriptor = ::open(found.Value().Path.c_str(), kFlags);
  if (descriptor < 0) return Failure(path, errno);
  const PosixFile file(descriptor);
  return Mark(descriptor) ? Delete(path) : Error(errors::PermissionDenied);
}

Result<std::shared_ptr<void>> HostFileSystem::Hold(std::string_view path) {
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  constexpr int kFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const int descriptor = ::open(found.Value().Path.c_str(), kFlags);
  if (descriptor < 0) return Failure(path, errno);
  auto file = std::make_shared<PosixFile>(descriptor);
  if (!Mark(descriptor) && errno == EWOULDBLOCK) return Error(errors::PermissionDenied);
  return std::shared_ptr<void>(std::move(file));
}

Error HostFileSystem::DeleteFolder(std::string_view path) {
  const ChangesNames change;
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (!place.Found()) return Error(errors::PathNotFound);
  return ::rmdir(place.Path.c_str()) == 0 ? Error() : Error(errors::PathFileAccess);
}

Error HostFileSystem::CreateFolder(std::string_view path) {
  const ChangesNames change;
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (place.Found()) return Error(errors::PathFileAccess);
  if (!CardCanHold(host::NameOf(place.Path))) return Error(errors::BadFileName);
  // A drive's own folder is the host's to make: without it there is no medium.
  if (place.Path == paths_.Root(path[0])) return Error(errors::DiskNotReady);
  if (::mkdir(place.Path.c_str(), kNewFolder) == 0) return {};
  return errno == EEXIST ? Error(errors::PathFileAccess) : Failure(path, errno);
}

Error HostFileSystem::Rename(std::string_view from, std::string_view to) {
  const ChangesNames change;
  const Result<Place> source = Find(from);
  if (!source) return source.Err();
  const Result<Place> target = Find(to);
  if (!target) return target.Err();
  const Place& old = source.Value();
  const Place& place = target.Value();
  if (!old.Found()) return Failure(from, old.Code);
  const std::string given(host::NameOf(paths_.ToHost(to)));
  if (!CardCanHold(given)) return Error(errors::BadFileName);
  if (place.Found()) {
    if (!SameEntry(old, place)) return Error(errors::FileExists);
    const std::string respelled = host::ParentOf(place.Path) + '/' + given;
    return ::rename(host::Respelled(old.Path).c_str(), respelled.c_str()) == 0 ? Error()
                                                                               : Failure(to, errno);
  }
  const int code = RenameOntoNothing(old.Path, place.Path);
  return code == 0 ? Error() : Failure(to, code);
}

std::shared_ptr<void> HostFileSystem::HoldNames() {
  return std::make_shared<host::SpellingsHeld>();
}

Error HostFileSystem::Replace(std::string_view from, std::string_view to) {
  ChangesNames change;
  const Result<Place> source = Find(from);
  if (!source) return source.Err();
  const Result<Place> target = Find(to);
  if (!target) return target.Err();
  const Place& file = source.Value();
  const Place& place = target.Value();
  if (!file.Found()) return Failure(from, file.Code);
  if (!place.Found() && !CardCanHold(host::NameOf(place.Path))) return Error(errors::BadFileName);
  if (place.IsFolder() || file.IsFolder()) return Error(errors::PathFileAccess);
  const std::string spelled = place.Found() ? host::Respelled(place.Path) : place.Path;
  if (place.Found() && OwnerCanWrite(place.Stat) && place.Stat.st_mode != file.Stat.st_mode) {
    // Who may read and write the file stays; a volume without owners has nothing to keep.
    static_cast<void>(::chmod(file.Path.c_str(), place.Stat.st_mode & kPermissions));
  }
  if (::rename(file.Path.c_str(), spelled.c_str()) != 0) return Failure(to, errno);
  const std::string folder = host::ParentOf(spelled);
  if (folder == host::ParentOf(file.Path) &&
      host::NoteRenamed(folder, host::NameOf(file.Path), host::NameOf(spelled))) {
    change.Noted();
  }
  return {};
}

}  // namespace kvr5
