#include "projects/screens/NotaNome.h"

#include "projects/NuovoProgetto.h"

namespace kvr5 {

bool HaCaratteriVietati(std::string_view nome) {
  return nome.find_first_of(kCaratteriVietati) != std::string_view::npos;
}

void VestiNota(EtichettaAvviso& nota, std::string_view nome) {
  nota.ImpostaAvviso(HaCaratteriVietati(nome));
}

}  // namespace kvr5
