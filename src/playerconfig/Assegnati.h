#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// One row of lstAssegnati: a combination of inputs that has a file.
struct Assegnato {
  std::int64_t Codice = 0;  ///< 1 to 255; any other number, which no click makes, from elsewhere
  std::string Ingressi;     ///< "IN1+IN3"; digits where the number is no code
  std::string FileName;
  std::string Percorso;          ///< of the source, system form
  bool Mancante = false;         ///< neither the source nor its copy "5.mp3" in the project exists
  bool StessoFile = false;       ///< shares its source with another row: a recording will stop
  bool DelCollegamento = false;  ///< takes IN5 or IN6, which the RS-485 link has: can't be ticked
  bool operator==(const Assegnato&) const = default;
};

/// The rows of lstAssegnati and what stands below them.
struct ElencoAssegnati {
  std::vector<Assegnato> Righe;
  std::size_t Mancanti = 0;
  bool operator==(const ElencoAssegnati&) const = default;
};

/// All assigned combinations, by code, from the rows of the table.
///
/// A recording takes the copy "5.mp3" where the project has one, else the source, which it refuses
/// to list a second time, even where the listed one is longer and only begins with the same path.
/// Both rows of such a pair are marked. Two rows that both have a copy never are. The project's
/// folder is read once, each source looked up once.
ElencoAssegnati Assegnati(const Contesto& contesto, const std::vector<RigaIngresso>& righe);

/// The words for what is wrong with a row, in the user's language; read once for a whole list.
struct ParoleAssegnato {
  explicit ParoleAssegnato(Contesto& contesto);
  std::string Mancante;
  std::string StessoFile;
  std::string EraQui;              ///< before the path of a missing file
  std::string AltroIngresso;       ///< what to do about a file that two inputs use
  std::string Collegamento;        ///< for a combination whose inputs the RS-485 link has
  std::string LiberaCollegamento;  ///< what to do about it
};

/// What a row is marked with: "missing", "same file: recording will stop", "in use by the RS-485
/// link", several of them divided by ", ", or "".
std::string SegnoAssegnato(const ParoleAssegnato& parole, const Assegnato& riga);
std::string SegnoAssegnato(Contesto& contesto, const Assegnato& riga);

/// "2 files, 1 missing" in the user's language; the missing ones only where there are any.
std::string CifreAssegnati(Contesto& contesto, const ElencoAssegnati& elenco);

}  // namespace kvr5
