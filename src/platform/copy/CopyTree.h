#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5 {

/// Who is told what a copy of a folder takes. A call that returns false ends the walk.
class CopyVisitor {
 public:
  virtual ~CopyVisitor() = default;
  /// A folder was listed and its entries follow.
  virtual bool Entered(const std::string& source) = 0;
  /// A subfolder that the copy takes along goes to `target`.
  virtual bool TakeFolder(const std::string& target) = 0;
  /// A file that the copy takes goes to `target`.
  virtual bool TakeFile(const std::string& source, const FileInfo& info,
                        const std::string& target) = 0;
  /// A file or folder of a whole tree isn't taken, as no card can hold its name.
  virtual void LeftOut(const std::string& /*name*/) {}
  /// A folder that can't be listed.
  virtual bool Unreadable(const std::string& source, const Error& error) = 0;
};

/// Walks the files of a folder that match a pattern, by name; with `*.*` the subfolders too.
///
/// Left out: the folders that the system keeps on a volume for itself, names that no path can
/// hold, leavings of an earlier copy, pipes and devices, a folder that holds the one it was found
/// in (a link that turns round), and the copy's own destination.
class CopyTree {
 public:
  CopyTree(const FileSystem& files, std::string_view pattern, CopyVisitor& visitor);
  /// False when a call of the visitor ended it.
  bool Walk(const std::string& source, const std::string& target);

 private:
  bool Enter(const std::string& source, const std::string& target);
  bool Stays(const FileInfo& info);
  bool EnterSubfolder(const std::string& source, const FileInfo& info, const std::string& target);

  const FileSystem& files_;
  std::string pattern_;
  bool withSubfolders_;
  CopyVisitor& visitor_;
  std::string destination_;
};

}  // namespace kvr5
