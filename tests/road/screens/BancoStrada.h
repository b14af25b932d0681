#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "app/Programma.h"
#include "support/Banco.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

namespace kvr5::test {

/// The whole program in a folder of its own, with real MP3 files in "music" and the folder "card"
/// as the removable drive E.
class Strada : public testing::Test {
 protected:
  void SetUp() override;

  /// Starts the program; the main menu stands at the end.
  void Avvia();
  /// The screen of that name, as soon as it is there.
  QWidget& Schermo(const char* name);
  /// Clicks a control of the screen that is there.
  void Clic(const char* screen, const char* control) { Clicca(Schermo(screen), control); }
  /// From the menu to the hub of a new project that inputs drive.
  void NuovoProgetto(const QString& name);
  /// From the menu to the hub of the project in this row of the list.
  void ApriProgetto(int row);
  /// Leaves the hub for the menu.
  void TornaAlMenu();
  /// Ticks these inputs alone and gives them a file of the folder that the hub shows.
  void Assegna(std::initializer_list<int> ingressi, const std::string& file);
  /// Goes to the music with the folder browser.
  void VaiAllaMusica();

  Banco b;
  ProcessoCheFinisce fine;
  std::unique_ptr<Programma> programma;
};

}  // namespace kvr5::test
