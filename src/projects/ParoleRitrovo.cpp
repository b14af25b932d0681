#include "projects/ParoleRitrovo.h"

#include <algorithm>
#include <set>

#include "core/CartellaMp3.h"
#include "core/Impostazioni.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"

namespace kvr5 {
namespace {

/// The progress window's cancel ends the search.
class WithCancel : public OsservatoreRitrovo {
 public:
  explicit WithCancel(Contesto& context) : context_(context) {}
  bool Avanza(const std::string& /*cartella*/) override {
    context_.Messaggi.LasciaCorrere();
    return !context_.Stato.AnnullatoDaUtente;
  }

 private:
  Contesto& context_;
};

/// The names of rows that were not found, each once and on a line of its own, "and 7 more" last.
std::string NamesOf(Contesto& context, const EsitoRitrovo& outcome, bool doubtful) {
  constexpr std::size_t kNamed = 8;
  std::set<std::string> told;
  std::string names;
  for (const RigaRitrovata& row : outcome.Righe) {
    if (!row.Ora.empty() || row.Dubbia != doubtful) continue;
    if (!told.insert(FoldCase(row.Nome)).second || told.size() > kNamed) continue;
    names += "\r\n" + SuUnaRiga(row.Nome);
  }
  if (told.size() > kNamed) {
    names += "\r\n" + ConValori(TestoLinguaO(context, "0130323", "and %1 more"),
                                {std::to_string(told.size() - kNamed)});
  }
  return names;
}

std::string WordsOf(Contesto& context, const EsitoRitrovo& outcome) {
  const auto text = [&](const char* key, const char* words) {
    return TestoLinguaO(context, key, words);
  };
  if (outcome.Annullato) return text("0130335", "The search was stopped; nothing was changed.");
  std::string words =
      ConValori(text("0130336", "Found: %1 of %2"),
                {std::to_string(outcome.Trovati()), std::to_string(outcome.Righe.size())});
  const std::string doubtful = NamesOf(context, outcome, true);
  const std::string missing = NamesOf(context, outcome, false);
  if (!doubtful.empty()) words += "\r\n" + text("0130337", "In several folders:") + doubtful;
  if (!missing.empty()) words += "\r\n" + text("0130338", "Not found:") + missing;
  if (outcome.Causa) words += "\r\n" + outcome.Causa.Description();
  return words;
}

/// The folder that music was taken from last; "" where no settings are to be read, which a read
/// would make, and say so.
std::string WhereMusicWas(Contesto& contesto) {
  if (!FileExists(contesto.Files, FileImpostazioni(contesto))) return {};
  return CartellaIniziale(contesto, 0);
}

}  // namespace

Messaggio BoxRitrovo(Contesto& contesto, const EsitoRitrovo& esito) {
  const bool whole = !esito.Annullato && !esito.Causa && esito.Trovati() == esito.Righe.size();
  return {TestoLinguaO(contesto, "0130334", "Missing files"), WordsOf(contesto, esito),
          whole ? Icona::Informazione : Icona::Avviso, Pulsanti::Ok, Risposta::Ok};
}

void RitrovaEDillo(Contesto& contesto, FinestraProgresso& progresso) {
  const std::string folder = contesto.Finestre.SfogliaCartella(
      TestoLinguaO(contesto, "0130332", "Look in this folder, and all below it"),
      WhereMusicWas(contesto));
  contesto.Messaggi.LasciaCorrere();
  if (folder.empty() || !FolderExists(contesto.Files, folder)) return;
  contesto.Stato.AnnullatoDaUtente = false;
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  progresso.Operazione(TestoLinguaO(contesto, "0130333", "Looking for missing files"));
  progresso.Mostra();
  WithCancel observer(contesto);
  const EsitoRitrovo outcome = RitrovaFile(contesto, folder, observer);
  progresso.Scarica();
  contesto.Messaggi.ImpostaPuntatore(Puntatore::Normale);
  contesto.Finestre.MostraMessaggio(BoxRitrovo(contesto, outcome));
}

}  // namespace kvr5
