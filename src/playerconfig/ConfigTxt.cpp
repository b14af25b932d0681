#include "playerconfig/ConfigTxt.h"

#include <vector>

#include "core/Impostazioni.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

bool IsOfTheHub(const Parametro& parameter) {
  return parameter.Schermo == SchermoParametro::Hub;
}

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

void ScriviChiaviConfig(Contesto& contesto, std::span<const IniValue> valori) {
  ScriviParametriIni(contesto, FileDelProgetto(contesto, "Config.txt"), "Config", valori);
}

ControlliHub::ControlliHub() {
  // All of the table's: whoever goes through that finds a control for each.
  for (const auto& parameter : Parametri()) {
    if (IsOfTheHub(parameter)) stati_.emplace(parameter.Chiave, StatoIniziale(parameter));
  }
}

void ControlliHub::Leggi(Contesto& contesto) {
  for (const auto& parameter : Parametri()) {
    if (!IsOfTheHub(parameter) || parameter.Tipo == TipoParametro::MaiLetto) continue;
    (*this)[parameter.Chiave] = DalFile(parameter, LeggiChiaveConfig(contesto, parameter.Chiave),
                                        StatoIniziale(parameter), contesto.Luogo);
  }
}

void ControlliHub::AggiornaFile_ConfigTXT(Contesto& contesto) const {
  std::vector<IniValue> values;
  for (const auto& parameter : Parametri()) {
    if (!IsOfTheHub(parameter)) continue;
    if (parameter.Tipo == TipoParametro::MaiLetto && !MpllVisibile) continue;
    values.push_back({parameter.Chiave, PerIlFile(parameter, (*this)[parameter.Chiave])});
  }
  ScriviChiaviConfig(contesto, values);
}

}  // namespace kvr5
