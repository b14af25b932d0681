#include <algorithm>
#include <array>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "playerconfig/Parametri.h"
#include "playerconfig/Scale.h"

namespace kvr5 {
namespace {

using Words = ParoleParametro;

std::string LanguageKey(int number) {
  return RiempiZeri(std::to_string(number), 7);
}

std::string LanguageText(Contesto& context, int key) {
  return TestoLingua(context, LanguageKey(key));
}

/// Place of a value in its list.
int ItemIndex(const Parametro& parameter, int value) {
  if (parameter.Tipo != TipoParametro::ListaDati) return value - parameter.Minimo;
  const auto found = std::find(parameter.Dati.begin(), parameter.Dati.end(), value);
  return static_cast<int>(found - parameter.Dati.begin());
}

std::string NumberedItem(Contesto& context, const Parametro& parameter, int value) {
  return std::to_string(value) + " - " + std::string(parameter.PrefissoVoce) +
         LanguageText(context, parameter.PrimaChiave + ItemIndex(parameter, value));
}

std::string ReactionTime(Contesto& context, int value) {
  if (value == 0) return "0 - " + TestoLingua(context, "0170005");
  if (value == 1) return "2/10 " + TestoLingua(context, "0170011");
  return std::to_string(1 << (value - 1)) + " " + TestoLingua(context, "0170010");
}

std::string SerialDelay(Contesto& context, int value) {
  if (value == 0) return "0 - " + TestoLingua(context, "0110017") + " 4 ms";
  return std::to_string(value) + " - " + TestoLingua(context, "0110018") + " " +
         std::to_string(value * 10) + " ms";
}

std::string Baud(int value) {
  constexpr std::array<std::string_view, 4> kRates{"1200", "2400", "4800", "9600"};
  return std::to_string(value) + " - " +
         std::string(kRates[static_cast<std::size_t>(std::clamp(value, 0, 3))]) + " bps";
}

std::string OptionCaption(Words words, int value) {
  switch (words) {
    case Words::Monitor:
      return value == 1 ? "ON" : "OFF";
    case Words::Polarita:
      return value == 0 ? "0 - active high" : "1 - active low";
    case Words::Continuo:
      return value == 1 ? "1 - Continuos play / loop" : "0";
    case Words::Riavvio:
      return value == 1 ? "1 - Restart" : "0";
    case Words::Loop:
      return value == 5 ? "8 - Loop" : "9 - No loop";
    default:
      return value == 1 ? "ON" : "OFF";
  }
}

}  // namespace

std::vector<int> ValoriDelleVoci(const Parametro& parametro) {
  if (!parametro.Dati.empty()) return {parametro.Dati.begin(), parametro.Dati.end()};
  std::vector<int> values;
  for (int value = parametro.Minimo; value <= parametro.Massimo; ++value) values.push_back(value);
  return values;
}

std::vector<std::string> ChiaviDelleVoci() {
  std::vector<std::string> keys;
  for (const Parametro& parameter : Parametri()) {
    if (parameter.PrimaChiave == 0) continue;
    const int items = static_cast<int>(ValoriDelleVoci(parameter).size());
    for (int i = 0; i < items; ++i) keys.push_back(LanguageKey(parameter.PrimaChiave + i));
  }
  return keys;
}

std::string ParoleDelFile(Contesto& contesto, const Parametro& parametro, std::string_view testo) {
  if (parametro.Tipo == TipoParametro::MaiLetto) {
    const auto number = ValoreAccettato(parametro, testo);
    if (!number) return {};
    return ParoleDelValore(contesto, parametro, {std::stoi(*number), {}});
  }
  return ParoleDelValore(contesto, parametro,
                         DalFile(parametro, testo, StatoIniziale(parametro), contesto.Luogo));
}

std::string ParoleDelValore(Contesto& contesto, const Parametro& parametro,
                            const StatoParametro& stato) {
  const int value = stato.Numero;
  switch (parametro.Parole) {
    case Words::ScalaVolume:
      return std::string(TestoScalaVolume(value));
    case Words::ScalaLoudness:
      return std::string(TestoScalaLoudness(value));
    case Words::ScalaToni:
      return std::string(TestoScalaToni(value));
    case Words::ScalaPercento:
      return std::string(TestoScalaPercento(value));
    case Words::Persistenza:
      return value == 0 ? "OFF" : stato.Testo + " Millisecond";
    case Words::Secondi:
      return stato.Testo + " Sec";
    case Words::Reazione:
      return ReactionTime(contesto, value);
    case Words::Numero:
      return std::to_string(value);
    case Words::Voci:
      return LanguageText(contesto, parametro.PrimaChiave + ItemIndex(parametro, value));
    case Words::VociNumerate:
      return NumberedItem(contesto, parametro, value);
    case Words::Baud:
      return Baud(value);
    case Words::BitStop:
      return std::to_string(value) + " - " + std::to_string(value) + " StopBits";
    case Words::BitDati:
      return std::to_string(value) + " - " + std::to_string(value) + " Bits";
    case Words::Ritardo:
      return SerialDelay(contesto, value);
    default:
      return OptionCaption(parametro.Parole, value);
  }
}

}  // namespace kvr5
