#pragma once

#include <cstddef>
#include <deque>
#include <set>
#include <string>
#include <string_view>

namespace kvr5 {

/// The two lists of a copy, `ListaSorgenti` and `ListaDestinazioni`: plain texts, "|" before each
/// path.
///
/// Whether a source is listed is a substring search without regard to case in the whole list of
/// sources, which is more than equality: a path that is the beginning of a listed one counts as
/// listed too. The search is answered from ordered sets, so that the cost of a list doesn't grow
/// with its square: a path that begins with a drive ("X:") and holds no other colon can occur in
/// others of its kind at their beginnings alone, and any other path only where its first backslash
/// meets one of theirs. A text without a backslash, or with a bar, is searched for in the list
/// itself.
class ListaCopia {
 public:
  ListaCopia() = default;
  ListaCopia(const ListaCopia&) = delete;  // its sets look into its own texts
  ListaCopia& operator=(const ListaCopia&) = delete;

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
  /// What follows a backslash of a listed path, and what stands before it.
  struct Coda {
    std::string_view Dopo;
    std::string_view Prima;
    bool Oltre = false;  ///< behind all that have the same `Dopo`: for a search
    /// By `Dopo`, then by `Prima` from its end.
    bool operator<(const Coda& altra) const;
  };
  using Code = std::set<Coda>;
  static void AggiungiCode(std::string_view testo, Code& code);
  static bool InCode(const Code& code, std::string_view cercato);

  std::string ripiegati_;                ///< the list of sources with its letters made small
  std::deque<std::string> testi_;        ///< each source so
  std::set<std::string_view> percorsi_;  ///< those that begin with their only colon's drive
  Code codeAltri_;                       ///< the backslashes of the others
  mutable Code code_;                    ///< the same of all sources, as far as it was asked for
  mutable std::size_t codati_ = 0;       ///< how many of testi_ that are
};

}  // namespace kvr5
