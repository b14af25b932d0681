#pragma once

#include "core/Anteprima.h"
#include "core/Contesto.h"
#include "core/Esecutore.h"
#include "core/screens/Navigazione.h"
#include "core/screens/VitaForme.h"

namespace kvr5 {

/// What every screen is given. One for the process; each test has its own.
struct Ambiente {
  Contesto& C;
  Navigazione& Schermi;
  Esecutore& Documenti;
  VitaForme& Vita;
  Anteprime& Suono;
};

}  // namespace kvr5
