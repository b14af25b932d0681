#include "flashcard/screens/frmSelectFlash.h"

#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "flashcard/FattiScheda.h"
#include "flashcard/screens/VociScheda.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormSelectFlash = 6;
constexpr int kWatch = 1000;  // milliseconds between two looks at the cards

bool IsLocked(const SchedaTrovata& card) {
  return card.Fatti && card.Fatti->HasMedium && card.Fatti->ReadOnly;
}

/// How a form is called by the dialog that asks for its name.
const char* NameOf(Schermata schermata) {
  return schermata == Schermata::Configurazione ? "frmPlayerConfig" : "";
}

}  // namespace

frmSelectFlash::frmSelectFlash(Ambiente& ambiente, SorgenteDrive& drive)
    : Form(ambiente, "frmSelectFlash"), elenco_(ambiente.C, drive) {
  setWindowTitle(QStringLiteral("Selezione Percorso Memory Card"));
  resize(560, 280);
  Costruisci();
  connect(cmdFlash, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (index >= 0) elenco_.Scegli(static_cast<std::size_t>(index));
    MostraFatti();
  });
  connect(picOk, &QAbstractButton::clicked, this, [this] {
    if (elenco_.Conferma(NameOf(FormChiamante))) ambiente_.Schermi.AggiornaPercorsoMemoryCard();
    Scarica();
  });
  connect(picCancel, &QAbstractButton::clicked, this, [this] {
    elenco_.Annulla();
    Scarica();
  });
  connect(picOpen, &QAbstractButton::clicked, this,
          [this] { elenco_.Esplora(ambiente_.Documenti); });
  guardia_.setInterval(kWatch);
  connect(&guardia_, &QTimer::timeout, this, [this] {
    if (elenco_.Aggiorna()) MostraSchede();
  });
  SuInvio(*picOk);
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuTasto(Qt::Key_Escape, [this] { picCancel->click(); });
}

void frmSelectFlash::Costruisci() {
  auto* page = NuovaPagina(*this);
  lblMp3_Dir = NuovaEtichetta("lblMp3_Dir", QStringLiteral("Select Memory Card path"), 3, this);
  Veste(*lblMp3_Dir, Carattere::Schermata);
  page->addWidget(lblMp3_Dir);
  cmdFlash = new QComboBox(this);
  cmdFlash->setObjectName(QStringLiteral("cmdFlash"));
  cmdFlash->setItemDelegate(new VociScheda(cmdFlash));
  lblMp3_Dir->setBuddy(cmdFlash);
  page->addWidget(cmdFlash);
  lblFatti = TestoLungo("lblFatti", {}, this);
  lblContenuto = TestoLungo("lblContenuto", {}, this);
  Veste(*lblContenuto, Carattere::Corpo, Ruolo::Attenuato);
  segno_ = SegnoDi("blocco", Tema::Corrente().Avviso, VociScheda::kLucchetto, this);
  auto* facts = Riga({segno_, lblFatti});
  facts->setStretch(1, 1);
  facts->setAlignment(segno_, Qt::AlignTop);
  page->addLayout(facts);
  page->addWidget(lblContenuto);
  page->addStretch(1);
  picOpen = new Coppia("picOpen", "lblExplore", QStringLiteral("Explore"), "cartella", 6, this);
  picCancel = new Coppia("picCancel", "lblCancel", QStringLiteral("Cancel"), "indietro", 5, this);
  picOk = new Coppia("picOk", "lblOk", QStringLiteral("OK"), "fatto", 4, this);
  picOk->ImpostaGenere(Coppia::Genere::Primario);
  lblExplore = picOpen->Etichetta();
  lblCancel = picCancel->Etichetta();
  lblOk = picOk->Etichetta();
  page->addLayout(Riga({picOpen, nullptr, picCancel, picOk}));
  OrdineTab({cmdFlash, picOpen, picCancel, picOk});
}

void frmSelectFlash::AlCaricamento() {
  LocalizzaForm(C(), kFormSelectFlash, *this);
  cmdFlash->setAccessibleName(Qs(TestoLingua(C(), "0130187")));
  picOpen->setToolTip(Qs(TestoLingua(C(), "0130188")));
  if (!elenco_.Carica()) {
    Scarica();  // there is no card; that was told
    return;
  }
  MostraSchede();
  cmdFlash->setFocus();
  guardia_.start();
}

/// Item by item, so that an open list stays open with what is selected in it.
void frmSelectFlash::MostraSchede() {
  const QSignalBlocker ours(cmdFlash);
  const auto& cards = elenco_.Schede();
  int row = 0;
  for (const auto& card : cards) {
    const QString root = Qs(card.Radice);
    const int old = cmdFlash->findText(root);
    if (old < 0) cmdFlash->insertItem(row, root);
    for (int gone = row; gone < old; ++gone) cmdFlash->removeItem(row);
    DescriviVoce(row++);
  }
  while (cmdFlash->count() > row) cmdFlash->removeItem(row);
  cmdFlash->setCurrentIndex(static_cast<int>(elenco_.Scelta()));
  MostraFatti();
}

void frmSelectFlash::DescriviVoce(int indice) {
  const auto& card = elenco_.Schede().at(static_cast<std::size_t>(indice));
  const QString facts = Qs(FattiOUscita(card));
  cmdFlash->setItemData(indice, facts, VociScheda::Fatti);
  cmdFlash->setItemData(indice, facts, Qt::AccessibleDescriptionRole);
  cmdFlash->setItemData(indice, IsLocked(card), VociScheda::Bloccata);
}

std::string frmSelectFlash::FattiOUscita(const SchedaTrovata& scheda) const {
  if (scheda.Uscita) return TestoLinguaO(C(), "0130143", "taken out: put it back in");
  return scheda.Fatti ? FattiScheda(C(), *scheda.Fatti) : std::string();
}

void frmSelectFlash::MostraFatti() {
  const auto& cards = elenco_.Schede();
  if (elenco_.Scelta() >= cards.size()) return;
  const auto& card = cards[elenco_.Scelta()];
  lblFatti->setText(Qs(FattiOUscita(card)));
  const bool out = card.Uscita || (card.Fatti && !card.Fatti->HasMedium);
  const bool locked = IsLocked(card);
  segno_->setVisible(locked);
  Veste(*lblFatti, Carattere::Corpo, out || locked ? Ruolo::Avviso : Ruolo::Testo);
  lblContenuto->setText(out ? QString() : Qs(ProgettoSullaScheda(C(), card.Radice)));
  QStringList heard{lblFatti->text(), lblContenuto->text()};
  heard.removeAll(QString());
  cmdFlash->setAccessibleDescription(heard.join(QLatin1String(". ")));
}

bool frmSelectFlash::PuoChiudere(Causa causa) {
  // The window's own button is the cancel: the work that asked must not go on with an older choice.
  if (causa == Causa::Utente) elenco_.Annulla();
  return true;
}

void frmSelectFlash::AlloScarico() {
  guardia_.stop();
  hide();
  ambiente_.Schermi.Mostra(FormChiamante);
}

}  // namespace kvr5
