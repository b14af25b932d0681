#include "schedule/CopieRipetuti.h"

#include <string>
#include <vector>

#include "core/Aiuti.h"
#include "core/CopiaFileShell.h"
#include "core/ListaCopia.h"
#include "platform/FileOps.h"
#include "platform/db/Walk.h"
#include "playerconfig/NomeLibero.h"
#include "projects/CartellaProgetto.h"

namespace kvr5 {
namespace {

/// A copy to be made for a spot.
struct OwnCopy {
  std::int64_t Spot = 0;
  std::string Source;
  std::string Name;
};

std::vector<OwnCopy> CopiesToMake(EditorPalinsesto& editor, const AvvisiPalinsesto& warnings) {
  auto& context = editor.C();
  NomiCartella names(context.Files, context.Stato.CartellaProgetto);
  std::vector<OwnCopy> copies;
  Recordset rows;
  const bool read = editor.Record(
      rows.Open(editor.ConnessionePalinsesto(), "SELECT * FROM [List] ORDER BY [ID]"));
  if (!read) return copies;
  editor.Record(WalkRows(rows, [&] {
    const std::int64_t id = rows.Number("ID");
    const std::string name = rows.Text("FileName");
    const std::string source = AggiungiBarra(rows.Text("FilePath")) + name;
    if (warnings.Ripetuto(id) && FileExists(context.Files, source)) {
      copies.push_back({id, source, NomeLibero(names, name)});
    }
    return true;
  }));
  return copies;
}

/// Has a spot play its copy, where that was made.
void LeadTo(EditorPalinsesto& editor, const OwnCopy& copy) {
  auto& context = editor.C();
  if (!FileExists(context.Files, FileDelProgetto(context, copy.Name))) return;
  Recordset row;
  const std::string query = "SELECT * FROM [List] WHERE ID=" + std::to_string(copy.Spot);
  if (!editor.Record(row.Open(editor.ConnessionePalinsesto(), query))) return;
  const std::string project = AggiungiBarra(context.Stato.CartellaProgetto);
  const bool set =
      editor.Record(row.Set("FileName", copy.Name)) && editor.Record(row.Set("FilePath", project));
  if (set && editor.Record(row.Update())) return editor.Modificato();
  row.CancelUpdate();
}

}  // namespace

void CopiaRipetuti(EditorPalinsesto& editor, const AvvisiPalinsesto& avvisi) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  const std::vector<OwnCopy> copies = CopiesToMake(editor, avvisi);
  if (copies.empty()) return;
  ListaCopia list;
  for (const OwnCopy& each : copies) {
    list.Aggiungi(each.Source, FileDelProgetto(context, each.Name));
  }
  CopiaFileShell(context, list.ListaSorgenti(), list.ListaDestinazioni());
  {
    Transaction all(editor.ConnessionePalinsesto());
    for (const OwnCopy& each : copies) LeadTo(editor, each);
    editor.Record(all.End());
  }
  editor.AggiornaElencoSegmenti(editor.SegmentoCorrente());
}

}  // namespace kvr5
