#include "core/Avvio.h"

#include <algorithm>

#include "core/Aiuti.h"
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

bool CartellaDiProgetto(const Contesto& contesto, std::string_view cartella) {
  const std::string folder = AggiungiBarra(cartella);
  // In the spelling that they are written with: it is found at once, any other by a search.
  return FileExists(contesto.Files, folder + "Config.txt") &&
         FileExists(contesto.Files, folder + "Config.cfg");
}

bool HaProgetti(const Contesto& contesto) {
  const std::string root = AggiungiBarra(contesto.Stato.CartellaProgetti);
  const auto entries = contesto.Files.List(root);
  return entries && std::ranges::any_of(entries.Value(), [&](const FileInfo& each) {
           return each.IsFolder && CartellaDiProgetto(contesto, root + each.Name);
         });
}

}  // namespace kvr5
