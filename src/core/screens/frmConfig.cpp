#include "core/screens/frmConfig.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QVariant>
#include <algorithm>
#include <array>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Riquadro.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "core/screens/UnaFermata.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormConfig = 9;

}  // namespace

frmConfig::frmConfig(Ambiente& ambiente) : Form(ambiente, "frmConfig"), modello_(ambiente.C) {
  setWindowTitle(QStringLiteral("Config"));
  resize(640, 420);
  Costruisci();
  Collega();
}

void frmConfig::Costruisci() {
  auto* page = NuovaPagina(*this);
  auto* card = new Riquadro("fraImpostazioni", {}, -1, this);
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(spazi::kMedio);
  grid->setVerticalSpacing(spazi::kMedio);
  lblMp3_Dir = NuovaEtichetta("lblMp3_Dir", QStringLiteral("Project Directory"), 1, this);
  txtProjectDir = new QLineEdit(this);
  txtProjectDir->setObjectName(QStringLiteral("txtProjectDir"));
  txtProjectDir->installEventFilter(this);
  txtProjectDir->setContextMenuPolicy(Qt::NoContextMenu);
  txtProjectDir->setAcceptDrops(false);
  txtProjectDir->setReadOnly(true);
  cmdSelPrjDir = new Coppia("cmdSelPrjDir", "", {}, "cartella", -1, this);
  lblMp3_Dir->setBuddy(txtProjectDir);
  lblLanguage = NuovaEtichetta("lblLanguage", QStringLiteral("Language"), 4, this);
  cmbLanguage = new QComboBox(this);
  cmbLanguage->setObjectName(QStringLiteral("cmbLanguage"));
  lblLanguage->setBuddy(cmbLanguage);
  lblPlayer = NuovaEtichetta("lblPlayer", QStringLiteral("Mp3 Player"), -1, this);
  optInternal = new QRadioButton(QStringLiteral("Internal Player"), this);
  optInternal->setObjectName(QStringLiteral("optInternal"));
  optExternal =
      new QRadioButton(QStringLiteral("External Player (use system default player)"), this);
  optExternal->setObjectName(QStringLiteral("optExternal"));
  for (QRadioButton* option : {optInternal, optExternal}) FermaSeScelta(*option);
  lblPlayer->setBuddy(optInternal);
  grid->addWidget(lblMp3_Dir, 0, 0);
  grid->addWidget(txtProjectDir, 0, 1);
  grid->addWidget(cmdSelPrjDir, 0, 2);
  grid->addWidget(lblLanguage, 1, 0);
  grid->addWidget(cmbLanguage, 1, 1);
  grid->addWidget(lblPlayer, 2, 0);
  grid->addWidget(optInternal, 2, 1);
  grid->addWidget(optExternal, 3, 1);
  grid->setColumnStretch(1, 1);
  card->Corpo()->addLayout(grid);
  card->Corpo()->addStretch();
  lblNota = new EtichettaAvviso("lblNota", {}, Carattere::Suggerimento, this);
  lblNota->setWordWrap(true);
  card->Corpo()->addWidget(lblNota);
  picHelp = NuovoAiuto(this);
  lblTitolo = NuovaEtichetta("lblTitolo", {}, -1, this);
  Veste(*lblTitolo, Carattere::Schermata);
  page->addLayout(Riga({lblTitolo, nullptr, picHelp}));
  page->addWidget(card, 1);
  cmdExit = new Coppia("cmdExit", "lblEsci", QStringLiteral("Cancel"), "indietro", 3, this);
  cmdSave = new Coppia("cmdSave", "lblSave", QStringLiteral("Save"), "salva", 2, this);
  cmdSave->ImpostaGenere(Coppia::Genere::Primario);
  lblEsci = cmdExit->Etichetta();
  lblSave = cmdSave->Etichetta();
  page->addLayout(Riga({cmdExit, nullptr, cmdSave}));
  OrdineTab({picHelp, txtProjectDir, cmdSelPrjDir, cmbLanguage, optInternal, optExternal, cmdExit,
             cmdSave});
}

void frmConfig::Collega() {
  connect(cmdSelPrjDir, &QAbstractButton::clicked, this, [this] {
    modello_.Sfoglia();
    MostraCartella();
  });
  connect(cmbLanguage, &QComboBox::activated, this, [this](int index) {
    modello_.ScegliLingua(static_cast<std::size_t>(index));
    MostraModificato();
  });
  for (QRadioButton* option : {optInternal, optExternal}) {
    connect(option, &QAbstractButton::clicked, this, [this, option] {
      modello_.ScegliPlayer(option == optExternal);
      MostraModificato();
    });
  }
  connect(cmdSave, &QAbstractButton::clicked, this, [this] {
    modello_.Salva();
    MostraCartella();
  });
  connect(cmdExit, &QAbstractButton::clicked, this, [this] {
    if (!modello_.ChiedeUscita()) return;
    uscitaChiesta_ = true;
    Scarica();
  });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
  SuSalva(*cmdSave);
}

void frmConfig::AlCaricamento() {
  LocalizzaForm(C(), kFormConfig, *this);
  lblTitolo->setText(windowTitle());
  cmdSelPrjDir->ImpostaScritta(Qs(TestoLinguaO(C(), "0090005", "Projects folder...")));
  // Their own captions aren't translated; the words that explain them are.
  lblPlayer->setToolTip(Qs(TestoLingua(C(), "0130190")));
  optInternal->setToolTip(Qs(TestoLingua(C(), "0130191")));
  optExternal->setToolTip(Qs(TestoLingua(C(), "0130192")));
  for (QWidget* each : {static_cast<QWidget*>(optInternal), static_cast<QWidget*>(optExternal)}) {
    each->setAccessibleDescription(each->toolTip());
  }
  modello_.Carica();
  for (const auto& language : modello_.Lingue()) cmbLanguage->addItem(Qs(language));
  cmbLanguage->setCurrentIndex(modello_.LinguaScelta() ? static_cast<int>(*modello_.LinguaScelta())
                                                       : -1);
  (modello_.PlayerEsterno() ? optExternal : optInternal)->setChecked(true);
  MostraCartella();
}

void frmConfig::AllAttivazione() {
  if (focusWidget() == nullptr) txtProjectDir->setFocus();
}

void frmConfig::showEvent(QShowEvent* event) {
  modello_.Mostra();
  Form::showEvent(event);
}

void frmConfig::MostraCartella() {
  const QString folder = Qs(modello_.CartellaPerPersone());
  txtProjectDir->setText(folder);
  txtProjectDir->setToolTip(Suggerimento(folder));
  txtProjectDir->setCursorPosition(0);
  MostraModificato();
}

void frmConfig::MostraModificato() {
  const bool changed = modello_.Modificato();
  // What is off has no keyboard; it goes to the button that leaves, not on to the help.
  if (focusWidget() == cmdSave && !changed) cmdExit->setFocus();
  cmdSave->setEnabled(changed);
  lblSave->setVisible(changed);
  cmdSave->setToolTip(Qs(TestoLingua(C(), changed ? "0130193" : "0130194")));
  cmdSave->ImpostaGenere(changed ? Coppia::Genere::Primario : Coppia::Genere::Normale);
  cmdExit->ImpostaGenere(changed ? Coppia::Genere::Normale : Coppia::Genere::Primario);
  MostraNota();
}

void frmConfig::MostraNota() {
  const bool cut = modello_.CartellaTroppoLunga();
  const std::string inUse = modello_.AltraInUso();
  lblNota->ImpostaAvviso(cut);
  if (cut) {
    lblNota->setText(
        Qs(TestoLinguaO(C(), "0130265", "This path is too long. Choose a shorter one.")));
  } else if (!inUse.empty()) {
    lblNota->setText(
        Qs(ConValori(TestoLinguaO(C(), "0130264", "Language in use now: %1"), {inUse})));
  } else {
    lblNota->clear();
  }
  txtProjectDir->setAccessibleDescription(cut ? lblNota->text() : QString());
  cmbLanguage->setAccessibleDescription(cut ? QString() : lblNota->text());
}

bool frmConfig::PuoChiudere(Causa causa) {
  return causa == Causa::Codice || uscitaChiesta_ || modello_.ChiedeUscita();
}

void frmConfig::AlloScarico() {
  hide();
  ambiente_.Schermi.RiavviaMain();
}

bool frmConfig::eventFilter(QObject* object, QEvent* event) {
  if (object == txtProjectDir && event->type() == QEvent::KeyPress) {
    // The way back, the help, and keys that type nothing by themselves are none of the box's.
    constexpr std::array kOthers{Qt::Key_Tab,      Qt::Key_Backtab, Qt::Key_F1,    Qt::Key_Shift,
                                 Qt::Key_Control,  Qt::Key_Alt,     Qt::Key_AltGr, Qt::Key_Meta,
                                 Qt::Key_CapsLock, Qt::Key_NumLock};
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (std::ranges::find(kOthers, key) == kOthers.end()) {
      cmdSelPrjDir->click();
      return true;
    }
  }
  return Form::eventFilter(object, event);
}

}  // namespace kvr5
