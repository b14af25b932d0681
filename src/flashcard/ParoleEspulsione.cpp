#include "flashcard/ParoleEspulsione.h"

#include "core/Lingua.h"
#include "core/Parole.h"

namespace kvr5 {
namespace {

std::string EjectionWords(Contesto& contesto, std::string_view root, const Error& error) {
  if (!error) {
    return ConValori(TestoLinguaO(contesto, "0130307", "You can take the card %1 out now."),
                     {root});
  }
  if (error.Number() == errors::PermissionDenied) {
    return ConValori(TestoLinguaO(contesto, "0130308", "A program still uses the card %1."),
                     {root});
  }
  return ConValori(TestoLinguaO(contesto, "0130309", "The card %1 could not be ejected."), {root}) +
         "\r\n" + SuUnaRiga(error.Description());
}

}  // namespace

Messaggio BoxEspulsione(Contesto& contesto, std::string_view radice, const Error& errore) {
  return {TestoLinguaO(contesto, "0130158", "Eject card"), EjectionWords(contesto, radice, errore),
          errore ? Icona::Avviso : Icona::Informazione, Pulsanti::Ok, Risposta::Ok};
}

}  // namespace kvr5
