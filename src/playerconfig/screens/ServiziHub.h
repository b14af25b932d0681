#pragma once

#include <optional>
#include <string>

#include "platform/Drives.h"
#include "playerconfig/TabellaIngressi.h"

namespace kvr5 {

/// What came of a recording, as far as the hub shows it.
struct EsitoScheda {
  bool Annullata = false;  ///< by the user, which was told
  std::string Scheda{};    ///< root of the card that has all of the project now; "" for none
};

/// What the hub has done by rooms above its own.
class ServiziHub {
 public:
  virtual ~ServiziHub() = default;
  /// Records the open project onto the card; `ingressi` is closed and reopened on the way.
  virtual EsitoScheda RegistraProgetto(TabellaIngressi& ingressi) = 0;
  /// What the host tells of the chosen card now; nothing when it isn't there.
  virtual std::optional<Drive> FattiDellaScheda() = 0;
};

}  // namespace kvr5
