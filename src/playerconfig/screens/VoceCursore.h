#pragma once

class QSlider;
class QString;

namespace kvr5 {

/// Gives a screen reader the value of a slider in words ("+2 dB"), beside the number of its
/// position: as its value where the host takes a text for one, and as its description. To be called
/// at each change.
void ImpostaVoce(QSlider& cursore, const QString& parole);

}  // namespace kvr5
