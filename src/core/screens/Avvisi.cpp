#include "core/screens/Avvisi.h"

#include <QLayout>

#include "core/screens/Icona.h"
#include "core/screens/Tema.h"

namespace kvr5 {

QLabel* SegnoDi(const char* icona, const QColor& colore, int lato, QWidget* padre) {
  auto* sign = new QLabel(padre);
  sign->setPixmap(
      DisegnoDi(QLatin1String(icona), {lato, lato}, colore, padre->devicePixelRatioF()));
  sign->setFixedSize(lato, lato);
  return sign;
}

QLabel* TestoLungo(const char* nome, const QString& testo, QWidget* padre) {
  auto* label = new QLabel(testo, padre);
  label->setObjectName(QLatin1String(nome));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

void MostraIntero(QWidget& finestra) {
  const int needed = finestra.layout()->totalHeightForWidth(finestra.width());
  if (needed > finestra.height()) finestra.resize(finestra.width(), needed);
}

void SuTarga(QLabel& etichetta, std::uint32_t coloreBgr) {
  const QColor plate(0x1E, 0x25, 0x29);
  QPalette palette = etichetta.palette();
  palette.setColor(QPalette::Window, plate);
  palette.setColor(QPalette::WindowText, DaBgr(coloreBgr));
  etichetta.setPalette(palette);
  etichetta.setAutoFillBackground(true);
  etichetta.setMargin(spazi::kStretto);
}

}  // namespace kvr5
