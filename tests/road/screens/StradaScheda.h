#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include "core/screens/FinestraCopia.h"
#include "flashcard/screens/frmVerifica.h"
#include "road/screens/StradaPalinsesto.h"

namespace kvr5::test {

/// The whole program with two cards, E in the folder "card" and F in "card2": a project is recorded
/// to a card, read back under another name, changed, recorded again and verified.
class StradaScheda : public StradaPalinsesto {
 protected:
  void SetUp() override;

  /// Starts the program and opens the first project of the list.
  void ApriPrimo();
  /// From the hub to the menu, from there to the list of projects.
  frmCaricaProgetto& TornaAllElenco();
  /// Presses "Open from card" and takes the card of that letter; `nome`: what is typed into the
  /// name dialog, which has to come then. The hub stands at the end.
  frmPlayerConfig& Rileggi(char lettera, const std::string& nome = {});
  /// The same up to the end of the button's work, whatever comes of it.
  void PremiRileggi(char lettera);
  /// Takes a card on the hub's card line.
  void ScegliScheda(char lettera);
  /// Takes the card of that letter in the dialog that is there.
  static void PrendiScheda(frmSelectFlash& dialogo, char lettera);
  /// Verifies the chosen card by the hub's button; the findings, "Finding file", "" for none.
  std::string Verifica();
  /// Moves the volume by a key and saves, without copies of the inputs' files.
  void CambiaVolumeESalva();
  /// The names in a folder of the projects.
  std::vector<std::string> Progetto(const std::string& nome) const {
    return b.Nomi("program/Projects/" + nome);
  }
  std::vector<std::string> Progetti() const;
  std::string Stato() { return Scritta(Hub(), "lblStatoScheda"); }
};

}  // namespace kvr5::test
