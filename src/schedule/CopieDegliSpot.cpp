#include "schedule/CopieDegliSpot.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/ListaCopia.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/Path.h"
#include "platform/db/Walk.h"
#include "playerconfig/NomiCartella.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

/// Whether a file of the project can have this name.
bool CanBeNamed(const std::string& name) {
  return CardCanHold(name) && FaultOf(name) == NameFault::None;
}

}  // namespace

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
    const bool other = !EqualFold(copy.Alias, copy.Nome);
    if (other && !copy.Alias.empty() && names.Contiene(copy.Alias)) {
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

bool CopieDegliSpot::SenzaNome(Contesto& contesto) const {
  if (copie_.empty()) return false;
  const NomiCartella names(contesto.Files, contesto.Stato.CartellaProgetto);
  return std::ranges::any_of(copie_, [&](const auto& each) {
    return CanBeNamed(each.second.Nome) && !names.Contiene(each.second.Nome);
  });
}

void CopieDegliSpot::RidaiNomi(EditorPalinsesto& editor) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  const NomiCartella names(context.Files, context.Stato.CartellaProgetto);
  ListaCopia list;
  std::set<std::string> given;
  std::vector<std::int64_t> named;
  for (const auto& [id, each] : copie_) {
    if (!CanBeNamed(each.Nome) || names.Contiene(each.Nome)) continue;
    if (!given.insert(FoldCase(each.Nome)).second) continue;
    list.Aggiungi(FileDelProgetto(context, each.Alias), FileDelProgetto(context, each.Nome));
    named.push_back(id);
  }
  if (named.empty()) return;
  CopiaFileShell(context, list.ListaSorgenti(), list.ListaDestinazioni());
  for (const std::int64_t id : named) PortaInProgetto(editor, id, copie_.at(id));
  editor.AggiornaElencoSegmenti(editor.SegmentoCorrente());
}

void CopieDegliSpot::PortaInProgetto(EditorPalinsesto& editor, std::int64_t id, Copia& copia) {
  auto& context = editor.C();
  const std::string project = AggiungiBarra(context.Stato.CartellaProgetto);
  const bool there = FileExists(context.Files, FileDelProgetto(context, copia.Nome));
  if (!there || EqualFold(copia.Cartella, project)) return;
  Recordset row;
  const std::string query = "SELECT * FROM [List] WHERE ID=" + std::to_string(id);
  if (!editor.Record(row.Open(editor.ConnessionePalinsesto(), query))) return;
  editor.Record(row.Set("FilePath", project));
  if (!editor.Record(row.Update())) return;
  copia.Cartella = project;
  editor.Modificato();
}

}  // namespace kvr5
