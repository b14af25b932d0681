#include "playerconfig/ConfigTxt.h"

#include <array>

#include "core/Impostazioni.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

constexpr std::array<std::string_view, 9> kHubKeys{"LOUT", "LLOU", "LTRE", "LBAS", "MOMN",
                                                   "IMOD", "TPCM", "MICP", "MIRS"};
constexpr std::string_view kLoopKey = "MPLL";

}  // namespace

std::string LeggiChiaveConfig(Contesto& contesto, std::string_view chiave) {
  const auto* parameter = TrovaParametro(chiave);
  return LeggiParametroIni(
      contesto, FileDelProgetto(contesto, "Config.txt"), "Config", chiave,
      parameter != nullptr && parameter->Tipo == TipoParametro::Ponte ? "0" : "");
}

void ScriviChiaveConfig(Contesto& contesto, std::string_view chiave, std::string_view valore) {
  ScriviParametroIni(contesto, FileDelProgetto(contesto, "Config.txt"), "Config", chiave, valore);
}

ControlliHub::ControlliHub() {
  for (const auto key : kHubKeys) {
    stati_.emplace(key, StatoIniziale(*TrovaParametro(key)));
  }
  stati_.emplace(kLoopKey, StatoIniziale(*TrovaParametro(kLoopKey)));
}

void ControlliHub::Leggi(Contesto& contesto) {
  for (const auto key : kHubKeys) {
    const auto& parameter = *TrovaParametro(key);
    (*this)[key] = DalFile(parameter, LeggiChiaveConfig(contesto, key), StatoIniziale(parameter),
                           contesto.Luogo);
  }
}

void ControlliHub::AggiornaFile_ConfigTXT(Contesto& contesto) const {
  for (const auto key : kHubKeys) {
    ScriviChiaveConfig(contesto, key, PerIlFile(*TrovaParametro(key), (*this)[key]));
  }
  if (MpllVisibile) {
    ScriviChiaveConfig(contesto, kLoopKey, PerIlFile(*TrovaParametro(kLoopKey), (*this)[kLoopKey]));
  }
}

}  // namespace kvr5
