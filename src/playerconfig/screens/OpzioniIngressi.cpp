#include "playerconfig/screens/OpzioniIngressi.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

#include "core/Lingua.h"
#include "core/screens/Form.h"
#include "core/screens/Icona.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/AvvisoIngressi.h"

namespace kvr5 {
namespace {

StatoParametro DesignedTpcm() {
  return StatoIniziale(*TrovaParametro("TPCM"));
}

/// A menu over the field or another program's window is no leaving.
bool LeavesTheField(const QFocusEvent& event) {
  return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

QToolButton* NewArrow(const char* name, const char* icon, QWidget* parent) {
  auto* arrow = new QToolButton(parent);
  arrow->setObjectName(QLatin1String(name));
  arrow->setIcon(IconaDi(QLatin1String(icon), Tema::Corrente().Testo));
  arrow->setIconSize({12, 12});
  arrow->setFixedSize(20, spazi::kControllo / 2);
  arrow->setAutoRepeat(true);
  arrow->setAutoRaise(true);
  arrow->setFocusPolicy(Qt::NoFocus);  // the box has the arrow keys
  return arrow;
}

}  // namespace

OpzioniIngressi::OpzioniIngressi(Contesto& contesto, QWidget* padre)
    : QWidget(padre), contesto_(contesto), tpcm_(DesignedTpcm(), contesto.Luogo) {
  pila_ = new QVBoxLayout(this);
  pila_->setContentsMargins(0, 0, 0, 0);
  pila_->setSpacing(4);
  CostruisciIngressi();
  CostruisciTpcm();
  CostruisciAltre();
  Collega();
  MostraTpcm();
}

QWidget* OpzioniIngressi::NuovaRiga(const char* nome, const char* descrizione, const char* scritta,
                                    int tag, QWidget* scelte) {
  auto* row = new QWidget(this);
  row->setObjectName(QLatin1String(nome));
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(spazi::kStretto);
  auto* words = NuovaEtichetta(descrizione, QString::fromUtf8(scritta), tag, row);
  words->setWordWrap(true);
  line->addWidget(words, 1);
  if (scelte != nullptr) line->addWidget(scelte);
  pila_->addWidget(row);
  return row;
}

Striscia* OpzioniIngressi::NuovaStriscia(Segmento*& primo, Segmento*& secondo, const char* nome1,
                                         const char* scritta1, int tag1, const char* nome2,
                                         const char* scritta2, int tag2) {
  auto* strip = new Striscia(this);
  primo = new Segmento(nome1, QString::fromUtf8(scritta1), tag1, strip);
  secondo = new Segmento(nome2, QString::fromUtf8(scritta2), tag2, strip);
  strip->Aggiungi(primo);
  strip->Aggiungi(secondo);
  return strip;
}

void OpzioniIngressi::CostruisciIngressi() {
  auto* imod = NuovaStriscia(optIMOD_ActiveHigh, optIMOD_ActiveLow, "optIMOD_ActiveHigh",
                             "0 - active high", 7, "optIMOD_ActiveLow", "1 - active low", 8);
  fraIMOD = NuovaRiga("fraIMOD", "lblIMOD_Descrizione", "Modalità gestione ingressi", 6, imod);
  auto* micp = NuovaStriscia(optMICP_Zero, optMICP_ContinuosPlay, "optMICP_Zero", "0", 4,
                             "optMICP_ContinuosPlay", "1 - Continuos play / loop", 10);
  fraMICP = NuovaRiga("fraMICP", "lblMICP_Descrizione", "Continuos Play", 9, micp);
  auto* mirs = NuovaStriscia(optMirs_Zero, optMIRS_Restart, "optMirs_Zero", "0", 4,
                             "optMIRS_Restart", "1 - Restart", 14);
  fraMirs = NuovaRiga("fraMirs", "lblMirs_Descrizione", "Modalità restart", 13, mirs);
  optIMOD_ActiveHigh->setChecked(true);
  optMICP_Zero->setChecked(true);
  optMirs_Zero->setChecked(true);
}

void OpzioniIngressi::CostruisciTpcm() {
  auto* choices = new QWidget(this);
  auto* line = new QHBoxLayout(choices);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(4);
  lstTPCM = new QLineEdit(choices);
  lstTPCM->setObjectName(QStringLiteral("lstTPCM"));
  lstTPCM->setFixedWidth(46);
  lstTPCM->setAlignment(Qt::AlignRight);
  lstTPCM->installEventFilter(this);
  lstTPCM->setProperty(kLasciaAlClic, true);
  lstTPCM->setAttribute(Qt::WA_InputMethodEnabled, false);  // digits are typed key by key
  u_dTPCM_su = NewArrow("u_dTPCM_su", "su", choices);
  u_dTPCM_giu = NewArrow("u_dTPCM_giu", "giu", choices);
  auto* arrows = new QVBoxLayout();
  arrows->setSpacing(0);
  arrows->addWidget(u_dTPCM_su);
  arrows->addWidget(u_dTPCM_giu);
  lblMillisecondi = NuovaEtichetta("lblMillisecondi", QStringLiteral("Millisecond"), 12, choices);
  line->addWidget(lstTPCM);
  line->addLayout(arrows);
  line->addWidget(lblMillisecondi);
  line->addWidget(
      NuovaStriscia(optTPCM_Off, optTPCM_On, "optTPCM_Off", "OFF", 4, "optTPCM_On", "ON", 3));
  fraTPCM = NuovaRiga("fraTPCM", "lblTPCM_Descrizione", "Tempo persistenza", 11, choices);
}

void OpzioniIngressi::CostruisciAltre() {
  auto* monitor = NuovaStriscia(optMonitor_Off, optMonitor_On, "optMonitor_Off", "OFF", 4,
                                "optMonitor_On", "ON", 3);
  fraMonitor = NuovaRiga("fraMonitor", "lblMonitor", "Monitor", 2, monitor);
  auto* mpll = NuovaStriscia(optMPLL_loop, optMPLL_NoLoop, "optMPLL_loop", "8 - Loop", -1,
                             "optMPLL_NoLoop", "9 - No loop", -1);
  fraMPLL = NuovaRiga("fraMPLL", "lblMPLL", "Modalità loop playlist", 102, mpll);
  auto* analyzer = NuovaStriscia(optAlalizer_Off, opt_Analizer_On, "optAlalizer_Off", "OFF", 4,
                                 "opt_Analizer_On", "ON", 3);
  fraAnalyzer = NuovaRiga("fraAnalyzer", "lblAnalyzer", "Analyzer", 101, analyzer);
  cmdConfigureExtra = new Coppia("cmdConfigureExtra", "lblConfigureExtra", QStringLiteral("Extra"),
                                 "opzioni", 58, this);
  fraExtra = NuovaRiga("fraExtra", "lblExtra", "Extra", 57, cmdConfigureExtra);
  picConfiguraFade = new Coppia("picConfiguraFade", "lblConfiguraFade", QStringLiteral("Fade"),
                                "dissolvenza", 58, this);
  fraFADE = NuovaRiga("fraFADE", "lblFADE", "Fade", 46, picConfiguraFade);
  optMonitor_Off->setChecked(true);
  optMPLL_loop->setChecked(true);
  optAlalizer_Off->setChecked(true);
}

void OpzioniIngressi::Collega() {
  // A click on it tells each time, also where it was on already; the load clicks nothing.
  connect(optIMOD_ActiveLow, &QRadioButton::clicked, this,
          [this] { AvvisaIngressiBassi(contesto_); });
  for (Segmento* option : findChildren<Segmento*>()) {
    connect(option, &QRadioButton::toggled, this, [this] {
      if (!mostra_) Cambiato();
    });
  }
  connect(opt_Analizer_On, &QRadioButton::toggled, this,
          [this](bool on) { contesto_.Stato.Analyzer = on ? 1 : 0; });
  connect(optTPCM_Off, &QRadioButton::clicked, this, [this] {
    tpcm_.ClicOff();
    MostraTpcm();
    Cambiato();
  });
  connect(optTPCM_On, &QRadioButton::clicked, this, [this] {
    tpcm_.ClicOn();
    MostraTpcm();
    Cambiato();
  });
  connect(lstTPCM, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (mostra_) return;
    tpcm_.Cambia(Std(text));
    MostraTpcm();
    Cambiato();
  });
  connect(u_dTPCM_su, &QToolButton::clicked, this, [this] {
    tpcm_.Su();
    MostraTpcm();
    Cambiato();
  });
  connect(u_dTPCM_giu, &QToolButton::clicked, this, [this] {
    tpcm_.Giu();
    MostraTpcm();
    Cambiato();
  });
}

bool OpzioniIngressi::eventFilter(QObject* object, QEvent* event) {
  if (object != lstTPCM) return QWidget::eventFilter(object, event);
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) {
      (key->key() == Qt::Key_Up ? u_dTPCM_su : u_dTPCM_giu)->click();
      return true;
    }
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    // Editing keys and shortcuts aren't characters that are typed; with the modifier that types
    // the third character of a key (Ctrl and Alt at once, or Alt alone) they are.
    const bool shortcut =
        (key->modifiers() & Qt::ControlModifier) != 0 && (key->modifiers() & Qt::AltModifier) == 0;
    const bool edits = key->key() == Qt::Key_Delete || key->key() == Qt::Key_Escape || shortcut;
    const QString text = edits ? QString() : key->text();
    const char32_t character = enter ? U'\r' : text.isEmpty() ? 0 : text.toUcs4().first();
    const bool passes = character == 0 || tpcm_.Tasto(character);
    if (enter) {
      MostraTpcm();
      Cambiato();
    }
    return !passes;
  }
  if (event->type() == QEvent::FocusOut && LeavesTheField(*static_cast<QFocusEvent*>(event))) {
    tpcm_.PerdeFuoco();
    MostraTpcm();
    Cambiato();
  }
  return QWidget::eventFilter(object, event);
}

void OpzioniIngressi::MostraTpcm() {
  const bool before = std::exchange(mostra_, true);
  if (lstTPCM->text() != Qs(tpcm_.Testo())) lstTPCM->setText(Qs(tpcm_.Testo()));
  (tpcm_.Acceso() ? optTPCM_On : optTPCM_Off)->setChecked(true);
  mostra_ = before;
}

void OpzioniIngressi::Mostra(const ControlliHub& controlli) {
  mostra_ = true;
  const auto set = [&controlli](const char* key, Segmento* off, Segmento* on) {
    (controlli[key].Numero != 0 ? on : off)->setChecked(true);
  };
  set("MOMN", optMonitor_Off, optMonitor_On);
  set("IMOD", optIMOD_ActiveHigh, optIMOD_ActiveLow);
  tpcm_ = CasellaPersistenza(controlli["TPCM"], contesto_.Luogo);
  MostraTpcm();
  set("MICP", optMICP_Zero, optMICP_ContinuosPlay);
  set("MIRS", optMirs_Zero, optMIRS_Restart);
  mostra_ = false;
}

void OpzioniIngressi::Raccogli(ControlliHub& controlli) const {
  controlli["MOMN"].Numero = optMonitor_On->isChecked() ? 1 : 0;
  controlli["IMOD"].Numero = optIMOD_ActiveLow->isChecked() ? 1 : 0;
  controlli["TPCM"] = tpcm_.Stato();
  controlli["MICP"].Numero = optMICP_ContinuosPlay->isChecked() ? 1 : 0;
  controlli["MIRS"].Numero = optMIRS_Restart->isChecked() ? 1 : 0;
}

void OpzioniIngressi::ImpostaAnalyzer(bool acceso) {
  mostra_ = true;
  (acceso ? opt_Analizer_On : optAlalizer_Off)->setChecked(true);
  mostra_ = false;
}

void OpzioniIngressi::Disponi(const LayoutHub& layout) {
  fraIMOD->setVisible(layout.fraIMOD);
  fraMICP->setVisible(layout.fraMICP);
  fraMirs->setVisible(layout.fraMirs);
  fraTPCM->setVisible(layout.fraTPCM);
  fraMonitor->setVisible(layout.fraMonitor);
  fraMPLL->setVisible(layout.fraMPLL);
  fraAnalyzer->setVisible(layout.fraAnalyzer);
  fraExtra->setVisible(layout.fraExtra);
  fraFADE->setVisible(layout.fraFADE);
}

void OpzioniIngressi::NominaScelte() {
  // Each choice is read out with the words of its row: "Off" alone says nothing.
  for (QWidget* row : {fraIMOD, fraMICP, fraMirs, fraTPCM, fraMonitor, fraMPLL, fraAnalyzer}) {
    const QString words = row->findChild<QLabel*>()->text();
    for (Segmento* option : row->findChildren<Segmento*>()) {
      option->setAccessibleName(words + QStringLiteral(": ") + option->text());
    }
  }
  for (Coppia* button : {cmdConfigureExtra, picConfiguraFade}) {
    button->setAccessibleName(button->parentWidget()->findChild<QLabel*>()->text());
  }
}

void OpzioniIngressi::Localizza() {
  NominaScelte();
  lstTPCM->setToolTip(Qs(TestoLingua(contesto_, "0130182")));
  lstTPCM->setAccessibleName(lstTPCM->toolTip());
  picConfiguraFade->setToolTip(Qs(TestoLingua(contesto_, "0130172")));
  cmdConfigureExtra->setToolTip(Qs(TestoLingua(contesto_, "0130173")));
}

}  // namespace kvr5
