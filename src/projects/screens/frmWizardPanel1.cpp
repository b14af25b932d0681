#include "projects/screens/frmWizardPanel1.h"

#include <QVBoxLayout>
#include <QVariant>
#include <array>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Riquadro.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "core/screens/UnaFermata.h"
#include "projects/NuovoProgetto.h"
#include "projects/screens/NotaNome.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormWizardPanel1 = 16;
constexpr std::int16_t kInputs = 1;
constexpr std::int16_t kSchedule = 2;
constexpr int kPlaylistOption = 21;
constexpr std::array<std::int16_t, 3> kPlaylistModes{5, 6, 7};
constexpr std::array<const char*, 3> kHints{"0130102", "0130103", "0130104"};

QRadioButton* NewOption(const char* name, const char* caption, int tag, QWidget* parent) {
  auto* option = new QRadioButton(QLatin1String(caption), parent);
  option->setObjectName(QLatin1String(name));
  option->setProperty(kTag, tag);
  option->setFont(FontDi(Carattere::Riquadro));
  FermaSeScelta(*option);
  return option;
}

}  // namespace

frmWizardPanel1::frmWizardPanel1(Ambiente& ambiente) : Form(ambiente, "frmWizardPanel1") {
  resize(760, 500);
  Costruisci();
  Collega();
}

void frmWizardPanel1::Costruisci() {
  auto* page = NuovaPagina(*this);
  lblNomeProgetto =
      NuovaEtichetta("lblNomeProgetto", QStringLiteral("Write Project Name"), -1, this);
  Veste(*lblNomeProgetto, Carattere::Schermata);
  picHelp = NuovoAiuto(this);
  page->addLayout(Riga({lblNomeProgetto, nullptr, picHelp}));
  txtNomeProgetto = new QLineEdit(this);
  txtNomeProgetto->setObjectName(QStringLiteral("txtNomeProgetto"));
  lblNomeProgetto->setBuddy(txtNomeProgetto);
  page->addWidget(txtNomeProgetto);
  lblNota = new EtichettaAvviso("lblNota", QStringLiteral("Note"), Carattere::Riquadro, this);
  lblNota->setWordWrap(true);
  page->addWidget(lblNota);
  lblCartella = new EtichettaElisa("lblCartella", this, Qt::ElideMiddle);  // however long a name
  Veste(*lblCartella, Carattere::Suggerimento, Ruolo::Attenuato);
  page->addWidget(lblCartella);
  page->addSpacing(spazi::kStretto);
  lblSelectType = NuovaEtichetta("lblSelectType", QStringLiteral("Select Type"), 6, this);
  Veste(*lblSelectType, Carattere::Riquadro);
  page->addWidget(lblSelectType);
  page->addWidget(CostruisciTipi());
  page->addStretch(1);
  picGoBack = new Coppia("picGoBack", "lblIndietro", QStringLiteral("back"), "indietro", 5, this);
  picGoOn = new Coppia("picGoOn", "lblOn", QStringLiteral("on"), "fatto", 4, this);
  picGoOn->ImpostaGenere(Coppia::Genere::Primario);
  lblIndietro = picGoBack->Etichetta();
  lblOn = picGoOn->Etichetta();
  page->addLayout(Riga({picGoBack, nullptr, picGoOn}));
  OrdineTab({picHelp, txtNomeProgetto, optPanel_1, optPanel_2, optPanel_21, cmbPlaylist, picGoBack,
             picGoOn});
}

QWidget* frmWizardPanel1::CostruisciTipi() {
  auto* strip = new QWidget(this);
  auto* line = new QHBoxLayout(strip);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(12);
  optPanel_1 = NewOption("optPanel_1", "Inputs", 1, this);
  optPanel_2 = NewOption("optPanel_2", "Scheduled", 2, this);
  optPanel_21 = NewOption("optPanel_21", "Playlist", 3, this);
  cmbPlaylist = new QComboBox(this);
  cmbPlaylist->setObjectName(QStringLiteral("cmbPlaylist"));
  tipi_.addButton(optPanel_1, kInputs);
  tipi_.addButton(optPanel_2, kSchedule);
  tipi_.addButton(optPanel_21, kPlaylistOption);
  for (QRadioButton* option : {optPanel_1, optPanel_2, optPanel_21}) {
    auto* card = new Riquadro("", {}, -1, strip);
    auto* hint = TestoLungo("lblSuggerimento", {}, card);
    Veste(*hint, Carattere::Suggerimento, Ruolo::Attenuato);
    suggerimenti_.push_back(hint);
    card->Corpo()->addWidget(option);
    card->Corpo()->addWidget(hint);
    if (option == optPanel_21) card->Corpo()->addWidget(cmbPlaylist);
    card->Corpo()->addStretch();
    line->addWidget(card, 1);
  }
  return strip;
}

void frmWizardPanel1::Collega() {
  connect(&tipi_, &QButtonGroup::idClicked, this, [this](int id) {
    const bool on = id == kPlaylistOption;
    cmbPlaylist->setEnabled(on);
    cmbPlaylist->setToolTip(on ? QString() : Qs(TestoLingua(C(), "0130240")));
  });
  connect(cmbPlaylist, &QComboBox::activated, this, [this] {
    if (isVisible()) optPanel_21->click();
  });
  connect(txtNomeProgetto, &QLineEdit::textChanged, this, [this] { CambiaNome(); });
  connect(txtNomeProgetto, &QLineEdit::returnPressed, this, [this] {
    if (!Rifila(Std(txtNomeProgetto->text())).empty()) picGoOn->click();
  });
  connect(picGoOn, &QAbstractButton::clicked, this, [this] { CreaProgetto(); });
  connect(picGoBack, &QAbstractButton::clicked, this, [this] { Indietro(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuInvio(*picGoOn);
  SuTasto(Qt::Key_Escape, [this] { picGoBack->click(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
}

void frmWizardPanel1::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  C().Stato.PlayerConfig = 0;
  C().Stato.PlayerMode = kInputs;
  Localizza();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  optPanel_1->click();
  txtNomeProgetto->setFocus();
}

void frmWizardPanel1::Localizza() {
  LocalizzaForm(C(), kFormWizardPanel1, *this);
  setWindowTitle(Qs(TestoLinguaO(C(), "0020000", "KVR5 Software Configuration")));
  for (const std::int16_t mode : kPlaylistModes) {
    const std::string words = TestoVariantePlaylist(C(), mode);
    cmbPlaylist->addItem(Qs(words.empty() ? std::to_string(mode) : words), mode);
  }
  lblNomeProgetto->setText(Qs(TestoLinguaO(C(), "0030001", "Write Project Name")));
  lblNota->setText(Qs(NotaCaratteriVietati(C(), " ")));
  txtNomeProgetto->setPlaceholderText(Qs(TestoLingua(C(), "0130106")));
  cmbPlaylist->setAccessibleName(Qs(TestoLingua(C(), "0130105")));
  for (std::size_t i = 0; i < kHints.size(); ++i) {
    suggerimenti_[i]->setText(Qs(TestoLingua(C(), kHints[i])));
    tipi_.buttons()
        .at(static_cast<qsizetype>(i))
        ->setAccessibleDescription(suggerimenti_[i]->text());
  }
  CambiaNome();
}

void frmWizardPanel1::CambiaNome() {
  ValutaNome(C(), *txtNomeProgetto, *lblNota, *lblCartella);
}

void frmWizardPanel1::LeggiModoPannello() {
  const int id = tipi_.checkedId();
  C().Stato.PlayerMode = id == kPlaylistOption
                             ? static_cast<std::int16_t>(cmbPlaylist->currentData().toInt())
                             : static_cast<std::int16_t>(id);
}

void frmWizardPanel1::CreaProgetto() {
  LeggiModoPannello();
  const ScritteWizard words{
      Std(optPanel_1->text().replace("&&", "&")), Std(optPanel_2->text().replace("&&", "&")),
      Std(optPanel_21->text().replace("&&", "&")), Std(cmbPlaylist->currentText())};
  const EsitoNuovo outcome =
      CreaProgettoKvr5(C(), Std(txtNomeProgetto->text()), C().Stato.PlayerMode, words);
  if (outcome != EsitoNuovo::Creato) txtNomeProgetto->setFocus();  // it is what can be mended
  constexpr std::int16_t kKvr5 = 4;
  if (outcome != EsitoNuovo::Creato || C().Stato.PlayerType != kKvr5) return;
  FormSuccessivo = Schermata::Configurazione;
  Scarica();
}

void frmWizardPanel1::Indietro() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  FormSuccessivo = Schermata::Menu;
  {
    const Impegno stays(*this);
    C().Messaggi.LasciaCorrere();
  }
  Scarica();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

bool frmWizardPanel1::PuoChiudere(Causa causa) {
  if (causa == Causa::Utente) FormSuccessivo = Schermata::Menu;
  return true;
}

void frmWizardPanel1::AlloScarico() {
  hide();
  C().Messaggi.LasciaCorrere();
  ambiente_.Schermi.Mostra(FormSuccessivo);
  C().Messaggi.LasciaCorrere();
}

}  // namespace kvr5
