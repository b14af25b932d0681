#include "core/screens/Posto.h"

#include <QScrollArea>

namespace kvr5 {

void TieniPosto(QWidget& controllo) {
  QSizePolicy policy = controllo.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  controllo.setSizePolicy(policy);
}

QWidget* Scorrevole(QWidget* corpo, QWidget* padre) {
  auto* middle = new QScrollArea(padre);
  middle->setFrameShape(QFrame::NoFrame);
  middle->setWidgetResizable(true);
  middle->setFocusPolicy(Qt::NoFocus);
  middle->setWidget(corpo);
  middle->viewport()->setAutoFillBackground(false);
  corpo->setAutoFillBackground(false);
  return middle;
}

}  // namespace kvr5
