#include "platform/IniFile.h"

#include <array>
#include <utility>

namespace kvr5 {
namespace {

Result<std::string> ReadAll(FileSystem& files, const std::string& path) {
  auto file = files.Open(path, OpenMode::Read);
  if (!file) return file.Err();
  std::string bytes;
  std::array<char, 65536> buffer{};
  for (;;) {
    const auto count = file.Value()->Read(buffer);
    if (!count) return count.Err();
    bytes.append(buffer.data(), count.Value());
    if (count.Value() < buffer.size()) return bytes;
  }
}

Error WriteAll(FileSystem& files, const std::string& path, std::string_view bytes) {
  auto file = files.Open(path, OpenMode::Write);
  if (!file) return file.Err();
  if (auto error = file.Value()->Write(bytes)) return error;
  if (auto error = file.Value()->Flush()) return error;
  return file.Value()->Close();
}

/// Puts new content in the place of the old in one step, so that a crash leaves one of them.
Error ReplaceAll(FileSystem& files, const std::string& path, std::string_view bytes) {
  const std::string beside = path + ".new";
  Error error = WriteAll(files, beside, bytes);
  if (!error) error = files.Replace(beside, path);
  if (error) Ignora(files.Delete(beside));
  return error;
}

bool IsMissing(const Error& error) {
  return error.Number() == errors::FileNotFound || error.Number() == errors::PathNotFound;
}

}  // namespace

IniFile::IniFile(FileSystem& files, std::string path, CodePage page)
    : files_(files), path_(std::move(path)), page_(page) {}

std::string IniFile::Read(std::string_view section, std::string_view key, std::string_view fallback,
                          std::size_t size) const {
  const Result<std::string> content = ReadAll(files_, path_);
  std::optional<std::string_view> bytes;
  if (content) bytes = content.Value();
  return page_.Decode(ini::Read(bytes, page_.Encode(section), page_.Encode(key),
                                page_.Encode(fallback), size, page_));
}

Error IniFile::Write(std::string_view section, std::string_view key, std::string_view value) {
  Result<std::string> content = ReadAll(files_, path_);
  if (!content && !IsMissing(content.Err())) return content.Err();
  const std::string before = content ? std::move(content.Value()) : std::string();
  const auto after =
      ini::Changed(before, page_.Encode(section), page_.Encode(key), page_.Encode(value), page_);
  return after ? ReplaceAll(files_, path_, *after) : Error();
}

}  // namespace kvr5
