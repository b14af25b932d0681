#pragma once

#include <QLabel>
#include <QSlider>
#include <array>
#include <functional>

#include "core/screens/Riquadro.h"
#include "playerconfig/ConfigTxt.h"
#include "playerconfig/screens/Cursore.h"

namespace kvr5 {

/// fraOutputLevel: four sliders, 20 at the top to 0, each with the label that says what its index
/// means.
class Livelli : public Riquadro {
 public:
  explicit Livelli(Contesto& contesto, QWidget* padre = nullptr);

  QLabel* lblTitoloFrame;
  QLabel* picVolume;
  QSlider* sliVolume;
  QLabel* lblVolume_DB;
  QLabel* picLoudness;
  QSlider* sliLoudness;
  QLabel* lblLoudness_dB;
  QLabel* picTreble;
  QSlider* sliTreble;
  QLabel* lblTreble_dB;
  QLabel* picBass;
  QSlider* sliBass;
  QLabel* lblBass_dB;

  /// Runs the change handler of every slider, so that the labels show the values.
  void AggiornaTutti();
  void Mostra(const ControlliHub& controlli);
  void Raccogli(ControlliHub& controlli) const;
  /// Called after each change, when the label tells it.
  std::function<void()> SuCambio;
  void Localizza();

 private:
  void CostruisciCursori();

  Contesto& contesto_;
  std::array<Cursore, 4> cursori_;
  std::array<QLabel*, 4> nomi_{};  ///< below the pictures
};

}  // namespace kvr5
