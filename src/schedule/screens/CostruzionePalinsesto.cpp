// The controls of the editor of the schedule and how they lie.

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Posto.h"
#include "core/screens/SenzaRotella.h"
#include "core/screens/Tema.h"
#include "schedule/screens/frmPalinsesto.h"

namespace kvr5 {
namespace {

constexpr int kFileInfoDelay = 1000;  // milliseconds

}  // namespace

void frmPalinsesto::Costruisci() {
  auto* page = NuovaPagina(*this);
  page->setSpacing(12);
  page->addLayout(CostruisciTestata());
  page->addWidget(Scorrevole(CostruisciCorpo(), this), 1);
  page->addLayout(CostruisciComandi());
  OrdinaTab();
}

QLayout* frmPalinsesto::CostruisciTestata() {
  lblProgetto = new EtichettaElisa("lblProgetto", this, Qt::ElideMiddle);
  Veste(*lblProgetto, Carattere::Progetto);
  lblTipoPlayer = NuovaEtichetta("lblTipoPlayer", QStringLiteral("Player"), -1, this);
  Veste(*lblTipoPlayer, Carattere::Corpo, Ruolo::Attenuato);
  picHelp = NuovoAiuto(this);
  auto* top = Riga({lblProgetto, lblTipoPlayer, picHelp});
  top->setStretch(0, 1);
  top->setSpacing(spazi::kMedio);
  return top;
}

QLayout* frmPalinsesto::CostruisciFascia() {
  picFraDay = new QWidget(this);
  picFraDay->setObjectName(QStringLiteral("picFraDay"));
  lblDay = NuovaEtichetta("lblDay", QStringLiteral("Day"), 17, picFraDay);
  cmbGiorno = new QComboBox(picFraDay);
  cmbGiorno->setObjectName(QStringLiteral("cmbGiorno"));
  cmbGiorno->setMinimumWidth(140);
  SenzaRotella(*cmbGiorno);
  lblDay->setBuddy(cmbGiorno);
  auto* day = new QVBoxLayout(picFraDay);
  day->setContentsMargins(0, 0, 0, 0);
  day->addStretch(1);
  day->addWidget(lblDay);
  day->addWidget(cmbGiorno);
  day->addStretch(1);
  picSettimana = new StrisciaSettimana(C(), this);
  auto* band = Riga({picFraDay, picSettimana});
  band->setStretch(1, 1);
  band->setSpacing(spazi::kMedio);
  return band;
}

QWidget* frmPalinsesto::CostruisciCorpo() {
  auto* body = new QWidget(this);
  auto* columns = new QHBoxLayout(body);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(12);
  Segmenti = new RiquadroSegmenti(C(), modelloSegmenti_, body);
  picDettaglio = new RiquadroSpot(C(), modelloSpot_, body);
  // The picture of the week takes its height of the columns that have some to give.
  auto* schedule = new QVBoxLayout();
  schedule->setSpacing(12);
  auto* segments = new QHBoxLayout();
  segments->setSpacing(12);
  segments->addWidget(Segmenti, 9);
  segments->addWidget(picDettaglio, 11);
  schedule->addLayout(CostruisciFascia());
  schedule->addLayout(segments, 1);
  columns->addWidget(CostruisciSinistra(body), 3);
  columns->addLayout(schedule, 10);
  return body;
}

QWidget* frmPalinsesto::CostruisciSinistra(QWidget* corpo) {
  auto* left = new QWidget(corpo);
  auto* lines = new QVBoxLayout(left);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(12);
  fraFile = new PaneFile(C(), 16, left);
  fraFileInfo = new PannelloInfo({}, -1, 40, kFileInfoDelay, left);
  lblFileInfo = new EtichettaElisa("lblFileInfo", fraFileInfo);
  lblFileInfo->setText(QStringLiteral("FileInfo"));
  lblFileInfo->setProperty(kTag, 41);
  Veste(*lblFileInfo, Carattere::Riquadro);
  fraFileInfo->Testata()->insertWidget(0, lblFileInfo, 1);
  cmdPlayFileSx = new Coppia("cmdPlayFileSx", "lblAnteprimaSx", QStringLiteral("Preview"),
                             "ascolta", 28, fraFileInfo);
  cmdStopFileSx = new Coppia("cmdStopFileSx", "", {}, "ferma", -1, fraFileInfo);
  lblAnteprimaSx = cmdPlayFileSx->Etichetta();
  fraFileInfo->Corpo()->addLayout(Riga({cmdPlayFileSx, cmdStopFileSx, nullptr}));
  lines->addWidget(fraFile, 1);
  lines->addWidget(fraFileInfo);
  return left;
}

QLayout* frmPalinsesto::CostruisciComandi() {
  const auto button = [this](const char* pic, const char* lbl, const char* caption,
                             const char* icon, int tag) {
    return new Coppia(pic, lbl, QLatin1String(caption), icon, tag, this);
  };
  picAnnulla = button("picAnnulla", "lblAnnulla", "Cancel", "indietro", 15);
  picReport = button("picReport", "lblReport", "Report", "report", 12);
  picSave = button("picSave", "lblSave", "Save", "salva", 11);
  picSave->ImpostaGenere(Coppia::Genere::Primario);
  lblAnnulla = picAnnulla->Etichetta();
  lblReport = picReport->Etichetta();
  lblSave = picSave->Etichetta();
  lblModifiche = NuovaEtichetta("lblModifiche", {}, -1, this);
  Veste(*lblModifiche, Carattere::Corpo, Ruolo::Attenuato);
  return Riga({picAnnulla, lblModifiche, nullptr, picReport, picSave});
}

void frmPalinsesto::OrdinaTab() {
  OrdineTab({picHelp, fraFile->picDisk, fraFile->DirDirectoryMp3, fraFile->txtCerca,
             fraFile->filMp3, cmdPlayFileSx, cmdStopFileSx, cmbGiorno,
             Segmenti->picAggiungiSegmento, Segmenti->grdSegmenti, Segmenti->picNomiCopie,
             Segmenti->picCopiaRipetuti, Segmenti->picCopiaSegmento, Segmenti->picRimuoviSegmento,
             picDettaglio->txtOre, picDettaglio->txtMin, picDettaglio->grdDettaglio});
  QWidget* before = picDettaglio->grdDettaglio;
  const auto next = [&before](QWidget* after) {
    setTabOrder(before, after);
    before = after;
  };
  for (std::size_t i = 0; i < RiquadroSpot::kPosti; ++i) {
    next(picDettaglio->picPlay[i]);
    next(picDettaglio->picStop[i]);
    next(picDettaglio->picAggiungiSpot[i]);
    next(picDettaglio->picRimuoviSpot[i]);
    picDettaglio->UpDownFile[i]->InOrdine(next);
  }
  for (QWidget* each : {picAnnulla, picReport, picSave}) next(each);
}

}  // namespace kvr5
