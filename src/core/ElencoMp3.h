#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "platform/FileSystem.h"

namespace kvr5 {

/// One item of cmbFileMp3.
struct VoceMp3 {
  std::string Nome;  ///< " " for no file; U+FFFD in place of what isn't UTF-8
  /// Why the file can't be taken: shown, but not to be chosen.
  NameFault Difetto = NameFault::None;
  bool operator==(const VoceMp3&) const = default;
};

/// The items of cmbFileMp3: the blank, which stands for no file, and the MP3 files of a folder.
struct ElencoMp3 {
  std::vector<VoceMp3> Voci;  ///< never empty
  std::size_t Scelto = 0;     ///< index of the item that a filling selects

  /// The index of a file that can be taken, by its name: spelled so, else without regard to case.
  /// Nothing when the list has none of this name.
  std::optional<std::size_t> Indice(std::string_view nome) const;
  bool operator==(const ElencoMp3&) const = default;
};

/// The blank and all "*.mp3" files of a folder, by name without regard to case; no folders, none
/// hidden. Selected is the first file that can be taken, else the blank. A folder that can't be
/// read gives the blank alone. The folder is read once, whatever the number of its files.
ElencoMp3 RiempiElencoMp3(const FileSystem& file, std::string_view cartella);

/// The same from the entries of a folder that were read already, in the order of List.
ElencoMp3 RiempiElencoMp3(const std::vector<FileInfo>& voci);

/// Why a file can't be taken, in the user's language; "" for one that can.
std::string ParoleDifetto(Contesto& contesto, NameFault difetto);

}  // namespace kvr5
