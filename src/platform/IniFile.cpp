#include "platform/IniFile.h"

#include <utility>

#include "platform/FileOps.h"
#include "platform/TempName.h"

namespace kvr5 {
namespace {

bool IsMissing(const Error& error) {
  return error.Number() == errors::FileNotFound || error.Number() == errors::PathNotFound;
}

/// True for a file that can be written but not replaced, because its folder takes no new one: so it
/// is where an administrator set a program up for others.
bool IsFolderLocked(FileSystem& files, const std::string& path) {
  const auto info = files.Info(path);
  if (!info || info.Value().IsFolder || info.Value().ReadOnly) return false;
  const std::string probe = JoinPath(FolderOf(path), NewTempName());
  const auto made = files.Open(probe, OpenMode::New);
  if (made) Ignora(files.Delete(probe));
  return !made && (made.Err().Number() == errors::PathFileAccess ||
                   made.Err().Number() == errors::PermissionDenied);
}

/// Writes into the file where it is; what was there is put back when that fails.
Error WriteInPlace(FileSystem& files, const std::string& path, std::string_view before,
                   std::string_view after) {
  const Result<std::uint64_t> room = files.FreeSpace(path);
  if (room && room.Value() < after.size()) return Error(errors::DiskFull);
  const auto write = [&](std::string_view bytes) {
    auto file = files.Open(path, OpenMode::Write);
    if (!file) return file.Err();
    Error error = file.Value()->Write(bytes);
    if (!error) error = file.Value()->Flush();
    const Error closed = file.Value()->Close();
    return error ? error : closed;
  };
  Error error = write(after);
  if (error && error.Number() != errors::PathFileAccess) Ignora(write(before));
  return error;
}

}  // namespace

IniFile::IniFile(FileSystem& files, std::string path, CodePage page)
    : files_(files), path_(std::move(path)), page_(page) {}

std::string IniFile::Read(std::string_view section, std::string_view key, std::string_view fallback,
                          std::size_t size) const {
  const Result<std::string> content = Content();
  std::optional<std::string_view> bytes;
  if (content) bytes = content.Value();
  return page_.Decode(ini::Read(bytes, page_.Encode(section), page_.Encode(key),
                                page_.Encode(fallback), size, page_));
}

/// The bytes of the file. One beyond all measure, as a card may hold, is no settings file.
Result<std::string> IniFile::Content() const {
  constexpr std::uint64_t kMost = std::uint64_t{64} << 20U;
  const Result<FileInfo> info = files_.Info(path_);
  if (info && info.Value().Size > kMost) return Error(errors::OutOfMemory);
  return ReadWhole(files_, path_);
}

Error IniFile::Write(std::string_view section, std::string_view key, std::string_view value) {
  const IniValue one{key, std::string(value)};
  return Write(section, std::span(&one, 1));
}

Error IniFile::Write(std::string_view section, std::span<const IniValue> values) {
  Result<std::string> content = Content();
  if (!content && !IsMissing(content.Err())) return content.Err();
  const std::string before = content ? content.Value() : std::string();
  std::string after = before;
  bool changed = false;
  for (const IniValue& each : values) {
    auto next = ini::Changed(after, page_.Encode(section), page_.Encode(each.Key),
                             page_.Encode(each.Value), page_);
    if (!next) continue;
    after = std::move(*next);
    changed = true;
  }
  if (!changed) return {};
  Error error = ReplaceWhole(files_, path_, after);
  if (error && content && IsFolderLocked(files_, path_)) {
    return WriteInPlace(files_, path_, before, after);
  }
  return error;
}

}  // namespace kvr5
