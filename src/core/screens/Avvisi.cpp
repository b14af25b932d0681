#include "core/screens/Avvisi.h"

#include <QLayout>
#include <QPainter>

#include "core/screens/Icona.h"
#include "core/screens/Tema.h"

namespace kvr5 {
namespace {

constexpr int kSign = 16;

}  // namespace

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

EtichettaAvviso::EtichettaAvviso(const char* nome, const QString& testo, Carattere carattere,
                                 QWidget* padre)
    : QLabel(testo, padre), carattere_(carattere) {
  setObjectName(QLatin1String(nome));
  setTextFormat(Qt::PlainText);
  ImpostaAvviso(true);
}

void EtichettaAvviso::ImpostaAvviso(bool avvisa) {
  avvisa_ = avvisa;
  Veste(*this, avvisa ? carattere_ : Carattere::Corpo, avvisa ? Ruolo::Avviso : Ruolo::Attenuato);
  QPalette palette = this->palette();
  palette.setColor(QPalette::Window, Tema::Corrente().FondoAvviso);
  setPalette(palette);
  setAutoFillBackground(avvisa);
  setMargin(avvisa ? 6 : 0);
  setContentsMargins(avvisa ? kSign + 6 : 0, 0, 0, 0);
}

void EtichettaAvviso::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!avvisa_) return;
  QPainter painter(this);
  const int line = fontMetrics().height();
  const int top = alignment().testFlag(Qt::AlignTop) || wordWrap()
                      ? contentsRect().top() + margin() + (line - kSign) / 2
                      : (height() - kSign) / 2;
  DipingiIcona(painter, QRectF(8, top, kSign, kSign), QStringLiteral("avviso"),
               Tema::Corrente().Avviso);
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
