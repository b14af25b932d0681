#include "playerconfig/screens/Lettera.h"

#include <QPainter>

#include "core/screens/Tema.h"

namespace kvr5 {

void DipingiLettera(QPainter& pittore, QPointF centro, QChar lettera) {
  const Tema& tema = Tema::Corrente();
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(tema.Primario);
  const QRectF disc(centro.x() - kLatoLettera / 2.0, centro.y() - kLatoLettera / 2.0, kLatoLettera,
                    kLatoLettera);
  pittore.drawEllipse(disc);
  QFont font = FontDi(Carattere::Suggerimento);
  font.setBold(true);
  pittore.setFont(font);
  pittore.setPen(tema.SuPrimario);
  pittore.drawText(disc, Qt::AlignCenter, lettera);
  pittore.restore();
}

Lettera::Lettera(QChar lettera, QWidget* padre) : QWidget(padre), lettera_(lettera) {
  setObjectName(QStringLiteral("picLettera_") + lettera);
  setFixedSize(sizeHint());
}

void Lettera::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  DipingiLettera(painter, QRectF(rect()).center(), lettera_);
}

}  // namespace kvr5
