#pragma once

#include <string_view>

#include "core/Contesto.h"
#include "core/Schermata.h"

namespace kvr5 {

/// What the start of the program asks of its screens.
class SchermateAvvio {
 public:
  virtual ~SchermateAvvio() = default;
  /// Shows frmSplash, not modally; `successivo` is the screen that follows it.
  virtual void MostraSplash(Schermata successivo) = 0;
  /// Starts tmrChiusura of the splash: from now on it is seen for 2000 ms.
  virtual void AvviaTempoSplash() = 0;
};

/// The start of the program, and again each time that the settings screen goes away. The command
/// line (without the program's name) counts at the first run alone: "/C", exactly so with blanks
/// around it, leads to the settings screen, everything else to the main menu. May end the program.
void Main(Contesto& contesto, SchermateAvvio& schermate, std::string_view rigaDiComando);

}  // namespace kvr5
