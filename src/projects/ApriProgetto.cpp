#include "projects/ApriProgetto.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "platform/FileOps.h"
#include "projects/CartellaProgetto.h"
#include "projects/Descrittore.h"

namespace kvr5 {
namespace {

/// The missing-file box; `name` is how the box names the file.
EsitoApertura TellMissing(Contesto& contesto, const std::string& name) {
  contesto.Finestre.MostraMessaggio(
      {TestoLingua(contesto, "0090017"),
       TestoLingua(contesto, "0090018") + "'" + name + "'\r\n" + TestoLingua(contesto, "0090019"),
       Icona::Informazione, Pulsanti::Ok, Risposta::Ok});
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
  return EsitoApertura::FileMancante;
}

bool HasFile(const Contesto& contesto, std::string_view name) {
  return FileExists(contesto.Files, FileDelProgetto(contesto, name));
}

}  // namespace

EsitoApertura ApriProgetto(Contesto& contesto, const std::string& cartella) {
  auto& state = contesto.Stato;
  if (Rifila(cartella).empty() || !FolderExists(contesto.Files, cartella)) {
    return EsitoApertura::NessunaCartella;
  }
  state.CartellaProgetto = cartella;
  if (!HasFile(contesto, "config.txt")) return TellMissing(contesto, "Config.txt");
  if (!HasFile(contesto, "config.cfg")) return TellMissing(contesto, "config.cfg");
  LeggiDescrittore(contesto);
  if (!ProgettoSenzaInputcfg(state.PlayerType, state.PlayerConfig, state.PlayerMode) &&
      !HasFile(contesto, "inputcfg.mdb")) {
    return TellMissing(contesto, "input.mdb");  // the box has its own name for the file
  }
  return EsitoApertura::Aperto;
}

}  // namespace kvr5
