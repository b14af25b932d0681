#pragma once

#include <string>
#include <utility>

#include "core/Dialoghi.h"
#include "core/Eventi.h"
#include "core/Orologio.h"
#include "core/Processo.h"
#include "core/Stato.h"
#include "platform/Error.h"
#include "platform/FileSystem.h"
#include "platform/Locale.h"
#include "platform/ShellCopy.h"

namespace kvr5 {

/// Everything a routine of the logic works with: the host behind interfaces, the ports to the
/// user, the application state and the pending error. One for the process; each test has its own.
struct Contesto {
  FileSystem& Files;
  Dialoghi& Finestre;
  Eventi& Messaggi;
  CopyObserver& FinestraCopia;
  Orologio& Ora;
  Processo& Programma;
  /// The program's folder, system form, without a closing backslash.
  std::string CartellaProgramma;
  Locale Luogo;
  StatoApplicazione Stato;
  /// The last failure since a routine cleared it; looked at only at a few told places.
  ErrorState Errore;
};

}  // namespace kvr5
