#pragma once

#include "core/Contesto.h"
#include "core/screens/Coppia.h"

namespace kvr5 {

/// What a play button shows.
struct StatoAscolto {
  bool On = false;    ///< the picture PlayOn
  bool Muto = false;  ///< with that picture: nothing is heard, since the file was refused
};

/// Gives a play button the picture PlayOn or PlayOff, and has a screen reader say the same.
/// `suggerimento`: the key of its tool tip while it is off.
void ImpostaAscolto(Contesto& contesto, Coppia& pulsante, const StatoAscolto& stato,
                    const char* suggerimento);

}  // namespace kvr5
