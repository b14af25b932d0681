#pragma once

#include "core/Contesto.h"

namespace kvr5 {

/// What choosing optIMOD_ActiveLow says: a box with one button on model 1 and on model 4 with logic
/// inputs, nothing on the others. The choice stands all the same.
void AvvisaIngressiBassi(Contesto& contesto);

}  // namespace kvr5
