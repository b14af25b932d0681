#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"

namespace kvr5 {

/// One assigned combination of inputs, as the database has it; nothing for a Null.
struct RigaIngresso {
  std::optional<std::int64_t> Pos;   ///< the code, 1 to 255
  std::optional<std::string> Alias;  ///< name on the card
  std::optional<std::string> FileName;
  std::optional<std::string> FilePath;  ///< folder with a closing backslash
};

/// The hub's connection to inputcfg.mdb and the recordset over its table `List`. Each change is
/// stored at once. A missing database leaves the recordset closed, and nothing then does anything.
class TabellaIngressi {
 public:
  explicit TabellaIngressi(Contesto& contesto);

  /// Whether a project of this model and mode has no logic-input block on the hub: model 4 in any
  /// mode but 1.
  static bool SenzaIngressi(std::int16_t playerType, std::int16_t playerMode);

  /// Opens the open project's inputcfg.mdb with all rows by Pos.
  void Apri();
  /// Apri, where the open project has inputs at all.
  void ApriSeCiSono();
  /// Closes the recordset and then the connection.
  void Chiudi();
  /// Opens what Apri opened once more, and the recordset on all rows; nothing when another project
  /// is open by now.
  void Riapri();
  /// Opens the recordset once more, so that it reads the current table; the connection too, where
  /// it isn't open. Nothing is opened, and nothing fails, where the project has no such database or
  /// its model no inputs.
  void RiapriRighe();
  bool Aperta() const { return righe_.IsOpen(); }

  /// Goes to the row of a code; false when it has none or the search
  /// failed, which is then the pending error.
  bool Cerca(std::int16_t codice);
  /// Assigns a file to a code: its row is overwritten, or a new one made. The row is searched
  /// first, since a save or a recording may have moved the cursor. A failure is the pending error
  /// and two lines in the log; nothing is shown.
  void Assegna(std::int16_t codice, const std::string& fileName, const std::string& cartella);
  /// Frees a code; a free one stays as it is.
  void Libera(std::int16_t codice);
  /// Writes the pending error of a confirm of `fileName` to the log; nothing without one.
  void AnnotaErrore(const std::string& fileName);
  /// All rows by Pos. A table that can't be read to its end is the pending error, with the rows
  /// before.
  std::vector<RigaIngresso> Righe();

  /// The recordset itself, for the pass of a recording over it.
  Recordset& Cursore() { return righe_; }

 private:
  void Scrivi(std::int16_t codice, const std::string& fileName, const std::string& cartella);

  Contesto& contesto_;
  std::string percorso_;  // what the last Apri asked for
  Connection connessione_;
  Recordset righe_;
};

}  // namespace kvr5
