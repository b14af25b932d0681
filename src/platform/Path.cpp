#include "platform/Path.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/Fold.h"
#include "platform/Utf8.h"

namespace kvr5 {
namespace {

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const utf8::Step step = utf8::Next(text);
    if (!step.Valid) return false;
    text.remove_prefix(step.Length);
  }
  return true;
}

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

char Upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// The names of a path, with "." left out and ".." taking back the one before.
std::vector<std::string_view> Names(std::string_view path, char separator) {
  std::vector<std::string_view> names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find(separator), path.size());
    const std::string_view name = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (name == "..") {
      if (!names.empty()) names.pop_back();
    } else if (!name.empty() && name != ".") {
      names.push_back(name);
    }
  }
  return names;
}

/// An absolute folder of the host in the one spelling under which it is remembered.
std::string Tidy(std::string_view hostFolder) {
  std::string tidy;
  for (const std::string_view name : Names(hostFolder, '/')) {
    tidy += '/';
    tidy += name;
  }
  return tidy.empty() ? "/" : tidy;
}

/// "CON", "com1", "LPT\u00B3": names that the original host keeps for devices.
bool IsDevice(std::string_view stem) {
  static constexpr std::array<std::string_view, 6> kPlain{"con", "prn",    "aux",
                                                          "nul", "conin$", "conout$"};
  static constexpr std::array<std::string_view, 3> kSuperscripts{"\u00B9", "\u00B2", "\u00B3"};
  const std::string folded = FoldCase(stem);
  if (std::ranges::find(kPlain, folded) != kPlain.end()) return true;
  if (!folded.starts_with("com") && !folded.starts_with("lpt")) return false;
  const std::string_view number = std::string_view(folded).substr(3);
  if (number.size() == 1) return number[0] >= '1' && number[0] <= '9';
  return std::ranges::find(kSuperscripts, number) != kSuperscripts.end();
}

}  // namespace

NameFault FaultOf(std::string_view name) {
  if (!IsUtf8(name)) return NameFault::NotUtf8;
  constexpr std::string_view kReserved("|:\\*?\0", 6);
  return name.find_first_of(kReserved) == std::string_view::npos ? NameFault::None
                                                                 : NameFault::Reserved;
}

bool CardCanHold(std::string_view name) {
  if (name.empty() || name.back() == '.' || name.back() == ' ' || !IsUtf8(name)) return false;
  const auto barred = [](char c) {
    return static_cast<unsigned char>(c) < 0x20 ||
           std::string_view("<>:\"/\\|?*").find(c) != std::string_view::npos;
  };
  if (std::ranges::any_of(name, barred)) return false;
  std::string_view stem = name.substr(0, name.find('.'));
  while (stem.ends_with(' ')) stem.remove_suffix(1);
  return !IsDevice(stem);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.ends_with('\\')) path += '\\';
  path += name;
  return path;
}

std::string_view LastName(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);  // npos + 1 is 0
}

std::string_view FolderOf(std::string_view path) {
  std::string_view folder = path.substr(0, path.size() - LastName(path).size());
  while (folder.ends_with('\\') && !(folder.size() == 3 && PathMap::IsSystemForm(folder))) {
    folder.remove_suffix(1);
  }
  return folder;
}

bool PathMap::Bind(char letter, std::string_view hostFolder) {
  letter = Upper(letter);
  if (letter < 'D' || letter > 'Z' || !hostFolder.starts_with('/')) return false;
  const std::string folder = Tidy(hostFolder);
  return roots_.try_emplace(letter, folder).first->second == folder;
}

char PathMap::LetterOf(std::string_view hostFolder) {
  if (!hostFolder.starts_with('/')) return '\0';
  const std::string folder = Tidy(hostFolder);
  for (const auto& [letter, root] : roots_) {
    if (root == folder) return letter;
  }
  for (char letter = 'D'; letter <= 'Z'; ++letter) {
    if (roots_.try_emplace(letter, folder).second) return letter;
  }
  return '\0';
}

std::string PathMap::Root(char letter) const {
  letter = Upper(letter);
  if (letter == 'C') return "/";
  const auto found = roots_.find(letter);
  return found == roots_.end() ? std::string() : found->second;
}

std::string PathMap::ToHost(std::string_view systemPath) const {
  constexpr std::string_view kNeverInAName("/\0", 2);
  if (!IsSystemForm(systemPath)) return {};
  if (systemPath.find_first_of(kNeverInAName) != std::string_view::npos) return {};
  std::string host = Root(systemPath[0]);
  if (host.empty()) return host;
  for (const std::string_view name : Names(systemPath.substr(2), '\\')) {
    if (!host.ends_with('/')) host += '/';
    host += name;
  }
  return host;
}

Result<std::string> PathMap::FromHost(std::string_view hostPath) {
  std::string path = "C:";
  for (const std::string_view name : Names(hostPath, '/')) {
    if (FaultOf(name) != NameFault::None) {
      return Error(errors::BadFileName);
    }
    path += '\\';
    path += name;
  }
  return path.size() == 2 ? path + '\\' : path;
}

bool PathMap::IsSystemForm(std::string_view path) {
  return path.size() >= 3 && IsLetter(path[0]) && path[1] == ':' && path[2] == '\\';
}

}  // namespace kvr5
