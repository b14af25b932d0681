#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "platform/jet/JetFile.h"

namespace kvr5 {

/// A database of a project that isn't one of ours, and what came of it.
struct DatabaseSubentrato {
  std::string Nome;          ///< "playlist.mdb"
  bool DiJet = false;        ///< it says that the Jet engine made it
  std::size_t File = 0;      ///< rows of List
  std::size_t Segmenti = 0;  ///< rows of HEAD: named playlists, or segments
  jet::Trouble Guasto{};     ///< why it can't be read
  Error Causa{};             ///< why the new one couldn't be written
  bool Preso = false;        ///< the new one is in its place

  bool Riuscito() const { return !Guasto && !Causa; }
};

/// How a taking over ended.
enum class FineSubentro {
  Nulla,      ///< all databases of the project are ours
  Compiuto,   ///< all others were taken over; or, where nothing was to be written, could be
  Annullato,  ///< nothing of the project was changed
  Fallito,    ///< one of them couldn't, and nothing of the project was changed
};

struct EsitoSubentro {
  FineSubentro Fine = FineSubentro::Nulla;
  std::vector<DatabaseSubentrato> Database{};
  std::string Originali{};  ///< the folder with the originals, system form
  bool SenzaModello =
      false;  ///< the program's source.mdb, of which each new one is a copy, is gone

  /// Whether a new database is in its place; after a failure not all of them.
  bool Cambiato() const;
};

struct OpzioniSubentro {
  bool Prova = false;               ///< nothing is written to the project
  std::function<bool()> Annulla{};  ///< true ends the work; asked again and again
};

/// The names of the open project's databases that aren't files of ours: of the Jet engine, damaged,
/// or not to be read at all.
std::vector<std::string> DatabaseDaSubentrare(Contesto& contesto);

/// Takes over the databases of the open project that the Jet engine made, as all projects and cards
/// of earlier years have them. Each is read whole, written as a new database, compared row by row
/// with what was read, and only when all are well is the original copied into the folder
/// "Originals" of the project and the new one put in its place, in one step: whenever the power
/// goes, each database is the original or the finished new one, and the next opening goes on.
///
/// Numbers go on after the highest; Null stays Null; paths stay as they are.
EsitoSubentro SubentraNeiDatabase(Contesto& contesto, const OpzioniSubentro& opzioni = {});

/// Takes over and tells what was done, or why not, by a box; says nothing where nothing was to be
/// done.
FineSubentro SubentraEDillo(Contesto& contesto);

}  // namespace kvr5
