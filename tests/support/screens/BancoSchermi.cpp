#include "support/screens/BancoSchermi.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

namespace kvr5::test {

void ProcessoCheFinisce::Termina(MotivoFine motivo) {
  std::fputs("the program ended at once\n", stderr);
  std::_Exit(Codice(motivo));
}

BancoSchermi::BancoSchermi(Boxes boxes)
    : Banco(boxes == Boxes::Veri ? static_cast<Dialoghi&>(FinestreVere) : Finestre, EventiVeri,
            boxes == Boxes::Veri ? static_cast<CopyObserver&>(CopiaVera) : Copia, Fine) {
  FinestreVere.Collega(A);
  CopiaVera.Collega(C);
}

BancoSchermi::~BancoSchermi() {
  EventiVeri.ImpostaPuntatore(Puntatore::Normale);
  // Unloaded forms wait for the loop to be deleted; they refer to this bench.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool PuntatoreOccupato() {
  const QCursor* cursor = QGuiApplication::overrideCursor();
  return cursor != nullptr && cursor->shape() == Qt::BusyCursor;
}

}  // namespace kvr5::test
