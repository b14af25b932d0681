#pragma once

#include <string_view>

class QLabel;
class QSlider;
class QWidget;

namespace kvr5 {

/// A level on the screen: an upright slider, 20 at the top to 0, and the label that says what its
/// position means.
struct Cursore {
  const char* Chiave;
  QSlider* Slider;
  QLabel* Valore;
  std::string_view (*Scala)(int);

  /// The change handler: has the label, and a screen reader, tell the position.
  void Aggiorna() const;
};

/// How the slider of a parameter is made: the names of its controls and its scale.
struct NomiCursore {
  const char* Chiave;
  const char* Slider;
  const char* Valore;
  std::string_view (*Scala)(int);
};

/// Makes them, at the position that the form gives the parameter.
Cursore NuovoCursore(const NomiCursore& nomi, QWidget* padre);

}  // namespace kvr5
