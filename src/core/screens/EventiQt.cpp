#include "core/screens/EventiQt.h"

#include <QApplication>

namespace kvr5 {

void EventiQt::LasciaCorrere() {
  QCoreApplication::processEvents();
}

void EventiQt::ImpostaPuntatore(Puntatore puntatore) {
  while (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
  if (puntatore == Puntatore::Attesa) QGuiApplication::setOverrideCursor(Qt::BusyCursor);
}

}  // namespace kvr5
