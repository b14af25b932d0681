#include "flashcard/RaccoltaMp3.h"

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

using Fine = RigaRaccolta::Fine;

struct Taken {
  Fine End = Fine::Manca;
  Mancanza Why = Mancanza::Nessuna;
};

/// The row of a file that lies where it was chosen. The input pass doesn't look whether it is
/// there, and fails where another row has it already.
Taken TakeSource(Contesto& context, Passata pass, const std::string& source,
                 const std::string& tested, const std::string& target, ListaCopia& list) {
  const bool input = pass == Passata::Ingressi;
  if (source.find('|') != std::string::npos) return {Fine::Manca, Mancanza::Nome};
  if (!input && !FileExists(context.Files, tested)) {
    const Mancanza why = PercheManca(context.Files, tested);
    return {Fine::Manca, why == Mancanza::Nessuna ? Mancanza::Illeggibile : why};
  }
  if (list.Contiene(source)) {
    return input ? Taken{Fine::Manca, Mancanza::Comune} : Taken{Fine::GiaPresente};
  }
  list.Aggiungi(source, target);
  return {Fine::Aggiunta};
}

}  // namespace

Mancanza PercheManca(FileSystem& files, const std::string& percorso) {
  if (files.Open(percorso, OpenMode::Read)) return Mancanza::Nessuna;
  const auto info = files.Info(percorso);
  if (info) return info.Value().IsFolder ? Mancanza::Assente : Mancanza::Illeggibile;
  const int number = info.Err().Number();
  const bool there = number == errors::PathFileAccess || number == errors::PermissionDenied ||
                     number == errors::DeviceIo;
  return there ? Mancanza::Illeggibile : Mancanza::Assente;
}

RigaRaccolta RaccogliRiga(Contesto& contesto, Passata passata, const Recordset& righe,
                          ListaCopia& lista, std::string_view scheda) {
  const std::string alias = righe.Text("Alias");
  const bool readable = static_cast<bool>(righe.Get("Alias"));
  if (readable && alias.empty()) return {};
  const std::string folder = righe.Text("FilePath");
  const std::string name = righe.Text("FileName");
  const std::string tested = AggiungiBarra(folder) + name;
  const std::string missing = passata == Passata::Ingressi ? name : tested;
  // Every file sits in the card's root: a name that leads elsewhere is no alias. And the bar
  // divides the lists.
  if (!readable || alias.find_first_of("\\|") != std::string::npos) {
    return {Fine::Manca, {}, {}, missing, tested, Mancanza::Nome};
  }
  const std::string target = AggiungiBarra(scheda) + alias;
  const std::string copy = FileDelProgetto(contesto, alias);
  if (FileExists(contesto.Files, copy)) {
    if (lista.Contiene(copy)) return {Fine::GiaPresente, alias, copy};
    lista.Aggiungi(copy, target);
    return {Fine::Aggiunta, alias, copy};
  }
  const std::string source = folder + name;
  const auto [end, why] = TakeSource(contesto, passata, source, tested, target, lista);
  return {end, alias, source, end == Fine::Manca ? missing : std::string(), tested, why};
}

EsitoPassata RaccogliMp3(Contesto& contesto, Passata passata, Recordset& righe, ListaCopia& lista,
                         std::string_view database, std::string_view scheda) {
  if (!righe.IsOpen()) return {};
  EsitoPassata outcome;
  const Error error = WalkRows(righe, [&] {
    RigaRaccolta row = RaccogliRiga(contesto, passata, righe, lista, scheda);
    if (row.Esito == Fine::Manca) outcome = {false, std::move(row.FileMancante)};
    return outcome.Riuscita;
  });
  // A database that can't be read to its end would leave files off the card in silence.
  if (error && outcome.Riuscita) {
    outcome = {false, FileDelProgetto(contesto, database), true};
  }
  return outcome;
}

}  // namespace kvr5
