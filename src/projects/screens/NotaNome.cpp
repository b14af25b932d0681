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

}  // namespace

void ValutaNome(Contesto& contesto, QLineEdit& campo, EtichettaAvviso& nota, QLabel& cartella) {
  const std::string name = Std(campo.text());
  const bool blank = Rifila(name).empty();
  const bool forbidden = name.find_first_of(kCaratteriVietati) != std::string::npos;
  nota.ImpostaAvviso(forbidden);
  QString warning;
  if (forbidden) {
    warning = Qs(TestoLingua(contesto, "0130108"));
  } else if (!blank && !NomeAmmesso(contesto, name)) {
    warning = Qs(TestoLingua(contesto, "0130253"));
  }
  campo.setAccessibleDescription(warning);
  if (blank || forbidden) return Scrivi(cartella, Ruolo::Attenuato, {});
  if (!warning.isEmpty()) return Scrivi(cartella, Ruolo::Avviso, warning);
  const std::string folder = AggiungiBarra(contesto.Stato.CartellaProgetti) + name;
  Scrivi(cartella, Ruolo::Attenuato,
         Qs(TestoLingua(contesto, "0130107") + " " + PercorsoPerPersone(contesto, folder)));
}

}  // namespace kvr5
