#include "core/screens/PulsanteAscolto.h"

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Testo.h"

namespace kvr5 {

void ImpostaAscolto(Contesto& contesto, Coppia& pulsante, const StatoAscolto& stato,
                    const char* suggerimento) {
  const std::string name = Std(pulsante.Scritta());
  pulsante.ImpostaIcona(stato.On ? "in-ascolto" : "ascolta");
  if (!stato.On) {
    pulsante.setAccessibleName(Qs(name));
    pulsante.setToolTip(Qs(TestoLingua(contesto, suggerimento)));
    return;
  }
  const std::string words = stato.Muto ? TestoLinguaO(contesto, "0130273", "%1, silent")
                                       : TestoLinguaO(contesto, "0130266", "%1, playing");
  pulsante.setAccessibleName(Qs(ConValori(words, {name})));
  pulsante.setToolTip(Qs(TestoLingua(contesto, stato.Muto ? "0130274" : "0130267")));
}

}  // namespace kvr5
