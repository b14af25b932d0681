#pragma once

#include "core/Contesto.h"
#include "core/screens/Coppia.h"

namespace kvr5 {

/// Gives a play button the picture PlayOn or PlayOff, and has a screen reader say the same.
/// `suggerimento`: the key of its tool tip while it is off.
void ImpostaAscolto(Contesto& contesto, Coppia& pulsante, bool on, const char* suggerimento);

}  // namespace kvr5
