#include <algorithm>
#include <charconv>

#include "playerconfig/CasellaNumero.h"
#include "playerconfig/Parametri.h"

namespace kvr5 {
namespace {

using Kind = TipoParametro;

bool Holds(const Parametro& parameter, int value) {
  if (parameter.Tipo == Kind::ListaDati) {
    return std::find(parameter.Dati.begin(), parameter.Dati.end(), value) != parameter.Dati.end();
  }
  return value >= parameter.Minimo && value <= parameter.Massimo;
}

/// A list or slider takes a value that it can hold and keeps its state otherwise. An item's own
/// value is looked for as it is; an index is what is left of the value without the list's offset,
/// and is made whole only then.
StatoParametro TakeNumber(const Parametro& parameter, std::string_view text,
                          const StatoParametro& before, const Locale& locale) {
  const auto number = TextToNumber(text, locale);
  constexpr double kLarge = 32767;
  if (!number || *number < -kLarge || *number > kLarge) return before;
  const bool own = parameter.Tipo == Kind::ListaDati;
  const double whole = own ? *number : ArrotondaPari(*number - parameter.Minimo) + parameter.Minimo;
  const int value = static_cast<int>(whole);
  if (value != whole || !Holds(parameter, value)) return before;
  return {value, {}};
}

/// The check of the box runs on the file's value, too.
StatoParametro TakeSeconds(const Parametro& parameter, std::string_view text,
                           const Locale& locale) {
  return {0, NumeroControllato(text, parameter.Minimo, parameter.Massimo, locale)};
}

/// TPCM: anything but "0" is put into the box as a number; what is no number leaves the box.
StatoParametro TakePersistence(std::string_view text, const StatoParametro& before,
                               const Locale& locale) {
  if (text == "0") return {0, "0"};
  const auto number = TextToInt16(text, locale);
  if (!number) return {1, before.Testo};
  return {1, std::to_string(number.Value())};
}

std::optional<int> PlainNumber(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool digits =
      std::all_of(text.begin(), text.end(), [](char each) { return each >= '0' && each <= '9'; });
  if (text.empty() || !digits || error != std::errc() || end != text.data() + text.size()) {
    return {};
  }
  return value;
}

}  // namespace

StatoParametro StatoIniziale(const Parametro& parametro) {
  switch (parametro.Tipo) {
    case Kind::Persistenza:
      return {0, "0"};
    case Kind::Secondi:
      return {0, ""};
    default:
      return {parametro.Iniziale, {}};
  }
}

StatoParametro DalFile(const Parametro& parametro, std::string_view testo,
                       const StatoParametro& prima, const Locale& luogo) {
  switch (parametro.Tipo) {
    case Kind::Riavvio:
      return {1, {}};  // restart in both outcomes of the comparison, on purpose
    case Kind::MaiLetto:
      return prima;
    case Kind::Secondi:
      return TakeSeconds(parametro, testo, luogo);
    default:
      break;
  }
  if (parametro.Tipo == Kind::Acceso) return {testo == "1" ? 1 : 0, {}};
  if (testo.empty()) return prima;
  switch (parametro.Tipo) {
    case Kind::Polarita:
      return {testo == "0" ? 0 : 1, {}};
    case Kind::Persistenza:
      return TakePersistence(testo, prima, luogo);
    case Kind::Ponte: {
      const auto number = TextToNumber(testo, luogo);
      return number ? StatoParametro{*number > 0 ? 1 : 0, {}} : prima;
    }
    default:
      return TakeNumber(parametro, testo, prima, luogo);
  }
}

std::string PerIlFile(const Parametro& parametro, const StatoParametro& stato) {
  const bool text = parametro.Tipo == Kind::Persistenza || parametro.Tipo == Kind::Secondi;
  return text ? stato.Testo : std::to_string(stato.Numero);
}

std::string LimitiDelValore(const Parametro& parametro) {
  if (parametro.Dati.empty()) {
    return std::to_string(parametro.Minimo) + " to " + std::to_string(parametro.Massimo);
  }
  std::string values;
  for (const int value : parametro.Dati) {
    if (!values.empty()) values += ", ";
    values += std::to_string(value);
  }
  return values;
}

std::optional<std::string> ValoreAccettato(const Parametro& parametro, std::string_view valore) {
  const auto number = PlainNumber(valore);
  if (!number || !Holds(parametro, *number)) return {};
  const bool text = parametro.Tipo == Kind::Persistenza || parametro.Tipo == Kind::Secondi;
  constexpr std::size_t kLongestValue = 99;  // what a reading of the file gives at the most
  if (text && valore.size() > kLongestValue) return {};
  return text ? std::string(valore) : std::to_string(*number);
}

}  // namespace kvr5
