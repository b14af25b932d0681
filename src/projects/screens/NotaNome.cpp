#include "projects/screens/NotaNome.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "projects/NuovoProgetto.h"

namespace kvr5 {
namespace {

void Scrivi(QLabel& line, Ruolo role, const QString& text) {
  Veste(line, Carattere::Suggerimento, role);
  line.setText(text);
  line.setToolTip(Suggerimento(text));
}

QString Avvertenza(Contesto& contesto, const std::string& nome) {
  const auto words = [&](const char* key) { return Qs(TestoLingua(contesto, key)); };
  switch (DifettoDelNome(contesto, nome)) {
    case DifettoNome::Nessuno:
      return {};
    case DifettoNome::Carattere:
      return words("0130108");
    case DifettoNome::Fine:
      return words("0130253");
    case DifettoNome::Riservato:
      return words("0130259");
    case DifettoNome::Lungo:
      return words("0130260");
    case DifettoNome::Lettera:
      return words("0130261");
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
  Scrivi(cartella, Ruolo::Attenuato,
         Qs(TestoLingua(contesto, "0130107") + " " + PercorsoPerPersone(contesto, folder)));
}

}  // namespace kvr5
