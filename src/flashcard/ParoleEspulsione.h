#pragma once

#include <string_view>

#include "core/Contesto.h"
#include "core/Dialoghi.h"
#include "platform/Error.h"

namespace kvr5 {

/// What is told after the card in the root `radice` was to be ejected: that it can be taken out
/// now, or why not and what to do.
Messaggio BoxEspulsione(Contesto& contesto, std::string_view radice, const Error& errore);

}  // namespace kvr5
