#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Contesto.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"

namespace kvr5 {

/// One file of a project's lists.
struct RigaProgetto {
  std::string Lista;  ///< "inputcfg.mdb", "playlist.mdb" or "scheduler.mdb"
  std::int64_t NPlaylist = 0;
  std::int64_t Pos = 0;
  std::string Alias;  ///< "" until assigned
  std::string FilePath;
  std::string FileName;
  std::int64_t Id = 0;
  bool Mancante = false;  ///< neither the source nor the alias copy in the project exists
};

/// A project's lists in figures. A database that is missing counts as empty, of one that can't be
/// read to its end the rows before count.
struct SommarioProgetto {
  std::vector<RigaProgetto> Ingressi;
  std::vector<RigaProgetto> Brani;
  std::vector<RigaProgetto> Spot;
  std::size_t Segmenti = 0;
  std::vector<std::string> Guasti;  ///< "playlist.mdb: why", for each that can't be read

  /// The paths of the missing files, each once, in the order of the lists.
  std::vector<std::string> FileMancanti() const;
};

/// Reads the databases of the open project and looks for every file.
SommarioProgetto LeggiSommario(Contesto& contesto);

/// Reads the rows alone: no file is looked for, none is missing.
SommarioProgetto LeggiRigheProgetto(Contesto& contesto);

/// The same in small steps, so that whoever waits for 20,000 rows can do other things between them.
/// A database is open from its first row to its last.
class LetturaRighe {
 public:
  explicit LetturaRighe(Contesto& contesto) : contesto_(contesto), connessione_(contesto.Files) {}

  /// Reads this many rows more; false once all are read.
  bool Passo(std::size_t righe);
  /// What was read.
  SommarioProgetto Prendi() { return std::move(sommario_); }

 private:
  Error Leggi(std::size_t& righe);
  Error ContaSegmenti();

  Contesto& contesto_;
  SommarioProgetto sommario_;
  std::size_t lista_ = 0;
  Connection connessione_;
  Recordset righe_;
};

/// The bytes of a row's source, else of its alias copy in the project, 0 for a pattern that
/// matches; nothing where neither exists: the file is missing.
std::optional<std::uint64_t> GrandezzaFile(const Contesto& contesto, const RigaProgetto& riga);

}  // namespace kvr5
