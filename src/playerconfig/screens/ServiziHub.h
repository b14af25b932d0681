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
  /// Whether the last recording put all of its project on the card.
  virtual bool RegistrataIntera() const = 0;
  /// How many files lie on the chosen card that such a recording doesn't put there.
  virtual std::size_t EstraneiSullaScheda() = 0;
  /// Asks for the card where none is chosen; false to give the work up.
  virtual bool ChiediScheda() = 0;
  /// Deletes the files of the chosen card, after its questions; false where it was given up there.
  virtual bool SvuotaScheda() = 0;
  /// Compares the chosen card with the open project and shows what it finds; modal.
  virtual void VerificaScheda() = 0;
  /// Opens the chosen card in the host's file manager, and a bar that brings the hub back.
  virtual void ApriCopiaManuale() = 0;
  /// Whether the host can eject the chosen card now.
  virtual bool PuoEspellere() = 0;
  /// Ejects it and tells what came of it.
  virtual void EspelliScheda() = 0;
  /// frmProgress, which every long operation shares.
  virtual FinestraProgresso& Progresso() = 0;
  /// What the host tells of the chosen card now; nothing when it isn't there.
  virtual std::optional<Drive> FattiDellaScheda() = 0;
};

}  // namespace kvr5
