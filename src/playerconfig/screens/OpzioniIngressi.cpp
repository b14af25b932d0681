#include "playerconfig/screens/OpzioniIngressi.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>
#include <memory>
#include <utility>

#include "core/Lingua.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/AvvisoIngressi.h"

namespace kvr5 {

OpzioniIngressi::OpzioniIngressi(Contesto& contesto, QWidget* padre)
    : QWidget(padre), contesto_(contesto) {
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
  auto time =
      std::make_unique<CasellaPersistenza>(StatoIniziale(*TrovaParametro("TPCM")), contesto_.Luogo);
  tpcm_ = time.get();
  casella_ = new CasellaCifre(std::move(time), "lstTPCM", "u_dTPCM", choices);
  lstTPCM = casella_->Campo;
  u_dTPCM_su = casella_->Su;
  u_dTPCM_giu = casella_->Giu;
  lblMillisecondi = NuovaEtichetta("lblMillisecondi", QStringLiteral("Millisecond"), 12, choices);
  line->addWidget(casella_);
  line->addWidget(lblMillisecondi);
  line->addWidget(
      NuovaStriscia(optTPCM_Off, optTPCM_On, "optTPCM_Off", "OFF", 4, "optTPCM_On", "ON", 3));
  fraTPCM = NuovaRiga("fraTPCM", "lblTPCM_Descrizione", "Tempo persistenza", 11, choices);
  fraTPCM->findChild<QLabel*>(QStringLiteral("lblTPCM_Descrizione"))->setBuddy(lstTPCM);
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
    tpcm_->ClicOff();
    MostraTpcm();
    Cambiato();
  });
  connect(optTPCM_On, &QRadioButton::clicked, this, [this] {
    tpcm_->ClicOn();
    MostraTpcm();
    Cambiato();
  });
  casella_->SuCambio = [this] {
    MostraTpcm();
    Cambiato();
  };
}

void OpzioniIngressi::MostraTpcm() {
  const bool before = std::exchange(mostra_, true);
  casella_->Mostra();
  (tpcm_->Acceso() ? optTPCM_On : optTPCM_Off)->setChecked(true);
  mostra_ = before;
}

void OpzioniIngressi::Mostra(const ControlliHub& controlli) {
  mostra_ = true;
  const auto set = [&controlli](const char* key, Segmento* off, Segmento* on) {
    (controlli[key].Numero != 0 ? on : off)->setChecked(true);
  };
  set("MOMN", optMonitor_Off, optMonitor_On);
  set("IMOD", optIMOD_ActiveHigh, optIMOD_ActiveLow);
  *tpcm_ = CasellaPersistenza(controlli["TPCM"], contesto_.Luogo);
  MostraTpcm();
  set("MICP", optMICP_Zero, optMICP_ContinuosPlay);
  set("MIRS", optMirs_Zero, optMIRS_Restart);
  mostra_ = false;
}

void OpzioniIngressi::Raccogli(ControlliHub& controlli) const {
  controlli["MOMN"].Numero = optMonitor_On->isChecked() ? 1 : 0;
  controlli["IMOD"].Numero = optIMOD_ActiveLow->isChecked() ? 1 : 0;
  controlli["TPCM"] = tpcm_->Stato();
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
  casella_->ImpostaNome(Qs(TestoLingua(contesto_, "0130182")));
  picConfiguraFade->setToolTip(Qs(TestoLingua(contesto_, "0130172")));
  cmdConfigureExtra->setToolTip(Qs(TestoLingua(contesto_, "0130173")));
}

}  // namespace kvr5
