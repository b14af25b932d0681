#pragma once

#include "core/screens/Ambiente.h"
#include "core/screens/EventiQt.h"
#include "core/screens/FinestraCopia.h"
#include "core/screens/FinestreQt.h"
#include "core/screens/VitaForme.h"
#include "support/AnteprimeFinte.h"
#include "support/Banco.h"
#include "support/EsecutoreFinto.h"
#include "support/screens/NavigazioneFinta.h"

namespace kvr5::test {

/// The end of the process of a screen's test is a real one, to be met by EXPECT_EXIT: no exception
/// may travel through the event loop.
class ProcessoCheFinisce : public Processo {
 public:
  /// The exit code that stands for a reason.
  static int Codice(MotivoFine motivo) { return 100 + static_cast<int>(motivo); }
  [[noreturn]] void Termina(MotivoFine motivo) override;
};

/// Who meets the user in a test of screens.
enum class Boxes {
  Veri,   ///< windows, answered by a Pilota
  Finti,  ///< the script of Banco::Finestre
};

/// The real ports, made before the bench that refers to them.
struct PorteQt {
  FinestreQt FinestreVere;
  EventiQt EventiVeri;
  FinestraCopia CopiaVera;
  ProcessoCheFinisce Fine;
};

/// The bench of a test of screens: a staged program, the event loop and pointer of the window
/// system, windows or a script for boxes, and a navigation that only remembers. Forms must be gone
/// before it goes.
class BancoSchermi : private PorteQt, public Banco {
 public:
  explicit BancoSchermi(Boxes boxes = Boxes::Veri);
  ~BancoSchermi();

  NavigazioneFinta Schermi;
  EsecutoreFinto Documenti;
  /// How often the last loaded form went.
  int UltimeScaricate = 0;
  VitaForme Vita{[this] { ++UltimeScaricate; }};
  AnteprimeFinte Suono;
  Ambiente A{C, Schermi, Documenti, Vita, Suono};
};

/// True while the busy pointer is on.
bool PuntatoreOccupato();

}  // namespace kvr5::test
