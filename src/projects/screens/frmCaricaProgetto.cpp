#include "projects/screens/frmCaricaProgetto.h"

#include <QHeaderView>
#include <QPointer>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tabella.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "platform/FileOps.h"
#include "projects/ApriProgetto.h"
#include "projects/CaricaDaFlash.h"
#include "projects/Subentro.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormCaricaProgetto = 8;
constexpr std::int16_t kFromDisk = 1;
constexpr std::int16_t kFromCard = 2;

/// The card dialog, opened by this screen.
class SceltaDallElenco : public SelezioneFlash {
 public:
  explicit SceltaDallElenco(Navigazione& schermi) : schermi_(schermi) {}
  void Scegli() override { schermi_.ScegliScheda(Schermata::ElencoProgetti); }
  bool Presente() const override { return true; }  // reading tells

 private:
  Navigazione& schermi_;
};

/// What the reading back of a card asks of this screen.
class LetturaNellElenco : public SchermoLettura {
 public:
  LetturaNellElenco(QWidget& schermo, Navigazione& schermi)
      : schermo_(schermo), schermi_(schermi) {}
  void ChiediNome(const std::string& nome) override {
    schermi_.ChiediNomeProgetto(Schermata::ElencoProgetti, nome);
  }
  void Disabilita() override {
    tastiera_ = schermo_.focusWidget();
    schermo_.setEnabled(false);
  }
  void Riabilita() override {
    schermo_.show();
    Rendi();
  }
  /// Has the screen take commands again, with the keyboard where it was.
  void Rendi() {
    schermo_.setEnabled(true);
    if (tastiera_) tastiera_->setFocus();
  }

 private:
  QWidget& schermo_;
  Navigazione& schermi_;
  QPointer<QWidget> tastiera_;
};

/// Letters typed look for a name, wherever in its row the mouse was.
class TabellaProgetti : public QTableView {
 public:
  using QTableView::QTableView;
  void keyboardSearch(const QString& text) override {
    const QModelIndex name = currentIndex().siblingAtColumn(ListaProgetti::Nome);
    if (name.isValid()) selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
    QTableView::keyboardSearch(text);
  }

 protected:
  /// In a narrow list the description of the player gives way to the project's name.
  void resizeEvent(QResizeEvent* event) override {
    constexpr int kPlayer = 330;
    constexpr int kChange = 170;
    constexpr int kName = 200;
    const int rest = viewport()->width() - kChange - kName;
    horizontalHeader()->resizeSection(ListaProgetti::Modifica, kChange);
    horizontalHeader()->resizeSection(ListaProgetti::Player, std::clamp(rest, 110, kPlayer));
    QTableView::resizeEvent(event);
  }
};

}  // namespace

frmCaricaProgetto::frmCaricaProgetto(Ambiente& ambiente, FinestraProgresso& progresso)
    : Form(ambiente, "frmCaricaProgetto"), progresso_(progresso), lista_(ambiente.C) {
  setWindowTitle(QStringLiteral("LoadProject"));
  resize(880, 560);
  Costruisci();
  Collega();
}

void frmCaricaProgetto::Costruisci() {
  auto* page = NuovaPagina(*this);
  lblPrjInDefaultDir =
      NuovaEtichetta("lblPrjInDefaultDir", QStringLiteral("Projects in default dir"), 1, this);
  Veste(*lblPrjInDefaultDir, Carattere::Schermata);
  txtCerca = new CasellaCerca(this);
  txtCerca->setFixedWidth(260);
  picHelp = NuovoAiuto(this);
  page->addLayout(Riga({lblPrjInDefaultDir, nullptr, txtCerca, picHelp}));
  CostruisciElenco();
  page->addWidget(lstProgetti, 1);
  lblElencoVuoto = TestoLungo("lblElencoVuoto", {}, this);
  Veste(*lblElencoVuoto, Carattere::Corpo, Ruolo::Attenuato);
  lblElencoVuoto->setAlignment(Qt::AlignCenter);
  page->addWidget(lblElencoVuoto, 1);
  picindietro =
      new Coppia("picindietro", "lblIndietro", QStringLiteral("Back"), "indietro", 3, this);
  picLoad = new Coppia("picLoad", "lblCaricaDaDisco", QStringLiteral("LoadFromDisk"), "cartella", 4,
                       this);
  picLoadFlash = new Coppia("picLoadFlash", "lblCaricaDaFlash", QStringLiteral("LoadFromFlash"),
                            "scheda-leggi", 5, this);
  picOpen =
      new Coppia("picOpen", "lblLoadSelected", QStringLiteral("LoadFromDisk"), "apri", 2, this);
  picOpen->ImpostaGenere(Coppia::Genere::Primario);
  lblIndietro = picindietro->Etichetta();
  lblCaricaDaDisco = picLoad->Etichetta();
  lblCaricaDaFlash = picLoadFlash->Etichetta();
  lblLoadSelected = picOpen->Etichetta();
  page->addLayout(Riga({picindietro, nullptr, picLoad, picLoadFlash, picOpen}));
  OrdineTab({txtCerca, picHelp, lstProgetti, picindietro, picLoad, picLoadFlash, picOpen});
}

void frmCaricaProgetto::CostruisciElenco() {
  lstProgetti = new TabellaProgetti(this);
  lstProgetti->setObjectName(QStringLiteral("lstProgetti"));
  lstProgetti->setModel(&lista_);
  lstProgetti->setSelectionMode(QAbstractItemView::SingleSelection);
  constexpr int kRow = 36;
  VestiTabella(*lstProgetti, kRow);
  auto* header = lstProgetti->horizontalHeader();
  header->setSectionResizeMode(ListaProgetti::Nome, QHeaderView::Stretch);
}

void frmCaricaProgetto::Collega() {
  connect(picOpen, &QAbstractButton::clicked, this, [this] { ApriScelto(); });
  connect(lstProgetti, &QTableView::doubleClicked, this, [this] { ApriScelto(); });
  connect(picLoad, &QAbstractButton::clicked, this, [this] { ApriAltraCartella(); });
  connect(picLoadFlash, &QAbstractButton::clicked, this, [this] { CaricaDaFlash(); });
  connect(picindietro, &QAbstractButton::clicked, this, [this] { Indietro(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  connect(txtCerca, &QLineEdit::textChanged, this, [this] { Cerca(); });
  connect(txtCerca, &QLineEdit::returnPressed, this, [this] { CercaProssimo(); });
  const auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, this, [this] {
    txtCerca->setFocus();
    txtCerca->selectAll();
  });
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* open = new QShortcut(QKeySequence(key), lstProgetti);
    open->setContext(Qt::WidgetShortcut);
    open->setAutoRepeat(false);
    connect(open, &QShortcut::activated, this, [this] { ApriScelto(); });
  }
  const auto goes = [this](Qt::Key key, const std::function<int()>& row) {
    auto* way = new QShortcut(QKeySequence(key), lstProgetti);
    way->setContext(Qt::WidgetShortcut);
    connect(way, &QShortcut::activated, this, [this, row] { lstProgetti->selectRow(row()); });
  };
  goes(Qt::Key_Home, [] { return 0; });  // of the list, not of the row
  goes(Qt::Key_End, [this] { return lista_.rowCount() - 1; });
  SuTasto(Qt::Key_Escape, [this] { picindietro->click(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
}

void frmCaricaProgetto::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  LocalizzaForm(C(), kFormCaricaProgetto, *this);
  lista_.Carica();
  const bool empty = lista_.rowCount() == 0;
  lstProgetti->setVisible(!empty);
  txtCerca->setVisible(!empty);
  picOpen->setEnabled(!empty);
  picOpen->ImpostaGenere(empty ? Coppia::Genere::Normale : Coppia::Genere::Primario);
  picLoad->ImpostaGenere(empty ? Coppia::Genere::Primario : Coppia::Genere::Normale);
  picOpen->setToolTip(empty ? Qs(TestoLingua(C(), "0130116")) : QString());
  lblElencoVuoto->setVisible(empty);
  lblElencoVuoto->setText(Qs(TestoLingua(C(), "0130110")));
  lstProgetti->selectRow(0);
  txtCerca->ImpostaParole(Qs(TestoLingua(C(), "0130111")), Qs(TestoLingua(C(), "0130112")),
                          Qs(TestoLingua(C(), "0130113")));
  lstProgetti->setAccessibleName(lblPrjInDefaultDir->text());
  picLoad->setToolTip(Qs(TestoLingua(C(), "0130115")));
  picLoadFlash->setToolTip(Qs(TestoLingua(C(), "0130114")));
  CartellaScelta.clear();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  (empty ? static_cast<QWidget*>(picLoad) : lstProgetti)->setFocus();
}

void frmCaricaProgetto::Cerca() {
  MostraTrovato(lista_.Righe().Cerca(Std(txtCerca->text())));
}

void frmCaricaProgetto::CercaProssimo() {
  const auto next = static_cast<std::size_t>(lstProgetti->currentIndex().row() + 1);
  MostraTrovato(lista_.Righe().CercaDa(Std(txtCerca->text()), next));
}

void frmCaricaProgetto::MostraTrovato(std::optional<std::size_t> riga) {
  if (riga) lstProgetti->selectRow(static_cast<int>(*riga));
  txtCerca->MostraEsito(riga.has_value());
}

void frmCaricaProgetto::ApriScelto() {
  if (apre_) return;
  const auto row = lstProgetti->currentIndex().row();
  if (!lstProgetti->selectionModel()->hasSelection()) return;
  if (row < 0 || static_cast<std::size_t>(row) >= lista_.Righe().Quante()) return;
  const std::string& name = lista_.Righe().Nome(static_cast<std::size_t>(row));
  if (Rifila(name).empty()) return;
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  CartellaScelta = AggiungiBarra(C().Stato.CartellaProgetti) + name;
  ModoScelto = kFromDisk;
  ApriProgetto();
}

void frmCaricaProgetto::ApriAltraCartella() {
  if (apre_) return;
  {
    const Impegno stays(*this);
    const QScopedValueRollback picks(apre_, true);
    CartellaScelta = C().Finestre.SfogliaCartella(TestoLingua(C(), "0020004"), {});
    C().Messaggi.LasciaCorrere();
  }
  if (Rifila(CartellaScelta).empty() || !FolderExists(C().Files, CartellaScelta)) return;
  ModoScelto = kFromDisk;
  ApriProgetto();
}

void frmCaricaProgetto::CaricaDaFlash() {
  if (apre_) return;
  EsitoLettura outcome;
  LetturaNellElenco screen(*this, ambiente_.Schermi);
  {
    const Impegno stays(*this);
    const QScopedValueRollback reads(apre_, true);
    SceltaDallElenco choice(ambiente_.Schermi);
    outcome = kvr5::CaricaDaFlash(C(), choice, screen, progresso_);
    AvvisaLasciati(C(), outcome);
    if (outcome.Fine == FineLettura::Copiata) DimenticaChiusura();  // what was read is opened
  }
  if (outcome.Fine != FineLettura::Copiata) return;
  ModoScelto = kFromCard;
  CartellaScelta = outcome.Cartella;
  ApriProgetto();
  if (!Scaricata()) screen.Rendi();  // what was read is no project: that was told
}

void frmCaricaProgetto::ApriProgetto() {
  apre_ = true;
  apre_ = Apre();
  if (!apre_) return;
  FormChiamante = Schermata::Nessuna;  // what comes next is not where this screen came from
  Scarica();
}

bool frmCaricaProgetto::Apre() {
  const Impegno stays(*this);
  const EsitoApertura outcome = kvr5::ApriProgetto(C(), CartellaScelta);
  // The row leads nowhere any more: no busy pointer stays on the list that is still there to use.
  if (outcome == EsitoApertura::NessunaCartella) C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  if (outcome != EsitoApertura::Aperto) return false;
  SubentraEDillo(C());
  ambiente_.Schermi.ApriConfigurazione(ModoScelto);
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  return true;
}

void frmCaricaProgetto::Indietro() {
  CartellaScelta.clear();
  Scarica();
}

void frmCaricaProgetto::AlloScarico() {
  hide();
  ambiente_.Schermi.Mostra(FormChiamante);
  C().Messaggi.LasciaCorrere();
  FormChiamante = Schermata::Nessuna;
}

}  // namespace kvr5
