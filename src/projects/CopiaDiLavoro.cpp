#include "projects/CopiaDiLavoro.h"

#include <utility>

#include "core/CopiaFileShell.h"
#include "platform/FileOps.h"
#include "projects/CartellaProgetto.h"
#include "projects/RipristinaDatabase.h"

namespace kvr5 {

CopiaDiLavoro::CopiaDiLavoro(Contesto& contesto, std::string_view vero, std::string_view temporaneo)
    : contesto_(contesto),
      vero_(FileDelProgetto(contesto, vero)),
      temporaneo_(FileDelProgetto(contesto, temporaneo)),
      connessione_(contesto.Files) {}

CopiaDiLavoro::~CopiaDiLavoro() {
  Lascia();
}

void CopiaDiLavoro::Apri() {
  connessione_.Close();
  presa_.reset();
  if (AltriAlLavoro()) return;
  nostra_ = true;
  Elimina(temporaneo_);
  if (!FileExists(contesto_.Files, vero_) || !Ripristina()) return;
  CopiaFileShell(contesto_, vero_, temporaneo_);
  if (auto held = contesto_.Files.Hold(temporaneo_)) presa_ = std::move(held.Value());
  contesto_.Errore.Record(connessione_.Open(temporaneo_));
  connessione_
      .DontFlush();  // a copy that a crash left is thrown away; what a save copies is flushed
}

void CopiaDiLavoro::Salva() {
  connessione_.Close();
  if (!nostra_ || !FileExists(contesto_.Files, temporaneo_)) return;
  Elimina(vero_);
  // The old one has gone: a cancel now would leave none.
  CopiaFileShell(contesto_, temporaneo_, vero_, AnnulloCopia::Nulla);
}

void CopiaDiLavoro::Lascia() {
  connessione_.Close();
  // Another editor may have made its own in the meantime.
  if (std::exchange(nostra_, false)) Elimina(temporaneo_);
  presa_.reset();
}

bool CopiaDiLavoro::AltriAlLavoro() {
  if (!IsHeld(contesto_.Files, temporaneo_)) return false;
  const Error held(errors::PermissionDenied);
  contesto_.Errore.Record(held);
  contesto_.FinestraCopia.Failed({vero_, true, held});
  return true;
}

bool CopiaDiLavoro::Ripristina() {
  // A journal beside the real one belongs to what it holds now: copied without it the database is
  // half changed, and beside a new one it would be played back into that.
  const Error error = RipristinaDatabase(contesto_, vero_);
  if (error) contesto_.FinestraCopia.Failed({vero_, true, error});
  return !error;
}

void CopiaDiLavoro::Elimina(const std::string& database) {
  // The journal that a crash left beside it must not be played back into the next one.
  for (const std::string& file : {database, database + "-journal"}) {
    if (FileExists(contesto_.Files, file)) contesto_.Errore.Record(contesto_.Files.Delete(file));
  }
}

}  // namespace kvr5
