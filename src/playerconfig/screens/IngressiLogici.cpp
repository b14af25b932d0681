#include "playerconfig/screens/IngressiLogici.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QVariant>
#include <utility>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/ParoleCopia.h"
#include "core/screens/Avvisi.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Mnemonici.h"
#include "core/screens/Pagina.h"
#include "core/screens/Posto.h"
#include "core/screens/PulsanteAscolto.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {}  // namespace

IngressiLogici::IngressiLogici(Contesto& contesto, QWidget* padre)
    : Riquadro("fraIngressiLogici", QStringLiteral("Logic Inputs tag"), 15, padre),
      contesto_(contesto) {
  Corpo()->addWidget(CostruisciMorsettiera());
  Corpo()->addWidget(CostruisciAssociato());
}

QWidget* IngressiLogici::CostruisciMorsettiera() {
  auto* strip = new QWidget(this);
  QPalette palette = PaletteDi(Tema::Chiaro());
  palette.setColor(QPalette::Window, FondoMorsettiera(Tema::Corrente()));
  strip->setPalette(palette);
  strip->setAutoFillBackground(true);
  auto* grid = new QGridLayout(strip);
  grid->setContentsMargins(8, 8, 8, 8);
  grid->setHorizontalSpacing(0);
  grid->setVerticalSpacing(6);
  for (int i = 0; i < 8; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const int number = i + 1;
    shaIn[at] = new Lampada(number, strip);
    chkIn[at] = new QCheckBox(strip);
    chkIn[at]->setObjectName(NomeElemento("chkIn", number));
    lblIn[at] = NuovaEtichetta("", QStringLiteral("IN%1").arg(number), -1, strip);
    lblIn[at]->setObjectName(NomeElemento("lblIn", number));
    lblIn[at]->setBuddy(chkIn[at]);
    lblIn[at]->setFont(FontDi(Carattere::Suggerimento));
    shaIn[at]->installEventFilter(this);
    lblIn[at]->installEventFilter(this);
    grid->addWidget(shaIn[at], 0, i, Qt::AlignHCenter);
    grid->addWidget(chkIn[at], 1, i, Qt::AlignHCenter);
    grid->addWidget(lblIn[at], 2, i, Qt::AlignHCenter);
    grid->setColumnStretch(i, 1);
    connect(chkIn[at], &QCheckBox::toggled, this, [this, number](bool on) {
      if (SuSpunta) SuSpunta(number, on);
    });
  }
  return strip;
}

QWidget* IngressiLogici::CostruisciAssociato() {
  fraFileAssociato = new QWidget(this);
  fraFileAssociato->setObjectName(QStringLiteral("fraFileAssociato"));
  TieniPosto(*fraFileAssociato);
  auto* lines = new QVBoxLayout(fraFileAssociato);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(spazi::kStretto);
  auto* words = new QHBoxLayout();
  lblFileAssociato = new EtichettaElisa("lblFileAssociato", fraFileAssociato, Qt::ElideMiddle);
  lblEtichettaTroppoLunga =
      NuovaEtichetta("lblEtichettaTroppoLunga", QStringLiteral("..."), -1, fraFileAssociato);
  cmdMp3Preview_Play = new Coppia("cmdMp3Preview_Play", "lblPreview", QStringLiteral("Preview"),
                                  "ascolta", 36, fraFileAssociato);
  cmdMp3Preview_Stop = new Coppia("cmdMp3Preview_Stop", "", {}, "ferma", -1, fraFileAssociato);
  ImpostaTurno(*cmdMp3Preview_Play, TurnoLettera::VieneEVa);
  lblPreview = cmdMp3Preview_Play->Etichetta();
  cmdVaiAlFile = new Coppia("cmdVaiAlFile", "", {}, "cartella", -1, fraFileAssociato);
  cmdVaiAlFile->hide();
  connect(cmdVaiAlFile, &QAbstractButton::clicked, this, [this] {
    if (SuVaiAlFile) SuVaiAlFile();
  });
  words->addWidget(lblFileAssociato, 1);
  words->addWidget(lblEtichettaTroppoLunga);
  lines->addLayout(words);
  lines->addLayout(Riga({cmdMp3Preview_Play, cmdMp3Preview_Stop, nullptr, cmdVaiAlFile}));
  fraFileAssociato->hide();
  lblEtichettaTroppoLunga->hide();
  return fraFileAssociato;
}

bool IngressiLogici::eventFilter(QObject* object, QEvent* event) {
  const bool press = event->type() == QEvent::MouseButtonPress ||
                     event->type() == QEvent::MouseButtonDblClick;  // the second of a quick pair
  if (press && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    for (std::size_t i = 0; i < chkIn.size(); ++i) {
      if (object == shaIn[i] || object == lblIn[i]) chkIn[i]->click();
    }
  }
  return Riquadro::eventFilter(object, event);
}

void IngressiLogici::NascondiFile() {
  QWidget* focus = window()->focusWidget();
  const bool taken = focus != nullptr && fraFileAssociato->isAncestorOf(focus);
  fraFileAssociato->hide();
  if (!taken) return;
  fuoco_ = focus;
  ripiego_ = window()->focusWidget();
}

void IngressiLogici::Mostra(const CodiceScelto& codice) {
  for (int number = 1; number <= 8; ++number) {
    const auto at = static_cast<std::size_t>(number - 1);
    const StatoIngresso& state = codice.Ingresso(number);
    const QSignalBlocker quiet(chkIn[at]);
    chkIn[at]->setChecked(state.Spuntato);
    chkIn[at]->setEnabled(state.Abilitato);
    chkIn[at]->setToolTip(state.Abilitato ? QString() : Qs(TestoLingua(contesto_, "0130133")));
    shaIn[at]->Imposta(state.ColoreLampada, state.Spuntato);
    QPalette palette = lblIn[at]->palette();
    palette.setColor(QPalette::WindowText, DaBgr(state.ColoreTesto));
    lblIn[at]->setPalette(palette);
  }
  fraFileAssociato->setVisible(codice.fraFileAssociatoVisibile());
  QWidget* const focus = std::exchange(fuoco_, nullptr);
  const bool moved = window()->focusWidget() != ripiego_;  // by the user, while events ran
  if (focus != nullptr && focus->isVisible() && !moved) focus->setFocus();
  lblFileAssociato->setText(Qs(SuUnaRiga(codice.lblFileAssociato())));
  lblFileAssociato->setToolTip(Suggerimento(lblFileAssociato->text()));
  lblEtichettaTroppoLunga->setVisible(codice.lblEtichettaTroppoLungaVisibile());
}

void IngressiLogici::OffriCartella(const std::string& cartella) {
  cmdVaiAlFile->setVisible(!cartella.empty());
  const QString folder = Qs(PercorsoPerPersone(contesto_, cartella));
  cmdVaiAlFile->setToolTip(Suggerimento(cmdVaiAlFile->Scritta() + ": " + folder));
  cmdVaiAlFile->setAccessibleDescription(folder);
}

void IngressiLogici::MostraAscolto(bool on, bool muto) {
  const bool outside = contesto_.Stato.UsaPlayerEsterno;
  ImpostaAscolto(contesto_, *cmdMp3Preview_Play, {on, muto}, outside ? "0130271" : "0130243");
}

void IngressiLogici::Localizza() {
  const std::string name = TestoLinguaO(contesto_, "0130178", "Input %1");
  for (std::size_t i = 0; i < chkIn.size(); ++i) {
    chkIn[i]->setAccessibleName(Qs(ConValori(name, {std::to_string(i + 1)})));
  }
  ImpostaNumero(1, Qs(TestoLingua(contesto_, "0130123")));
  MostraAscolto(false);
  cmdMp3Preview_Stop->ImpostaScritta(Qs(TestoLingua(contesto_, "0130169")));
  cmdMp3Preview_Stop->setToolTip(Qs(TestoLingua(contesto_, "0130269")));
  cmdVaiAlFile->ImpostaScritta(Qs(TestoLinguaO(contesto_, "0130257", "Show its folder")));
}

}  // namespace kvr5
