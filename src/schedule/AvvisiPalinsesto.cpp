#include "schedule/AvvisiPalinsesto.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
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
  std::set<std::string> seen;
  NumeroSegmento number;
  editor.Record(WalkRows(rows, [&] {
    const std::string day = rows.Text("NPlaylist");
    const std::int64_t id = rows.Number("ID");
    const std::string name = rows.Text("FileName");
    const std::string folder = rows.Text("FilePath");
    const std::string alias =
        AliasDelloSpot(day, number.Di(day, rows.Text("IDSched")), rows.Text("Pos"));
    if (names.Contiene(alias)) {
      const bool own = copie.Propria(id, folder, name) && EqualFold(rows.Text("Alias"), alias);
      if (own) return true;
      if (vecchie_.empty()) primaVecchia_ = name;
      vecchie_.insert(id);
    } else if (!seen.insert(FoldCase(AggiungiBarra(folder) + name)).second) {
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
  const auto line = [&words](const std::string& text) {
    words += (words.empty() ? "" : "\n") + text;
  };
  if (senzaNome_) line(TestoLinguaO(contesto, "0140132", "Give the copies their names back."));
  if (!vecchie_.empty()) line(ParoleCopiaDi(contesto, primaVecchia_));
  if (!ripetuti_.empty()) line(ParoleRipetutoDi(contesto, primoRipetuto_));
  return words;
}

}  // namespace kvr5
