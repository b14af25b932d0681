#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

namespace kvr5::host {

/// Where a path leads on the disk.
struct Place {
  std::string Path;     ///< host form, spelled like the disk as far as it was found
  int Code = 0;         ///< 0 when it is there, else the errno of the look-up
  struct stat Stat {};  ///< of what is there

  bool Found() const { return Code == 0; }
  bool IsFolder() const { return Found() && S_ISDIR(Stat.st_mode); }
};

/// Looks a path (host form, absolute) up: exactly first, then name by name without regard to case.
/// Where several names differ only by case, the first in the order of their bytes is taken.
Place Locate(std::string path);

/// Looks a path up as it is given only.
Place LocateExactly(std::string path);

/// The path of something that is there, with every name spelled like the disk spells it, also on a
/// volume that finds a name in any case.
std::string Respelled(const std::string& path);

/// What precedes the last slash ("/" for names in the root), and what follows it.
std::string ParentOf(const std::string& path);
std::string_view NameOf(std::string_view path);

}  // namespace kvr5::host
