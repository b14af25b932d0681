#include "projects/screens/NotaNome.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "platform/FileOps.h"
#include "projects/NuovoProgetto.h"

namespace kvr5 {
namespace {

void Scrivi(QLabel& line, Ruolo role, const QString& text) {
  Veste(line, Carattere::Suggerimento, role);
  line.setText(text);
  line.setToolTip(Suggerimento(text));
}

/// What to do about a name; "" for a good one.
QString Avvertenza(Contesto& contesto, const std::string& nome) {
  const auto words = [&](const char* key, const char* fallback) {
    return Qs(TestoLinguaO(contesto, key, fallback));
  };
  switch (DifettoDelNome(contesto, nome)) {
    case DifettoNome::Nessuno:
      break;
    case DifettoNome::Carattere:
      return words("0130108", "This name holds a character that isn't allowed");
    case DifettoNome::Fine:
      return words("0130253", "Take away the blank or dot at the end of this name");
    case DifettoNome::Riservato:
      return words("0130259", "This name is kept for a device. Choose another one.");
    case DifettoNome::Lungo:
      return words("0130260", "This name is too long. Choose a shorter one.");
    case DifettoNome::Lettera:
      return words("0130261", "This name holds a character that the project can't keep");
  }
  return {};
}

}  // namespace

void ValutaNome(Contesto& contesto, QLineEdit& campo, EtichettaAvviso& nota, QLabel& cartella) {
  const std::string name = Std(campo.text());
  const bool blank = Rifila(name).empty();
  const bool forbidden = name.find_first_of(kCaratteriVietati) != std::string::npos;
  nota.ImpostaAvviso(forbidden);
  const QString warning = blank ? QString() : Avvertenza(contesto, name);
  campo.setAccessibleDescription(warning);
  if (blank || forbidden) return Scrivi(cartella, Ruolo::Attenuato, {});
  if (!warning.isEmpty()) return Scrivi(cartella, Ruolo::Avviso, warning);
  const std::string folder = AggiungiBarra(contesto.Stato.CartellaProgetti) + name;
  if (FolderExists(contesto.Files, folder)) {
    const QString taken =
        Qs(TestoLinguaO(contesto, "0130312", "A project has this name. Choose another one."));
    campo.setAccessibleDescription(taken);
    return Scrivi(cartella, Ruolo::Avviso, taken);
  }
  Scrivi(cartella, Ruolo::Attenuato,
         Qs(TestoLingua(contesto, "0130107") + " " + PercorsoPerPersone(contesto, folder)));
}

}  // namespace kvr5
