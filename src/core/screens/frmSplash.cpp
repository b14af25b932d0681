#include "core/screens/frmSplash.h"

#include <QPainter>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/Davanti.h"
#include "core/screens/Icona.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {

frmSplash::frmSplash(Ambiente& ambiente) : Form(ambiente, "frmSplash") {
  setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  setFixedSize(520, 280);
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(48, 130, 48, 40);
  lblNomePrj = NuovaEtichetta("lblNomePrj", {}, -1, this);
  Veste(*lblNomePrj, Carattere::Progetto);
  lblNomePrj->setWordWrap(true);
  lblVersion = NuovaEtichetta("lblVersion", QStringLiteral("0.0.0"), -1, this);
  Veste(*lblVersion, Carattere::Suggerimento, Ruolo::Attenuato);
  page->addWidget(lblNomePrj);
  page->addStretch();
  page->addWidget(lblVersion);

  tmrChiusura.setInterval(2000);
  connect(&tmrChiusura, &QTimer::timeout, this, [this] {
    tmrChiusura.stop();
    Scarica();
  });
}

void frmSplash::AlCaricamento() {
  lblNomePrj->setText(Qs(TestoLingua(C(), "0020000")));
  lblVersion->setText(lblNomePrj->text() + QStringLiteral(" " KVR5_VERSION));
  CentraSu(*this, nullptr);
  show();
  C().Messaggi.LasciaCorrere();
}

void frmSplash::AlloScarico() {
  ambiente_.Schermi.Mostra(FormSuccessivo);
}

void frmSplash::paintEvent(QPaintEvent* /*event*/) {
  const Tema& tema = Tema::Corrente();
  QPainter painter(this);
  painter.fillRect(rect(), tema.Superficie);
  painter.fillRect(QRect(0, 0, width(), 6), tema.Primario);
  DipingiIcona(painter, QRectF(48, 48, 260, 56), QStringLiteral("logo"), tema.Testo);
}

}  // namespace kvr5
