#pragma once

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
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
/// Where several names differ only by case, the first in the order of their bytes is taken. The
/// first `fixed` characters, a drive's own folder, must be there as they are: in another case they
/// would be another volume's.
Place Locate(std::string path, std::size_t fixed = 1);

/// Looks a path up as it is given only.
Place LocateExactly(std::string path);

/// The path of something that is there, with every name spelled like the disk spells it, also on a
/// volume that finds a name in any case.
std::string Respelled(const std::string& path);

/// True where what was found lies on a volume that is known to mind the case of names; false in
/// doubt.
bool MindsCase(const Place& place);

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};
/// A folder that is open to be read.
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

/// What precedes the last slash ("/" for names in the root), and what follows it.
std::string ParentOf(const std::string& path);
std::string_view NameOf(std::string_view path);

}  // namespace kvr5::host
