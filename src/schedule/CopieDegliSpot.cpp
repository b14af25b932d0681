#include "schedule/CopieDegliSpot.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/ListaCopia.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/db/Walk.h"
#include "playerconfig/CopiaNelProgetto.h"
#include "playerconfig/NomeLibero.h"
#include "playerconfig/NomiCartella.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
void CopieDegliSpot::Leggi(EditorPalinsesto& editor) {
  copie_.clear();
  auto& context = editor.C();
  // As a rule there are none, and the rows needn't be read.
  if (ListMatching(context.Files, FileDelProgetto(context, "F*-*.mp3")).empty()) return;
  const NomiCartella names(context.Files, context.Stato.CartellaProgetto);
  Recordset rows;
  if (!editor.ConnessionePalinsesto().IsOpen() ||
      !editor.Record(rows.Open(editor.ConnessionePalinsesto(), "SELECT * FROM [List]"))) {
    return;
  }
  editor.Record(WalkRows(rows, [&] {
    Copia copy{rows.Text("Alias"), rows.Text("FilePath"), rows.Text("FileName")};
    const bool there = !copy.Alias.empty() && names.Contiene(copy.Alias);
    if (there && SembraCopiaDi(context, copy.Alias, AggiungiBarra(copy.Cartella) + copy.Nome)) {
      copie_.emplace(rows.Number("ID"), std::move(copy));
    }
    return true;
  }));
}

bool CopieDegliSpot::Propria(std::int64_t id, const std::string& cartella,
                             const std::string& nome) const {
  const auto found = copie_.find(id);
  return found != copie_.end() && EqualFold(found->second.Nome, nome) &&
         EqualFold(found->second.Cartella, cartella);
}

bool CopieDegliSpot::SenzaFile(const Contesto& contesto, const Copia& copia) {
  return PuoChiamarsi(copia.Nome) &&
         !FileExists(contesto.Files, AggiungiBarra(copia.Cartella) + copia.Nome);
}

bool CopieDegliSpot::SenzaNome(Contesto& contesto) const {
  return std::ranges::any_of(copie_,
                             [&](const auto& each) { return SenzaFile(contesto, each.second); });
}

void CopieDegliSpot::RidaiNomi(EditorPalinsesto& editor) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  NomiCartella names(context.Files, context.Stato.CartellaProgetto);
  ListaCopia list;
  std::vector<std::pair<std::int64_t, std::string>> named;
  for (const auto& [id, each] : copie_) {
    if (!SenzaFile(context, each)) continue;
    const bool taken = names.Contiene(each.Nome);
    std::string name = taken ? NomeLibero(names, each.Nome) : each.Nome;
    if (!taken) names.Rinominato({}, name);
    list.Aggiungi(FileDelProgetto(context, each.Alias), FileDelProgetto(context, name));
    named.emplace_back(id, std::move(name));
  }
  if (named.empty()) return;
  CopiaFileShell(context, list.ListaSorgenti(), list.ListaDestinazioni());
  {
    Transaction all(editor.ConnessionePalinsesto());
    for (const auto& [id, name] : named) PortaInProgetto(editor, id, copie_.at(id), name);
    editor.Record(all.End());
  }
  editor.AggiornaElencoSegmenti(editor.SegmentoCorrente());
}

void CopieDegliSpot::PortaInProgetto(EditorPalinsesto& editor, std::int64_t id, Copia& copia,
                                     const std::string& nome) {
  auto& context = editor.C();
  const std::string project = AggiungiBarra(context.Stato.CartellaProgetto);
  const bool same = copia.Nome == nome && EqualFold(copia.Cartella, project);
  if (same || !FileExists(context.Files, FileDelProgetto(context, nome))) return;
  Recordset row;
  const std::string query = "SELECT * FROM [List] WHERE ID=" + std::to_string(id);
  if (!editor.Record(row.Open(editor.ConnessionePalinsesto(), query))) return;
  const bool unchanged = row.RecordCount() == 1 && row.Text("FileName") == copia.Nome &&
                         row.Text("FilePath") == copia.Cartella;
  if (!unchanged) return;  // another file has taken its place meanwhile
  const bool set =
      editor.Record(row.Set("FileName", nome)) && editor.Record(row.Set("FilePath", project));
  if (!set || !editor.Record(row.Update())) return row.CancelUpdate();
  copia.Nome = nome;
  copia.Cartella = project;
  editor.Modificato();
}

}  // namespace kvr5
