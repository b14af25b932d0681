#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5 {

/// A file of filMp3.
struct FilePannello {
  std::string Nome;                     ///< U+FFFD in place of what isn't UTF-8
  NameFault Difetto = NameFault::None;  ///< why it can't be taken: shown, but not to be chosen
  bool operator==(const FilePannello&) const = default;
};

/// The "*.mp3" files of a folder in the order that people expect ("2" before "10", without regard
/// to case); no folders, none hidden. A folder that can't be read has none.
std::vector<FilePannello> FileDelPannello(const FileSystem& file, std::string_view cartella);

/// The same from the entries of a folder that were read already.
std::vector<FilePannello> FileDelPannello(const std::vector<FileInfo>& voci);

/// The names of those that can be taken.
std::vector<std::string> NomiDa(const std::vector<FilePannello>& file);
/// Those of a folder: what adding it goes through.
std::vector<std::string> NomiDelPannello(const FileSystem& file, std::string_view cartella);

}  // namespace kvr5
