#include "playerconfig/screens/ListaAssegnati.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "core/screens/Icona.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kSign = 16;

/// A list that takes what room there is and asks for little: the hub fits its window before it
/// scrolls.
class Elenco : public QListWidget {
 public:
  using QListWidget::QListWidget;
  QSize sizeHint() const override { return {200, minimumHeight()}; }
};

}  // namespace

ListaAssegnati::ListaAssegnati(Contesto& contesto, QWidget* padre)
    : Riquadro("fraAssegnati", QStringLiteral("Assignments"), -1, padre), contesto_(contesto) {
  lstAssegnati = new Elenco(this);
  lstAssegnati->setObjectName(QStringLiteral("lstAssegnati"));
  lstAssegnati->setIconSize({kSign, kSign});
  QPixmap blank(kSign, kSign);
  blank.fill(Qt::transparent);
  senzaSegno_ = QIcon(blank);
  lstAssegnati->setTextElideMode(Qt::ElideRight);
  lstAssegnati->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstAssegnati->setMinimumHeight(90);
  Corpo()->addWidget(lstAssegnati, 1);
  lblCifre = NuovaEtichetta("lblCifre", {}, -1, this);
  Veste(*lblCifre, Carattere::Suggerimento, Ruolo::Attenuato);
  lblCifre->setWordWrap(true);
  Corpo()->addWidget(lblCifre);
  const auto choose = [this](const QListWidgetItem* item) {
    if (item != nullptr && SuScelta) SuScelta(item->data(Qt::UserRole).toLongLong());
  };
  connect(lstAssegnati, &QListWidget::itemClicked, this, choose);
  connect(lstAssegnati, &QListWidget::itemActivated, this, choose);
}

void ListaAssegnati::AggiungiRiga(const ParoleAssegnato& parole, const Assegnato& riga) {
  const Tema& tema = Tema::Corrente();
  const std::string mark = SegnoAssegnato(parole, riga);
  std::string text = std::to_string(riga.Codice) + "   " + riga.Ingressi + "   " + riga.FileName;
  if (!mark.empty()) text += "\n" + mark;
  auto* item = new QListWidgetItem(Qs(text), lstAssegnati);
  item->setData(Qt::UserRole, static_cast<qlonglong>(riga.Codice));
  QString tip = Qs(PercorsoPerPersone(contesto_, riga.Percorso));
  if (riga.Mancante) tip.prepend(Qs(parole.EraQui + " "));
  if (riga.StessoFile) tip += "\n" + Qs(parole.AltroIngresso);
  if (riga.DelCollegamento) tip += "\n" + Qs(parole.LiberaCollegamento);
  item->setToolTip(Suggerimento(tip));
  if (mark.empty()) {
    item->setIcon(senzaSegno_);
    return;
  }
  item->setIcon(IconaDi(riga.Mancante ? QStringLiteral("mancante") : QStringLiteral("avviso"),
                        riga.Mancante ? tema.Errore : tema.Avviso));
  item->setForeground(riga.Mancante ? tema.Errore : tema.Avviso);
}

bool ListaAssegnati::Mostra(const ElencoAssegnati& elenco) {
  if (mostrato_ == elenco) return false;
  mostrato_ = elenco;
  const int top = lstAssegnati->verticalScrollBar()->value();
  Veste(*lblCifre, Carattere::Suggerimento, Ruolo::Attenuato);
  lstAssegnati->clear();
  const ParoleAssegnato words(contesto_);
  for (const Assegnato& row : elenco.Righe) AggiungiRiga(words, row);
  lblCifre->setText(elenco.Righe.empty() ? Qs(TestoLingua(contesto_, "0130127"))
                                         : Qs(CifreAssegnati(contesto_, elenco)));
  lstAssegnati->doItemsLayout();
  lstAssegnati->verticalScrollBar()->setValue(top);
  return true;
}

void ListaAssegnati::Evidenzia(std::int64_t codice, bool inVista) {
  int found = -1;
  for (int row = 0; row < lstAssegnati->count() && found < 0; ++row) {
    if (lstAssegnati->item(row)->data(Qt::UserRole).toLongLong() == codice) found = row;
  }
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
  lstAssegnati->clear();
  lblCifre->setText(Qs(TestoLingua(contesto_, chiave)));
  Veste(*lblCifre, Carattere::Suggerimento, Ruolo::Avviso);
}

void ListaAssegnati::Localizza() {
  ImpostaTitolo(Qs(TestoLinguaO(contesto_, "0130126", "Assignments")));
  lstAssegnati->setAccessibleName(Titolo());
}

}  // namespace kvr5
