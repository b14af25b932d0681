#include "playerconfig/screens/Lettera.h"

#include <QPainter>

#include "core/screens/Disco.h"

namespace kvr5 {

void DipingiLettera(QPainter& pittore, QPointF centro, QChar lettera) {
  const QPointF half(kLatoLettera / 2.0, kLatoLettera / 2.0);
  DipingiDisco(pittore, QRectF(centro - half, centro + half), lettera);
}

Lettera::Lettera(QChar lettera, QWidget* padre) : QWidget(padre), lettera_(lettera) {
  setObjectName(QStringLiteral("picLettera_") + lettera);
  setFixedSize(kLatoLettera, kLatoLettera);
}

void Lettera::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  DipingiLettera(painter, QRectF(rect()).center(), lettera_);
}

}  // namespace kvr5
