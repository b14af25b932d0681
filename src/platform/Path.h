#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/Error.h"

namespace kvr5 {

/// How the system's paths and the host's stand to each other.
///
/// Inside the logic a path has one form on every host: drive letter, colon, backslashes
/// ("C:\Music\a.mp3"). On Windows the mapping is the identity. Elsewhere "C:\" is the host's root
/// directory and each removable volume has a letter from "D:" on, bound to it for the life of the
/// process. Pure text work: nothing here looks at the disk.
class PathMap {
 public:
  /// Binds a letter ('D' to 'Z') to a folder of the host; a letter once bound stays.
  /// Returns false when the letter is taken by another folder.
  bool Bind(char letter, std::string hostFolder);
  /// The letter of a folder of the host, or the next free one from 'D' on, bound now; '\0' when
  /// all are used up.
  char LetterOf(const std::string& hostFolder);
  /// The folder of the host that a letter stands for; "" when the letter is unknown.
  std::string Root(char letter) const;

  /// "C:\Music\a.mp3" as "/Music/a.mp3"; "" when the drive is unknown or the path isn't absolute.
  std::string ToHost(std::string_view systemPath) const;
  /// "/Music/a.mp3" as "C:\Music\a.mp3", always from "C:\"; the path must be absolute.
  /// 52 when a name holds `| : \ * ?` or isn't UTF-8.
  static Result<std::string> FromHost(std::string_view hostPath);
  /// True when the text has the system's form: a letter, a colon, a backslash.
  static bool IsSystemForm(std::string_view path);

 private:
  std::map<char, std::string> roots_;
};

}  // namespace kvr5
