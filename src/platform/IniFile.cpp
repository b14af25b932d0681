#include "platform/IniFile.h"

#include <utility>

#include "platform/FileOps.h"

namespace kvr5 {
namespace {

bool IsMissing(const Error& error) {
  return error.Number() == errors::FileNotFound || error.Number() == errors::PathNotFound;
}

}  // namespace

IniFile::IniFile(FileSystem& files, std::string path, CodePage page)
    : files_(files), path_(std::move(path)), page_(page) {}

std::string IniFile::Read(std::string_view section, std::string_view key, std::string_view fallback,
                          std::size_t size) const {
  const Result<std::string> content = ReadWhole(files_, path_);
  std::optional<std::string_view> bytes;
  if (content) bytes = content.Value();
  return page_.Decode(ini::Read(bytes, page_.Encode(section), page_.Encode(key),
                                page_.Encode(fallback), size, page_));
}

Error IniFile::Write(std::string_view section, std::string_view key, std::string_view value) {
  Result<std::string> content = ReadWhole(files_, path_);
  if (!content && !IsMissing(content.Err())) return content.Err();
  const std::string before = content ? std::move(content.Value()) : std::string();
  const auto after =
      ini::Changed(before, page_.Encode(section), page_.Encode(key), page_.Encode(value), page_);
  return after ? ReplaceWhole(files_, path_, *after) : Error();
}

}  // namespace kvr5
