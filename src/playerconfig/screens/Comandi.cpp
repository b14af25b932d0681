#include "playerconfig/screens/Comandi.h"

#include <QLabel>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

/// Buttons side by side in a widget of their own; a null stretches.
QWidget* GroupOf(std::initializer_list<QWidget*> buttons) {
  auto* group = new QWidget();
  auto* line = Riga(buttons);
  line->setContentsMargins(0, 0, 0, 0);
  group->setLayout(line);
  return group;
}

}  // namespace

Comandi::Comandi(Contesto& contesto, QWidget* padre) : QWidget(padre), contesto_(contesto) {
  const auto pair = [this](const char* pic, const char* lbl, const char* caption, const char* icon,
                           int tag) {
    return new Coppia(pic, lbl, QLatin1String(caption), icon, tag, this);
  };
  picEsci = pair("picEsci", "lblTermina", "Exit", "indietro", 44);
  picReport = pair("picReport", "lblReport", "Report", "report", 43);
  picPlaylist = pair("picPlaylist", "lblPlaylist", "Playlist", "playlist", 41);
  picPalinsesto = pair("picPalinsesto", "lblPalinsesto", "Palinsesto", "palinsesto", 42);
  picAltro = pair("picAltro", "lblAltro", "More", "altro", -1);
  picCancellaFlash = pair("picCancellaFlash", "lblCancellaFlash", "EmptyFlash", "svuota", 40);
  picCancellaFlash->ImpostaGenere(Coppia::Genere::Pericolo);
  picSave = pair("picSave", "lblSave", "Save", "salva", 38);
  picVerifica = pair("picVerifica", "lblVerifica", "Verify", "verifica", -1);
  picRecordFlash = pair("picRecordFlash", "lblRecordFlash", "WriteFlash", "registra", 39);
  ImpostaTurno(*picRecordFlash, TurnoLettera::SalvaERegistra);
  picRecordFlash->ImpostaGenere(Coppia::Genere::Primario);
  progetto_ = GroupOf(
      {picEsci, picReport, picPlaylist, picPalinsesto, picAltro, picCancellaFlash, nullptr});
  scheda_ = GroupOf({nullptr, picSave, picVerifica, picRecordFlash});
  riga_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
  riga_->setContentsMargins(0, 0, 0, 0);
  riga_->setSpacing(spazi::kStretto);
  riga_->setSizeConstraint(QLayout::SetNoConstraint);
  riga_->addWidget(progetto_);
  riga_->addWidget(scheda_, 1);
  OrdineTab({picEsci, picReport, picPlaylist, picPalinsesto, picAltro, picCancellaFlash, picSave,
             picVerifica, picRecordFlash});
  connect(picAltro, &QAbstractButton::clicked, this, [this] {
    menuAltro.popup(picAltro->mapToGlobal(QPoint(0, -menuAltro.sizeHint().height())));
  });
}

QSize Comandi::minimumSizeHint() const {
  const QSize left = progetto_->minimumSizeHint();
  const QSize right = scheda_->minimumSizeHint();
  const int both = left.width() + spazi::kStretto + right.width();
  if (width() >= both) return {std::max(left.width(), right.width()), right.height()};
  return {std::max(left.width(), right.width()), left.height() + spazi::kStretto + right.height()};
}

void Comandi::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int both =
      progetto_->minimumSizeHint().width() + spazi::kStretto + scheda_->minimumSizeHint().width();
  const auto direction = width() >= both ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
  if (riga_->direction() == direction) return;
  riga_->setDirection(direction);
  updateGeometry();
}

void Comandi::Disponi(const LayoutHub& layout) {
  picPlaylist->setVisible(layout.picPlaylist);
  picPalinsesto->setVisible(layout.picPalinsesto);
}

void Comandi::Localizza() {
  const auto text = [this](const char* key) { return Qs(TestoLingua(contesto_, key)); };
  picAltro->ImpostaScritta(Qs(TestoLinguaO(contesto_, "0130150", "More")));
  picVerifica->ImpostaScritta(Qs(TestoLinguaO(contesto_, "0130159", "Verify")));
  picSave->setToolTip(text("0130160"));
  picCancellaFlash->setToolTip(text("0130163"));
  picVerifica->setToolTip(text("0130164"));
  picReport->setToolTip(text("0130165"));
  picEsci->setToolTip(text("0130166"));
  picPlaylist->setToolTip(text("0130241"));
  picPalinsesto->setToolTip(text("0130242"));
}

void Comandi::ImpostaScheda(const std::string& radice) {
  picRecordFlash->setToolTip(radice.empty()
                                 ? Qs(TestoLingua(contesto_, "0130161"))
                                 : Qs(ConValori(TestoLingua(contesto_, "0130162"), {radice})));
}

}  // namespace kvr5
