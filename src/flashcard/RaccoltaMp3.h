#pragma once

#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "core/ListaCopia.h"
#include "platform/db/Recordset.h"

namespace kvr5 {

/// Which database a pass goes over; the input pass alone doesn't test that a source exists.
enum class Passata { Ingressi, Playlist, Palinsesto };

/// The query of the playlist and schedule passes.
inline constexpr const char* kRigheDellaPassata =
    "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC";

/// Why a recording can't have a file of the project.
enum class Mancanza {
  Nessuna,
  Assente,      ///< it isn't where the row says
  Comune,       ///< another input has it already
  Nome,         ///< a name or path that no card and no list can hold
  Illeggibile,  ///< it is there, but can't be read
  Database,     ///< it is a database that can't be read to its end
};

/// Why a recording couldn't read a file: Illeggibile where it is known to be there, else Assente;
/// Nessuna where it can be opened.
Mancanza PercheManca(FileSystem& files, const std::string& percorso);

/// What a pass makes of one row.
struct RigaRaccolta {
  enum class Fine {
    SenzaAlias,   ///< passed over
    Aggiunta,     ///< its pair was added to the lists
    GiaPresente,  ///< its source is listed already, with the alias of an earlier row
    Manca,        ///< its file can't be had
  };
  Fine Esito = Fine::SenzaAlias;
  std::string Alias{};         ///< the name on the card; "" where the row's is no plain name
  std::string Sorgente{};      ///< the file that is copied
  std::string FileMancante{};  ///< as the message names it
  std::string Percorso{};      ///< and with its folder
  Mancanza Perche = Mancanza::Nessuna;
};

/// Adds the source file of the current row to the lists, under the row's alias in the root `scheda`
/// of the card: the copy of the project's folder that bears the alias, else the file where it was
/// chosen.
RigaRaccolta RaccogliRiga(Contesto& contesto, Passata passata, const Recordset& righe,
                          ListaCopia& lista, std::string_view scheda);

/// How a pass ended.
struct EsitoPassata {
  bool Riuscita = true;
  /// The file that can't be had, as the message names it: its name alone in the input pass, its
  /// full path in the others; the database's, where that can't be read on.
  std::string FileMancante;
  bool DatabaseIlleggibile = false;
};

/// Adds a source file for each row of `righe` to the lists, as RaccogliRiga does.
///
/// A closed or empty recordset is passed over. A row without an alias is passed over. A source
/// that is listed already is dropped with its destination, so that a file in two rows reaches the
/// card under the alias of the first; in the input pass that is a failure. The pass stops at the
/// first file that can't be had, at an alias that isn't a plain name, and where the database, whose
/// name is `database`, can't be read on.
EsitoPassata RaccogliMp3(Contesto& contesto, Passata passata, Recordset& righe, ListaCopia& lista,
                         std::string_view database, std::string_view scheda);

}  // namespace kvr5
