#include "playerconfig/CasellaPersistenza.h"

namespace kvr5 {

void CasellaPersistenza::Cambia(std::string testo) {
  CasellaNumero::Cambia(std::move(testo));
  if (TextToNumber(Testo(), Luogo())) acceso_ = Testo() != "0";
}

void CasellaPersistenza::ClicOff() {
  acceso_ = false;
  Cambia("0");
}

}  // namespace kvr5
