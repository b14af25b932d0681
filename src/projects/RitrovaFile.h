#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/Contesto.h"

namespace kvr5 {

/// A row of the open project whose file was looked for.
struct RigaRitrovata {
  std::string Database;  ///< "playlist.mdb"
  std::int64_t Id = 0;
  std::string Nome;
  std::string Prima{};  ///< the folder that the row names, as it is stored
  std::string Ora{};    ///< the folder where the file was found, with its closing bar; "" for none
  bool Dubbia =
      false;  ///< several files of this name lie there, and none is nearer than the others
};

/// What came of a search.
struct EsitoRitrovo {
  std::vector<RigaRitrovata> Righe{};  ///< the rows whose files were missing
  bool Annullato = false;              ///< nothing was written
  Error Causa{};                       ///< why a database couldn't be read or written

  std::size_t Trovati() const;
};

/// Who watches a search.
class OsservatoreRitrovo {
 public:
  virtual ~OsservatoreRitrovo() = default;
  /// Before each folder that is listed, and each of a file that is compared; lets events run. False
  /// cancels.
  virtual bool Avanza(const std::string& cartella) = 0;
};

/// Looks in a folder and all below it, by name, for the files of the open project that are neither
/// at their place nor in the project under their alias, and writes where they are into FilePath.
/// What isn't found stays as it is; nothing is written after a cancel.
///
/// Of several files of one name the one counts whose folders are most like those of the row, from
/// the file upwards; where that leaves several, the row stays, unless all hold the same bytes.
/// Links to folders are not followed.
EsitoRitrovo RitrovaFile(Contesto& contesto, const std::string& cartella,
                         OsservatoreRitrovo& osservatore);

}  // namespace kvr5
