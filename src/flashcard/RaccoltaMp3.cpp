#include "flashcard/RaccoltaMp3.h"

#include "core/Aiuti.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

EsitoPassata CollectRow(Contesto& context, Passata pass, const Recordset& rows, ListaCopia& list,
                        std::string_view card) {
  const std::string alias = rows.Text("Alias");
  const bool readable = static_cast<bool>(rows.Get("Alias"));
  if (readable && alias.empty()) return {};
  const std::string folder = rows.Text("FilePath");
  const std::string name = rows.Text("FileName");
  const std::string tested = AggiungiBarra(folder) + name;
  EsitoPassata missing{false, pass == Passata::Ingressi ? name : tested};
  // Every file sits in the card's root: a name that leads elsewhere is no alias. And the bar
  // divides the lists.
  if (!readable || alias.find_first_of("\\|") != std::string::npos) return missing;
  const std::string target = AggiungiBarra(card) + alias;
  const std::string copy = FileDelProgetto(context, alias);
  if (FileExists(context.Files, copy)) {
    if (!list.Contiene(copy)) list.Aggiungi(copy, target);
    return {};
  }
  const std::string source = folder + name;
  if (source.find('|') != std::string::npos) return missing;
  if (pass == Passata::Ingressi) {
    if (list.Contiene(source)) return missing;
    list.Aggiungi(source, target);
    return {};
  }
  if (!FileExists(context.Files, tested)) return missing;
  if (!list.Contiene(source)) list.Aggiungi(source, target);
  return {};
}

}  // namespace

EsitoPassata RaccogliMp3(Contesto& contesto, Passata passata, Recordset& righe, ListaCopia& lista,
                         std::string_view database, std::string_view scheda) {
  if (!righe.IsOpen()) return {};
  EsitoPassata outcome;
  const Error error = WalkRows(righe, [&] {
    outcome = CollectRow(contesto, passata, righe, lista, scheda);
    return outcome.Riuscita;
  });
  // A database that can't be read to its end would leave files off the card in silence.
  if (error && outcome.Riuscita) {
    outcome = {false, FileDelProgetto(contesto, database), true};
  }
  return outcome;
}

}  // namespace kvr5
