#include "schedule/AvvisiPalinsesto.h"

#include <map>
#include <string_view>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/Fold.h"
#include "platform/db/Walk.h"
#include "schedule/AliasSpot.h"

namespace kvr5 {
namespace {

/// The names in the project's folder, with their letters made small.
std::set<std::string, std::less<>> NamesInProject(Contesto& context) {
  std::set<std::string, std::less<>> names;
  if (const auto entries = context.Files.List(context.Stato.CartellaProgetto)) {
    for (const FileInfo& each : entries.Value()) names.insert(FoldCase(each.Name));
  }
  return names;
}

}  // namespace

AvvisiPalinsesto::AvvisiPalinsesto(EditorPalinsesto& editor) {
  auto& context = editor.C();
  Recordset rows;
  if (!editor.ConnessionePalinsesto().IsOpen() ||
      !editor.Record(rows.Open(editor.ConnessionePalinsesto(),
                               "SELECT * FROM [LIST] ORDER BY [NPlaylist],[IDSChed],[Pos]"))) {
    return;
  }
  const auto names = NamesInProject(context);
  const std::string project = FoldCase(AggiungiBarra(context.Stato.CartellaProgetto));
  std::set<std::string> seen;
  NumeroSegmento number;
  editor.Record(WalkRows(rows, [&] {
    const std::string day = rows.Text("NPlaylist");
    const std::int64_t id = rows.Number("ID");
    const std::string name = rows.Text("FileName");
    const std::string folder = FoldCase(AggiungiBarra(rows.Text("FilePath")));
    const std::string alias = FoldCase(
        AliasDelloSpot(day, number.Di(day, rows.Text("IDSched")), rows.Text("Pos")));
    if (names.contains(alias)) {
      if (folder == project && FoldCase(rows.Text("Alias")) == alias) return true;  // its own
      if (vecchie_.empty()) primaVecchia_ = name;
      vecchie_.insert(id);
    } else if (!seen.insert(folder + FoldCase(name)).second) {
      if (ripetuti_.empty()) primoRipetuto_ = name;
      ripetuti_.insert(id);
    }
    return true;
  }));
}

std::string AvvisiPalinsesto::ParoleCopiaDi(Contesto& contesto, const std::string& nome) {
  return ConValori(
      TestoLinguaO(contesto, "0140102", "A recording would take an older copy for %1."),
      {SuUnaRiga(nome)});
}

std::string AvvisiPalinsesto::ParoleRipetutoDi(Contesto& contesto, const std::string& nome) {
  return ConValori(TestoLinguaO(contesto, "0140103", "%1 stands in several spots."),
                   {SuUnaRiga(nome)});
}

std::string AvvisiPalinsesto::Parole(Contesto& contesto) const {
  std::string words;
  if (!vecchie_.empty()) words = ParoleCopiaDi(contesto, primaVecchia_);
  if (ripetuti_.empty()) return words;
  return words + (words.empty() ? "" : "\n") + ParoleRipetutoDi(contesto, primoRipetuto_);
}

}  // namespace kvr5
