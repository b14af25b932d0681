#pragma once

#include <string_view>

#include "core/screens/Avvisi.h"

namespace kvr5 {

/// True when a project's name holds one of the eight forbidden characters.
bool HaCaratteriVietati(std::string_view nome);

/// Has the note about forbidden characters warn, in colour and weight, while the name holds one:
/// the button then does nothing and says nothing.
void VestiNota(EtichettaAvviso& nota, std::string_view nome);

}  // namespace kvr5
