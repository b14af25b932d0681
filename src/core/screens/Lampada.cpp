#include "core/screens/Lampada.h"

#include <QPainter>

#include "core/screens/Tema.h"

namespace kvr5 {

QString NomeElemento(const char* nome, int numero) {
  return QStringLiteral("%1_%2").arg(QLatin1String(nome)).arg(numero);
}

Lampada::Lampada(int numero, QWidget* padre) : QWidget(padre) {
  setObjectName(NomeElemento("shaIn", numero));
  setFixedSize(18, 18);
}

void Lampada::Imposta(std::uint32_t coloreBgr, bool accesa) {
  colore_ = DaBgr(coloreBgr);
  accesa_ = accesa;
  update();
}

void Lampada::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0x4F, 0x5D, 0x65), 1.5));
  painter.setBrush(colore_);
  painter.drawEllipse(QRectF(rect()).adjusted(2, 2, -2, -2));
  if (!accesa_) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawEllipse(QRectF(rect()).center(), 2.5, 2.5);
}

}  // namespace kvr5
