#include "platform/Drives.h"

#include <algorithm>
#include <filesystem>

#include "platform/CodePage.h"
#include "platform/Fold.h"
#include "platform/IniFile.h"

namespace kvr5 {
namespace {

Drive DriveOf(char letter, const Volume& volume, const std::optional<VolumeRoom>& room) {
  Drive drive{.Letter = letter,
              .Label = volume.Label,
              .FileSystem = volume.FileSystem,
              .Mount = volume.Mount,
              .Device = volume.Device,
              .HasMedium = room.has_value()};
  if (room) {
    drive.Size = room->Size;
    drive.Free = room->Free;
    drive.ReadOnly = room->ReadOnly;
  }
  return drive;
}

/// True for the host's root directory, however it is written: "/", "//", "/home/..".
bool IsRoot(const std::string& folder) {
  const auto plain = std::filesystem::path(folder).lexically_normal();
  return plain.relative_path().empty();
}

}  // namespace

std::map<char, std::string> RemovableFolders(std::string_view iniText) {
  constexpr std::size_t kLongestPath = 4096;
  const CodePage utf8(65001);
  if (iniText.starts_with("\xEF\xBB\xBF")) iniText.remove_prefix(3);
  std::map<char, std::string> folders;
  const std::string keys =
      ini::Read(iniText, "Removable", std::nullopt, "", iniText.size() + 2, utf8);
  for (std::size_t at = 0; at < keys.size(); at = std::min(keys.find('\0', at), keys.size()) + 1) {
    const std::string key = FoldCase(keys.c_str() + at);
    const char letter = key.size() == 1 ? static_cast<char>(key[0] - 'a' + 'A') : '\0';
    if (letter < 'D' || letter > 'Z' || folders.contains(letter)) continue;
    const std::string value = ini::Read(iniText, "Removable", key, "", kLongestPath, utf8);
    const std::string folder = PathMap::IsSystemForm(value) ? PathMap().ToHost(value) : value;
    if (folder.starts_with('/') && !IsRoot(folder)) folders.emplace(letter, folder);
  }
  return folders;
}

std::vector<Drive> Drives::List() {
  const std::vector<Volume> volumes = volumes_.Removable();
  std::map<char, Drive> drives;
  for (const auto& [letter, folder] : RemovableFolders(iniText_())) {
    if (!paths_.Bind(letter, folder)) continue;
    const std::string root = paths_.Root(letter);
    const auto mounted = std::ranges::find(volumes, root, &Volume::Mount);
    const Volume volume = mounted == volumes.end() ? Volume{root, "", ""} : *mounted;
    drives.emplace(letter, DriveOf(letter, volume, RoomOfEntry(root)));
  }
  for (const Volume& volume : volumes) {
    const auto isThere = [&](const auto& entry) { return entry.second.Mount == volume.Mount; };
    if (std::ranges::any_of(drives, isThere)) continue;
    const char letter = paths_.LetterOf(volume.Mount);
    if (letter == '\0') continue;
    drives.emplace(letter, DriveOf(letter, volume, volumes_.Room(volume.Mount)));
  }
  std::vector<Drive> list;
  list.reserve(drives.size());
  for (auto& [letter, drive] : drives) list.push_back(std::move(drive));
  return list;
}

std::optional<VolumeRoom> Drives::RoomOfEntry(const std::string& folder) {
  const std::optional<VolumeRoom> room = volumes_.Room(folder);
  if (room && room->OwnVolume) seenAsVolumes_.insert(folder);
  const bool isLeftBehind = room && !room->OwnVolume && seenAsVolumes_.contains(folder);
  return isLeftBehind ? std::nullopt : room;
}

}  // namespace kvr5
