#include "playerconfig/ValoriSchermo.h"

#include <algorithm>
#include <array>
#include <utility>

#include "playerconfig/ConfigTxt.h"

namespace kvr5 {
namespace {

using Screen = SchermoParametro;
using Key = std::string_view;

constexpr std::array<Key, 7> kFadeRead{"LMP3", "LLIN", "LLI2", "TFOU", "TFIN", "TADU", "TAVC"};
constexpr std::array<Key, 7> kFadeWrite{"LMP3", "LLIN", "LLI2", "TAVC", "TFOU", "TFIN", "TADU"};
// Bridge mode is read last: it decides whether OMON can be chosen.
constexpr std::array<Key, 7> kExtraRead{"OMON", "PYDT", "PYDL", "TAPL", "RSPL", "MOMD", "INVR"};
constexpr std::array<Key, 7> kExtraWrite{"OMON", "INVR", "PYDT", "PYDL", "TAPL", "RSPL", "MOMD"};
constexpr std::array<Key, 10> kSerial{"CMAD", "CMCK", "CMCL", "CMBR", "CMPR",
                                      "CMSB", "CMDB", "CMDR", "CMI3", "ORI3"};

/// The serial port as the players come, in the file's terms.
constexpr std::array<std::pair<Key, int>, 10> kSerialDefaults{{{"CMAD", 31},
                                                               {"CMCK", 1},
                                                               {"CMCL", 0},
                                                               {"CMBR", 3},
                                                               {"CMPR", 0},
                                                               {"CMSB", 1},
                                                               {"CMDB", 8},
                                                               {"CMDR", 0},
                                                               {"CMI3", 4},
                                                               {"ORI3", 0}}};

}  // namespace

std::span<const Key> OrdineDiLettura(Screen schermo) {
  if (schermo == Screen::Fade) return kFadeRead;
  if (schermo == Screen::Extra) return kExtraRead;
  if (schermo == Screen::Seriale) return kSerial;
  return {};
}

std::span<const Key> OrdineDiScrittura(Screen schermo) {
  if (schermo == Screen::Fade) return kFadeWrite;
  if (schermo == Screen::Extra) return kExtraWrite;
  return OrdineDiLettura(schermo);
}

StatoParametro StatoPredefinito(const Parametro& parametro) {
  const auto* found =
      std::ranges::find(kSerialDefaults, parametro.Chiave, &std::pair<Key, int>::first);
  if (found != kSerialDefaults.end()) return {found->second, {}};
  return StatoIniziale(parametro);
}

ValoriSchermo::ValoriSchermo(Screen schermo) : schermo_(schermo) {
  for (const Key key : OrdineDiLettura(schermo)) {
    stati_.emplace(key, StatoIniziale(*TrovaParametro(key)));
  }
}

void ValoriSchermo::Leggi(Contesto& contesto) {
  for (const Key key : OrdineDiLettura(schermo_)) {
    if (key == esclusa_) continue;
    auto& state = (*this)[key];
    state = DalFile(*TrovaParametro(key), LeggiChiaveConfig(contesto, key), state, contesto.Luogo);
  }
}

void ValoriSchermo::Scrivi(Contesto& contesto) const {
  std::vector<IniValue> values;
  for (const Key key : OrdineDiScrittura(schermo_)) {
    if (key != esclusa_) values.push_back({key, PerIlFile(*TrovaParametro(key), (*this)[key])});
  }
  ScriviChiaviConfig(contesto, values);
}

void ValoriSchermo::Predefinisci() {
  for (auto& [key, state] : stati_) state = StatoPredefinito(*TrovaParametro(key));
}

}  // namespace kvr5
