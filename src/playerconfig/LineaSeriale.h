#pragma once

#include "core/Contesto.h"

namespace kvr5 {

/// Whether the models have a say in RS-485: on the KVR5 alone a project says if the link is in use.
bool SceglieUse485(const Contesto& contesto);

/// Writes the answer into Config.cfg of the open project ("1" or "0") and into the state; a missing
/// file stays missing. A failure is the pending error.
void ScriviUse485(Contesto& contesto, bool usa);

}  // namespace kvr5
