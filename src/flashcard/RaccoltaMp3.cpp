#include "flashcard/RaccoltaMp3.h"

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

EsitoPassata CollectRow(Contesto& context, Passata pass, const Recordset& rows, ListaCopia& list) {
  const std::string alias = rows.Text("Alias");
  if (alias.empty()) return {};
  const std::string target = AggiungiBarra(context.Stato.PercorsoMemoryCard) + alias;
  const std::string copy = FileDelProgetto(context, alias);
  if (FileExists(context.Files, copy)) {
    if (!list.Contiene(copy)) list.Aggiungi(copy, target);
    return {};
  }
  const std::string folder = rows.Text("FilePath");
  const std::string name = rows.Text("FileName");
  const std::string source = folder + name;
  if (pass == Passata::Ingressi) {
    if (list.Contiene(source)) return {false, name};
    list.Aggiungi(source, target);
    return {};
  }
  const std::string tested = AggiungiBarra(folder) + name;
  if (!FileExists(context.Files, tested)) return {false, tested};
  if (!list.Contiene(source)) list.Aggiungi(source, target);
  return {};
}

}  // namespace

EsitoPassata RaccogliMp3(Contesto& contesto, Passata passata, Recordset& righe, ListaCopia& lista) {
  if (!righe.IsOpen() || righe.RecordCount() < 1) return {};
  for (Ignora(righe.MoveFirst()); !righe.Eof(); Ignora(righe.MoveNext())) {
    if (auto outcome = CollectRow(contesto, passata, righe, lista); !outcome.Riuscita) {
      return outcome;
    }
  }
  return {};
}

}  // namespace kvr5
