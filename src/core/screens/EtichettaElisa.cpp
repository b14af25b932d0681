#include "core/screens/EtichettaElisa.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "core/screens/Testo.h"

namespace kvr5 {

EtichettaElisa::EtichettaElisa(const char* nome, QWidget* padre, Qt::TextElideMode modo)
    : QLabel(padre), modo_(modo) {
  setObjectName(QLatin1String(nome));
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize EtichettaElisa::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void EtichettaElisa::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), modo_, width());
  style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                        shown, QPalette::WindowText);
}

bool EtichettaElisa::event(QEvent* event) {
  const bool cut = fontMetrics().horizontalAdvance(text()) > width();
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && cut) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Suggerimento(text()), this);
    return true;
  }
  return QLabel::event(event);
}

}  // namespace kvr5
