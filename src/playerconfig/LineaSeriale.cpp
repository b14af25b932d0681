#include "playerconfig/LineaSeriale.h"

#include "core/Impostazioni.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {

bool SceglieUse485(const Contesto& contesto) {
  constexpr std::int16_t kKvr5 = 4;
  return contesto.Stato.PlayerType == kKvr5;
}

void ScriviUse485(Contesto& contesto, bool usa) {
  ScriviParametroIni(contesto, FileDelProgetto(contesto, "Config.cfg"), "Config", "Use485",
                     usa ? "1" : "0");
  contesto.Stato.Usa485 = usa;
}

}  // namespace kvr5
