#include "playerconfig/AvvisoIngressi.h"

#include "core/Lingua.h"

namespace kvr5 {

void AvvisaIngressiBassi(Contesto& contesto) {
  const auto show = [&contesto](const char* what, const char* advice) {
    contesto.Finestre.MostraSiNo({TestoLingua(contesto, "0040051"),
                                  TestoLingua(contesto, what) + " " + TestoLingua(contesto, advice),
                                  TestoLingua(contesto, "0140022"),
                                  {}});
  };
  const auto& state = contesto.Stato;
  if (state.PlayerType == 1) show("0040052", "0040053");
  if (state.PlayerType == 4 && state.PlayerMode == 1) show("0040055", "0040056");
}

}  // namespace kvr5
