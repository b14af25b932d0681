#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "mp3/modMp3Infos.h"
#include "projects/SommarioProgetto.h"

namespace kvr5 {

/// What the disk tells of a row's file.
struct FattiBrano {
  bool Mancante = false;  ///< neither its source nor its alias copy in the project is there
  std::uint64_t Byte = 0;
  std::int64_t Secondi = 0;  ///< 0 where the file can't be read
};

/// The rows that an editor shows in figures, gathered in small steps: a list of 500 is there at
/// once, and its figures follow.
class ContoBrani {
 public:
  explicit ContoBrani(Contesto& contesto) : contesto_(contesto), lettore_(contesto.Files) {}

  /// The rows to count from now on; what was learnt of a file is kept.
  void Imposta(std::vector<RigaProgetto> righe);
  /// Looks at all files once more: they come and go while another window is in front. What was
  /// learnt stands until then.
  void Ricomincia();
  /// Looks at this many files more; false once all are known.
  bool Passo(std::size_t file);

  /// What is known of a row; null before its file was looked at.
  const FattiBrano* Fatti(const RigaProgetto& riga) const;
  std::size_t Mancanti() const;
  /// The time of all rows, the bytes of each file once, and what is missing: "9:12:40, 512 MB,
  /// 1 missing". "" for no rows, and until every file was looked at.
  std::string Parole() const;

 private:
  struct Noto {
    FattiBrano Fatti;
    unsigned Giro = 0;  ///< when it was learnt
  };
  static std::string Chiave(const RigaProgetto& riga);
  FattiBrano Guarda(const RigaProgetto& riga);

  Contesto& contesto_;
  modMp3Infos lettore_;
  std::vector<RigaProgetto> righe_;
  std::size_t prossima_ = 0;
  unsigned giro_ = 1;
  std::unordered_map<std::string, Noto> noti_;
};

/// A length in seconds as a person reads it: "0:31", "4:02", "9:12:40".
std::string DurataInParole(std::int64_t secondi);

}  // namespace kvr5
