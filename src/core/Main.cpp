#include "core/Main.h"

#include "core/Aiuti.h"
#include "core/Avvio.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "core/Registro.h"

namespace kvr5 {

void Main(Contesto& contesto, SchermateAvvio& schermate, std::string_view rigaDiComando) {
  // Leaving the settings runs this again: obeying "/C" then would lead back to them for ever.
  if (contesto.Stato.MainGiaAvviato) rigaDiComando = {};
  contesto.Stato.MainGiaAvviato = true;
  ImpostaFileLingua(contesto);
  const bool toSettings = Rifila(rigaDiComando) == "/C";
  schermate.MostraSplash(toSettings ? Schermata::Impostazioni : Schermata::Menu);
  contesto.Messaggi.LasciaCorrere();
  InizializzaLog(contesto);
  schermate.AvviaTempoSplash();
  LeggiOpzioniApplicazione(contesto);
  AssicuraCartellaProgetti(contesto);
}

}  // namespace kvr5
