#include "playerconfig/screens/frmPanelExtra.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Riquadro.h"
#include "core/screens/SpuntaAlClic.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormPanelExtra = 19;
constexpr std::int16_t kByInputs = 1;
constexpr int kTagDefaultsExtra = 4;
constexpr int kLowWithoutSensor = 290;

}  // namespace

frmPanelExtra::frmPanelExtra(Ambiente& ambiente)
    : SchermoParametri(ambiente, "frmPanelExtra", SchermoParametro::Extra, kFormPanelExtra) {
  setWindowTitle(QStringLiteral("KVR5 extra parameters"));
  resize(700, 500);
  auto* body = new QWidget(this);
  auto* rows = new QVBoxLayout(body);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(spazi::kMedio);
  rows->addWidget(CostruisciUscita(body));
  rows->addWidget(CostruisciSensore(body));
  rows->addStretch();
  picDefaults = NuoviPredefiniti(kTagDefaultsExtra);
  lblDefaults = picDefaults->Etichetta();
  CostruisciPagina(nullptr, body, picDefaults);
  OrdineTab({picHelp, chkPonte, cmbOMON, cmbMomd, cmbPYDT, cmbPYDL, cmbTAPL, cmbRSPL, picCancel,
             picDefaults, picSave});
  Collega();
  chkPonte->setFocus();
}

QWidget* frmPanelExtra::CostruisciUscita(QWidget* corpo) {
  auto* frame = new Riquadro("fraUscita", {}, -1, corpo);
  auto* grid = new QGridLayout();
  chkPonte = new QCheckBox(frame);
  chkPonte->setObjectName(QStringLiteral("chkPonte"));
  Lega("INVR", *chkPonte);
  lblPonte = AggiungiRiga(*grid, "INVR", "Bridge mode", 5, chkPonte);
  lblPonte->setObjectName(QStringLiteral("lblPonte"));
  SpuntaAlClic(*lblPonte, *chkPonte);
  cmbOMON = RigaElenco(*grid, "cmbOMON", "OMON", "Output", 6, frame);
  cmbMomd = RigaElenco(*grid, "cmbMomd", "MOMD", "Sound", 7, frame);
  frame->Corpo()->addLayout(grid);
  return frame;
}

QWidget* frmPanelExtra::CostruisciSensore(QWidget* corpo) {
  auto* frame = new Riquadro("picIR", {}, -1, corpo);
  picIR = frame;
  lblParametriIR = NuovaEtichetta(
      "lblParametriIR", QStringLiteral("Parametri gestione sensore movimento ad infrarossi"), 8,
      frame);
  Veste(*lblParametriIR, Carattere::Riquadro);
  frame->Corpo()->addWidget(lblParametriIR);
  auto* grid = new QGridLayout();
  cmbPYDT = RigaElenco(*grid, "cmbPYDT", "PYDT", "Motion sensor", 9, frame);
  cmbPYDL = RigaElenco(*grid, "cmbPYDL", "PYDL", "Delay", 10, frame);
  cmbTAPL = RigaElenco(*grid, "cmbTAPL", "TAPL", "Pause", 11, frame);
  cmbRSPL = RigaElenco(*grid, "cmbRSPL", "RSPL", "Detections", 12, frame);
  frame->Corpo()->addLayout(grid);
  return frame;
}

void frmPanelExtra::Collega() {
  connect(chkPonte, &QAbstractButton::clicked, this, [this](bool on) {
    ponte_.Spunta(on);
    MostraPonte();
  });
  connect(cmbOMON, &QComboBox::activated, this, [this](int index) { ponte_.ScegliOmon(index); });
  connect(picDefaults, &QAbstractButton::clicked, this, [this] {
    Predefinisci();
    ponte_.Predefinisci();
    MostraPonte();
  });
}

void frmPanelExtra::MostraPonte() {
  cmbOMON->setCurrentIndex(ponte_.Omon());
  cmbOMON->setEnabled(ponte_.OmonLibero());
  cmbOMON->setToolTip(ponte_.OmonLibero() ? QString() : Qs(TestoLingua(C(), "0130277")));
  cmbOMON->setAccessibleDescription(cmbOMON->toolTip());
}

void frmPanelExtra::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Localizza();
  chkPonte->setAccessibleName(lblPonte->text());
  Leggi();
  ponte_ = Ponte(Valori()["INVR"].Numero != 0, Valori()["OMON"].Numero);
  MostraPonte();
  picIR->setVisible(C().Stato.PlayerMode == kByInputs);
  if (picIR->isHidden()) resize(width(), kLowWithoutSensor);
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

}  // namespace kvr5
