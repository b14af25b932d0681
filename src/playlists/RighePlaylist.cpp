#include "playlists/RighePlaylist.h"

#include "platform/db/Walk.h"

namespace kvr5 {

std::vector<RigaPlaylist> RigheDellaGriglia(EditorPlaylist& editor) {
  std::vector<RigaPlaylist> all;
  if (!editor.rsList().IsOpen()) return all;
  Recordset rows;
  if (!editor.Record(rows.Open(editor.ConnessionePlaylist(), editor.IstruzioneGriglia()))) {
    return all;
  }
  all.reserve(static_cast<std::size_t>(rows.RecordCount()));
  editor.Record(WalkRows(rows, [&] {
    all.push_back({rows.Number("ID"),
                   {"playlist.mdb", rows.Number("NPlaylist"), rows.Number("Pos"),
                    rows.Text("Alias"), rows.Text("FilePath"), rows.Text("FileName"), false}});
    return true;
  }));
  return all;
}

bool VaiAllaRiga(EditorPlaylist& editor, std::int64_t id) {
  auto& rows = editor.rsList();
  if (rows.RecordCount() < 1) return false;
  if (rows.AbsolutePosition() > 0 && rows.Number("ID", -1) == id) return true;
  return !rows.MoveFirst() && !rows.Find("ID=" + std::to_string(id)) && !rows.Eof();
}

}  // namespace kvr5
