// The controls of the editor of playlists and how they lie.

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Pagina.h"
#include "core/screens/Posto.h"
#include "core/screens/Tema.h"
#include "playlists/screens/frmPlaylistEditor.h"

namespace kvr5 {
namespace {

constexpr int kFileInfoDelay = 500;  // milliseconds

}  // namespace

void frmPlaylistEditor::Costruisci() {
  auto* page = NuovaPagina(*this);
  page->setSpacing(12);
  page->addLayout(CostruisciTestata());
  Fascia = new FasciaSelezione(C(), this);
  page->addWidget(Fascia);
  page->addWidget(Scorrevole(CostruisciCorpo(), this), 1);
  page->addLayout(CostruisciComandi());
  OrdineTab({picHelp,
             Fascia->cmbPlaylist,
             Fascia->chkIn[0],
             Fascia->chkIn[1],
             Fascia->chkIn[2],
             Fascia->picAggiungiPL,
             Fascia->picRimuoviPL,
             fraFile->picDisk,
             fraFile->DirDirectoryMp3,
             fraFile->txtCerca,
             fraFile->filMp3,
             cmdPlayFileSx,
             cmdStopFileSx,
             cmdAggiungiFile,
             cmdAggiungiTuttiFiles,
             cmdRimuoviFile,
             cmdRimuoviTuttiFile,
             Brani->grdPlaylist,
             Brani->picNomiCopie,
             Brani->cmdPlayMp3,
             Brani->cmdStopMp3,
             Brani->cmdSpostaSu,
             Brani->cmdSpostaGiu,
             Brani->cmdRandom,
             picAnnulla,
             picImporta,
             picReport,
             picSave});
}

QLayout* frmPlaylistEditor::CostruisciTestata() {
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

QWidget* frmPlaylistEditor::CostruisciCorpo() {
  auto* body = new QWidget(this);
  auto* columns = new QHBoxLayout(body);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(12);
  columns->addWidget(CostruisciSinistra(body), 4);
  columns->addWidget(CostruisciFrecce(body));
  Brani = new RiquadroBrani(C(), modello_, body);
  columns->addWidget(Brani, 5);
  return body;
}

QWidget* frmPlaylistEditor::CostruisciSinistra(QWidget* corpo) {
  auto* left = new QWidget(corpo);
  auto* lines = new QVBoxLayout(left);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(12);
  fraFile = new PaneFile(C(), 7, left);
  fraFileInfo = new PannelloInfo({}, -1, 5, kFileInfoDelay, left, 2);
  lblFileInfo = new EtichettaElisa("lblFileInfo", fraFileInfo);
  lblFileInfo->setText(QStringLiteral("FileInfo"));
  lblFileInfo->setProperty(kTag, 31);
  Veste(*lblFileInfo, Carattere::Riquadro);
  fraFileInfo->Testata()->insertWidget(0, lblFileInfo, 1);
  cmdPlayFileSx = new Coppia("cmdPlayFileSx", "lblAnteprimaSx", QStringLiteral("Preview"),
                             "ascolta", 9, fraFileInfo);
  cmdStopFileSx = new Coppia("cmdStopFileSx", "", {}, "ferma", -1, fraFileInfo);
  lblAnteprimaSx = cmdPlayFileSx->Etichetta();
  for (Coppia* each : {cmdPlayFileSx, cmdStopFileSx}) fraFileInfo->Testata()->addWidget(each);
  lines->addWidget(fraFile, 1);
  lines->addWidget(fraFileInfo);
  return left;
}

QWidget* frmPlaylistEditor::CostruisciFrecce(QWidget* corpo) {
  auto* arrows = new QWidget(corpo);
  auto* lines = new QVBoxLayout(arrows);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(spazi::kStretto);
  const auto button = [arrows](const char* cmd, const char* lbl, const char* caption,
                               const char* icon, int tag) {
    return new Coppia(cmd, lbl, QLatin1String(caption), icon, tag, arrows);
  };
  cmdAggiungiFile = button("cmdAggiungiFile", "lblAggiungiFile", "Add", "aggiungi", 32);
  ImpostaTurno(*cmdAggiungiFile, TurnoLettera::VieneEVa);
  cmdAggiungiTuttiFiles =
      button("cmdAggiungiTuttiFiles", "lblAggiungiTuttiFiles", "Add all", "aggiungi-tutti", 36);
  cmdRimuoviFile = button("cmdRimuoviFile", "lblRimuoviFile", "Remove", "rimuovi", 42);
  cmdRimuoviTuttiFile =
      button("cmdRimuoviTuttiFile", "lblRimuoviTuttiFile", "Remove all", "rimuovi-tutti", 43);
  cmdRimuoviTuttiFile->ImpostaGenere(Coppia::Genere::Pericolo);
  TieniPosto(*cmdAggiungiFile);
  cmdAggiungiFile->hide();
  lines->addStretch(1);
  lines->addWidget(cmdAggiungiFile);
  lines->addWidget(cmdAggiungiTuttiFiles);
  lines->addSpacing(spazi::kLargo);
  lines->addWidget(cmdRimuoviFile);
  lines->addWidget(cmdRimuoviTuttiFile);
  lines->addStretch(1);
  return arrows;
}

QLayout* frmPlaylistEditor::CostruisciComandi() {
  const auto button = [this](const char* pic, const char* lbl, const char* caption,
                             const char* icon, int tag) {
    return new Coppia(pic, lbl, QLatin1String(caption), icon, tag, this);
  };
  picAnnulla = button("picAnnulla", "lblAnnulla", "Cancel", "indietro", 15);
  picImporta = button("picImporta", "lblImporta", "Import", "importa", 10);
  picReport = button("picReport", "lblReport", "Report", "report", 13);
  picSave = button("picSave", "lblSave", "Save", "salva", 11);
  picSave->ImpostaGenere(Coppia::Genere::Primario);
  lblAnnulla = picAnnulla->Etichetta();
  lblImporta = picImporta->Etichetta();
  lblReport = picReport->Etichetta();
  lblSave = picSave->Etichetta();
  lblModifiche = NuovaEtichetta("lblModifiche", {}, -1, this);
  Veste(*lblModifiche, Carattere::Corpo, Ruolo::Attenuato);
  return Riga({picAnnulla, lblModifiche, nullptr, picImporta, picReport, picSave});
}

}  // namespace kvr5
