#pragma once

#include <gtest/gtest.h>

#include <type_traits>

#include "core/FinestraProgresso.h"
#include "core/screens/FormPredefinita.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

namespace kvr5::test {

/// A test of one screen: the bench with a script for its boxes, and the form's default instance.
template <class T, Boxes Chi = Boxes::Finti>
class ProvaForm : public testing::Test {
 protected:
  BancoSchermi b{Chi};
  FinestraProgresso avanzamento{b.C};
  FormPredefinita<T> forma{[this] { return Nuova(); }};

  /// Shows the form and waits until it has the keyboard.
  T& Apri() {
    forma->Mostra();
    EXPECT_TRUE(Pronta(*forma));
    return *forma;
  }
  T* Nuova() {
    if constexpr (std::is_constructible_v<T, Ambiente&, FinestraProgresso&>) {
      return new T(b.A, avanzamento);
    } else {
      return new T(b.A);
    }
  }
  const std::string& DocumentoDiAiuto() const {
    static const std::string none;
    return b.Documenti.Aperti.empty() ? none : b.Documenti.Aperti.back();
  }
};

}  // namespace kvr5::test
