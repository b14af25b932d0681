#include "playerconfig/TestoCifre.h"

#include <algorithm>

namespace kvr5 {

TestoConCaret TogliZeriInizialiTextBox(TestoConCaret casella, const Locale& luogo) {
  const auto value = TextToNumber(casella.Testo, luogo);
  if (!value) return casella;
  if (*value == 0) return {"0", std::min<std::size_t>(casella.Caret, 1)};
  const std::size_t zeros = casella.Testo.find_first_not_of('0');
  casella.Testo.erase(0, zeros);
  casella.Caret -= std::min(casella.Caret, zeros);
  return casella;
}

TestoConCaret FiltraCifreTextBox(TestoConCaret casella, const Locale& luogo) {
  if (TextToNumber(casella.Testo, luogo)) return casella;
  std::erase_if(casella.Testo, [](char each) { return each < '0' || each > '9'; });
  casella.Caret = std::min(casella.Caret, casella.Testo.size());
  return casella;
}

}  // namespace kvr5
