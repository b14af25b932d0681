#pragma once

#include "core/Eventi.h"

namespace kvr5 {

/// The event loop and the pointer of the window system.
class EventiQt : public Eventi {
 public:
  void LasciaCorrere() override;
  void ImpostaPuntatore(Puntatore puntatore) override;
};

}  // namespace kvr5
