#include <dirent.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <filesystem>
#include <memory>

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
  if (const auto known = attributes(hostPath)) {
    info.Hidden = known->Hidden;
    info.System = known->System;
    info.ReadOnly = known->ReadOnly;
  } else {
    info.Hidden = name.starts_with('.');
    info.System = !info.IsFolder && !S_ISREG(status.st_mode);
  }
  return info;
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

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

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

Error HostFileSystem::Failure(std::string_view path, int code) const {
  if (code != ENOENT && code != ENOTDIR) return host::FromErrno(code);
  const std::string root = paths_.Root(path[0]);
  if (!host::Locate(root).IsFolder()) return Error(errors::DiskNotReady);
  const std::string hostPath = paths_.ToHost(path);
  const bool folderThere = host::Locate(host::ParentOf(hostPath)).IsFolder();
  return Error(folderThere ? errors::FileNotFound : errors::PathNotFound);
}

Result<FileInfo> HostFileSystem::Info(std::string_view path) const {
  auto mapped = Map(path);
  if (!mapped) return mapped.Err();
  const Place place = host::Locate(std::move(mapped.Value()));
  if (!place.Found()) return Failure(path, place.Code);
  const std::string spelled = host::Respelled(place.Path);
  return Describe(host::NameOf(spelled), spelled, place.Stat, attributes_);
}

Result<std::vector<FileInfo>> HostFileSystem::List(std::string_view folder) const {
  auto mapped = Map(folder);
  if (!mapped) return mapped.Err();
  const Place place = host::Locate(std::move(mapped.Value()));
  if (place.Found() && !place.IsFolder()) return Error(errors::PathNotFound);
  const std::unique_ptr<DIR, CloseFolder> entries(place.Found() ? ::opendir(place.Path.c_str())
                                                                : nullptr);
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
  auto mapped = Map(path);
  if (!mapped) return mapped.Err();
  const Place place = host::Locate(std::move(mapped.Value()));
  if (!place.Found()) return Failure(path, place.Code);
  struct statvfs volume {};
  if (::statvfs(place.Path.c_str(), &volume) != 0) return host::FromErrno(errno);
  return static_cast<std::uint64_t>(volume.f_bavail) * volume.f_frsize;
}

bool HostFileSystem::SameFile(std::string_view a, std::string_view b) const {
  auto first = Map(a);
  auto second = Map(b);
  if (!first || !second) return false;
  const Place left = host::Locate(std::move(first.Value()));
  if (!left.Found()) return false;
  // A name that isn't there as it is given is worth the search for another case only where it could
  // be the first file itself: whoever copies many new files asks this for each.
  const Place exact = host::LocateExactly(second.Value());
  if (exact.Found() && IsSame(left, exact)) return true;
  if (!EqualFold(host::NameOf(left.Path), host::NameOf(exact.Path)) ||
      !IsSameFolder(host::ParentOf(left.Path), host::ParentOf(exact.Path))) {
    return false;
  }
  const Place right = host::Locate(std::move(second.Value()));
  return right.Found() &&
         host::NameOf(host::Respelled(left.Path)) == host::NameOf(host::Respelled(right.Path));
}

std::string HostFileSystem::HostPath(std::string_view path) const {
  std::string host = paths_.ToHost(path);
  return host.empty() ? std::string(path) : host::Respelled(host::Locate(std::move(host)).Path);
}

Result<std::string> HostFileSystem::SystemPath(std::string_view given) const {
  if (given.empty()) return Error(errors::BadFileName);
  if (given.starts_with("\\\\")) return std::string(given);  // another computer's: never there
  Result<std::string> path = Absolute(given);
  if (!path) return path;
  Result<std::string> host = Map(path.Value());
  if (!host) return host.Err().Number() == errors::PathNotFound ? path : host;
  return PathMap::FromHost(host::Respelled(host::Locate(std::move(host.Value())).Path));
}

}  // namespace kvr5
