#include "core/screens/Barra.h"

#include <QPainter>
#include <algorithm>

#include "core/screens/Tema.h"

namespace kvr5 {

Barra::Barra(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Barra::ImpostaParte(double parte) {
  parte_ = std::clamp(parte, 0.0, 1.0);
  setAccessibleDescription(QString::number(static_cast<int>(parte_ * 100)) + QStringLiteral("%"));
  update();
}

void Barra::paintEvent(QPaintEvent* /*event*/) {
  const Tema& tema = Tema::Corrente();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF whole = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = whole.height() / 2;
  painter.setPen(tema.Linea);
  painter.setBrush(tema.Incavo);
  painter.drawRoundedRect(whole, radius, radius);
  if (parte_ <= 0) return;
  QRectF filled = whole;
  filled.setWidth(std::max(whole.height(), whole.width() * parte_));
  painter.setPen(Qt::NoPen);
  painter.setBrush(tema.Primario);
  painter.drawRoundedRect(filled, radius, radius);
}

}  // namespace kvr5
