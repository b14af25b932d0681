#include "core/screens/PrimoPiano.h"

#include <QWidget>

namespace kvr5 {

void ImpostaPrimoPiano(QWidget& finestra, bool sopra) {
  const bool shown = finestra.isVisible();
  finestra.setWindowFlag(Qt::WindowStaysOnTopHint, sopra);  // hides a window that is shown
  if (shown) finestra.show();
}

}  // namespace kvr5
