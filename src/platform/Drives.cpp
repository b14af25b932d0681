#include "platform/Drives.h"

#include <algorithm>

#include "platform/Fold.h"

namespace kvr5 {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// Takes the next line of a text, less the blanks around it.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = Trimmed(text.substr(0, end));
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

}  // namespace

std::map<char, std::string> RemovableFolders(std::string_view iniText) {
  std::map<char, std::string> folders;
  bool inSection = false;
  if (iniText.starts_with("\xEF\xBB\xBF")) iniText.remove_prefix(3);
  while (!iniText.empty()) {
    const std::string_view line = TakeLine(iniText);
    if (line.starts_with('[')) inSection = EqualFold(line, "[Removable]");
    const std::size_t equals = line.find('=');
    if (!inSection || equals == std::string_view::npos) continue;
    const std::string letter = FoldCase(Trimmed(line.substr(0, equals)));
    const std::string_view value = Trimmed(line.substr(equals + 1));
    if (letter.size() != 1 || letter[0] < 'd' || letter[0] > 'z') continue;
    const std::string folder =
        PathMap::IsSystemForm(value) ? PathMap().ToHost(value) : std::string(value);
    if (!folder.starts_with('/')) continue;
    folders.emplace(static_cast<char>(letter[0] - 'a' + 'A'), folder);
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
    Add(drives, letter, mounted == volumes.end() ? Volume{root, "", ""} : *mounted);
  }
  for (const Volume& volume : volumes) {
    const auto isThere = [&](const auto& entry) { return entry.second.Mount == volume.Mount; };
    if (std::ranges::any_of(drives, isThere)) continue;
    const char letter = paths_.LetterOf(volume.Mount);
    if (letter != '\0') Add(drives, letter, volume);
  }
  std::vector<Drive> list;
  list.reserve(drives.size());
  for (auto& [letter, drive] : drives) list.push_back(std::move(drive));
  return list;
}

void Drives::Add(std::map<char, Drive>& drives, char letter, const Volume& volume) const {
  const std::optional<VolumeRoom> room = volumes_.Room(volume.Mount);
  Drive drive{.Letter = letter,
              .Label = volume.Label,
              .FileSystem = volume.FileSystem,
              .Mount = volume.Mount,
              .HasMedium = room.has_value()};
  if (room) {
    drive.Size = room->Size;
    drive.Free = room->Free;
    drive.ReadOnly = room->ReadOnly;
  }
  drives.emplace(letter, std::move(drive));
}

}  // namespace kvr5
