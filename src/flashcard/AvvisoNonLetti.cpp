#include "flashcard/AvvisoNonLetti.h"

#include <string>

#include "core/Lingua.h"
#include "core/Parole.h"

namespace kvr5 {

void AvvisaNonLetti(Contesto& contesto, const EsitoRegistrazione& esito) {
  if (esito.Fine != FineRegistrazione::Compiuta || esito.NonLetti.empty()) return;
  std::string names;
  for (const auto& name : esito.NonLetti) names += (names.empty() ? "" : ", ") + name;
  contesto.Finestre.MostraMessaggio(
      {TestoLinguaO(contesto, "0130254", "Not everything is on the card"),
       ConValori(TestoLinguaO(contesto, "0130255", "These could not be read: %1."), {names}),
       Icona::Avviso, Pulsanti::Ok, Risposta::Ok});
}

}  // namespace kvr5
