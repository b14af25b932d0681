#include "playerconfig/CasellaPersistenza.h"

#include <algorithm>
#include <utility>

namespace kvr5 {
namespace {

constexpr int kGreatest = 255;
constexpr char32_t kEnter = 13;
constexpr char32_t kFirstFiltered = 14;  // below are backspace and the like

bool IsDigit(char32_t character) {
  return character >= U'0' && character <= U'9';
}

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char each) { return each >= '0' && each <= '9'; });
}

}  // namespace

bool CasellaPersistenza::Tasto(char32_t carattere) {
  if (carattere == kEnter) {
    PerdeFuoco();
    return false;
  }
  return carattere < kFirstFiltered || IsDigit(carattere);
}

void CasellaPersistenza::Cambia(std::string testo) {
  testo_ = std::move(testo);
  if (TextToNumber(testo_, luogo_)) acceso_ = testo_ != "0";
}

int CasellaPersistenza::Valore() const {
  const auto number = TextToNumber(testo_, luogo_);
  if (!number) return 0;
  return static_cast<int>(ArrotondaPari(std::clamp(*number, 0.0, double{kGreatest})));
}

void CasellaPersistenza::PerdeFuoco() {
  Cambia(testo_);
  const auto number = TextToNumber(testo_, luogo_);
  if (number && *number <= kGreatest && AllDigits(testo_)) return;
  Cambia(std::to_string(Valore()));
}

void CasellaPersistenza::ClicOff() {
  acceso_ = false;
  Cambia("0");
}

void CasellaPersistenza::Sposta(int passo) {
  Cambia(std::to_string(std::clamp(Valore() + passo, 0, kGreatest)));
}

}  // namespace kvr5
