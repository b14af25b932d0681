#include "playlists/CopieDeiBrani.h"

#include <set>
#include <utility>

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/Lingua.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/db/Walk.h"
#include "playerconfig/CopiaNelProgetto.h"
#include "playerconfig/NomeLibero.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

/// A file as rows name it, without regard to case.
std::string FileKey(const std::string& folder, const std::string& name) {
  return FoldCase(AggiungiBarra(folder) + name);
}

std::string FileKey(const Recordset& rows) {
  return FileKey(rows.Text("FilePath"), rows.Text("FileName"));
}

}  // namespace

void CopieDeiBrani::Leggi(EditorPlaylist& editor) {
  constexpr std::int16_t kNamed = 9;  // its tracks have their own names on the card
  copie_.clear();
  superate_.clear();
  auto& context = editor.C();
  const bool named = context.Stato.PlayerMode == kNamed;
  // As a rule there are none, and the rows needn't be read.
  if (named || ListMatching(context.Files, FileDelProgetto(context, "P*-*.mp3")).empty()) return;
  const NomiCartella names(context.Files, context.Stato.CartellaProgetto);
  Recordset rows;
  if (!editor.ConnessionePlaylist().IsOpen() ||
      !editor.Record(rows.Open(editor.ConnessionePlaylist(), "SELECT * FROM [List]"))) {
    return;
  }
  editor.Record(WalkRows(rows, [&] {
    Copia copy{rows.Text("Alias"), rows.Text("FilePath"), rows.Text("FileName")};
    const bool there = !copy.Alias.empty() && names.Contiene(copy.Alias);
    const std::string source = AggiungiBarra(copy.Cartella) + copy.Nome;
    const bool itself = EqualFold(source, FileDelProgetto(context, copy.Alias));
    if (there && !itself && SembraCopiaDi(context, copy.Alias, source)) {
      copie_.try_emplace(FoldCase(copy.Alias), std::move(copy));
    }
    return true;
  }));
}

std::string CopieDeiBrani::Parole(Contesto& contesto) const {
  return copie_.empty() ? std::string()
                        : TestoLinguaO(contesto, "0050129", "Give the copies their names back.");
}

bool CopieDeiBrani::HaFile(const Contesto& contesto, const Copia& copia) {
  return FileExists(contesto.Files, AggiungiBarra(copia.Cartella) + copia.Nome);
}

void CopieDeiBrani::RidaiNomi(EditorPlaylist& editor) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  NomiCartella names(context.Files, context.Stato.CartellaProgetto);
  ListaCopia list;
  std::map<std::string, std::string> named;  // file -> its new name
  for (const auto& [alias, each] : copie_) {
    if (HaFile(context, each) || !PuoChiamarsi(each.Nome)) continue;
    const std::string file = FileKey(each.Cartella, each.Nome);
    if (named.contains(file)) continue;  // under two names on the card
    const bool taken = names.Contiene(each.Nome);
    std::string name = taken ? NomeLibero(names, each.Nome) : each.Nome;
    if (!taken) names.Rinominato({}, name);
    list.Aggiungi(FileDelProgetto(context, each.Alias), FileDelProgetto(context, name));
    named.emplace(file, std::move(name));
  }
  if (!named.empty()) {
    CopiaFileShell(context, list.ListaSorgenti(), list.ListaDestinazioni());
    AggiornaRighe(editor, named);
  }
  for (auto each = copie_.begin(); each != copie_.end();) {
    const bool has = HaFile(context, each->second);
    if (has) superate_.push_back(each->second);
    each = has ? copie_.erase(each) : std::next(each);
  }
  editor.AggiornaGrigliaPlaylist();
}

void CopieDeiBrani::AggiornaRighe(EditorPlaylist& editor,
                                  const std::map<std::string, std::string>& nomi) {
  auto& context = editor.C();
  const std::string project = AggiungiBarra(context.Stato.CartellaProgetto);
  const auto newName = [&](const std::string& file) {
    const auto found = nomi.find(file);
    const bool copied =
        found != nomi.end() && FileExists(context.Files, FileDelProgetto(context, found->second));
    return copied ? found->second : std::string();
  };
  Recordset rows;
  if (!editor.Record(rows.Open(editor.ConnessionePlaylist(), "SELECT * FROM [List]"))) return;
  int changed = 0;
  {
    Transaction all(editor.ConnessionePlaylist());
    editor.Record(WalkRows(rows, [&] {
      const std::string name = newName(FileKey(rows));
      if (name.empty()) return true;
      const bool set =
          editor.Record(rows.Set("FileName", name)) && editor.Record(rows.Set("FilePath", project));
      if (set && editor.Record(rows.Update())) {
        ++changed;
      } else {
        rows.CancelUpdate();
      }
      return true;
    }));
    if (!editor.Concludi(all)) return;
  }
  editor.Modificato(changed);
  for (auto& [alias, each] : copie_) {
    const std::string name = newName(FileKey(each.Cartella, each.Nome));
    if (!name.empty()) each = {each.Alias, project, name};
  }
}

void CopieDeiBrani::TogliSuperate(Contesto& contesto) {
  if (superate_.empty()) return;
  Connection saved(contesto.Files);
  Recordset rows;
  if (saved.Open(FileDelProgetto(contesto, "playlist.mdb")) ||
      rows.Open(saved, "SELECT [FileName],[FilePath] FROM [List]")) {
    return;
  }
  std::set<std::string> used;
  const Error failed = WalkRows(rows, [&] {
    used.insert(FileKey(rows));
    return true;
  });
  if (failed) return;
  for (const Copia& each : superate_) {
    const std::string copy = FileDelProgetto(contesto, each.Alias);
    if (used.contains(FoldCase(copy)) || !HaFile(contesto, each)) continue;
    Ignora(contesto.Files.Delete(copy));
  }
  superate_.clear();
}

}  // namespace kvr5
