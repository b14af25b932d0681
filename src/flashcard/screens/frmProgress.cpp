#include "flashcard/screens/frmProgress.h"

#include <QShowEvent>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/PrimoPiano.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormProgress = 7;
constexpr int kBarHeight = 16;

}  // namespace

ProgressoQt::~ProgressoQt() {
  delete finestra_;
}

void ProgressoQt::Ridisegna() {
  if (!Caricata()) {
    if (frmProgress* gone = std::exchange(finestra_, nullptr)) gone->Scarica();
    return;
  }
  if (finestra_ == nullptr) {
    finestra_ = new frmProgress(ambiente_, *this);
    finestra_->Carica();
  }
  finestra_->Disegna();
  if (Visibile() != finestra_->isVisible()) {
    if (Visibile()) {
      finestra_->Mostra();
    } else {
      finestra_->Nascondi();
    }
  }
}

frmProgress::frmProgress(Ambiente& ambiente, ProgressoQt& progresso)
    : Form(ambiente, "frmProgress"), progresso_(progresso) {
  setWindowFlag(Qt::Dialog);
  setFixedSize(FinestraProgresso::PixelPieni + 2 * spazi::kLargo, 180);
  auto* page = NuovaPagina(*this);
  lblOperazione = NuovaEtichetta("lblOperazione", QStringLiteral("Operat"), -1, this);
  lblPerc = NuovaEtichetta("lblPerc", {}, -1, this);
  lblOperazione->setWordWrap(true);
  lblOperazione->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* top = Riga({lblOperazione, lblPerc});
  top->setStretch(0, 1);
  top->setAlignment(lblPerc, Qt::AlignTop);
  page->addLayout(top);
  picCont = new kvr5::Barra(this);  // the trough
  picCont->setObjectName(QStringLiteral("picCont"));
  picCont->setFixedSize(FinestraProgresso::PixelPieni, kBarHeight);
  picBar = new kvr5::Barra(picCont);
  picBar->setObjectName(QStringLiteral("picBar"));
  picBar->ImpostaParte(1);  // its own width is the part
  picBar->setGeometry(0, 0, 0, kBarHeight);
  page->addWidget(picCont);
  page->addStretch(1);
  lblNumFile = NuovaEtichetta("lblNumFile", QStringLiteral("1/1"), -1, this);
  lblFase = NuovaEtichetta("lblFase", {}, -1, this);
  Veste(*lblFase, Carattere::Suggerimento, Ruolo::Attenuato);
  picAnnulla = new Coppia("picAnnulla", "lblAnnulla", QStringLiteral("Cancel"), "rimuovi", 1, this);
  lblAnnulla = picAnnulla->Etichetta();
  page->addLayout(Riga({lblNumFile, lblFase, nullptr, picAnnulla}));
  connect(picAnnulla, &QAbstractButton::clicked, this, [this] { progresso_.Annulla(); });
  tmrCicla.setInterval(1000);
  connect(&tmrCicla, &QTimer::timeout, this, [this] { progresso_.Tick(); });
}

void frmProgress::AlCaricamento() {
  LocalizzaForm(C(), kFormProgress, *this);
  picBar->setAccessibleName(Qs(TestoLingua(C(), "0130184")));
  fase_ = TestoLinguaO(C(), "0130183", "Step %1 of %2");
  ImpostaPrimoPiano(*this, true);
  tmrCicla.start();
}

void frmProgress::AlloScarico() {
  tmrCicla.stop();
  hide();  // first: the flag of a shown window can't be changed without its coming up once more
  ImpostaPrimoPiano(*this, false);
}

void frmProgress::showEvent(QShowEvent* event) {
  // Not to its only button: the second Enter of a hasty start would cancel what the first began.
  if (!event->spontaneous()) setFocus();
  Form::showEvent(event);
}

bool frmProgress::PuoChiudere(Causa causa) {
  // The operation unloads its window when its work is done; the window's own button only cancels.
  if (causa == Causa::Utente) progresso_.Annulla();
  return causa == Causa::Codice;
}

void frmProgress::Disegna() {
  lblOperazione->setText(Qs(progresso_.TestoOperazione()));
  lblOperazione->setToolTip(Qs(progresso_.TestoOperazione()));
  Veste(*lblOperazione, Carattere::Riquadro,
        progresso_.TestoAcceso() ? Ruolo::Testo : Ruolo::Attenuato);
  lblPerc->setText(Qs(progresso_.TestoPercento()));
  picBar->resize(progresso_.PixelBarra(), picBar->height());
  picBar->setAccessibleDescription(Qs(progresso_.TestoPercento()));
  lblNumFile->setText(Qs(progresso_.TestoNumFile()));
  lblNumFile->setVisible(progresso_.NumFileVisibile());
  lblFase->setVisible(!progresso_.NumFileVisibile());
  lblFase->setText(Qs(ConValori(fase_, {std::to_string(progresso_.ValoreCorrente),
                                        std::to_string(progresso_.ValoreMassimo)})));
}

}  // namespace kvr5
