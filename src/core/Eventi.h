#pragma once

namespace kvr5 {

/// The pointer of the whole program: one value, set and cleared absolutely.
enum class Puntatore { Normale = 0, Attesa = 11 };

/// What a long routine asks of the window system.
class Eventi {
 public:
  virtual ~Eventi() = default;
  /// Lets pending events run, which is how a cancel button reaches a routine.
  virtual void LasciaCorrere() = 0;
  virtual void ImpostaPuntatore(Puntatore puntatore) = 0;
};

}  // namespace kvr5
