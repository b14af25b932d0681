#include "core/Avvio.h"

#include <algorithm>

#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "core/Registro.h"
#include "platform/FileOps.h"

namespace kvr5 {

void AvviaSenzaSchermate(Contesto& contesto) {
  ImpostaFileLingua(contesto);
  AvviaConLingua(contesto);
}

void AvviaConLingua(Contesto& contesto) {
  InizializzaLog(contesto);
  LeggiOpzioniApplicazione(contesto);
  AssicuraCartellaProgetti(contesto);
}

void AssicuraCartellaProgetti(Contesto& contesto) {
  contesto.Errore.Clear();
  const auto& folder = contesto.Stato.CartellaProgetti;
  if (!FolderExists(contesto.Files, folder)) Ignora(contesto.Files.CreateFolder(folder));
}

bool HaCartelleDiProgetti(const Contesto& contesto) {
  const auto entries = contesto.Files.List(contesto.Stato.CartellaProgetti);
  return entries && std::ranges::any_of(entries.Value(), [](const FileInfo& each) {
           return each.IsFolder && !each.Hidden;
         });
}

}  // namespace kvr5
