#include "core/Aiuto.h"

#include "core/Aiuti.h"
#include "core/Impostazioni.h"

namespace kvr5 {

void ApriAiuto(Contesto& contesto, Esecutore& esecutore) {
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  const std::string document =
      LeggiParametroIni(contesto, contesto.Stato.FileLingua, "HelpFiles", "001");
  esecutore.Apri(AggiungiBarra(contesto.CartellaProgramma) + "Help\\" + document);
  contesto.Messaggi.LasciaCorrere();
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

}  // namespace kvr5
