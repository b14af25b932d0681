#include "playlists/screens/RiquadroBrani.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/FileTrascinati.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr std::uint32_t kRed = 255;
constexpr std::uint32_t kGreen = 65280;
constexpr int kBlink = 500;  // milliseconds

}  // namespace

RiquadroBrani::RiquadroBrani(Contesto& contesto, ModelloBrani& modello, QWidget* padre)
    : Riquadro("fraBrani", {}, -1, padre), contesto_(contesto), coloreAttesa_(kRed) {
  lblPlaylistFiles = NuovaEtichetta("lblPlaylistFiles", QStringLiteral("Plailist Files"), -1, this);
  Veste(*lblPlaylistFiles, Carattere::Riquadro);
  lblTotali = NuovaEtichetta("lblTotali", {}, -1, this);
  Veste(*lblTotali, Carattere::Corpo, Ruolo::Attenuato);
  Testata()->insertWidget(0, lblPlaylistFiles);
  Testata()->addWidget(lblTotali);
  pila_ = new QStackedLayout();
  grdPlaylist = new GrigliaPlaylist(modello, this);
  lblAttendere = NuovaEtichetta("lblAttendere", QStringLiteral("..Wait..."), 29, this);
  Veste(*lblAttendere, Carattere::Schermata);
  lblAttendere->setAlignment(Qt::AlignCenter);
  lblAttendere->setAutoFillBackground(true);
  lblAttendere->setMargin(spazi::kLargo);
  attesa_ = new QWidget(this);
  (new QVBoxLayout(attesa_))->addWidget(lblAttendere, 0, Qt::AlignCenter);
  pila_->addWidget(grdPlaylist);
  pila_->addWidget(attesa_);
  Corpo()->addLayout(pila_, 1);
  CostruisciAvvisi();
  const auto button = [this](const char* cmd, const char* lbl, const char* caption,
                             const char* icon, int tag) {
    return new Coppia(cmd, lbl, QLatin1String(caption), icon, tag, this);
  };
  cmdPlayMp3 = button("cmdPlayMp3", "lblAnteprima", "Preview", "ascolta", 8);
  cmdStopMp3 = button("cmdStopMp3", "", "", "ferma", -1);
  cmdSpostaSu = button("cmdSpostaSu", "", "Up", "su", -1);
  cmdSpostaGiu = button("cmdSpostaGiu", "", "Down", "giu", -1);
  cmdRandom = button("cmdRandom", "lblRandom", "Random", "casuale", 28);
  lblAnteprima = cmdPlayMp3->Etichetta();
  lblRandom = cmdRandom->Etichetta();
  Corpo()->addLayout(Riga({cmdPlayMp3, cmdStopMp3, nullptr, cmdSpostaSu, cmdSpostaGiu, cmdRandom}));
  tmrAttendere.setInterval(kBlink);
  connect(&tmrAttendere, &QTimer::timeout, this, [this] { Lampeggia(); });
  coloreAttesa_ = kGreen;
  Lampeggia();
  setAcceptDrops(true);
}

void RiquadroBrani::CostruisciAvvisi() {
  lblCopie = new EtichettaAvviso("lblCopie", {}, Carattere::Suggerimento, this);
  picNomiCopie = new Coppia("picNomiCopie", "lblNomiCopie", {}, "duplica", -1, this);
  ImpostaTurno(*picNomiCopie, TurnoLettera::VieneEVa);
  lblDoppi = new EtichettaAvviso("lblDoppi", {}, Carattere::Suggerimento, this);
  lblEsito = new EtichettaAvviso("lblEsito", {}, Carattere::Suggerimento, this);
  for (EtichettaAvviso* each : {lblCopie, lblDoppi, lblEsito}) {
    each->setWordWrap(true);
    each->hide();
    Corpo()->addWidget(each);
    if (each != lblCopie) continue;
    Corpo()->addWidget(picNomiCopie, 0, Qt::AlignLeft);
    picNomiCopie->hide();
  }
}

void RiquadroBrani::MostraCopie(const QString& testo) {
  Avvisa(*lblCopie, testo);
  // The keyboard would come to the next button, for a second press.
  if (testo.isEmpty() && picNomiCopie->hasFocus()) grdPlaylist->setFocus(Qt::OtherFocusReason);
  picNomiCopie->setVisible(!testo.isEmpty());
}

void RiquadroBrani::Lampeggia() {
  coloreAttesa_ = coloreAttesa_ == kRed ? kGreen : kRed;
  const QColor plate(0x0F, 0x13, 0x15);  // on which both can be read
  QPalette palette = lblAttendere->palette();
  palette.setColor(QPalette::Window, plate);
  palette.setColor(QPalette::WindowText, DaBgr(coloreAttesa_));
  lblAttendere->setPalette(palette);
}

void RiquadroBrani::Attesa(bool attende) {
  if (attende) {
    tmrAttendere.start();
  } else {
    tmrAttendere.stop();
  }
  const bool keyboard = attende && grdPlaylist->hasFocus();
  pila_->setCurrentWidget(attende ? attesa_ : grdPlaylist);
  if (keyboard) ripiego_ = window()->focusWidget();
  // Unless the user has gone elsewhere meanwhile.
  QWidget* const fell = attende ? nullptr : std::exchange(ripiego_, nullptr).data();
  if (fell != nullptr && window()->focusWidget() == fell) grdPlaylist->setFocus();
}

void RiquadroBrani::Avvisa(QLabel& riga, const QString& testo) {
  constexpr int kWord = 240;  // pixels: the name of a file may have no blank to break at
  riga.setText(Spezzabile(testo, riga.fontMetrics(), kWord));
  riga.setVisible(!testo.isEmpty());
}

void RiquadroBrani::Sopra(bool sopra) {
  sopra_ = sopra;
  update();
}

void RiquadroBrani::dragEnterEvent(QDragEnterEvent* event) {
  if (FileTrascinati(*event->mimeData()).empty() || QApplication::activeModalWidget() != nullptr)
    return;
  // The files stay where they are, whatever a file manager proposes.
  event->setDropAction(Qt::CopyAction);
  event->accept();
  Sopra(true);
}

void RiquadroBrani::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
  Sopra(false);
}

void RiquadroBrani::dropEvent(QDropEvent* event) {
  Sopra(false);
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // Not from within the drop: the program that it comes from waits for its end.
  QMetaObject::invokeMethod(
      this,
      [this, files = FileTrascinati(*event->mimeData())] {
        const bool boxed = QApplication::activeModalWidget() != nullptr;
        if (SuFile && !boxed) SuFile(files);
      },
      Qt::QueuedConnection);
}

void RiquadroBrani::paintEvent(QPaintEvent* event) {
  Riquadro::paintEvent(event);
  if (!sopra_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Tema::Corrente().Primario, 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), spazi::kAngolo, spazi::kAngolo);
}

void RiquadroBrani::Localizza() {
  const auto text = [this](const char* key, const char* caption = "") {
    return Qs(TestoLinguaO(contesto_, key, caption));
  };
  grdPlaylist->Misura();
  cmdStopMp3->ImpostaScritta(text("0130169", "Stop"));
  cmdStopMp3->setToolTip(text("0130269"));
  cmdSpostaSu->ImpostaScritta(text("0050044", "Up"));
  cmdSpostaSu->setToolTip(text("0050106"));
  cmdSpostaGiu->ImpostaScritta(text("0050045", "Down"));
  cmdSpostaGiu->setToolTip(text("0050107"));
  cmdRandom->setToolTip(text("0050108"));
  picNomiCopie->ImpostaScritta(text("0140131", "Give copies their names"));
  picNomiCopie->setToolTip(text("0140133"));
  grdPlaylist->setAccessibleName(text("0050018"));
  grdPlaylist->ImpostaVuota(text("0050109"));
}

}  // namespace kvr5
