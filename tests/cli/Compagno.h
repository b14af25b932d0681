#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/Banco.h"

namespace kvr5::test {

/// What a run of kvr5card left.
struct Corsa {
  int Stato = -1;
  std::string Uscita;  ///< standard output
  std::string Errori;  ///< standard error

  std::vector<std::string> Righe() const;
  /// The lines of standard output, each read as JSON.
  std::vector<nlohmann::json> Oggetti() const;
  /// The lines of standard error, each read as JSON.
  std::vector<nlohmann::json> Box() const;
};

/// The real executable, run over a staged program in a temporary folder. Each run is a process of
/// its own, with no terminal.
class Compagno : public Banco {
 public:
  Compagno();
  /// kvr5card --program <staged> ARGUMENTS...
  Corsa Esegui(std::vector<std::string> arguments, const std::string& input = {}) const;
  /// The same with --json in front.
  Corsa EseguiJson(std::vector<std::string> arguments, const std::string& input = {}) const;
  /// Host path of a file of the temporary folder.
  std::string Host(const std::string& name) const { return (Cartella.Host() / name).string(); }
};

}  // namespace kvr5::test
