#include "playerconfig/screens/PaneMp3.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <map>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Pagina.h"
#include "core/screens/Posto.h"
#include "core/screens/SenzaRotella.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {

PaneMp3::PaneMp3(Contesto& contesto, QWidget* padre)
    : Riquadro("fraFileName", {}, -1, padre), contesto_(contesto) {
  Costruisci();
  connect(cmbFileMp3, &QComboBox::currentTextChanged, this, [this](const QString& name) {
    const bool blank = name == QLatin1String(" ");
    cmbFileMp3->setToolTip(blank ? QString() : Suggerimento(name));
  });
  connect(cmbFileMp3, &QComboBox::activated, this, [this] {
    sceltoDallUtente_ = true;
    LiberaOk();
    AggiornaPlay();
    Clic();
  });
  // A button in the tab order answers to one click and to the keyboard; the label, which looks like
  // none, waits for the second one.
  connect(picDisk, &QAbstractButton::clicked, this, [this] {
    if (SuSfoglia) SuSfoglia();
  });
  DirDirectoryMp3->SuCambio = [this] {
    const QString folder = Qs(PercorsoPerPersone(contesto_, DirDirectoryMp3->Percorso()));
    lblPercorso->setText(folder);
    lblPercorso->setToolTip(Suggerimento(folder));
    if (SuCartella) SuCartella();
    RiempiElencoMp3();
  };
}

void PaneMp3::Costruisci() {
  lblfraFileName = NuovaEtichetta("lblfraFileName", QStringLiteral("FileName"), 22, this);
  Veste(*lblfraFileName, Carattere::Riquadro);
  Testata()->insertWidget(0, lblfraFileName);
  picDisk = new Coppia("picDisk", "", {}, "cartella", -1, this);
  picDisk->ImpostaGenere(Coppia::Genere::Quieto);
  lblMp3_Dir = NuovaEtichetta("lblMp3_Dir", QStringLiteral("MP3 Directory"), 29, this);
  lblMp3_Dir->installEventFilter(this);
  lblPercorso = new EtichettaElisa("lblPercorso", this, Qt::ElideMiddle);
  Veste(*lblPercorso, Carattere::Suggerimento, Ruolo::Attenuato);
  auto* words = new QVBoxLayout();
  words->setSpacing(0);
  words->addWidget(lblMp3_Dir);
  words->addWidget(lblPercorso);
  auto* top = new QHBoxLayout();
  top->addWidget(picDisk);
  top->addLayout(words, 1);
  Corpo()->addLayout(top);
  DirDirectoryMp3 = new ElencoCartelle(contesto_, "DirDirectoryMp3", this);
  DirDirectoryMp3->setMinimumHeight(84);
  Corpo()->addWidget(DirDirectoryMp3, 1);
  cmbFileMp3 = new CasellaInvito(this);
  cmbFileMp3->setObjectName(QStringLiteral("cmbFileMp3"));
  // The width of 5,000 names isn't measured.
  cmbFileMp3->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cmbFileMp3->setMinimumContentsLength(12);
  SenzaRotella(*cmbFileMp3);
  lblMp3_Dir->setBuddy(DirDirectoryMp3);
  Corpo()->addWidget(cmbFileMp3);
  cmdPlayMp3 = new Coppia("cmdPlayMp3", "", {}, "ascolta", -1, this);
  cmdStopMp3 = new Coppia("cmdStopMp3", "", {}, "ferma", -1, this);
  cmdOkFileMp3 =
      new Coppia("cmdOkFileMp3", "lblOkFileMp3", QStringLiteral("OK"), "fatto", 31, this);
  // The numeral comes and goes with the button that it leads to; a removal is no step.
  numero_ = NumeroDiPasso(3, {}, this);
  cmdOkFileMp3->installEventFilter(this);
  ImpostaTurno(*cmdOkFileMp3, TurnoLettera::VieneEVa);
  // The time of a double click is that between two presses.
  connect(cmdOkFileMp3, &QAbstractButton::pressed, this, [this] { pressioneSospesa_ = Sospeso(); });
  for (QWidget* each : {static_cast<QWidget*>(cmdOkFileMp3), static_cast<QWidget*>(numero_)}) {
    TieniPosto(*each);
  }
  Corpo()->addLayout(Riga({cmdPlayMp3, cmdStopMp3, nullptr, numero_, cmdOkFileMp3}));
}

void PaneMp3::RiempiElencoMp3() {
  sceltoDallUtente_ = false;
  MostraElenco();
  cmbFileMp3->setCurrentIndex(static_cast<int>(elenco_.Scelto));
  AggiornaPlay();
  Clic();
}

bool PaneMp3::Rileggi() {
  const std::string picked = Scelto();
  if (!DirDirectoryMp3->Rileggi()) return false;
  MostraElenco();
  const auto still = picked == " " ? std::optional<std::size_t>(0) : elenco_.Indice(picked);
  if (!still) sceltoDallUtente_ = false;
  cmbFileMp3->setCurrentIndex(static_cast<int>(still.value_or(0)));
  AggiornaPlay();
  return true;
}

void PaneMp3::MostraElenco() {
  elenco_ = kvr5::RiempiElencoMp3(DirDirectoryMp3->Voci());
  auto* model = new QStandardItemModel(static_cast<int>(elenco_.Voci.size()), 1, cmbFileMp3);
  std::map<NameFault, QString> faults;  // read once each, however many there are
  for (std::size_t i = 0; i < elenco_.Voci.size(); ++i) {
    const VoceMp3& entry = elenco_.Voci[i];
    auto* item = new QStandardItem(Qs(SuUnaRiga(entry.Nome)));
    if (entry.Difetto != NameFault::None) {
      item->setEnabled(false);
      QString& fault = faults[entry.Difetto];
      if (fault.isEmpty()) fault = Qs(ParoleDifetto(contesto_, entry.Difetto));
      item->setToolTip(fault);
    }
    model->setItem(static_cast<int>(i), item);
  }
  cmbFileMp3->setModel(model);  // the one before belonged to the box and goes with it
  Invita();
}

void PaneMp3::Invita() {
  const std::size_t files = std::max<std::size_t>(1, elenco_.Voci.size()) - 1;  // one is blank
  cmbFileMp3->ImpostaInvito(
      Qs(files == 0 ? TestoLingua(contesto_, "0130138")
                    : ConValori(TestoLingua(contesto_, "0130348"), {std::to_string(files)})));
}

std::string PaneMp3::Scelto() const {
  const auto index = static_cast<std::size_t>(std::max(0, cmbFileMp3->currentIndex()));
  return index < elenco_.Voci.size() ? elenco_.Voci[index].Nome : std::string(" ");
}

void PaneMp3::Scegli(const std::string& nome) {
  sceltoDallUtente_ = false;
  cmbFileMp3->setCurrentIndex(0);
  Clic();
  const auto index = elenco_.Indice(nome);
  if (!index) return AggiornaPlay();
  cmbFileMp3->setCurrentIndex(static_cast<int>(*index));
  AggiornaPlay();
  Clic();
}

void PaneMp3::OkCambiato() {
  sospeso_.start();
  if (OkConTastiera()) cmbFileMp3->setFocus();
}

void PaneMp3::MostraAscolto(bool on, bool muto) {
  ascolto_ = {on, muto};
  AggiornaPlay();
}

void PaneMp3::AggiornaPlay() {
  const bool picked = !Rifila(Scelto()).empty();
  if (!picked && window()->focusWidget() == cmdPlayMp3) cmbFileMp3->setFocus();
  cmdPlayMp3->setEnabled(picked);
  const char* plays = contesto_.Stato.UsaPlayerEsterno ? "0130270" : "0130268";
  ImpostaAscolto(contesto_, *cmdPlayMp3, ascolto_, plays);
  if (!picked) cmdPlayMp3->setToolTip(Qs(TestoLingua(contesto_, "0130272")));
}

bool PaneMp3::Sospeso() const {
  return sospeso_.isValid() && !sospeso_.hasExpired(QApplication::doubleClickInterval());
}

void PaneMp3::MostraTogliere(bool toglie) {
  cmdOkFileMp3->ImpostaScritta(Qs(toglie ? TestoLinguaO(contesto_, "0130251", "Remove file")
                                         : TestoLinguaO(contesto_, "0040031", "OK")));
  cmdOkFileMp3->ImpostaIcona(toglie ? "rimuovi" : "fatto");
  // It calls for attention where the user asked for it by the blank item, and not where the folder
  // merely lacks the file.
  const auto removal = sceltoDallUtente_ ? Coppia::Genere::Pericolo : Coppia::Genere::Quieto;
  cmdOkFileMp3->ImpostaGenere(toglie ? removal : Coppia::Genere::Normale);
  cmdOkFileMp3->setToolTip(Qs(TestoLingua(contesto_, toglie ? "0130252" : "0130136")));
}

void PaneMp3::MostraOk(bool mostra) {
  if (!mostra && OkConTastiera()) cmbFileMp3->setFocus();
  cmdOkFileMp3->setVisible(mostra);
  if (mostra) cmdOkFileMp3->setEnabled(true);
}

bool PaneMp3::eventFilter(QObject* object, QEvent* event) {
  if (object == lblMp3_Dir && event->type() == QEvent::MouseButtonDblClick && SuSfoglia) {
    SuSfoglia();
    return true;
  }
  if (object == cmdOkFileMp3 &&
      (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)) {
    numero_->setVisible(!cmdOkFileMp3->isHidden() && !Rifila(Scelto()).empty());
  }
  return Riquadro::eventFilter(object, event);
}

void PaneMp3::Localizza() {
  ImpostaNumero(2, Qs(TestoLingua(contesto_, "0130124")));
  picDisk->ImpostaScritta(Qs(TestoLingua(contesto_, "0130171")));
  cmdPlayMp3->ImpostaScritta(Qs(TestoLingua(contesto_, "0130168")));
  cmdStopMp3->ImpostaScritta(Qs(TestoLingua(contesto_, "0130169")));
  cmdStopMp3->setToolTip(Qs(TestoLingua(contesto_, "0130269")));
  AggiornaPlay();
  MostraTogliere(false);
  numero_->setToolTip(Qs(TestoLingua(contesto_, "0130125")));
  numero_->setAccessibleName(numero_->toolTip());
  cmbFileMp3->setAccessibleName(Qs(TestoLingua(contesto_, "0130179")));
  Invita();
  DirDirectoryMp3->setAccessibleName(Qs(TestoLingua(contesto_, "0130180")));
}

}  // namespace kvr5
