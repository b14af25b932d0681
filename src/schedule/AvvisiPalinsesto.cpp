#include "schedule/AvvisiPalinsesto.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/FileOps.h"
#include "platform/Fold.h"
#include "platform/db/Walk.h"
#include "playerconfig/NomiCartella.h"
#include "schedule/AliasSpot.h"

namespace kvr5 {
AvvisiPalinsesto::AvvisiPalinsesto(EditorPalinsesto& editor, const CopieDegliSpot& copie)
    : senzaNome_(copie.SenzaNome(editor.C())) {
  auto& context = editor.C();
  Recordset rows;
  if (!editor.ConnessionePalinsesto().IsOpen() ||
      !editor.Record(rows.Open(editor.ConnessionePalinsesto(),
                               "SELECT * FROM [LIST] ORDER BY [NPlaylist],[IDSChed],[Pos]"))) {
    return;
  }
  const NomiCartella names(context.Files, context.Stato.CartellaProgetto);
  const std::string project = AggiungiBarra(context.Stato.CartellaProgetto);
  NumeroSegmento number;
  std::vector<Candidato> candidates;
  editor.Record(WalkRows(rows, [&] {
    const std::string day = rows.Text("NPlaylist");
    const std::int64_t id = rows.Number("ID");
    const std::string name = rows.Text("FileName");
    const std::string folder = rows.Text("FilePath");
    const std::string alias =
        AliasDelloSpot(day, number.Di(day, rows.Text("IDSched")), rows.Text("Pos"));
    const std::string path = AggiungiBarra(folder) + name;
    const bool copied = names.Contiene(alias);
    const bool same = EqualFold(rows.Text("Alias"), alias) && copie.Propria(id, folder, name);
    if (copied && (same || EqualFold(path, project + alias))) return true;  // its own
    if (copied) {
      if (vecchie_.empty()) primaVecchia_ = name;
      vecchie_.insert(id);
    }
    candidates.push_back({rows.Number("NPlaylist"), rows.Number("Pos"), id, path, name});
    return true;
  }));
  SegnaRipetuti(context, candidates);
}

void AvvisiPalinsesto::SegnaRipetuti(const Contesto& contesto, std::vector<Candidato>& candidati) {
  // A recording goes by day and place.
  std::ranges::stable_sort(candidati, [](const Candidato& a, const Candidato& b) {
    return std::tie(a.Giorno, a.Pos, a.ID) < std::tie(b.Giorno, b.Pos, b.ID);
  });
  std::set<std::string> seen;
  for (const Candidato& each : candidati) {
    if (seen.insert(FoldCase(each.Percorso)).second) continue;
    if (ripetuti_.empty()) primoRipetuto_ = each.Nome;
    ripetuti_.insert(each.ID);
    copiabili_ = copiabili_ || FileExists(contesto.Files, each.Percorso);
  }
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
  const auto line = [&words](const std::string& text) {
    words += (words.empty() ? "" : "\n") + text;
  };
  if (senzaNome_) line(TestoLinguaO(contesto, "0140132", "Give the copies their names back."));
  if (!ripetuti_.empty()) line(ParoleRipetutoDi(contesto, primoRipetuto_));
  if (!vecchie_.empty()) line(ParoleCopiaDi(contesto, primaVecchia_));
  return words;
}

}  // namespace kvr5
