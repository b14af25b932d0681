#include <fcntl.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <filesystem>

#include "platform/Fold.h"
#include "platform/HostFileSystem.h"
#include "platform/Utf8.h"
#include "platform/host/posix/Errno.h"
#include "platform/host/posix/Lookup.h"

namespace kvr5 {
namespace {

using host::Place;

/// A name for the screen: U+FFFD in place of each byte that isn't UTF-8.
std::string Readable(std::string_view name) {
  std::string readable;
  while (!name.empty()) {
    const utf8::Step step = utf8::Next(name);
    if (step.Valid) {
      readable += name.substr(0, step.Length);
    } else {
      readable += "\uFFFD";
    }
    name.remove_prefix(step.Length);
  }
  return readable;
}

FileInfo Describe(std::string_view name, const std::string& hostPath, const struct stat& status,
                  const AttributeReader& attributes) {
  FileInfo info;
  info.Name = name;
  info.IsFolder = S_ISDIR(status.st_mode);
  info.Modified = status.st_mtime;
  info.ReadOnly = (status.st_mode & S_IWUSR) == 0;
  if (S_ISREG(status.st_mode)) info.Size = static_cast<std::uint64_t>(status.st_size);
  if (const auto known = attributes(hostPath, status.st_dev)) {
    info.Hidden = known->Hidden;
    info.System = known->System;
    info.ReadOnly = known->ReadOnly;
  } else {
    info.Hidden = name.starts_with('.');
    info.System = !info.IsFolder && !S_ISREG(status.st_mode);
  }
  return info;
}

bool IsLink(int folder, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_LNK;
  struct stat status {};
  return ::fstatat(folder, &entry.d_name[0], &status, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISLNK(status.st_mode);
}

bool IsSame(const Place& a, const Place& b) {
  return a.Found() && b.Found() && a.Stat.st_dev == b.Stat.st_dev && a.Stat.st_ino == b.Stat.st_ino;
}

/// Looks at the spelling too: a user-space driver may number each as a file of its own.
bool IsSameFolder(std::string a, std::string b) {
  const Place left = host::Locate(std::move(a));
  const Place right = host::Locate(std::move(b));
  return IsSame(left, right) || (left.Found() && EqualFold(left.Path, right.Path) &&
                                 host::Respelled(left.Path) == host::Respelled(right.Path));
}

/// Puts the entries in order by their names without regard to case.
void Sort(std::vector<FileInfo>& entries) {
  std::vector<std::pair<std::string, FileInfo>> keyed;
  keyed.reserve(entries.size());
  for (FileInfo& entry : entries) {
    std::string key = FoldCase(entry.Name);
    keyed.emplace_back(std::move(key), std::move(entry));
  }
  std::ranges::sort(keyed, [](const auto& a, const auto& b) {
    return a.first != b.first ? a.first < b.first : a.second.Name < b.second.Name;
  });
  std::ranges::transform(keyed, entries.begin(), [](auto& pair) { return std::move(pair.second); });
}

/// What was given, as an absolute path in the system's form, before any look at the disk.
Result<std::string> Absolute(std::string_view given) {
  if (given.starts_with('/')) return PathMap::FromHost(given);
  std::string path(given);
  std::ranges::replace(path, '/', '\\');
  if (PathMap::IsSystemForm(path)) return path;
  if (path.starts_with('\\')) return "C:" + path;
  std::error_code failed;
  const std::filesystem::path workingFolder = std::filesystem::current_path(failed);
  if (failed) return Error(errors::PathNotFound);
  Result<std::string> folder = PathMap::FromHost(workingFolder.string());
  if (!folder) return folder;
  return JoinPath(folder.Value(), path);
}

}  // namespace

Result<std::string> HostFileSystem::Map(std::string_view path) const {
  if (!PathMap::IsSystemForm(path)) return Error(errors::BadFileName);
  std::string_view rest = path.substr(2);
  while (!rest.empty()) {
    rest.remove_prefix(1);
    const std::string_view name = rest.substr(0, rest.find('\\'));
    if (FaultOf(name) != NameFault::None || name.find('/') != std::string_view::npos) {
      return Error(errors::BadFileName);
    }
    rest.remove_prefix(name.size());
  }
  std::string host = paths_.ToHost(path);
  if (host.empty()) return Error(errors::PathNotFound);
  return host;
}

Result<Place> HostFileSystem::Find(std::string_view path) const {
  auto mapped = Map(path);
  if (!mapped) return mapped.Err();
  return host::Locate(std::move(mapped.Value()), paths_.Root(path[0]).size());
}

Error HostFileSystem::Failure(std::string_view path, int code) const {
  if (code != ENOENT && code != ENOTDIR) return host::FromErrno(code);
  const std::string root = paths_.Root(path[0]);
  if (!host::LocateExactly(root).IsFolder()) return Error(errors::DiskNotReady);
  const std::string folder = host::ParentOf(paths_.ToHost(path));
  const bool folderThere = host::Locate(folder, root.size()).IsFolder();
  return Error(folderThere ? errors::FileNotFound : errors::PathNotFound);
}

Result<FileInfo> HostFileSystem::Info(std::string_view path) const {
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (!place.Found()) return Failure(path, place.Code);
  // Where the volume minds the case, what was found is spelled like the disk spells it.
  const std::string spelled = host::MindsCase(place) ? place.Path : host::Respelled(place.Path);
  return Describe(host::NameOf(spelled), spelled, place.Stat, attributes_);
}

Result<std::vector<FileInfo>> HostFileSystem::List(std::string_view folder) const {
  const Result<Place> found = Find(folder);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (place.Found() && !place.IsFolder()) return Error(errors::PathNotFound);
  const host::OpenFolder entries(place.Found() ? ::opendir(place.Path.c_str()) : nullptr);
  if (!entries) {
    const Error error = Failure(folder, place.Found() ? errno : place.Code);
    return error.Number() == errors::FileNotFound ? Error(errors::PathNotFound) : error;
  }
  std::vector<FileInfo> list;
  errno = 0;
  while (const dirent* entry = ::readdir(entries.get())) {
    const std::string_view name = entry->d_name;
    struct stat status {};
    // An entry that can't be looked at (a link to nowhere, one just deleted) is none.
    if (name != "." && name != ".." &&
        ::fstatat(::dirfd(entries.get()), entry->d_name, &status, 0) == 0) {
      FileInfo info = Describe(name, place.Path + '/' + entry->d_name, status, attributes_);
      info.IsLink = IsLink(::dirfd(entries.get()), *entry);
      info.Unusable = FaultOf(name);
      if (info.Unusable == NameFault::NotUtf8) info.Name = Readable(name);
      list.push_back(std::move(info));
    }
    errno = 0;
  }
  if (errno != 0) return host::FromErrno(errno);
  Sort(list);
  return list;
}

Result<std::uint64_t> HostFileSystem::FreeSpace(std::string_view path) const {
  const Result<VolumeSpace> space = Space(path);
  if (!space) return space.Err();
  return space.Value().Available;
}

Result<VolumeSpace> HostFileSystem::Space(std::string_view path) const {
  const Result<Place> found = Find(path);
  if (!found) return found.Err();
  const Place& place = found.Value();
  if (!place.Found()) return Failure(path, place.Code);
  struct statvfs volume {};
  if (::statvfs(place.Path.c_str(), &volume) != 0) return host::FromErrno(errno);
  const std::uint64_t unit = volume.f_frsize;
  return VolumeSpace{volume.f_bavail * unit, volume.f_blocks * unit, volume.f_bfree * unit};
}

std::string HostFileSystem::BehindLink(std::string_view path) const {
  const Result<Place> found = Find(path);
  struct stat status {};
  if (!found || !found.Value().Found() || ::lstat(found.Value().Path.c_str(), &status) != 0 ||
      !S_ISLNK(status.st_mode)) {
    return std::string(path);
  }
  std::error_code failed;
  const auto real = std::filesystem::canonical(found.Value().Path, failed);
  const auto target = PathMap::FromHost(real.string());
  return failed || !target ? std::string(path) : target.Value();
}

bool HostFileSystem::SameFile(std::string_view a, std::string_view b) const {
  const Result<Place> first = Find(a);
  auto second = Map(b);
  if (!first || !first.Value().Found() || !second) return false;
  const Place& left = first.Value();
  // A name that isn't there as it is given is worth the search for another case only where it could
  // be the first file itself: whoever copies many new files asks this for each.
  const Place exact = host::LocateExactly(std::move(second.Value()));
  if (exact.Found() && IsSame(left, exact)) return true;
  if (!EqualFold(host::NameOf(left.Path), host::NameOf(exact.Path)) ||
      !IsSameFolder(host::ParentOf(left.Path), host::ParentOf(exact.Path))) {
    return false;
  }
  const Result<Place> right = Find(b);
  return right && right.Value().Found() &&
         host::NameOf(host::Respelled(left.Path)) ==
             host::NameOf(host::Respelled(right.Value().Path));
}

std::string HostFileSystem::HostPath(std::string_view path) const {
  const Result<Place> found = Find(path);
  if (found) return host::Respelled(found.Value().Path);
  std::string host = paths_.ToHost(path);
  if (!host.empty()) return host;
  host = paths_.ToHost(FolderOf(path));  // a last name that no path can hold is shown as it is
  return host.empty() ? std::string(path) : host.append("/").append(LastName(path));
}

Result<std::string> HostFileSystem::SystemPath(std::string_view given) const {
  if (given.empty()) return Error(errors::BadFileName);
  if (given.starts_with("\\\\")) return std::string(given);  // another computer's: never there
  Result<std::string> path = Absolute(given);
  if (!path) return path;
  const Result<Place> found = Find(path.Value());
  if (found) return PathMap::FromHost(host::Respelled(found.Value().Path));
  return found.Err().Number() == errors::PathNotFound ? path : found.Err();
}

}  // namespace kvr5
