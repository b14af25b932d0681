#include "core/screens/PannelloInfo.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "core/screens/Avvisi.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"

namespace kvr5 {
namespace {

/// A hidden label that keeps its room.
void KeepRoom(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace

PannelloInfo::PannelloInfo(const QString& titolo, int tag, int tagAvviso, int millisecondi,
                           QWidget* padre)
    : Riquadro("fraFileInfo", titolo, tag, padre) {
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(spazi::kMedio);
  grid->setVerticalSpacing(4);
  lblVersioneMpeg = NuovaEtichetta("lblVersioneMpeg", QStringLiteral("Version"), -1, this);
  lblBitrate = NuovaEtichetta("lblBitrate", QStringLiteral("Bitrate"), -1, this);
  lblFreq = NuovaEtichetta("lblFreq", QStringLiteral("Freq/mono"), -1, this);
  lblDurata = NuovaEtichetta("lblDurata", QStringLiteral("Len"), -1, this);
  grid->addWidget(lblVersioneMpeg, 0, 0);
  grid->addWidget(lblFreq, 0, 1);
  grid->addWidget(lblBitrate, 1, 0);
  grid->addWidget(lblDurata, 1, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  Corpo()->addLayout(grid);
  lblBadFileType = TestoLungo("lblBadFileType", QStringLiteral("BadFileType"), this);
  lblBadFileType->setProperty(kTag, tagAvviso);
  Veste(*lblBadFileType, Carattere::Suggerimento, Ruolo::Avviso);
  QPalette palette = lblBadFileType->palette();
  palette.setColor(QPalette::Window, Tema::Corrente().FondoAvviso);
  lblBadFileType->setPalette(palette);
  lblBadFileType->setAutoFillBackground(true);
  lblBadFileType->setMargin(6);
  KeepRoom(*lblBadFileType);
  lblBadFileType->hide();
  Corpo()->addWidget(lblBadFileType);
  tmrInfoMp3.setSingleShot(true);
  tmrInfoMp3.setInterval(millisecondi);
}

void PannelloInfo::Mostra(const QString& versione, const QString& bitrate, const QString& frequenza,
                          const QString& durata) {
  lblVersioneMpeg->setText(versione);
  lblBitrate->setText(bitrate);
  lblFreq->setText(frequenza);
  lblDurata->setText(durata);
}

void PannelloInfo::MostraAvviso(bool visibile, const QString& motivo) {
  lblBadFileType->setVisible(visibile);
  lblBadFileType->setToolTip(motivo);
  lblBadFileType->setAccessibleDescription(motivo);
}

}  // namespace kvr5
