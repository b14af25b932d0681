#include "core/screens/PannelloInfo.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "core/screens/Avvisi.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Posto.h"
#include "core/screens/Tema.h"

namespace kvr5 {
PannelloInfo::PannelloInfo(const QString& titolo, int tag, int tagAvviso, int millisecondi,
                           QWidget* padre, int colonne)
    : Riquadro("fraFileInfo", titolo, tag, padre) {
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(spazi::kMedio);
  grid->setVerticalSpacing(4);
  // Figures of any length leave the columns of the screen where they are.
  const auto figure = [this](const char* name, const QString& caption) {
    auto* label = new EtichettaElisa(name, this);
    label->setText(caption);
    return label;
  };
  lblVersioneMpeg = figure("lblVersioneMpeg", QStringLiteral("Version"));
  lblBitrate = figure("lblBitrate", QStringLiteral("Bitrate"));
  lblFreq = figure("lblFreq", QStringLiteral("Freq/mono"));
  lblDurata = figure("lblDurata", QStringLiteral("Len"));
  int place = 0;
  for (QLabel* each : {lblVersioneMpeg, lblBitrate, lblFreq, lblDurata}) {
    grid->addWidget(each, place / colonne, place % colonne);
    ++place;
  }
  grid->setColumnStretch(0, 4);  // the frequency with its channels is the longest
  if (colonne > 1) grid->setColumnStretch(1, 3);
  Corpo()->addLayout(grid);
  lblBadFileType = new EtichettaAvviso("lblBadFileType", QStringLiteral("BadFileType"),
                                       Carattere::Suggerimento, this);
  lblBadFileType->setProperty(kTag, tagAvviso);
  lblBadFileType->setWordWrap(true);
  TieniPosto(*lblBadFileType);
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
