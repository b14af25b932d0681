#include "core/screens/FinestraCopia.h"

#include <QLabel>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/Davanti.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr qint64 kPatience = 500;  // milliseconds until the window comes
constexpr int kWidth = 480;

/// "1:05" for 65 seconds.
std::string MinutesAndSeconds(qint64 seconds) {
  const std::string rest = std::to_string(seconds % 60);
  return std::to_string(seconds / 60) + (rest.size() == 1 ? ":0" : ":") + rest;
}

}  // namespace

RiquadroCopia::RiquadroCopia(Contesto& contesto)
    : contesto_(contesto),
      parole_{TestoLinguaO(contesto, "0130084", "Counting the files: %1"),
              TestoLinguaO(contesto, "0130080", "File %1 of %2, %3 of %4"),
              TestoLinguaO(contesto, "0130081", "%1 a second, %2 left")} {
  setObjectName(QStringLiteral("FinestraCopia"));
  setWindowTitle(Qs(TestoLinguaO(contesto, "0130001", "Copying files")));
  setMinimumWidth(kWidth);
  Costruisci();
  connect(annulla_, &QAbstractButton::clicked, this, [this] { reject(); });
  // Not to its only button: who is typing when it comes up would cancel the copy.
  setFocus();
}

void RiquadroCopia::Costruisci() {
  auto* page = NuovaPagina(*this);
  file_ = NuovaEtichetta("lblFile", {}, -1, this);
  quanto_ = NuovaEtichetta("lblQuanto", {}, -1, this);
  for (QLabel* line : {file_, quanto_}) {
    line->setMinimumHeight(line->fontMetrics().lineSpacing());  // its room also while it is empty
  }
  tempo_ = NuovaEtichetta("lblTempo", {}, -1, this);
  Veste(*tempo_, Carattere::Suggerimento, Ruolo::Attenuato);
  barra_ = new Barra(this);
  barra_->setObjectName(QStringLiteral("picBarra"));
  barra_->setAccessibleName(Qs(TestoLinguaO(contesto_, "0130184", "Progress")));
  annulla_ = new Coppia("cmdAnnulla", "lblAnnulla", "", "rimuovi", -1, this);
  annulla_->ImpostaScritta(Qs(TestoLinguaO(contesto_, "0130092", "Cancel")));
  page->addWidget(file_);
  page->addWidget(barra_);
  page->addWidget(quanto_);
  page->addLayout(Riga({tempo_, nullptr, annulla_}));
}

void RiquadroCopia::reject() {
  if (!annulla_->isEnabled()) return;
  annullato_ = true;
  annulla_->setEnabled(false);
  const QString words = Qs(TestoLinguaO(contesto_, "70008", "Noted; please wait"));
  annulla_->setToolTip(words);
  quanto_->setText(words);
  tempo_->clear();
}

void RiquadroCopia::Aggiorna(const CopyState& stato, qint64 millisecondi) {
  Scrivi(stato, millisecondi);
  if (!isVisible()) show();
}

void RiquadroCopia::Scrivi(const CopyState& stato, qint64 millisecondi) {
  if (annullato_) return;
  annulla_->setEnabled(stato.Stoppable);
  ScriviFile(stato.File);
  if (stato.FileNumber == 0) {
    quanto_->setText(Qs(ConValori(parole_.Conta, {std::to_string(stato.FileCount)})));
    return;
  }
  const double part = stato.BytesTotal == 0 ? 0.0
                                            : static_cast<double>(stato.BytesDone) /
                                                  static_cast<double>(stato.BytesTotal);
  barra_->ImpostaParte(part);
  quanto_->setText(Qs(
      ConValori(parole_.Quanto, {std::to_string(stato.FileNumber), std::to_string(stato.FileCount),
                                 QuantitaInParole(stato.BytesDone, contesto_.Luogo),
                                 QuantitaInParole(stato.BytesTotal, contesto_.Luogo)})));
  ScriviTempo(stato, millisecondi);
}

void RiquadroCopia::ScriviFile(const std::string& file) {
  const QString path = Qs(PercorsoPerPersone(contesto_, file));
  file_->setText(fontMetrics().elidedText(path, Qt::ElideMiddle, kWidth - 2 * spazi::kLargo));
  file_->setToolTip(Suggerimento(path));
}

void RiquadroCopia::ScriviTempo(const CopyState& stato, qint64 millisecondi) {
  if (stato.BytesDone == 0 || millisecondi < 1) return;
  const double rate =
      static_cast<double>(stato.BytesDone) * 1000 / static_cast<double>(millisecondi);
  const auto left = static_cast<double>(stato.BytesTotal - stato.BytesDone) / rate;
  tempo_->setText(Qs(
      ConValori(parole_.Tempo, {QuantitaInParole(static_cast<std::uint64_t>(rate), contesto_.Luogo),
                                MinutesAndSeconds(static_cast<qint64>(left) + 1)})));
}

void FinestraCopia::Begin() {
  inizio_.start();
}

bool FinestraCopia::Progress(const CopyState& state) {
  if (!inizio_.isValid()) inizio_.start();
  if (riquadro_) {
    riquadro_->Aggiorna(state, inizio_.elapsed());
  } else if (inizio_.elapsed() >= kPatience) {
    Apri(state);
  }
  contesto_->Messaggi.LasciaCorrere();
  return !riquadro_ || !riquadro_->Annullato();
}

void FinestraCopia::Apri(const CopyState& state) {
  riquadro_ = std::make_unique<RiquadroCopia>(*contesto_);
  riquadro_->Scrivi(state, inizio_.elapsed());  // first: its place depends on its height
  QWidget* below = FinestraSotto();
  MettiDavanti(*riquadro_, below);
  if (below != nullptr && below->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
    MettiAccanto(*riquadro_, *below);  // its cancel is to be reached
  }
  riquadro_->show();
}

void FinestraCopia::Failed(const CopyFailure& failure) {
  riquadro_.reset();
  contesto_->Finestre.MostraMessaggio(BoxGuastoCopia(*contesto_, failure));
}

void FinestraCopia::End() {
  riquadro_.reset();
  inizio_.invalidate();
}

}  // namespace kvr5
