#pragma once

#include <filesystem>
#include <functional>

#include "playerconfig/screens/frmPlayerConfig.h"
#include "road/screens/BancoStrada.h"
#include "support/screens/Risponditore.h"

namespace kvr5::test {

/// The whole program as Strada has it, at the main menu, with files "a.mp3", "b.mp3", "c.mp3" in
/// "music" that need no encoder; for tests in which something goes wrong on the way.
class Guasti : public Strada {
 protected:
  void SetUp() override;

  std::filesystem::path Host(const std::string& name) const { return b.Cartella.Host() / name; }
  /// A file of the project Hall, as the bench names it.
  static std::string DelProgetto(const std::string& name) {
    return "program/Projects/Hall/" + name;
  }
  /// To the hub of a new project Hall whose IN1 plays a.mp3 and IN1+IN3 b.mp3.
  void CreaHall();
  /// To the hub of the first project of the list.
  void ApriHall() { ApriProgetto(0); }
  frmPlayerConfig& Hub() { return dynamic_cast<frmPlayerConfig&>(Schermo("frmPlayerConfig")); }
  /// Chooses the only card in the dialog, where `prima` happens before the confirm.
  void ScegliScheda(const std::function<void()>& prima = {});
  /// Records, with boxes sent away; the titles of what was told.
  std::string Registra();
  /// Presses each button of the hub that a person can press now, but the one that leaves it.
  void PremiTutto();
  /// The hub answers to a tick, and leads to the menu.
  void LasciaHall();
  /// A row of the project's table as another program reads it: the file's name, "" for none.
  std::string Riga(int codice);
  std::string Stato() { return Scritta(Hub(), "lblStatoScheda"); }
};

}  // namespace kvr5::test
