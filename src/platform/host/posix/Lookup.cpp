#include "platform/host/posix/Lookup.h"

#include <algorithm>
#include <cerrno>
#include <optional>

#include "platform/Fold.h"
#include "platform/host/posix/Spellings.h"
#include "platform/host/posix/VolumeKind.h"

namespace kvr5::host {
namespace {

int StatOf(const std::string& path, struct stat& result) {
  return ::stat(path.c_str(), &result) == 0 ? 0 : errno;
}

bool IsMissing(int code) {
  return code == ENOENT || code == ENOTDIR;
}

std::string Under(const std::string& folder, std::string_view name) {
  std::string path = folder;
  if (!path.ends_with('/')) path += '/';
  path += name;
  return path;
}

/// The folder's own spelling of a name that is given in any case; an exact one wins.
std::optional<std::string> SpellingIn(const std::string& folder, std::string_view name) {
  const OpenFolder entries(::opendir(folder.c_str()));
  if (!entries) return std::nullopt;
  std::optional<std::string> best;
  while (const dirent* entry = ::readdir(entries.get())) {
    const std::string_view found = entry->d_name;
    if (found == name) return std::string(found);
    if (EqualFold(found, name) && (!best || found < *best)) best = found;
  }
  return best;
}

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// True where a name that isn't found as it is given isn't there in another case either. All such
/// volumes know the case of ASCII letters, whatever their character set.
bool HostIgnoresCase(const std::string& folder, std::string_view name) {
  return IsAscii(name) && KindOf(folder) == VolumeKind::Fat;
}

/// The name with the case of every ASCII letter turned round.
std::string Turned(std::string_view name) {
  std::string turned(name);
  for (char& c : turned) {
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) c = static_cast<char>(c ^ 0x20);
  }
  return turned;
}

/// True when the disk surely doesn't spell a name otherwise than it is asked for: either nothing is
/// found, or nothing in the other case. Numbers of inodes would prove less, as a user-space driver
/// may give each spelling its own.
bool SpellingIsSure(const std::string& folder, std::string_view name) {
  const std::string turned = Turned(name);
  if (turned == name) return IsAscii(name);
  struct stat ignored {};
  return StatOf(Under(folder, turned), ignored) != 0 || StatOf(Under(folder, name), ignored) != 0;
}

/// The length of the longest part of the path that is there; 1 for the root alone.
std::size_t LengthThere(const std::string& path) {
  struct stat ignored {};
  std::size_t end = path.size();
  while (end > 1) {
    end = std::max<std::size_t>(path.rfind('/', end - 1), 1);
    if (StatOf(path.substr(0, end), ignored) == 0) break;
  }
  return end;
}

/// The next name of a path from `at` on, which is moved behind it; "" at the end.
std::string_view TakeName(std::string_view path, std::size_t& at) {
  while (at < path.size() && path[at] == '/') ++at;
  const std::size_t begin = at;
  at = std::min(path.find('/', begin), path.size());
  return path.substr(begin, at - begin);
}

}  // namespace

Place LocateExactly(std::string path) {
  Place place{.Path = std::move(path)};
  place.Code = StatOf(place.Path, place.Stat);
  return place;
}

Place Locate(std::string path, std::size_t fixed) {
  Place place = LocateExactly(std::move(path));
  if (!IsMissing(place.Code)) return place;
  const std::string wanted = place.Path;
  std::size_t at = LengthThere(wanted);
  if (at < fixed) return place;
  std::string there = wanted.substr(0, at);
  struct stat ignored {};
  for (std::string_view name = TakeName(wanted, at); !name.empty(); name = TakeName(wanted, at)) {
    std::string next = Under(there, name);
    if (StatOf(next, ignored) != 0) {
      const auto spelling =
          HostIgnoresCase(there, name) ? std::nullopt : OtherSpelling(there, name);
      if (!spelling) {
        place.Path = next.append(wanted, at);
        return place;
      }
      next = Under(there, *spelling);
    }
    there = std::move(next);
  }
  return LocateExactly(std::move(there));
}

std::string Respelled(const std::string& path) {
  std::string there = "/";
  std::size_t at = 0;
  for (std::string_view name = TakeName(path, at); !name.empty(); name = TakeName(path, at)) {
    std::optional<std::string> spelling;
    if (!SpellingIsSure(there, name)) spelling = SpellingIn(there, name);
    there = Under(there, spelling ? *spelling : std::string(name));
  }
  return there;
}

bool MindsCase(const Place& place) {
  return place.Found() && KindOf(place.Path, place.Stat.st_dev) == VolumeKind::MindsCase;
}

std::string ParentOf(const std::string& path) {
  return path.substr(0, std::max<std::size_t>(path.rfind('/'), 1));
}

std::string_view NameOf(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

}  // namespace kvr5::host
