#include "playerconfig/screens/Livelli.h"

#include <QGridLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/Scale.h"

namespace kvr5 {
namespace {

QLabel* NewPicture(const char* name, const char* icon, QWidget* parent) {
  auto* picture = SegnoDi(icon, Tema::Corrente().Attenuato, 20, parent);
  picture->setObjectName(QLatin1String(name));
  return picture;
}

}  // namespace

Livelli::Livelli(Contesto& contesto, QWidget* padre)
    : Riquadro("fraOutputLevel", {}, -1, padre), contesto_(contesto) {
  lblTitoloFrame = NuovaEtichetta("lblTitoloFrame", QStringLiteral("Output"), 1, this);
  Veste(*lblTitoloFrame, Carattere::Riquadro);
  lblTitoloFrame->setMinimumHeight(kLatoNumero);
  Corpo()->addWidget(lblTitoloFrame);
  picVolume = NewPicture("picVolume", "volume", this);
  picLoudness = NewPicture("picLoudness", "loudness", this);
  picTreble = NewPicture("picTreble", "acuti", this);
  picBass = NewPicture("picBass", "bassi", this);
  CostruisciCursori();
  const std::array<QLabel*, 4> pictures{picVolume, picLoudness, picTreble, picBass};
  auto* grid = new QGridLayout();
  grid->setVerticalSpacing(4);
  for (int i = 0; i < 4; ++i) {
    const Cursore& each = cursori_.at(static_cast<std::size_t>(i));
    QLabel*& name = nomi_.at(static_cast<std::size_t>(i));
    name = NuovaEtichetta(each.Chiave, {}, -1, this);
    Veste(*name, Carattere::Suggerimento, Ruolo::Attenuato);
    grid->addWidget(pictures.at(static_cast<std::size_t>(i)), 0, i, Qt::AlignHCenter);
    grid->addWidget(name, 1, i, Qt::AlignHCenter);
    grid->addWidget(each.Slider, 2, i, Qt::AlignHCenter);
    grid->addWidget(each.Valore, 3, i, Qt::AlignHCenter);
    grid->setColumnStretch(i, 1);
    connect(each.Slider, &QSlider::valueChanged, this, [this, each] {
      each.Aggiorna();
      if (SuCambio) SuCambio();
    });
  }
  Corpo()->addLayout(grid, 1);
}

void Livelli::CostruisciCursori() {
  cursori_ = {NuovoCursore({"LOUT", "sliVolume", "lblVolume_DB", TestoScalaVolume}, this),
              NuovoCursore({"LLOU", "sliLoudness", "lblLoudness_dB", TestoScalaLoudness}, this),
              NuovoCursore({"LTRE", "sliTreble", "lblTreble_dB", TestoScalaToni}, this),
              NuovoCursore({"LBAS", "sliBass", "lblBass_dB", TestoScalaToni}, this)};
  sliVolume = cursori_[0].Slider;
  lblVolume_DB = cursori_[0].Valore;
  sliLoudness = cursori_[1].Slider;
  lblLoudness_dB = cursori_[1].Valore;
  sliTreble = cursori_[2].Slider;
  lblTreble_dB = cursori_[2].Valore;
  sliBass = cursori_[3].Slider;
  lblBass_dB = cursori_[3].Valore;
}

void Livelli::AggiornaTutti() {
  for (const auto& each : {cursori_[0], cursori_[1], cursori_[3], cursori_[2]}) each.Aggiorna();
}

void Livelli::Mostra(const ControlliHub& controlli) {
  for (const auto& each : cursori_) {
    const QSignalBlocker quiet(each.Slider);  // no events run while the hub loads
    each.Slider->setValue(controlli[each.Chiave].Numero);
    each.Aggiorna();
  }
}

void Livelli::Raccogli(ControlliHub& controlli) const {
  for (const auto& each : cursori_) controlli[each.Chiave].Numero = each.Slider->value();
}

void Livelli::Localizza() {
  struct Name {
    const char* Key;
    const char* Caption;
  };
  constexpr std::array<Name, 4> kNames{Name{"0130174", "Volume"}, Name{"0130175", "Loudness"},
                                       Name{"0130176", "Treble"}, Name{"0130177", "Bass"}};
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    const QString name = Qs(TestoLinguaO(contesto_, kNames[i].Key, kNames[i].Caption));
    cursori_[i].Slider->setAccessibleName(name);
    cursori_[i].Slider->setToolTip(name);
    nomi_[i]->setText(name);
  }
  picVolume->setToolTip(sliVolume->toolTip());
  picLoudness->setToolTip(sliLoudness->toolTip());
  picTreble->setToolTip(sliTreble->toolTip());
  picBass->setToolTip(sliBass->toolTip());
}

}  // namespace kvr5
