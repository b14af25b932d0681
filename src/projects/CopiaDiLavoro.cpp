#include "projects/CopiaDiLavoro.h"

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
  EliminaCopia();
  if (!FileExists(contesto_.Files, vero_) || !Ripristina()) return;
  CopiaFileShell(contesto_, vero_, temporaneo_);
  contesto_.Errore.Record(connessione_.Open(temporaneo_));
}

void CopiaDiLavoro::Salva() {
  connessione_.Close();
  if (!FileExists(contesto_.Files, temporaneo_) || !Ripristina()) return;
  // In one step, and not by the copy of cards, which deletes a file to make room for its successor:
  // the list is small, and nothing is worth the loss of the old one.
  const Error error = CopyOneFile(contesto_.Files, temporaneo_, vero_);
  if (error) contesto_.FinestraCopia.Failed({vero_, false, error});
  contesto_.Messaggi.LasciaCorrere();
}

void CopiaDiLavoro::Lascia() {
  connessione_.Close();
  EliminaCopia();
}

bool CopiaDiLavoro::Ripristina() {
  // A journal beside the real one belongs to what it holds now: copied without it the database is
  // half changed, and beside a new one it would be played back into that.
  const Error error = RipristinaDatabase(contesto_, vero_);
  if (error) contesto_.FinestraCopia.Failed({vero_, true, error});
  return !error;
}

void CopiaDiLavoro::EliminaCopia() {
  // The journal of a copy that a crash left must not be played back into the next one.
  for (const std::string& file : {temporaneo_, temporaneo_ + "-journal"}) {
    if (FileExists(contesto_.Files, file)) contesto_.Errore.Record(contesto_.Files.Delete(file));
  }
}

}  // namespace kvr5
