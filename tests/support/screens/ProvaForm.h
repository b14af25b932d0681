#pragma once

#include <gtest/gtest.h>

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
  FormPredefinita<T> forma{[this] { return new T(b.A); }};

  /// Shows the form and waits until it has the keyboard.
  T& Apri() {
    forma->Mostra();
    EXPECT_TRUE(Pronta(*forma));
    return *forma;
  }
  const std::string& DocumentoDiAiuto() const {
    static const std::string none;
    return b.Documenti.Aperti.empty() ? none : b.Documenti.Aperti.back();
  }
};

}  // namespace kvr5::test
