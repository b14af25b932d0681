#include <gtest/gtest.h>

#include "playerconfig/AvvisoIngressi.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

TEST(InputWarning, IsShownOnTheModelsWhoseInputsCanBeWiredSo) {
  test::Banco b;
  for (const short type : std::initializer_list<short>{1, 2, 3, 4}) {
    for (const short mode : std::initializer_list<short>{0, 1, 2, 5}) {
      b.C.Stato.PlayerType = type;
      b.C.Stato.PlayerMode = mode;
      AvvisaIngressiBassi(b.C);
      const bool shown = type == 1 || (type == 4 && mode == 1);
      EXPECT_EQ(b.Finestre.Silenzio(), !shown) << type << " " << mode;
      if (!shown) continue;
      const auto box = b.Finestre.Prossimo();
      EXPECT_TRUE(box.SiNo && box.SoloOk);
      EXPECT_EQ(box.Titolo, "Please note");
      EXPECT_EQ(box.Testo,
                "With this choice an input counts as active while its level is low. "
                "Check the wiring before you use the card.");
    }
  }
}

}  // namespace
}  // namespace kvr5
