#include "playerconfig/screens/ListaAssegnati.h"

#include <QEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/ElencoModesto.h"
#include "core/screens/Icona.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/ParoleConto.h"
#include "playerconfig/screens/PannelloModo.h"
#include "playerconfig/screens/VociAssegnati.h"

namespace kvr5 {

ListaAssegnati::ListaAssegnati(Contesto& contesto, QWidget* padre)
    : Riquadro("fraAssegnati", QStringLiteral("Assignments"), -1, padre), contesto_(contesto) {
  lstAssegnati = new ElencoModesto(this);
  lstAssegnati->setObjectName(QStringLiteral("lstAssegnati"));
  voci_ = new VociAssegnati(lstAssegnati);
  lstAssegnati->setItemDelegate(voci_);
  lstAssegnati->viewport()->installEventFilter(this);
  lstAssegnati->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstAssegnati->setMinimumHeight(90);
  Corpo()->addWidget(lstAssegnati, 1);
  lblCifre = new EtichettaAvviso("lblCifre", {}, Carattere::Suggerimento, this);
  lblCifre->ImpostaAvviso(false);
  Veste(*lblCifre, Carattere::Suggerimento, Ruolo::Attenuato);
  lblCifre->setWordWrap(true);
  picTrova = NuovoTrova("picTrova", "lblTrova", this);
  auto* figures = Riga({lblCifre, picTrova});
  figures->setStretch(0, 1);
  Corpo()->addLayout(figures);
  lblBraniMancanti = new EtichettaAvviso("lblBraniMancanti", {}, Carattere::Suggerimento, this);
  lblBraniMancanti->setWordWrap(true);
  lblBraniMancanti->hide();
  Corpo()->addWidget(lblBraniMancanti);
  // What is highlighted is what is ticked, however the user came there.
  connect(lstAssegnati, &QListWidget::itemSelectionChanged, this, [this] {
    const auto chosen = lstAssegnati->selectedItems();
    chosen.isEmpty() ? Evidenzia(evidenziato_) : Scegli(*chosen.front());
  });
  connect(lstAssegnati, &QListWidget::itemActivated, this,
          [this](const QListWidgetItem* item) { Scegli(*item); });
}

bool ListaAssegnati::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == lstAssegnati->viewport() && evento->type() == QEvent::Resize) Adatta();
  return Riquadro::eventFilter(oggetto, evento);
}

void ListaAssegnati::Adatta() {
  if (voci_->AdattaA(lstAssegnati->viewport()->width())) lstAssegnati->doItemsLayout();
}

void ListaAssegnati::Scegli(const QListWidgetItem& voce) {
  if (SuScelta) SuScelta(voce.data(VociAssegnati::Codice).toLongLong());
}

void ListaAssegnati::AggiungiRiga(const ParoleAssegnato& parole, const Assegnato& riga) {
  const Tema& tema = Tema::Corrente();
  const std::string mark = SegnoAssegnato(parole, riga);
  const std::string name = SuUnaRiga(riga.FileName);
  std::string text = std::to_string(riga.Codice) + "   " + riga.Ingressi + "   " + name;
  if (!mark.empty()) text += "\n" + mark;
  auto* item = new QListWidgetItem(Qs(text), lstAssegnati);
  item->setData(VociAssegnati::Codice, static_cast<qlonglong>(riga.Codice));
  item->setData(VociAssegnati::Ingressi, Qs(riga.Ingressi));
  item->setData(VociAssegnati::File, Qs(name));
  item->setData(VociAssegnati::Segno, Qs(mark));
  QString tip = Qs(PercorsoPerPersone(contesto_, riga.Percorso));
  if (riga.Mancante) tip.prepend(Qs(parole.EraQui + " "));
  if (riga.StessoFile) tip += "\n" + Qs(parole.AltroIngresso);
  if (riga.DelCollegamento) tip += "\n" + Qs(parole.LiberaCollegamento);
  item->setToolTip(Suggerimento(tip));
  // A row that no ticks make can't be chosen; the keyboard passes over it.
  const bool code = riga.Codice >= 1 && riga.Codice <= 255;
  if (!code || riga.DelCollegamento) {
    item->setFlags(item->flags() & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
  }
  if (mark.empty()) return;
  item->setIcon(IconaDi(riga.Mancante ? QStringLiteral("mancante") : QStringLiteral("avviso"),
                        riga.Mancante ? tema.Errore : tema.Avviso));
  item->setForeground(riga.Mancante ? tema.Errore : tema.Avviso);
}

bool ListaAssegnati::Mostra(const ElencoAssegnati& elenco) {
  if (mostrato_ == elenco) return false;
  mostrato_ = elenco;
  const QSignalBlocker quiet(lstAssegnati);
  const int top = lstAssegnati->verticalScrollBar()->value();
  lblCifre->ImpostaAvviso(false);
  Veste(*lblCifre, Carattere::Suggerimento, Ruolo::Attenuato);
  lstAssegnati->clear();
  const ParoleAssegnato words(contesto_);
  for (const Assegnato& row : elenco.Righe) AggiungiRiga(words, row);
  voci_->Misura(*lstAssegnati);
  Adatta();
  lblCifre->setText(elenco.Righe.empty() ? Qs(TestoLingua(contesto_, "0130127"))
                                         : Qs(CifreAssegnati(contesto_, elenco)));
  OffriTrova();
  lstAssegnati->doItemsLayout();
  lstAssegnati->verticalScrollBar()->setValue(top);
  return true;
}

void ListaAssegnati::Evidenzia(std::int64_t codice, bool inVista) {
  evidenziato_ = codice;
  int found = -1;
  for (int row = 0; row < lstAssegnati->count() && found < 0; ++row) {
    if (lstAssegnati->item(row)->data(VociAssegnati::Codice).toLongLong() == codice) found = row;
  }
  const QSignalBlocker quiet(lstAssegnati);
  lstAssegnati->setAutoScroll(inVista);
  lstAssegnati->setCurrentRow(found);
  lstAssegnati->setAutoScroll(true);  // the arrow keys bring their row into view
}

void ListaAssegnati::MostraSenzaTabella() {
  Svuota("0130132");
}

void ListaAssegnati::MostraIlleggibile() {
  Svuota("0130249");
}

void ListaAssegnati::Svuota(const char* chiave) {
  mostrato_.reset();
  const QSignalBlocker quiet(lstAssegnati);
  lstAssegnati->clear();
  lblCifre->setText(Qs(TestoLingua(contesto_, chiave)));
  OffriTrova();
  lblCifre->ImpostaAvviso(true);
}

void ListaAssegnati::MostraBraniMancanti(std::size_t quanti) {
  braniMancanti_ = quanti;
  lblBraniMancanti->setText(Qs(ConValori(TestoLinguaO(contesto_, "0130342", "Playlists: %1"),
                                         {ParoleMancanti(contesto_, quanti)})));
  lblBraniMancanti->setVisible(quanti > 0);
  OffriTrova();
}

void ListaAssegnati::OffriTrova() {
  kvr5::OffriTrova(*picTrova, braniMancanti_ > 0 || (mostrato_ && mostrato_->Mancanti > 0));
}

void ListaAssegnati::Localizza() {
  ImpostaTitolo(Qs(TestoLinguaO(contesto_, "0130126", "Assignments")));
  lstAssegnati->setAccessibleName(Titolo());
}

}  // namespace kvr5
