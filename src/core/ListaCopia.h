#pragma once

#include <set>
#include <string>
#include <string_view>

namespace kvr5 {

/// The two lists of a copy, `ListaSorgenti` and `ListaDestinazioni`: plain texts, "|" before each
/// path.
///
/// Whether a source is listed is a substring search without regard to case in the whole list of
/// sources, which is more than equality: a path that is the beginning of a listed one counts as
/// listed too. The search is answered from an ordered set wherever that gives the same answer
/// (every path begins with a drive, "X:", and holds no other colon), so that the cost of a list
/// doesn't grow with its square; any other text is searched for in the list itself.
class ListaCopia {
 public:
  /// Appends a pair.
  void Aggiungi(std::string_view sorgente, std::string_view destinazione);
  /// True when `percorso` occurs in the list of sources; "" occurs in any but an empty
  /// one.
  bool Contiene(std::string_view percorso) const;

  /// The same search in the list of destinations, in its plain text: for lists of a few hundred.
  bool ContieneDestinazione(std::string_view percorso) const;

  const std::string& ListaSorgenti() const { return sorgenti_; }
  const std::string& ListaDestinazioni() const { return destinazioni_; }

 private:
  std::string sorgenti_;
  std::string destinazioni_;
  std::string ripiegati_;                        ///< the sources with their letters made small
  std::set<std::string, std::less<>> percorsi_;  ///< each source so
  bool regolari_ = true;  ///< all sources begin with their only colon's drive
};

}  // namespace kvr5
