#pragma once

#include <optional>

#include "core/FinestraProgresso.h"
#include "platform/Drives.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// What the hub has done by rooms above its own.
class ServiziHub {
 public:
  virtual ~ServiziHub() = default;
  /// Records the open project onto the card; `ingressi` is closed and reopened on the way. True
  /// when the user cancelled it, which was told.
  virtual bool RegistraProgetto(TabellaIngressi& ingressi) = 0;
  /// frmProgress, which every long operation shares.
  virtual FinestraProgresso& Progresso() = 0;
  /// What the host tells of the chosen card now; nothing when it isn't there.
  virtual std::optional<Drive> FattiDellaScheda() = 0;
};

}  // namespace kvr5
