#include "playerconfig/screens/PulsanteAscolto.h"

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Testo.h"

namespace kvr5 {

void ImpostaAscolto(Contesto& contesto, Coppia& pulsante, bool on, const char* suggerimento) {
  const std::string name = Std(pulsante.Scritta());
  const std::string playing = ConValori(TestoLinguaO(contesto, "0130266", "%1, playing"), {name});
  pulsante.ImpostaIcona(on ? "in-ascolto" : "ascolta");
  pulsante.setAccessibleName(Qs(on ? playing : name));
  pulsante.setToolTip(Qs(TestoLingua(contesto, on ? "0130267" : suggerimento)));
}

}  // namespace kvr5
