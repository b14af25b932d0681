#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/FileSystem.h"

namespace kvr5 {

/// The rules of the host's private profile calls on the bytes of a file.
namespace ini {

/// Looks a value up; all arguments and the result are bytes of `page`.
///
/// `content` empty optional: the file is missing. `section` or `key` empty optional: the list of
/// section or key names, each closed by a NUL; empty names are left out. Returns at most `size` - 1
/// characters, of a list `size` - 2. A file with the mark of UTF-16 LE is understood; characters
/// that the page lacks come back as "?".
std::string Read(std::optional<std::string_view> content, std::optional<std::string_view> section,
                 std::optional<std::string_view> key, std::string_view fallback, std::size_t size,
                 const CodePage& page);

/// The file's bytes after a write, or nothing when they stay as they are. `value` empty optional
/// drops the key, `key` empty optional drops the section's keys and header; without a `section`
/// nothing changes.
std::optional<std::string> Changed(std::string_view content,
                                   std::optional<std::string_view> section,
                                   std::optional<std::string_view> key,
                                   std::optional<std::string_view> value, const CodePage& page);

}  // namespace ini

/// A key and its new value, both UTF-8.
struct IniValue {
  std::string_view Key;
  std::string Value;
};

/// An INI file on the disk, read afresh at each call; nothing is held open or cached.
class IniFile {
 public:
  IniFile(FileSystem& files, std::string path, CodePage page);

  /// The value as UTF-8, at most `size` - 1 characters of the page; arguments are UTF-8. A file
  /// that can't be read counts as missing.
  std::string Read(std::string_view section, std::string_view key, std::string_view fallback,
                   std::size_t size) const;
  /// Writes one value (UTF-8), making the file if it isn't there. A crash in the middle leaves
  /// the old file or the new one; every unrelated byte stays. Where the folder takes no new file,
  /// the old one is written in its place. A file that is there but can't be read is left alone, and
  /// that error returned.
  Error Write(std::string_view section, std::string_view key, std::string_view value);
  /// Writes several keys of one section as a Write of each in this order would, but reads and
  /// replaces the file once: a crash leaves all of the old values or all of the new ones.
  Error Write(std::string_view section, std::span<const IniValue> values);

 private:
  Result<std::string> Content() const;

  FileSystem& files_;
  std::string path_;
  CodePage page_;
};

}  // namespace kvr5
