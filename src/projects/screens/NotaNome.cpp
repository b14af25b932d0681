#include "projects/screens/NotaNome.h"

#include "core/screens/Tema.h"
#include "projects/NuovoProgetto.h"

namespace kvr5 {

bool HaCaratteriVietati(std::string_view nome) {
  return nome.find_first_of(kCaratteriVietati) != std::string_view::npos;
}

void VestiNota(QLabel& nota, std::string_view nome) {
  const bool warns = HaCaratteriVietati(nome);
  Veste(nota, warns ? Carattere::Riquadro : Carattere::Corpo,
        warns ? Ruolo::Avviso : Ruolo::Attenuato);
  QPalette palette = nota.palette();
  palette.setColor(QPalette::Window, Tema::Corrente().FondoAvviso);
  nota.setPalette(palette);
  nota.setAutoFillBackground(warns);
}

}  // namespace kvr5
