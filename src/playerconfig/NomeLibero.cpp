#include "playerconfig/NomeLibero.h"

#include "core/Aiuti.h"

namespace kvr5 {

std::string NomeLibero(NomiCartella& nomi, const std::string& nome) {
  const std::string stem = TogliEstensione(nome);
  for (int number = 2;; ++number) {
    const std::string behind = " (" + std::to_string(number) + ").mp3";
    const std::string next = (stem.empty() ? nome : stem) + behind;
    if (nomi.Contiene(next)) continue;
    nomi.Rinominato({}, next);
    return next;
  }
}

}  // namespace kvr5
