#include "platform/copy/CopyTree.h"

#include <algorithm>
#include <array>

#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/TempName.h"

namespace kvr5 {
namespace {

/// Folders for the system's own use: its indexes, what it rescued, what was thrown away.
bool IsSystemFolder(std::string_view name) {
  static constexpr std::array<std::string_view, 5> kNames{"system volume information", "lost+found",
                                                          "$recycle.bin", "recycler", "recycled"};
  const std::string folded = FoldCase(name);
  return std::ranges::find(kNames, folded) != kNames.end() || folded.starts_with(".trash");
}

/// A name that no path can say, or no other card could hold.
bool IsImpossible(const FileInfo& info) {
  return info.Unusable != NameFault::None || !CardCanHold(info.Name);
}

/// Pipes and devices can't be read to an end; a FAT volume's own system files can, unless empty.
bool IsSpecial(const FileInfo& info) {
  return info.System && info.Size == 0;
}

}  // namespace

CopyTree::CopyTree(const FileSystem& files, std::string_view pattern, CopyVisitor& visitor)
    : files_(files),
      pattern_(pattern),
      withSubfolders_(pattern == "*.*" || pattern == "*"),
      visitor_(visitor) {}

bool CopyTree::Walk(const std::string& source, const std::string& target) {
  destination_ = target;
  return Enter(source, target);
}

bool CopyTree::Enter(const std::string& source, const std::string& target) {
  const Result<std::vector<FileInfo>> list = files_.List(source);
  if (!list) return visitor_.Unreadable(source, list.Err());
  if (!visitor_.Entered(source)) return false;
  for (const FileInfo& info : list.Value()) {
    if (Stays(info)) continue;
    const std::string from = JoinPath(source, info.Name);
    const std::string to = JoinPath(target, info.Name);
    if (info.IsFolder) {
      if (withSubfolders_ && !EnterSubfolder(from, info, to)) return false;
    } else if (MatchesWildcard(info.Name, pattern_) && !IsTempName(info.Name) && !IsSpecial(info) &&
               !visitor_.TakeFile(from, info, to)) {
      return false;
    }
  }
  return true;
}

/// A whole tree, as a card's, is copied without what its links lead to, anywhere on the host, and
/// without impossible names.
bool CopyTree::Stays(const FileInfo& info) {
  if (!withSubfolders_) return info.Unusable != NameFault::None;
  if (info.IsLink) return true;
  const bool impossible = IsImpossible(info);
  if (impossible && !IsSpecial(info)) visitor_.LeftOut(info.Name);
  return impossible;
}

bool CopyTree::EnterSubfolder(const std::string& source, const FileInfo& info,
                              const std::string& target) {
  if (IsSystemFolder(info.Name) || files_.SameFile(source, destination_)) return true;
  return visitor_.TakeFolder(target) && Enter(source, target);
}

}  // namespace kvr5
