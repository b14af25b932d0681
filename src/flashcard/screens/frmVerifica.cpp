#include "flashcard/screens/frmVerifica.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QShowEvent>
#include <QStyleOptionViewItem>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tabella.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "flashcard/ParoleVerifica.h"

namespace kvr5 {
namespace {

constexpr int kRow = 44;          // two lines, the least that a row has
constexpr qint64 kRefresh = 100;  // milliseconds between two looks of the user at the state

}  // namespace

frmVerifica::frmVerifica(Ambiente& ambiente) : Form(ambiente, "frmVerifica"), modello_(ambiente.C) {
  resize(960, 560);
  setMinimumSize(620, 360);
  Costruisci();
  connect(picRipeti, &QAbstractButton::clicked, this, [this] { Verifica(); });
  connect(picChiudi, &QAbstractButton::clicked, this, [this] { Chiudi(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuTasto(Qt::Key_Escape, [this] { Chiudi(); });
}

void frmVerifica::Costruisci() {
  auto* page = NuovaPagina(*this);
  lblTitolo = new EtichettaElisa("lblTitolo", this);
  Veste(*lblTitolo, Carattere::Schermata);
  picHelp = NuovoAiuto(this);
  auto* top = Riga({lblTitolo, picHelp});
  top->setStretch(0, 1);
  page->addLayout(top);
  lblFile = new EtichettaElisa("lblFile", this, Qt::ElideMiddle);
  picAvanzamento = new Barra(this);
  picAvanzamento->setObjectName(QStringLiteral("picAvanzamento"));
  lblQuanto = NuovaEtichetta("lblQuanto", {}, -1, this);
  Veste(*lblQuanto, Carattere::Suggerimento, Ruolo::Attenuato);
  lblBuono = TestoLungo("lblBuono", {}, this);
  Veste(*lblBuono, Carattere::Riquadro, Ruolo::Buono);
  lblEsito = new EtichettaAvviso("lblEsito", {}, Carattere::Riquadro, this);
  lblEsito->setWordWrap(true);
  for (QWidget* each :
       std::initializer_list<QWidget*>{lblFile, picAvanzamento, lblQuanto, lblBuono, lblEsito}) {
    page->addWidget(each);
  }
  grdRiscontri = new QTableView(this);
  grdRiscontri->setObjectName(QStringLiteral("grdRiscontri"));
  grdRiscontri->setModel(&modello_);
  grdRiscontri->setSelectionMode(QAbstractItemView::SingleSelection);
  VestiTabella(*grdRiscontri, kRow);
  grdRiscontri->setWordWrap(true);
  auto* header = grdRiscontri->horizontalHeader();
  header->resizeSection(ModelloRiscontri::File, 180);
  header->setSectionResizeMode(ModelloRiscontri::Rimedio, QHeaderView::Stretch);
  connect(header, &QHeaderView::sectionResized, this, [this](int column) {
    if (column != ModelloRiscontri::Rimedio) return;
    daCapo_ = true;  // the words break elsewhere
    adatta_.start(0);
  });
  connect(&modello_, &QAbstractItemModel::rowsInserted, this, [this] { adatta_.start(0); });
  connect(&modello_, &QAbstractItemModel::modelReset, this, [this] { adattate_ = 0; });
  adatta_.setSingleShot(true);
  connect(&adatta_, &QTimer::timeout, this, [this] { AdattaRighe(); });
  page->addWidget(grdRiscontri, 1);
  picRipeti = new Coppia("picRipeti", "lblRipeti", QStringLiteral("Again"), "verifica", -1, this);
  picChiudi = new Coppia("picChiudi", "lblChiudi", QStringLiteral("Close"), "fatto", -1, this);
  picChiudi->ImpostaGenere(Coppia::Genere::Primario);
  lblRipeti = picRipeti->Etichetta();
  lblChiudi = picChiudi->Etichetta();
  page->addLayout(Riga({picRipeti, nullptr, picChiudi}));
  OrdineTab({picHelp, grdRiscontri, picRipeti, picChiudi});
}

void frmVerifica::AdattaRighe() {
  // Thousands of rows have a dozen findings and remedies between them: each is measured once, and a
  // row that stands right already isn't looked at again.
  if (std::exchange(daCapo_, false)) {
    altezze_.clear();
    adattate_ = 0;
  }
  for (; adattate_ < modello_.rowCount(); ++adattate_) {
    MostraIntera(adattate_);
    const int height = AltezzaDi(adattate_);
    if (grdRiscontri->rowHeight(adattate_) != height) {
      grdRiscontri->setRowHeight(adattate_, height);
    }
  }
}

int frmVerifica::AltezzaDi(int riga) {
  const QModelIndex cell = modello_.index(riga, ModelloRiscontri::Rimedio);
  int& height = altezze_[cell.data().toString()];
  if (height == 0) {
    // Of the remedy alone: a long name of a file may end in "…".
    QStyleOptionViewItem option;
    option.initFrom(grdRiscontri);
    option.widget = grdRiscontri;
    option.font = grdRiscontri->font();
    option.rect = QRect(0, 0, grdRiscontri->columnWidth(ModelloRiscontri::Rimedio), 1 << 16);
    option.features = QStyleOptionViewItem::WrapText;
    height = std::max(kRow, grdRiscontri->itemDelegate()->sizeHint(option, cell).height());
  }
  return height;
}

void frmVerifica::MostraIntera(int riga) {
  constexpr int kBeside = 64;  // pixels that a finding's sign and the edges of its cell take
  const QString finding = modello_.index(riga, ModelloRiscontri::Che).data().toString();
  if (misurati_.contains(finding)) return;
  misurati_.insert(finding);
  auto* header = grdRiscontri->horizontalHeader();
  const int needed = grdRiscontri->fontMetrics().horizontalAdvance(finding) + kBeside;
  if (needed > header->sectionSize(ModelloRiscontri::Che)) {
    header->resizeSection(ModelloRiscontri::Che, needed);
  }
}

void frmVerifica::AlCaricamento() {
  const auto& state = C().Stato;
  const auto text = [this](const char* key, const char* words) {
    return TestoLinguaO(C(), key, words);
  };
  setWindowTitle(Qs(text("0130159", "Verify card")));
  lblTitolo->setText(Qs(ConValori(text("0130301", "Card %1 and project %2"),
                                  {state.PercorsoMemoryCard, SuUnaRiga(state.ProjectName)})));
  quanto_ = text("0130080", "File %1 of %2, %3 of %4");
  ferma_ = text("0130169", "Stop");
  chiudi_ = text("0130302", "Close");
  picRipeti->ImpostaScritta(Qs(text("0130303", "Verify again")));
  picAvanzamento->setAccessibleName(Qs(text("0130184", "Progress")));
  grdRiscontri->setAccessibleName(Qs(text("0130298", "Finding")));
  modello_.Localizza();
  MostraLavoro(true);
}

void frmVerifica::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  // The window is there first, and says what it does.
  if (event->spontaneous()) return;
  QTimer::singleShot(0, this, [this] {
    if (Caricata()) Verifica();  // it may have been closed before it was drawn
  });
}

void frmVerifica::Verifica() {
  if (lavora_) return;
  const Impegno stays(*this);
  lavora_ = true;
  fermata_ = false;
  modello_.Svuota();
  scritto_.invalidate();
  MostraLavoro(true);
  C().Messaggi.LasciaCorrere();
  const EsitoVerifica outcome = VerificaScheda(C(), C().Stato.PercorsoMemoryCard, *this);
  lavora_ = false;
  MostraEsito(outcome);
}

void frmVerifica::MostraLavoro(bool lavora) {
  for (QWidget* each : std::initializer_list<QWidget*>{lblFile, picAvanzamento, lblQuanto}) {
    each->setVisible(lavora);
  }
  lblBuono->hide();
  lblEsito->hide();
  if (lavora) {
    lblFile->setText(Qs(TestoLinguaO(C(), "0130281", "Comparing files")));
    lblQuanto->clear();
    picAvanzamento->ImpostaParte(0);
  }
  picRipeti->setEnabled(!lavora);
  picRipeti->setToolTip(lavora ? Qs(TestoLinguaO(C(), "0130281", "Comparing files")) : QString());
  picChiudi->ImpostaScritta(Qs(lavora ? ferma_ : chiudi_));
  picChiudi->ImpostaIcona(lavora ? "ferma" : "fatto");
  // A key that is pressed once too often mustn't stop the work, nor close what it has found.
  grdRiscontri->setFocus();
}

void frmVerifica::MostraEsito(const EsitoVerifica& esito) {
  MostraLavoro(false);
  const QString words =
      Qs(EsitoInParole(C(), esito, static_cast<std::size_t>(modello_.rowCount())));
  const bool good =
      esito.Riscontri.empty() && !esito.Annullata && !esito.SenzaScheda && !esito.Sparita;
  lblBuono->setVisible(good);
  lblEsito->setVisible(!good);
  (good ? lblBuono : static_cast<QLabel*>(lblEsito))->setText(words);
  if (modello_.rowCount() > 0) {
    grdRiscontri->selectRow(0);
  } else {
    picChiudi->setFocus();
  }
}

bool frmVerifica::Avanza(const CopyState& stato) {
  if (!scritto_.isValid() || scritto_.elapsed() >= kRefresh) ScriviStato(stato);
  C().Messaggi.LasciaCorrere();
  return !fermata_ && !ChiusuraAttesa();
}

void frmVerifica::ScriviStato(const CopyState& stato) {
  scritto_.start();
  lblFile->setText(Qs(PercorsoPerPersone(C(), stato.File)));
  if (stato.BytesTotal > 0) {
    picAvanzamento->ImpostaParte(static_cast<double>(stato.BytesDone) /
                                 static_cast<double>(stato.BytesTotal));
  }
  lblQuanto->setText(
      Qs(ConValori(quanto_, {std::to_string(stato.FileNumber), std::to_string(stato.FileCount),
                             QuantitaInParole(stato.BytesDone, C().Luogo),
                             QuantitaInParole(stato.BytesTotal, C().Luogo)})));
}

void frmVerifica::Trovato(const Riscontro& riscontro) {
  modello_.Aggiungi(riscontro);
}

void frmVerifica::Chiudi() {
  if (!lavora_) return Scarica();
  fermata_ = true;  // the work stops first, and what it has found stays to be read
}

void frmVerifica::AlloScarico() {
  hide();
  ambiente_.Schermi.Mostra(FormChiamante);
}

}  // namespace kvr5
