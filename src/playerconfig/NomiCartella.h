#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "platform/FileSystem.h"

namespace kvr5 {

/// The names of the files in a folder (none hidden), read once, so that asking for many names
/// doesn't look at the disk for each. Names match without regard to case.
class NomiCartella {
 public:
  /// A folder that can't be read has no files.
  NomiCartella(const FileSystem& file, std::string_view cartella);

  bool Contiene(std::string_view nome) const;
  /// Keeps up with a file that was renamed.
  void Rinominato(std::string_view da, std::string_view a);

 private:
  std::unordered_set<std::string> nomi_;  // with their letters made small
};

}  // namespace kvr5
