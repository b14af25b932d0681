#pragma once

#include "core/Contesto.h"
#include "flashcard/Registrazione.h"

namespace kvr5 {

/// Says which databases a recording that ended well could not read: it passes over them as if they
/// were missing, and without a word the card would seem whole. Says nothing where all were read,
/// and where the recording's own box says already that the card isn't whole.
void AvvisaNonLetti(Contesto& contesto, const EsitoRegistrazione& esito);

}  // namespace kvr5
