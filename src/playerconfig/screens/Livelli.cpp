#include "playerconfig/screens/Livelli.h"

#include <QGridLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Pagina.h"
#include "core/screens/SenzaRotella.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/Scale.h"

namespace kvr5 {
namespace {

constexpr int kTop = 20;
constexpr int kPage = 4;

QLabel* NewPicture(const char* name, const char* icon, QWidget* parent) {
  auto* picture = SegnoDi(icon, Tema::Corrente().Attenuato, 20, parent);
  picture->setObjectName(QLatin1String(name));
  return picture;
}

QLabel* NewLevel(const char* name, QWidget* parent) {
  auto* label = NuovaEtichetta(name, QStringLiteral("+12 dB"), -1, parent);
  label->setAlignment(Qt::AlignCenter);
  label->setMinimumWidth(62);
  return label;
}

}  // namespace

Livelli::Livelli(Contesto& contesto, QWidget* padre)
    : Riquadro("fraOutputLevel", {}, -1, padre), contesto_(contesto) {
  lblTitoloFrame = NuovaEtichetta("lblTitoloFrame", QStringLiteral("Output"), 1, this);
  Veste(*lblTitoloFrame, Carattere::Riquadro);
  Corpo()->addWidget(lblTitoloFrame);
  auto* picVolume = NewPicture("picVolume", "volume", this);
  sliVolume = NuovoCursore("sliVolume", 14);
  lblVolume_DB = NewLevel("lblVolume_DB", this);
  picLoudness = NewPicture("picLoudness", "loudness", this);
  sliLoudness = NuovoCursore("sliLoudness", 0);
  lblLoudness_dB = NewLevel("lblLoudness_dB", this);
  picTreble = NewPicture("picTreble", "acuti", this);
  sliTreble = NuovoCursore("sliTreble", 10);
  lblTreble_dB = NewLevel("lblTreble_dB", this);
  picBass = NewPicture("picBass", "bassi", this);
  sliBass = NuovoCursore("sliBass", 10);
  lblBass_dB = NewLevel("lblBass_dB", this);
  cursori_ = {Cursore{"LOUT", sliVolume, lblVolume_DB, TestoScalaVolume},
              Cursore{"LLOU", sliLoudness, lblLoudness_dB, TestoScalaLoudness},
              Cursore{"LTRE", sliTreble, lblTreble_dB, TestoScalaToni},
              Cursore{"LBAS", sliBass, lblBass_dB, TestoScalaToni}};
  const std::array<QLabel*, 4> pictures{picVolume, picLoudness, picTreble, picBass};
  auto* grid = new QGridLayout();
  grid->setVerticalSpacing(4);
  for (int i = 0; i < 4; ++i) {
    const Cursore& each = cursori_.at(static_cast<std::size_t>(i));
    grid->addWidget(pictures.at(static_cast<std::size_t>(i)), 0, i, Qt::AlignHCenter);
    grid->addWidget(each.Slider, 1, i, Qt::AlignHCenter);
    grid->addWidget(each.Valore, 2, i, Qt::AlignHCenter);
    grid->setColumnStretch(i, 1);
    connect(each.Slider, &QSlider::valueChanged, this, [this, each] {
      Aggiorna(each);
      if (SuCambio) SuCambio();
    });
  }
  Corpo()->addLayout(grid, 1);
}

QSlider* Livelli::NuovoCursore(const char* nome, int iniziale) {
  auto* slider = new QSlider(Qt::Vertical, this);
  slider->setObjectName(QLatin1String(nome));
  slider->setRange(0, kTop);
  slider->setSingleStep(1);
  slider->setPageStep(kPage);
  slider->setValue(iniziale);
  slider->setMinimumHeight(96);
  SenzaRotella(*slider);
  return slider;
}

void Livelli::Aggiorna(const Cursore& cursore) {
  cursore.Valore->setText(Qs(cursore.Scala(cursore.Slider->value())));
  cursore.Slider->setAccessibleDescription(cursore.Valore->text());
}

void Livelli::AggiornaTutti() {
  for (const auto& each : {cursori_[0], cursori_[1], cursori_[3], cursori_[2]}) Aggiorna(each);
}

void Livelli::Mostra(const ControlliHub& controlli) {
  for (const auto& each : cursori_) {
    const QSignalBlocker quiet(each.Slider);  // no events run while the hub loads
    each.Slider->setValue(controlli[each.Chiave].Numero);
    Aggiorna(each);
  }
}

void Livelli::Raccogli(ControlliHub& controlli) const {
  for (const auto& each : cursori_) controlli[each.Chiave].Numero = each.Slider->value();
}

void Livelli::Localizza() {
  constexpr std::array<const char*, 4> kNames{"0130174", "0130175", "0130176", "0130177"};
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    const QString name = Qs(TestoLingua(contesto_, kNames[i]));
    cursori_[i].Slider->setAccessibleName(name);
    cursori_[i].Slider->setToolTip(name);
  }
  picLoudness->setToolTip(sliLoudness->toolTip());
  picTreble->setToolTip(sliTreble->toolTip());
  picBass->setToolTip(sliBass->toolTip());
}

}  // namespace kvr5
