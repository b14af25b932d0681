#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "projects/SommarioProgetto.h"

namespace kvr5 {

/// A project in figures.
struct CifreProgetto {
  std::size_t Ingressi = 0;  ///< combinations of inputs that have a file
  std::size_t Liste = 0;     ///< playlists with a track at least
  std::size_t Brani = 0;
  std::size_t Segmenti = 0;
  std::size_t Spot = 0;
  std::size_t Mancanti = 0;          ///< rows whose file can't be found
  std::size_t MancantiIngressi = 0;  ///< those of them that are of inputs
  std::uint64_t Byte = 0;            ///< of the files that were found, each source once
  bool Completo = false;             ///< every file was looked for
  std::string Illeggibile;           ///< a database whose rows aren't all counted, "" for none
  bool operator==(const CifreProgetto&) const = default;
};

/// Counts the open project in small steps, so that a screen of 20,000 rows is there at once and its
/// figures follow.
class ContoProgetto {
 public:
  explicit ContoProgetto(Contesto& contesto) : contesto_(contesto) {}

  /// Begins anew. Not `daCapo`: databases whose size and date are those of the last count aren't
  /// read again.
  void Comincia(bool daCapo = true);
  /// Reads this many rows more; false once all are read, and the figures tell how many.
  bool Leggi(std::size_t righe);
  /// Looks for the files of this many rows more; false once all have been looked for.
  bool Passo(std::size_t righe);
  /// Leaves the databases alone; the next count begins anew.
  void Interrompi();
  const CifreProgetto& Cifre() const { return cifre_; }

 private:
  using Firma = std::vector<std::pair<std::uint64_t, std::int64_t>>;
  Firma FirmaOra() const;
  void RigheLette(SommarioProgetto righe);
  void Guarda(const RigaProgetto& riga);

  Contesto& contesto_;
  CifreProgetto cifre_;
  std::vector<RigaProgetto> righe_;
  std::optional<LetturaRighe> lettura_;  ///< while rows are read
  std::optional<Firma> letta_;           ///< of the databases that righe_ come from
  std::size_t prossima_ = 0;
  std::unordered_set<std::string> visti_;
};

}  // namespace kvr5
