#include "platform/FileOps.h"

#include <algorithm>
#include <array>

#include "platform/Fold.h"
#include "platform/TempName.h"
#include "platform/Utf8.h"

namespace kvr5 {
namespace {

bool IsNormal(const FileInfo& entry) {
  return !entry.IsFolder && !entry.Hidden && !entry.System && entry.Unusable == NameFault::None;
}

/// Matches folded texts. `*` takes as little as it can; after a miss the last one takes one more.
bool Matches(std::string_view name, std::string_view pattern) {
  std::size_t at = 0;
  std::size_t want = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (at < name.size()) {
    if (want < pattern.size() && pattern[want] == '*') {
      star = want++;
      resume = at;
    } else if (want < pattern.size() && pattern[want] == '?') {
      at += utf8::Next(name.substr(at)).Length;
      ++want;
    } else if (want < pattern.size() && pattern[want] == name[at]) {
      ++at;
      ++want;
    } else if (star != std::string_view::npos) {
      resume += utf8::Next(name.substr(resume)).Length;
      at = resume;
      want = star + 1;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', want) == std::string_view::npos;
}

/// Writes the whole source behind the current place of the target.
Error CopyContent(FileSystem& files, File& from, File& to) {
  constexpr std::size_t kPiece = std::size_t{1} << 20U;
  for (;;) {
    const Result<std::size_t> copied = files.CopyRange(from, to, kPiece);
    if (!copied) return copied.Err();
    if (copied.Value() == 0) return {};
  }
}

/// Makes a file beside the one at `given` under a passing name, has it filled, and puts it in its
/// place; a link goes on leading there. After a failure nothing of it is left. A folder or a
/// read-only file in that place is 75.
template <typename Fill>
Error ReplaceBy(FileSystem& files, std::string_view given, Fill fill) {
  const std::string path = files.BehindLink(given);
  const Result<FileInfo> old = files.Info(path);
  if (old && (old.Value().IsFolder || old.Value().ReadOnly)) return Error(errors::PathFileAccess);
  if (!old && old.Err().Number() != errors::FileNotFound) return old.Err();
  if (!old && !CardCanHold(LastName(path))) return Error(errors::BadFileName);
  const std::string temp = JoinPath(FolderOf(path), NewTempName());
  Error error;
  {
    auto file = files.Open(temp, OpenMode::New);
    if (!file) return file.Err();
    error = fill(*file.Value());
    if (!error) error = file.Value()->Flush();
    const Error closed = file.Value()->Close();
    if (!error) error = closed;
  }
  if (!error) error = files.Replace(temp, path);
  if (error) Ignora(files.Delete(temp));
  return error;
}

}  // namespace

bool HasWildcard(std::string_view name) {
  return name.find_first_of("*?") != std::string_view::npos;
}

bool FileExists(const FileSystem& files, std::string_view path) {
  const std::string_view name = LastName(path);
  if (name.empty() || HasWildcard(name)) return !ListMatching(files, path).empty();
  const Result<FileInfo> info = files.Info(path);
  return info && IsNormal(info.Value());
}

bool FolderExists(const FileSystem& files, std::string_view path) {
  const Result<FileInfo> info = files.Info(path);
  return info && info.Value().IsFolder;
}

bool MatchesWildcard(std::string_view name, std::string_view pattern) {
  std::string folded = FoldCase(pattern);
  // A name without a dot has an empty ending: "a*.*" takes "abc" too.
  if (folded.ends_with(".*") && name.find('.') == std::string_view::npos) {
    folded.resize(folded.size() - 2);
  }
  return Matches(FoldCase(name), folded);
}

std::vector<FileInfo> ListMatching(const FileSystem& files, std::string_view pattern) {
  Result<std::vector<FileInfo>> list = files.List(FolderOf(pattern));
  if (!list) return {};
  const std::string_view name = LastName(pattern);
  const std::string_view wanted = name.empty() ? "*" : name;
  std::erase_if(list.Value(), [wanted](const FileInfo& entry) {
    return !IsNormal(entry) || !MatchesWildcard(entry.Name, wanted);
  });
  return std::move(list.Value());
}

Error DeleteMatching(FileSystem& files, std::string_view pattern) {
  const std::string_view name = LastName(pattern);
  if (!HasWildcard(name)) {
    if (name.empty() || !FileExists(files, pattern)) return Error(errors::FileNotFound);
    return files.Delete(pattern);
  }
  const std::vector<FileInfo> list = ListMatching(files, pattern);
  if (list.empty()) return Error(errors::FileNotFound);
  for (const FileInfo& entry : list) {
    if (Error error = files.Delete(JoinPath(FolderOf(pattern), entry.Name))) return error;
  }
  return {};
}

Error CopyOneFile(FileSystem& files, std::string_view from, std::string_view to) {
  const Result<FileInfo> info = files.Info(from);
  if (!info) return info.Err();
  if (files.SameFile(from, to)) return {};
  auto source = files.Open(from, OpenMode::Read);
  if (!source) return source.Err();
  return ReplaceBy(files, to, [&](File& target) {
    Error error = CopyContent(files, *source.Value(), target);
    if (!error) Ignora(target.SetModified(info.Value().Modified));
    return error;
  });
}

bool IsHeld(FileSystem& files, std::string_view path) {
  return files.Hold(path).Err().Number() == errors::PermissionDenied;
}

bool HoldTheSame(FileSystem& files, std::string_view a, std::string_view b) {
  const auto first = files.Open(a, OpenMode::Read);
  const auto second = files.Open(b, OpenMode::Read);
  if (!first || !second) return false;
  const auto size = first.Value()->Size();
  const auto otherSize = second.Value()->Size();
  if (!size || !otherSize || size.Value() != otherSize.Value()) return false;
  std::array<char, 65536> here{};
  std::array<char, 65536> there{};
  for (;;) {
    const auto length = first.Value()->Read(here);
    const auto other = second.Value()->Read(there);
    if (!length || !other || length.Value() != other.Value()) return false;
    if (length.Value() == 0) return true;
    if (!std::equal(here.begin(), here.begin() + static_cast<std::ptrdiff_t>(length.Value()),
                    there.begin())) {
      return false;
    }
  }
}

Result<std::string> ReadWhole(FileSystem& files, std::string_view path) {
  auto file = files.Open(path, OpenMode::Read);
  if (!file) return file.Err();
  constexpr std::size_t kPiece = std::size_t{64} << 10U;
  std::string bytes;
  for (;;) {
    const std::size_t before = bytes.size();
    bytes.resize(before + kPiece);
    const Result<std::size_t> read = file.Value()->Read(std::span(bytes).subspan(before));
    if (!read) return read.Err();
    bytes.resize(before + read.Value());
    if (read.Value() < kPiece) return bytes;
  }
}

Error ReplaceWhole(FileSystem& files, std::string_view path, std::string_view bytes) {
  return ReplaceBy(files, path, [bytes](File& file) { return file.Write(bytes); });
}

void SweepLeftovers(FileSystem& files, std::string_view folder) {
  const Result<std::vector<FileInfo>> list = files.List(folder);
  if (!list) return;
  for (const FileInfo& entry : list.Value()) {
    if (IsNormal(entry) && IsTempName(entry.Name)) {
      Ignora(files.DeleteUnheld(JoinPath(folder, entry.Name)));
    }
  }
}

}  // namespace kvr5
