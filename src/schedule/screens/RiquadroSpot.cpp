#include "schedule/screens/RiquadroSpot.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QToolButton>
#include <algorithm>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/FileTrascinati.h"
#include "core/screens/Lampada.h"
#include "core/screens/Pagina.h"
#include "core/screens/Posto.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kRow = 36;

/// A picture of a slot, "picPlay_0".
Coppia* SlotButton(const char* name, std::size_t index, const char* icon, QWidget* parent) {
  constexpr int kSide = 30;
  auto* button = new Coppia("", "", {}, icon, -1, parent);
  button->setObjectName(NomeElemento(name, static_cast<int>(index)));
  button->ImpostaGenere(Coppia::Genere::Quieto);
  button->setFixedSize(kSide, kSide);
  TieniPosto(*button);
  return button;
}

}  // namespace

RiquadroSpot::RiquadroSpot(Contesto& contesto, ModelloSpot& modello, QWidget* padre)
    : Riquadro("picDettaglio", {}, -1, padre), contesto_(contesto) {
  lblDettaglioPalinsesto =
      NuovaEtichetta("lblDettaglioPalinsesto", QStringLiteral("Dettaglio Palinsesto"), 27, this);
  Veste(*lblDettaglioPalinsesto, Carattere::Riquadro);
  Testata()->insertWidget(0, lblDettaglioPalinsesto);
  // As high as that of the segments beside it, which has a button.
  lblDettaglioPalinsesto->setMinimumHeight(spazi::kPulsante);
  grdDettaglio = new TabellaEditor("grdDettaglio", modello, kRow, this);
  Corpo()->addLayout(CostruisciOrario());
  Corpo()->addLayout(CostruisciSlot());
  lblEsito = new EtichettaAvviso("lblEsito", {}, Carattere::Suggerimento, this);
  lblEsito->setWordWrap(true);
  lblEsito->hide();
  Corpo()->addWidget(lblEsito);
  Corpo()->addStretch(1);
  TieniPosto(*this);
  setAcceptDrops(true);
}

QLayout* RiquadroSpot::CostruisciOrario() {
  lblOrario = NuovaEtichetta("lblOrario", QStringLiteral("Dettaglio Palinsesto"), 42, this);
  txtOre = new CampoOra("txtOre", this);
  lblDuePunti = NuovaEtichetta("lblDuePunti", QStringLiteral(":"), -1, this);
  lblDuePunti->setFont(FontDi(Carattere::Orario));
  txtMin = new CampoOra("txtMin", this);
  lblOrario->setBuddy(txtOre);
  lblTotaleSpot = NuovaEtichetta("lblTotaleSpot", {}, -1, this);
  Veste(*lblTotaleSpot, Carattere::Corpo, Ruolo::Attenuato);
  return Riga({lblOrario, txtOre, lblDuePunti, txtMin, nullptr, lblTotaleSpot});
}

QLayout* RiquadroSpot::CostruisciSlot() {
  constexpr int kGap = 2;
  auto* lines = new QGridLayout();
  lines->setHorizontalSpacing(kGap);
  lines->setVerticalSpacing(0);
  constexpr int kPlaces = static_cast<int>(kPosti);
  grdDettaglio->setFixedHeight(kRow * kPlaces);
  grdDettaglio->setMinimumWidth(110);
  grdDettaglio->setFrameShape(QFrame::NoFrame);
  grdDettaglio->setSelectionMode(QAbstractItemView::SingleSelection);
  grdDettaglio->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grdDettaglio->horizontalHeader()->hide();
  grdDettaglio->horizontalHeader()->setSectionResizeMode(ModelloSpot::Nome, QHeaderView::Stretch);
  lines->addWidget(grdDettaglio, 0, 1, kPlaces, 1);
  lines->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < kPosti; ++i) {
    const int row = static_cast<int>(i);
    lblPos[i] = NuovaEtichetta("", QString::number(row + 1), -1, this);
    lblPos[i]->setObjectName(NomeElemento("lblPos", row));
    lblPos[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblPos[i]->setMinimumWidth(16);
    Veste(*lblPos[i], Carattere::Corpo, Ruolo::Attenuato);
    picPlay[i] = SlotButton("picPlay", i, "ascolta", this);
    picStop[i] = SlotButton("picStop", i, "ferma", this);
    picAggiungiSpot[i] = SlotButton("picAggiungiSpot", i, "aggiungi", this);
    picRimuoviSpot[i] = SlotButton("picRimuoviSpot", i, "rimuovi", this);
    UpDownFile[i] = new FrecceSpot(row, this);
    TieniPosto(*UpDownFile[i]);
    lines->setRowMinimumHeight(row, kRow);
    lines->addWidget(lblPos[i], row, 0);
    int column = 2;
    for (QWidget* each :
         {static_cast<QWidget*>(picPlay[i]), static_cast<QWidget*>(picStop[i]),
          static_cast<QWidget*>(picAggiungiSpot[i]), static_cast<QWidget*>(picRimuoviSpot[i]),
          static_cast<QWidget*>(UpDownFile[i])}) {
      lines->addWidget(each, row, column++);
    }
  }
  return lines;
}

void RiquadroSpot::Disponi(bool playerEsterno, bool oreBloccate) {
  for (Coppia* each : picStop) {
    QSizePolicy policy = each->sizePolicy();
    policy.setRetainSizeWhenHidden(!playerEsterno);
    each->setSizePolicy(policy);
  }
  // Locked, and told to be disabled as well.
  txtOre->setReadOnly(oreBloccate);
  txtOre->setEnabled(!oreBloccate);
}

void RiquadroSpot::MostraSlot(const SlotSpot& slot) {
  slot_ = slot;
  setVisible(slot.picDettaglio);
  const std::string add = TestoLingua(contesto_, "0140112");
  const std::string replace = TestoLingua(contesto_, "0140113");
  for (std::size_t i = 0; i < kPosti; ++i) {
    const UnoSlot& one = slot.Slot[i];
    picPlay[i]->setVisible(one.picPlay);
    picStop[i]->setVisible(one.picStop);
    picAggiungiSpot[i]->setVisible(one.picAggiungiSpot);
    picAggiungiSpot[i]->setToolTip(Suggerimento(Qs(one.picRimuoviSpot ? replace : add)));
    picRimuoviSpot[i]->setVisible(one.picRimuoviSpot);
    UpDownFile[i]->setVisible(one.UpDownFile);
    UpDownFile[i]->Copri(i == 0, static_cast<int>(i) == slot.CopriDown);
  }
}

bool RiquadroSpot::Perde(const QWidget& controllo, const SlotSpot& slot) const {
  for (std::size_t i = 0; i < kPosti; ++i) {
    const UnoSlot& one = slot.Slot[i];
    const FrecceSpot& arrows = *UpDownFile[i];
    const bool last = static_cast<int>(i) == slot.CopriDown;
    if (&controllo == picPlay[i]) return !one.picPlay;
    if (&controllo == picStop[i]) return !one.picStop;
    if (&controllo == picAggiungiSpot[i]) return !one.picAggiungiSpot;
    if (&controllo == picRimuoviSpot[i]) return !one.picRimuoviSpot;
    if (&controllo == arrows.Su) return !one.UpDownFile || i == 0;
    if (&controllo == arrows.Giu) return !one.UpDownFile || last;
  }
  return false;
}

void RiquadroSpot::MostraEsito(const QString& testo) {
  constexpr int kWord = 240;  // pixels: the name of a file may have no blank to break at
  lblEsito->setText(Spezzabile(testo, lblEsito->fontMetrics(), kWord));
  lblEsito->setVisible(!testo.isEmpty());
}

void RiquadroSpot::Localizza(bool playerEsterno, bool oreBloccate) {
  const auto text = [this](const char* key) { return Qs(TestoLingua(contesto_, key)); };
  const std::string place = TestoLinguaO(contesto_, "0140129", "%1, place %2");
  for (std::size_t i = 0; i < kPosti; ++i) {
    const auto named = [&](const char* key) {
      return Qs(ConValori(place, {TestoLingua(contesto_, key), std::to_string(i + 1)}));
    };
    picPlay[i]->ImpostaScritta(named("0130168"));
    picStop[i]->ImpostaScritta(named("0130169"));
    picStop[i]->setToolTip(text("0130269"));
    picPlay[i]->setToolTip(text(playerEsterno ? "0140118" : "0140117"));
    picAggiungiSpot[i]->ImpostaScritta(named("0140008"));
    picRimuoviSpot[i]->ImpostaScritta(named("0140009"));
    picRimuoviSpot[i]->setToolTip(text("0140114"));
    UpDownFile[i]->Su->setAccessibleName(named("0050044"));
    UpDownFile[i]->Su->setToolTip(text("0140115"));
    UpDownFile[i]->Giu->setAccessibleName(named("0050045"));
    UpDownFile[i]->Giu->setToolTip(text("0140116"));
  }
  txtOre->setAccessibleName(text("0140125"));
  txtOre->setToolTip(text(oreBloccate ? "0140127" : "0140125"));
  txtMin->setAccessibleName(text("0140126"));
  txtMin->setToolTip(text("0140126"));
  lblTotaleSpot->setToolTip(text("0140128"));
  grdDettaglio->setAccessibleName(text("0140027"));
  grdDettaglio->ImpostaVuota(text("0140124"));
  constexpr int kEdges = 24;
  const auto& metrics = grdDettaglio->fontMetrics();
  const int missing = metrics.horizontalAdvance(text("0040062"));
  const int length = metrics.horizontalAdvance(QStringLiteral("1:00:00"));
  grdDettaglio->horizontalHeader()->resizeSection(ModelloSpot::Durata,
                                                  std::max(missing, length) + kEdges);
}

int RiquadroSpot::SlotA(int y) const {
  const int within = y - grdDettaglio->mapTo(this, QPoint(0, 0)).y();
  const int wanted = std::clamp(within / kRow, 0, SlotSpot::kPosti - 1);
  int last = 0;
  for (int i = 0; i < SlotSpot::kPosti; ++i) {
    if (slot_[i].picAggiungiSpot) last = i;
  }
  return std::min(wanted, last);
}

void RiquadroSpot::Sopra(int slot) {
  if (std::exchange(sopra_, slot) != slot) update();
}

void RiquadroSpot::dragEnterEvent(QDragEnterEvent* event) {
  if (FileTrascinati(*event->mimeData()).empty() || QApplication::activeModalWidget() != nullptr) {
    return;
  }
  // The files stay where they are, whatever a file manager proposes.
  event->setDropAction(Qt::CopyAction);
  event->accept();
  Sopra(SlotA(event->position().toPoint().y()));
}

void RiquadroSpot::dragMoveEvent(QDragMoveEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  Sopra(SlotA(event->position().toPoint().y()));
}

void RiquadroSpot::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
  Sopra(-1);
}

void RiquadroSpot::dropEvent(QDropEvent* event) {
  Sopra(-1);
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // Not from within the drop: the program that it comes from waits for its end.
  QMetaObject::invokeMethod(
      this,
      [this, slot = SlotA(event->position().toPoint().y()),
       files = FileTrascinati(*event->mimeData())] {
        const bool boxed = QApplication::activeModalWidget() != nullptr;
        if (SuFile && !boxed) SuFile(slot, files);
      },
      Qt::QueuedConnection);
}

void RiquadroSpot::paintEvent(QPaintEvent* event) {
  Riquadro::paintEvent(event);
  if (sopra_ < 0) return;
  const auto at = static_cast<std::size_t>(sopra_);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Tema::Corrente().Primario, 2));
  const int top = grdDettaglio->mapTo(this, QPoint(0, 0)).y() + sopra_ * kRow;
  const int right = UpDownFile[at]->geometry().right();
  painter.drawRoundedRect(
      QRectF(lblPos[at]->x() - 4, top + 1, right - lblPos[at]->x() + 8, kRow - 2), spazi::kAngolo,
      spazi::kAngolo);
}

}  // namespace kvr5
