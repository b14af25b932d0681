#pragma once

#include <cstdint>

#include "core/Contesto.h"

namespace kvr5 {

/// Shows frmSiNo and waits; the answer is RispostaSiNo, too: 1 yes (or the only button), 2 no, 0
/// closed by the window's button.
inline std::uint8_t ChiediSiNo(Contesto& contesto, const BoxSiNo& box) {
  contesto.Stato.RispostaSiNo = 0;
  return contesto.Stato.RispostaSiNo = contesto.Finestre.MostraSiNo(box);
}

}  // namespace kvr5
