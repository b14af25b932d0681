#include "playerconfig/CasellaNumero.h"

#include <algorithm>
#include <utility>

#include "core/Impostazioni.h"

namespace kvr5 {
namespace {

constexpr char32_t kEnter = 13;
constexpr char32_t kFirstFiltered = 14;  // below are backspace and the like

bool IsDigit(char32_t character) {
  return character >= U'0' && character <= U'9';
}

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char each) { return each >= '0' && each <= '9'; });
}

/// The number that a text stands for inside the bounds.
int Inside(std::optional<double> number, int least, int greatest) {
  if (!number) return least;
  return static_cast<int>(ArrotondaPari(
      std::clamp(*number, static_cast<double>(least), static_cast<double>(greatest))));
}

}  // namespace

std::string NumeroControllato(std::string_view testo, int minimo, int massimo,
                              const Locale& luogo) {
  const auto number = TextToNumber(testo, luogo);
  const bool inside = number && *number >= minimo && *number <= massimo;
  // A longer text would come back from the file without its end.
  if (inside && AllDigits(testo) && testo.size() <= kCaratteriImpostazione) {
    return std::string(testo);
  }
  return std::to_string(Inside(number, minimo, massimo));
}

bool CasellaNumero::Tasto(char32_t carattere) {
  if (carattere == kEnter) {
    PerdeFuoco();
    return false;
  }
  return carattere < kFirstFiltered || IsDigit(carattere);
}

void CasellaNumero::PerdeFuoco() {
  Cambia(NumeroControllato(testo_, minimo_, massimo_, luogo_));
}

void CasellaNumero::Sposta(int passo) {
  const int now = Inside(TextToNumber(testo_, luogo_), minimo_, massimo_);
  Cambia(std::to_string(std::clamp(now + passo, minimo_, massimo_)));
}

}  // namespace kvr5
