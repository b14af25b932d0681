#pragma once

class QSlider;
class QString;

namespace kvr5 {

/// Has a screen reader hear the value of a slider in words ("+2 dB"), beside the number of its
/// position. To be called at each change.
void ImpostaVoce(QSlider& cursore, const QString& parole);

}  // namespace kvr5
