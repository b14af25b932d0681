#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"
#include "core/Parole.h"
#include "projects/FattiProgetto.h"

namespace kvr5 {

/// The rows of lstProgetti: the names at once, the rest of a row when it is asked for, so that a
/// screen that asks for the rows in sight alone stays quick with thousands of projects.
class RigheProgetti {
 public:
  explicit RigheProgetti(Contesto& contesto) : contesto_(contesto) {}

  /// Reads the names below CartellaProgetti afresh and forgets all details.
  void Carica();
  std::size_t Quante() const { return righe_.size(); }
  /// The folder's name, by which the project is opened.
  const std::string& Nome(std::size_t riga) const { return righe_.at(riga).Nome; }
  /// Full path of the row's folder.
  std::string Cartella(std::size_t riga) const;
  /// "KVR5 (Inputs)"; "" where the descriptor tells nothing. Read at the first call.
  const std::string& Modello(std::size_t riga);
  /// Seconds since 1970-01-01 UTC of the last change; nothing where the files went away. Read at
  /// the first call.
  std::optional<std::int64_t> Modificato(std::size_t riga);
  /// The same in words, "" for nothing.
  std::string Quando(std::size_t riga);
  /// The first row whose name begins with the text, else the first that holds it, without regard to
  /// case; nothing for no match or a blank text.
  std::optional<std::size_t> Cerca(std::string_view testo) const;
  /// The first row from `da` on, round the end, whose name holds the text at any place: called with
  /// the row behind the last one found it comes by all of them. Nothing as above.
  std::optional<std::size_t> CercaDa(std::string_view testo, std::size_t da) const;

 private:
  struct Riga {
    std::string Nome;
    std::string Ripiegato;  ///< the name with its letters made small
    std::optional<FattiProgetto> Fatti;
  };
  const FattiProgetto& Fatti(std::size_t riga);

  Contesto& contesto_;
  std::vector<Riga> righe_;
};

}  // namespace kvr5
