#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/Contesto.h"

namespace kvr5 {

/// The files for the player that a save writes into the project's folder, playlists and schedules:
/// plain text, CR LF, in the host's ANSI code page.
/// Their lines are gathered and written in one go, so that a save of many rows opens each file
/// once. Names are compared without regard to case.
class ListeDiTesto {
 public:
  explicit ListeDiTesto(Contesto& contesto) : contesto_(contesto) {}

  /// Makes sure that a file of the project folder is there at the end, be it without a line.
  void Apri(const std::string& nome) { Lista(nome); }
  /// A line for the player.
  void Aggiungi(const std::string& nome, const std::string& riga);
  /// A line for use on the computer, a path in the system's form, which is written in the host's.
  /// A list with a line that the code page lacks is written in UTF-8 with its mark.
  void AggiungiPercorso(const std::string& nome, const std::string& percorso);
  /// Writes all of them. A name that the card's file system can't hold is error 52; a failure is
  /// the pending error, and the other files are written.
  void Scrivi();

 private:
  struct UnaLista {
    std::string Nome;
    std::string Testo;
    bool PerIlComputer = false;
  };
  /// A folder of the tracks, looked at once.
  struct CartellaVista {
    std::set<std::string, std::less<>> Nomi;  ///< as they are spelled there
    std::string Davanti;                      ///< what stands before a name in the host's form
  };
  CartellaVista& Vista(const std::string& cartella);
  /// The path in the host's form, with the spelling of the disk.
  std::string PerIlComputer(const std::string& percorso);
  UnaLista& Lista(const std::string& nome);
  Error Scrivi(const UnaLista& lista) const;

  Contesto& contesto_;
  std::vector<UnaLista> liste_;
  std::map<std::string, CartellaVista> cartelle_;
};

/// The text without any ".mp3", minding the case or not.
std::string SenzaMp3(std::string_view testo, bool maiuscole);

}  // namespace kvr5
