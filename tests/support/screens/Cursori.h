#pragma once

#include <QRect>
#include <functional>

class QSlider;

namespace kvr5::test {

/// The thumb of an upright slider, in its own coordinates.
QRect Manopola(const QSlider& cursore);

/// A click in the groove of an upright slider, just above its thumb or just below it.
void CliccaSopra(QSlider& cursore);
void CliccaSotto(QSlider& cursore);

/// Drags the thumb of an upright slider by so many pixels, down where they are positive, one after
/// the other, and lets it go; runs `guarda` after each movement, while the button is held.
void Trascina(QSlider& cursore, int pixel, const std::function<void()>& guarda = {});

}  // namespace kvr5::test
