#pragma once

#include <functional>
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
  /// The same run as the work of a process that has its streams already. Standard output goes to
  /// the file `output` (host path) if one is given.
  std::function<int()> Lavoro(std::vector<std::string> arguments, std::string output = {}) const;
  /// Has the runs from now on done by somebody who is not root, who may read everything.
  void SenzaDirittiDiRoot();
  /// Host path of a file of the temporary folder.
  std::string Host(const std::string& name) const { return (Cartella.Host() / name).string(); }

  /// The words that every command line begins with: the executable and its program folder.
  std::vector<std::string> Inizio{KVR5_CARD, "--program", Host("program")};
  /// The locale of the runs.
  std::string Luogo = "C";

 private:
  /// The command line of a run.
  std::vector<std::string> Parole(std::vector<std::string> arguments) const;
};

}  // namespace kvr5::test
