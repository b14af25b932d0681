#include "playlists/NomiDoppi.h"

#include <unordered_map>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/Fold.h"
#include "platform/db/Walk.h"

namespace kvr5 {

NomiDoppi::NomiDoppi(EditorPlaylist& editor) {
  if (!editor.rsList().IsOpen()) return;
  Recordset rows;
  if (!editor.Record(
          rows.Open(editor.ConnessionePlaylist(), "SELECT [FileName],[FilePath] FROM [List]"))) {
    return;
  }
  std::unordered_map<std::string, std::string> folders;
  editor.Record(WalkRows(rows, [&] {
    const std::string name = rows.Text("FileName");
    const std::string folder = FoldCase(AggiungiBarra(rows.Text("FilePath")));
    const auto [place, isNew] = folders.try_emplace(FoldCase(name), folder);
    if (isNew || place->second == folder) return true;
    if (nomi_.empty()) primo_ = name;
    nomi_.insert(place->first);
    return true;
  }));
}

bool NomiDoppi::Contiene(std::string_view nome) const {
  return !nomi_.empty() && nomi_.contains(FoldCase(nome));
}

std::string NomiDoppi::Parole(Contesto& contesto) const {
  return nomi_.empty() ? std::string() : ParoleDi(contesto, primo_);
}

std::string NomiDoppi::ParoleDi(Contesto& contesto, std::string_view nome) {
  constexpr std::int16_t kNamed = 9;
  const bool named = contesto.Stato.PlayerMode == kNamed;
  const std::string words =
      named ? TestoLinguaO(contesto, "0050128", "Different files are called %1")
            : TestoLinguaO(contesto, "0050127", "Different files are called %1");
  return ConValori(words, {SuUnaRiga(nome)});
}

}  // namespace kvr5
