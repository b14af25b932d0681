#include "playerconfig/Parametri.h"

#include <algorithm>
#include <array>

#include "platform/Fold.h"

namespace kvr5 {
namespace {

using Screen = SchermoParametro;
using Kind = TipoParametro;
using Words = ParoleParametro;

constexpr std::array kPydl{0, 1, 2, 3, 4, 5, 10, 20, 30, 60, 120, 180, 240};
constexpr std::array kTapl{0, 1, 2, 3, 4, 5, 6, 12, 18, 30, 60, 180, 240};

constexpr std::array kParameters{
    Parametro{"LOUT", Screen::Hub, Kind::Cursore, Words::ScalaVolume, 0, 20, 14},
    Parametro{"LLOU", Screen::Hub, Kind::Cursore, Words::ScalaLoudness, 0, 20, 0},
    Parametro{"LTRE", Screen::Hub, Kind::Cursore, Words::ScalaToni, 0, 20, 10},
    Parametro{"LBAS", Screen::Hub, Kind::Cursore, Words::ScalaToni, 0, 20, 10},
    Parametro{"MOMN", Screen::Hub, Kind::Acceso, Words::Monitor, 0, 1, 0},
    Parametro{"IMOD", Screen::Hub, Kind::Polarita, Words::Polarita, 0, 1, 0},
    Parametro{"TPCM", Screen::Hub, Kind::Persistenza, Words::Persistenza, 0, 255, 0},
    Parametro{"MICP", Screen::Hub, Kind::Acceso, Words::Continuo, 0, 1, 0},
    Parametro{"MIRS", Screen::Hub, Kind::Riavvio, Words::Riavvio, 0, 1, 0},
    Parametro{"MPLL", Screen::Hub, Kind::MaiLetto, Words::Loop, 5, 6, 5},
    Parametro{"LMP3", Screen::Fade, Kind::Cursore, Words::ScalaPercento, 0, 20, 14},
    Parametro{"LLIN", Screen::Fade, Kind::Cursore, Words::ScalaVolume, 0, 20, 14},
    Parametro{"LLI2", Screen::Fade, Kind::Cursore, Words::ScalaVolume, 0, 20, 14},
    Parametro{"TFOU", Screen::Fade, Kind::Secondi, Words::Secondi, 1, 30, 1},
    Parametro{"TFIN", Screen::Fade, Kind::Secondi, Words::Secondi, 1, 30, 1},
    Parametro{"TADU", Screen::Fade, Kind::Secondi, Words::Secondi, 1, 30, 1},
    Parametro{"TAVC", Screen::Fade, Kind::Lista, Words::Reazione, 0, 4, 0},
    Parametro{"CMAD", Screen::Seriale, Kind::Lista, Words::Numero, 0, 31, 31},
    Parametro{"CMCK", Screen::Seriale, Kind::Lista, Words::VociNumerate, 0, 1, 0, "Checksum ",
              110012},
    Parametro{"CMCL", Screen::Seriale, Kind::Lista, Words::VociNumerate, 0, 1, 0, "CR LF ", 110012},
    Parametro{"CMBR", Screen::Seriale, Kind::Lista, Words::Baud, 0, 3, 0},
    Parametro{"CMPR", Screen::Seriale, Kind::Lista, Words::VociNumerate, 0, 2, 0, {}, 110014},
    Parametro{"CMSB", Screen::Seriale, Kind::Lista, Words::BitStop, 1, 2, 1},
    Parametro{"CMDB", Screen::Seriale, Kind::Lista, Words::BitDati, 7, 8, 7},
    Parametro{"CMDR", Screen::Seriale, Kind::Lista, Words::Ritardo, 0, 15, 0},
    Parametro{"CMI3", Screen::Seriale, Kind::Lista, Words::VociNumerate, 0, 5, 0, {}, 110024},
    Parametro{"ORI3", Screen::Seriale, Kind::Lista, Words::VociNumerate, 0, 1, 0, {}, 110031},
    Parametro{"OMON", Screen::Extra, Kind::Lista, Words::VociNumerate, 0, 1, 0, {}, 190002},
    Parametro{"INVR", Screen::Extra, Kind::Ponte, Words::Casella, 0, 1, 0},
    Parametro{"PYDT", Screen::Extra, Kind::Lista, Words::VociNumerate, 0, 1, 0, {}, 190013},
    Parametro{"PYDL", Screen::Extra, Kind::ListaDati, Words::Voci, 0, 240, 0, {}, 190015, kPydl},
    Parametro{"TAPL", Screen::Extra, Kind::ListaDati, Words::Voci, 0, 240, 0, {}, 190028, kTapl},
    Parametro{"RSPL", Screen::Extra, Kind::Lista, Words::Voci, 1, 50, 1, {}, 190041},
    Parametro{"MOMD", Screen::Extra, Kind::Lista, Words::VociNumerate, 0, 1, 0, {}, 190091},
};

bool IsOneOf(std::string_view key, std::initializer_list<std::string_view> keys) {
  return std::find(keys.begin(), keys.end(), key) != keys.end();
}

}  // namespace

std::span<const Parametro> Parametri() {
  return kParameters;
}

const Parametro* TrovaParametro(std::string_view chiave) {
  const auto* found = std::find_if(kParameters.begin(), kParameters.end(), [&](const auto& each) {
    return EqualFold(each.Chiave, chiave);
  });
  return found == kParameters.end() ? nullptr : found;
}

bool Raggiungibile(const Parametro& parametro, std::int16_t playerType, std::int16_t playerMode) {
  if (playerType < 1 || playerType > 4) return false;
  const bool kvr5 = playerType == 4;
  const std::string_view key = parametro.Chiave;
  if (IsOneOf(key, {"LOUT", "LLOU", "LTRE", "LBAS"})) return true;
  if (parametro.Schermo == Screen::Fade) return true;
  if (key == "MOMN") return playerType == 1;
  if (IsOneOf(key, {"IMOD", "MICP", "MIRS"})) return !kvr5 || playerMode == 1;
  if (key == "TPCM") return !kvr5 || playerMode != 2;
  if (IsOneOf(key, {"OMON", "INVR", "MOMD"})) return kvr5;
  if (IsOneOf(key, {"PYDT", "PYDL", "TAPL", "RSPL"})) return kvr5 && playerMode == 1;
  return false;  // the serial keys and MPLL: their frames are hidden in every model
}

}  // namespace kvr5
