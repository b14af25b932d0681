#include "platform/host/posix/MountTable.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <set>

namespace kvr5::host {
namespace {

std::string_view TakeUntil(std::string_view& text, char end) {
  const std::size_t length = std::min(text.find(end), text.size());
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(std::min(length + 1, text.size()));
  return taken;
}

/// Blanks, backslashes and line ends stand in the table as a backslash and three octal digits.
std::string Unescaped(std::string_view field) {
  std::string text;
  while (!field.empty()) {
    unsigned value = 0;
    const char* digits = field.data() + 1;
    if (field[0] == '\\' && field.size() >= 4 &&
        std::from_chars(digits, digits + 3, value, 8).ptr == digits + 3 && value < 256) {
      text += static_cast<char>(value);
      field.remove_prefix(4);
    } else {
      text += field[0];
      field.remove_prefix(1);
    }
  }
  return text;
}

bool ToNumber(std::string_view text, unsigned& value) {
  const char* end = text.data() + text.size();
  return !text.empty() && std::from_chars(text.data(), end, value).ptr == end;
}

/// "36 35 98:0 / /mnt/a rw,noatime master:1 - ext3 /dev/root rw"
std::optional<MountEntry> ParseLine(std::string_view line) {
  MountEntry entry;
  if (!ToNumber(TakeUntil(line, ' '), entry.Id)) return std::nullopt;
  if (!ToNumber(TakeUntil(line, ' '), entry.Parent)) return std::nullopt;
  std::string_view device = TakeUntil(line, ' ');
  const std::string_view major = TakeUntil(device, ':');
  if (!ToNumber(major, entry.Major) || !ToNumber(device, entry.Minor)) return std::nullopt;
  entry.Root = Unescaped(TakeUntil(line, ' '));
  entry.Folder = Unescaped(TakeUntil(line, ' '));
  while (!line.empty() && TakeUntil(line, ' ') != "-") {
  }
  entry.Type = Unescaped(TakeUntil(line, ' '));
  entry.Source = Unescaped(TakeUntil(line, ' '));
  entry.Options = Unescaped(TakeUntil(line, ' '));
  if (!entry.Folder.starts_with('/') || entry.Source.empty()) return std::nullopt;
  return entry;
}

bool LiesIn(std::string_view folder, std::string_view tree) {
  return tree == "/" ||
         (folder.starts_with(tree) && (folder.size() == tree.size() || folder[tree.size()] == '/'));
}

/// True when one of `mounts` lies over a folder on the way from the parent of `entry` to it.
bool IsCutOff(const MountEntry& entry, const std::vector<MountEntry>& mounts) {
  return std::ranges::any_of(mounts, [&](const MountEntry& other) {
    return other.Parent == entry.Parent && other.Folder != entry.Folder &&
           LiesIn(entry.Folder, other.Folder);
  });
}

/// What lies below a mount stands behind it in the table, and so does what was mounted over it.
void MarkCovered(std::vector<MountEntry>& mounts) {
  std::set<unsigned> cutOff;
  for (auto entry = mounts.begin(); entry != mounts.end(); ++entry) {
    if (cutOff.contains(entry->Parent) || IsCutOff(*entry, mounts)) cutOff.insert(entry->Id);
    entry->Covered = cutOff.contains(entry->Id) ||
                     std::any_of(entry + 1, mounts.end(), [&](const MountEntry& later) {
                       return later.Folder == entry->Folder;
                     });
  }
}

}  // namespace

std::vector<MountEntry> ParseMountTable(std::string_view text) {
  std::vector<MountEntry> entries;
  while (!text.empty()) {
    std::optional<MountEntry> entry = ParseLine(TakeUntil(text, '\n'));
    if (entry) entries.push_back(std::move(*entry));
  }
  MarkCovered(entries);
  return entries;
}

bool IsSystemFolder(std::string_view mountFolder) {
  static constexpr std::array<std::string_view, 8> kFolders{
      "/", "/home", "/root", "/opt", "/srv", "/tmp", "/cdrom", "/isodevice"};
  // A live system keeps its medium somewhere in /run, each in a place of its own.
  static constexpr std::array<std::string_view, 12> kTrees{
      "/boot", "/efi",    "/usr", "/var",     "/etc",  "/nix",
      "/lib",  "/initrd", "/run", "/sysroot", "/live", "/mnt-system"};
  if (LiesIn(mountFolder, "/run/media")) return false;
  if (std::ranges::find(kFolders, mountFolder) != kFolders.end()) return true;
  if (mountFolder.starts_with("/home/")) {  // one user's home
    return mountFolder.find('/', std::string_view("/home/").size()) == std::string_view::npos;
  }
  return std::ranges::any_of(kTrees,
                             [&](std::string_view tree) { return LiesIn(mountFolder, tree); });
}

}  // namespace kvr5::host
