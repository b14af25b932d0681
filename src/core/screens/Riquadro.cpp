#include "core/screens/Riquadro.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QVariant>

#include "core/screens/Disco.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Tema.h"

namespace kvr5 {

Riquadro::Riquadro(const char* nome, const QString& titolo, int tag, QWidget* padre)
    : QWidget(padre) {
  setObjectName(QLatin1String(nome));
  if (tag >= 0) setProperty(kTag, tag);
  titolo_ = new QLabel(this);
  Veste(*titolo_, Carattere::Riquadro);
  titolo_->setMinimumHeight(kLatoNumero);  // all titles at one height, with a numeral or without
  testata_ = new QHBoxLayout();
  testata_->setSpacing(spazi::kStretto);
  testata_->addWidget(titolo_);
  testata_->addStretch();
  corpo_ = new QVBoxLayout(this);
  corpo_->setContentsMargins(spazi::kMedio, 12, spazi::kMedio, 12);
  corpo_->setSpacing(spazi::kStretto);
  corpo_->addLayout(testata_);
  ImpostaTitolo(titolo);
}

QString Riquadro::Titolo() const {
  return titolo_->text();
}

void Riquadro::ImpostaTitolo(const QString& titolo) {
  titolo_->setText(titolo);
  titolo_->setVisible(!titolo.isEmpty());
  setAccessibleName(titolo);
}

void Riquadro::ImpostaNumero(int numero, const QString& passo) {
  testata_->insertWidget(0, NumeroDiPasso(numero, passo, this));
}

QLabel* NumeroDiPasso(int numero, const QString& passo, QWidget* padre) {
  constexpr int kSide = kLatoNumero;
  auto* badge = new QLabel(padre);
  badge->setFixedSize(kSide, kSide);
  badge->setToolTip(passo);
  QPixmap picture(QSize(kSide, kSide) * padre->devicePixelRatioF());
  picture.setDevicePixelRatio(padre->devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  DipingiDisco(painter, QRectF(0, 0, kSide, kSide), QString::number(numero));
  painter.end();
  badge->setPixmap(picture);
  badge->setAccessibleName(passo);
  return badge;
}

void Riquadro::paintEvent(QPaintEvent* /*event*/) {
  const Tema& tema = Tema::Corrente();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor edge = tema.Linea;
  edge.setAlpha(90);
  painter.setPen(edge);
  painter.setBrush(tema.Superficie);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), spazi::kAngolo,
                          spazi::kAngolo);
}

}  // namespace kvr5
