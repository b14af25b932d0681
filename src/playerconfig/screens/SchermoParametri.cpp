#include "playerconfig/screens/SchermoParametri.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QVBoxLayout>

#include "core/LinguaLetta.h"
#include "core/screens/Avvisi.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/SenzaRotella.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr int kTagSave = 1;
constexpr int kTagCancel = 93;
constexpr int kListWidth = 320;
constexpr int kKeyWidth = 44;

QScrollArea* Scrolling(QWidget* body, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(body);
  area->viewport()->setAutoFillBackground(false);
  body->setAutoFillBackground(false);
  return area;
}

}  // namespace

SchermoParametri::SchermoParametri(Ambiente& ambiente, const char* nome, SchermoParametro schermo,
                                   std::int16_t numero)
    : Form(ambiente, nome), valori_(schermo), numero_(numero) {
  picHelp = NuovoAiuto(this);
  picCancel =
      new Coppia("picCancel", "lblCanc", QStringLiteral("Cancel"), "indietro", kTagCancel, this);
  picSave = new Coppia("picSave", "lblSave", QStringLiteral("Save"), "salva", kTagSave, this);
  picSave->ImpostaGenere(Coppia::Genere::Primario);
  lblCanc = picCancel->Etichetta();
  lblSave = picSave->Etichetta();
  connect(picSave, &QAbstractButton::clicked, this, [this] { Salva(); });
  connect(picCancel, &QAbstractButton::clicked, this, [this] { Scarica(); });
  SuTasto(Qt::Key_Escape, [this] { picCancel->click(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuInvio(*picSave);
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuSalva(*picSave);
}

void SchermoParametri::CostruisciPagina(QWidget* sopra, QWidget* corpo, Coppia* predefiniti) {
  auto* page = NuovaPagina(*this);
  titolo_ = TestoLungo("lblTitolo", {}, this);
  Veste(*titolo_, Carattere::Schermata);
  auto* head = Riga({titolo_, picHelp});
  head->setStretch(0, 1);
  page->addLayout(head);
  constexpr int kShareAbove = 5;
  constexpr int kShareBelow = 7;
  if (sopra != nullptr) page->addWidget(sopra, kShareAbove);
  page->addWidget(Scrolling(corpo, this), kShareBelow);
  page->addLayout(predefiniti == nullptr ? Riga({picCancel, nullptr, picSave})
                                         : Riga({picCancel, predefiniti, nullptr, picSave}));
}

QLabel* SchermoParametri::AggiungiRiga(QGridLayout& griglia, const char* chiave,
                                       const char* scritta, int tag, QWidget* controllo) {
  const int row = griglia.rowCount();
  QWidget* parent = controllo->parentWidget();
  const QByteArray name = QByteArray("lbl") + chiave;
  auto* words = TestoLungo((name + "_Descrizione").constData(), QString::fromUtf8(scritta), parent);
  words->setProperty(kTag, tag);
  words->setBuddy(controllo);
  auto* key = NuovaEtichetta(name.constData(), QLatin1String(chiave), -1, parent);
  Veste(*key, Carattere::Suggerimento, Ruolo::Attenuato);
  key->setFixedWidth(kKeyWidth);  // those of all frames stand in one column
  griglia.addWidget(words, row, 0);
  griglia.addWidget(key, row, 1);
  griglia.addWidget(controllo, row, 2, Qt::AlignLeft);
  griglia.setColumnStretch(0, 1);
  griglia.setColumnMinimumWidth(2, kListWidth);
  griglia.setHorizontalSpacing(spazi::kMedio);
  griglia.setVerticalSpacing(spazi::kStretto);
  return words;
}

QComboBox* SchermoParametri::NuovoElenco(const char* nome, const char* chiave, QWidget* padre) {
  auto* list = new QComboBox(padre);
  list->setObjectName(QLatin1String(nome));
  list->setFixedWidth(kListWidth);
  SenzaRotella(*list);
  const Parametro* parameter = TrovaParametro(chiave);
  elenchi_.push_back({parameter, list});
  // Each item carries its value in the file's terms, whatever its index.
  legami_.push_back(
      {parameter,
       [list](const StatoParametro& state) { list->setCurrentIndex(list->findData(state.Numero)); },
       [list] {
         return StatoParametro{list->currentData().toInt(), {}};
       }});
  return list;
}

QComboBox* SchermoParametri::RigaElenco(QGridLayout& griglia, const char* nome, const char* chiave,
                                        const char* scritta, int tag, QWidget* padre) {
  QComboBox* list = NuovoElenco(nome, chiave, padre);
  AggiungiRiga(griglia, chiave, scritta, tag, list);
  return list;
}

Coppia* SchermoParametri::NuoviPredefiniti(int tag) {
  return new Coppia("picDefaults", "lblDefaults", QStringLiteral("Defaults"), "opzioni", tag, this);
}

void SchermoParametri::Lega(const char* chiave, QCheckBox& casella) {
  legami_.push_back(
      {TrovaParametro(chiave),
       [&casella](const StatoParametro& state) { casella.setChecked(state.Numero != 0); },
       [&casella] {
         return StatoParametro{casella.isChecked() ? 1 : 0, {}};
       }});
}

void SchermoParametri::Lega(const Cursore& cursore) {
  legami_.push_back({TrovaParametro(cursore.Chiave),
                     [cursore](const StatoParametro& state) {
                       const QSignalBlocker quiet(cursore.Slider);  // no events run in a load
                       cursore.Slider->setValue(state.Numero);
                       cursore.Aggiorna();
                     },
                     [cursore] {
                       return StatoParametro{cursore.Slider->value(), {}};
                     }});
  connect(cursore.Slider, &QSlider::valueChanged, this, [this, cursore] {
    const Impegno stays(*this);
    cursore.Aggiorna();
    C().Messaggi.LasciaCorrere();
  });
}

void SchermoParametri::Lega(const char* chiave, CasellaCifre& casella) {
  legami_.push_back({TrovaParametro(chiave),
                     [&casella](const StatoParametro& state) {
                       casella.Numero().Cambia(state.Testo);
                       casella.Mostra();
                     },
                     [&casella] {
                       // A press that takes no focus, of a screen reader, leaves the box unchecked.
                       casella.Controlla();
                       return StatoParametro{0, casella.Numero().Testo()};
                     }});
}

void SchermoParametri::Localizza() {
  const LinguaLetta once(C());
  LocalizzaForm(C(), numero_, *this);
  ImpostaTitolo(windowTitle());
  for (const auto& [parameter, list] : elenchi_) {
    list->clear();
    for (const int value : ValoriDelleVoci(*parameter)) {
      list->addItem(Qs(ParoleDelValore(C(), *parameter, {value, {}})), value);
    }
  }
}

void SchermoParametri::ImpostaTitolo(const QString& titolo) {
  setWindowTitle(titolo);
  titolo_->setText(titolo);
}

void SchermoParametri::MostraTutti() {
  for (const auto& each : legami_) each.Mostra(valori_[each.Che->Chiave]);
}

void SchermoParametri::Leggi() {
  valori_.Leggi(C());
  MostraTutti();
}

void SchermoParametri::Predefinisci() {
  valori_.Predefinisci();
  MostraTutti();
}

void SchermoParametri::Salva() {
  for (const auto& each : legami_) valori_[each.Che->Chiave] = each.Raccogli();
  valori_.Scrivi(C());
  SalvaAltro();
  Scarica();
}

void SchermoParametri::AlloScarico() {
  hide();
  ambiente_.Schermi.Mostra(Schermata::Configurazione);
}

}  // namespace kvr5
