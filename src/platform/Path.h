#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/Error.h"

namespace kvr5 {

/// Why a name on the host's disk can't stand in a path of the system.
enum class NameFault {
  None,
  NotUtf8,   ///< its bytes aren't UTF-8
  Reserved,  ///< it holds one of `| : \ * ?`
};

/// What keeps a name of the disk out of the system's paths, if anything.
NameFault FaultOf(std::string_view name);

/// True when a card can hold a file or folder of this name: no `< > : " / \ | ? *`, no control
/// character, no trailing dot or blank, not a device's name ("CON", "nul.txt", "COM1"), not empty,
/// UTF-8. On every host new names are held to it.
bool CardCanHold(std::string_view name);

/// `folder` and `name` with one backslash between.
std::string JoinPath(std::string_view folder, std::string_view name);
/// What follows the last backslash; all of it where there is none.
std::string_view LastName(std::string_view path);
/// What precedes the last name, without its closing backslash; a drive's root keeps it ("C:\").
std::string_view FolderOf(std::string_view path);

/// How the system's paths and the host's stand to each other.
///
/// Inside the logic a path has one form on every host: drive letter, colon, backslashes
/// ("C:\Music\a.mp3"). On Windows the mapping is the identity. Elsewhere "C:\" is the host's root
/// directory and each removable volume has a letter from "D:" on, bound to it for the life of the
/// process. Pure text work: nothing here looks at the disk.
class PathMap {
 public:
  /// Binds a letter ('D' to 'Z', in either case) to a folder of the host, given as an absolute
  /// path; a letter once bound stays. Returns false when the letter is taken by another folder or
  /// can't be bound.
  bool Bind(char letter, std::string_view hostFolder);
  /// The letter of a folder of the host, or the next free one from 'D' on, bound now; '\0' when
  /// all are used up.
  char LetterOf(std::string_view hostFolder);
  /// The folder of the host that a letter stands for, without a closing slash unless it is "/"; ""
  /// when the letter is unknown.
  std::string Root(char letter) const;

  /// "C:\Music\a.mp3" as "/Music/a.mp3". Doubled and closing backslashes count for nothing, "."
  /// and ".." are worked out by the text. "" when the drive is unknown, the path isn't absolute or
  /// a name holds a slash.
  std::string ToHost(std::string_view systemPath) const;
  /// "/Music/a.mp3" as "C:\Music\a.mp3", always from "C:\"; the path must be absolute. Doubled and
  /// closing slashes, "." and ".." as above. 52 when a name holds `| : \ * ?` or isn't UTF-8.
  static Result<std::string> FromHost(std::string_view hostPath);
  /// True when the text has the system's form: a letter, a colon, a backslash.
  static bool IsSystemForm(std::string_view path);

 private:
  std::map<char, std::string> roots_;
};

}  // namespace kvr5
