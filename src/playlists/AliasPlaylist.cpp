#include "playlists/AliasPlaylist.h"

#include "platform/Locale.h"
#include "platform/db/Walk.h"

namespace kvr5 {
namespace {

bool IsNull(const Recordset& rows, const char* column) {
  const auto value = rows.Get(column);
  return value && std::holds_alternative<std::monostate>(value.Value());
}

/// Names the file of the current row, and with it all rows of that file that have no name yet.
void NameFile(EditorPlaylist& editor) {
  auto& errors = editor.C().Errore;
  auto& rows = editor.rsList();
  const std::string alias = AliasDelBrano(rows.Number("NPlaylist"), rows.Number("Pos"));
  const std::string name = rows.Text("FileName");
  const std::string folder = rows.Text("FilePath");
  errors.Record(rows.Set("Alias", alias));
  errors.Record(rows.Update());
  errors.Record(editor.ConnessionePlaylist().Execute(
      "UPDATE [List] SET [Alias]='" + alias + "' WHERE [Filename]='" + name + "' AND [Filepath]='" +
      folder + "' AND ISNULL([Alias])"));
}

}  // namespace

std::string AliasDelBrano(std::int64_t nPlaylist, std::int64_t pos) {
  return "P" + FormatDigits(static_cast<double>(nPlaylist), 2) + "-" +
         FormatDigits(static_cast<double>(pos), 3) + ".mp3";
}

void AssegnaAlias(EditorPlaylist& editor) {
  auto& errors = editor.C().Errore;
  auto& connection = editor.ConnessionePlaylist();
  constexpr std::int16_t kNamed = 9;
  if (editor.C().Stato.PlayerMode == kNamed) {
    errors.Record(connection.Execute("UPDATE [List] SET [Alias]=[FileName]"));
    return;
  }
  Transaction all(connection);
  errors.Record(connection.Execute("UPDATE [List] SET [Alias]=Null"));
  errors.Record(WalkRows(editor.rsList(), [&] {
    if (IsNull(editor.rsList(), "Alias")) NameFile(editor);
    editor.C().Messaggi.LasciaCorrere();
    return true;
  }));
  errors.Record(all.End());
}

}  // namespace kvr5
