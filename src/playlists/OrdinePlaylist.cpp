#include <chrono>
#include <cstddef>
#include <limits>
#include <memory>
#include <random>

#include "core/Domanda.h"
#include "core/Lingua.h"
#include "platform/db/Walk.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/RighePlaylist.h"

// The tracks of a playlist removed and put in order.

namespace kvr5 {
namespace {

/// Whether rsList stands on a row, be it one that has gone meanwhile.
bool OnARow(Recordset& rows) {
  return rows.IsOpen() && rows.RecordCount() > 0 && !rows.Bof() && !rows.Eof();
}

/// Swaps the current row with the one that `step` goes to. The neighbour's row is written through
/// the cursor, the first one's by a statement.
void Swap(EditorPlaylist& editor, Error (Recordset::*step)()) {
  auto& rows = editor.rsList();
  const OwnError own(editor.C().Errore);
  const std::int64_t id = rows.Number("ID");
  const std::int64_t pos = rows.Number("Pos");
  if (!editor.Record((rows.*step)())) return;
  const std::int64_t other = rows.Number("Pos");
  editor.Record(rows.Set("Pos", pos));
  editor.Record(rows.Update());
  editor.Record(editor.ConnessionePlaylist().Execute(
      "UPDATE [List] SET [Pos]=" + std::to_string(other) + " WHERE ID=" + std::to_string(id)));
  editor.Modificato();
  editor.Record(rows.Requery());
  editor.Record(rows.Find("ID=" + std::to_string(id)));
  editor.MostraGriglia();
}

/// The numbers 1 to `count` in random order, from index 1 on: a number that was drawn before is
/// drawn again.
std::vector<std::int32_t> Order(std::int32_t count, const Caso& random) {
  std::vector<bool> used(static_cast<std::size_t>(count) + 1);
  std::vector<std::int32_t> order(used.size());
  for (std::int32_t left = count; left != 0;) {
    const auto k = static_cast<std::int32_t>(count * random()) + 1;
    if (used.at(static_cast<std::size_t>(k))) continue;
    used.at(static_cast<std::size_t>(k)) = true;
    order.at(static_cast<std::size_t>(count - left) + 1) = k;
    --left;
  }
  return order;
}

/// Writes the numbers to the rows of the current playlist, by a cursor of its own: another list
/// that is chosen amid the events keeps its order.
void GiveOrder(EditorPlaylist& editor, const std::vector<std::int32_t>& order) {
  Recordset rows;
  if (!editor.Record(rows.Open(editor.ConnessionePlaylist(), editor.IstruzioneGriglia()))) return;
  std::size_t i = 0;
  editor.Record(WalkRows(rows, [&] {
    if (++i >= order.size()) return false;
    editor.Record(rows.Set("Pos", std::int64_t{order.at(i)}));
    editor.Record(rows.Update());
    editor.C().Messaggi.LasciaCorrere();
    return true;
  }));
}

}  // namespace

void RiordinaPosizione(EditorPlaylist& editor, const std::function<void()>& traLeRighe) {
  Recordset rows;
  if (!editor.Record(rows.Open(editor.ConnessionePlaylist(),
                               "SELECT * FROM [List] ORDER BY [NPlaylist],[Pos] ASC"))) {
    return;
  }
  Transaction all(editor.ConnessionePlaylist());
  std::int64_t current = rows.Number("NPlaylist");
  std::int64_t counter = 0;
  editor.Record(WalkRows(rows, [&] {
    const std::int64_t number = rows.Number("NPlaylist");
    counter = number == current ? counter + 1 : 1;
    current = number;
    if (rows.Number("Pos", -1) != counter) {
      editor.Record(rows.Set("Pos", counter));
      editor.Record(rows.Update());
    }
    if (traLeRighe) traLeRighe();
    return true;
  }));
  editor.Concludi(all);
}

void RimuoviFile(EditorPlaylist& editor) {
  if (!OnARow(editor.rsList())) return;
  const OwnError own(editor.C().Errore);
  if (editor.Record(editor.rsList().Delete())) editor.Modificato();
  RiordinaPosizione(editor);
  editor.AggiornaGrigliaPlaylist();
}

void RimuoviRighe(EditorPlaylist& editor, const std::vector<std::int64_t>& id) {
  const OwnError own(editor.C().Errore);
  Transaction all(editor.ConnessionePlaylist());
  for (const std::int64_t each : id) {
    if (VaiAllaRiga(editor, each) && editor.Record(editor.rsList().Delete())) editor.Modificato();
  }
  RiordinaPosizione(editor);
  editor.Concludi(all);
  editor.AggiornaGrigliaPlaylist();
}

void RimuoviTuttiFile(EditorPlaylist& editor) {
  auto& context = editor.C();
  if (editor.Quanti() < 1) return;
  const OwnError own(context.Errore);
  const BoxSiNo question{
      TestoLingua(context, "0050024"), TestoLingua(context, "0050025"), {}, {}, true};
  if (ChiediSiNo(context, question) != 1) return;
  editor.Record(editor.ConnessionePlaylist().Execute("DELETE * FROM [List] WHERE [NPlaylist]=" +
                                                     std::to_string(editor.PlaylistCorrente())));
  editor.Modificato();
  editor.Record(editor.rsList().Requery());
  editor.MostraGriglia();
  editor.AggiornaContatoreFile();
}

void SpostaSu(EditorPlaylist& editor) {
  auto& rows = editor.rsList();
  if (rows.AbsolutePosition() > 1) Swap(editor, &Recordset::MovePrevious);
}

void SpostaGiu(EditorPlaylist& editor) {
  auto& rows = editor.rsList();
  const int at = rows.AbsolutePosition();
  if (at > 0 && at != rows.RecordCount()) Swap(editor, &Recordset::MoveNext);
}

void SpostaRighe(EditorPlaylist& editor, const std::vector<std::int64_t>& id, bool su) {
  auto& rows = editor.rsList();
  const OwnError own(editor.C().Errore);
  Transaction all(editor.ConnessionePlaylist());
  // The foremost first; behind one that can't go on, its neighbours stay too.
  const std::vector<std::int64_t> order =
      su ? id : std::vector<std::int64_t>(id.rbegin(), id.rend());
  int limit = su ? 1 : rows.RecordCount();
  for (const std::int64_t each : order) {
    if (!VaiAllaRiga(editor, each)) continue;
    if (rows.AbsolutePosition() == limit) {
      limit += su ? 1 : -1;
    } else {
      su ? SpostaSu(editor) : SpostaGiu(editor);
    }
  }
  if (editor.Concludi(all)) return;
  editor.Record(rows.Requery());
  editor.MostraGriglia();
}

Caso CasoDallOrologio() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  return CasoDaSeme(static_cast<std::uint32_t>(now));
}

Caso CasoDaSeme(std::uint32_t seme) {
  // The generator's numbers are fixed by the standard; a distribution of the library's wouldn't be.
  constexpr double kRange = 4294967296.0;  // one above its highest
  return [engine = std::make_shared<std::mt19937>(seme)] {
    return static_cast<double>((*engine)()) / kRange;
  };
}

void Random(EditorPlaylist& editor, const Caso& caso) {
  const int count = editor.Quanti();
  if (count < 1) return;
  const OwnError own(editor.C().Errore);
  editor.Attesa(true);
  {
    Transaction all(editor.ConnessionePlaylist());
    if (count <= std::numeric_limits<std::int16_t>::max()) {
      GiveOrder(editor, Order(count, caso));
      editor.Modificato();
    }
    editor.Concludi(all);
  }
  editor.Record(editor.rsList().Requery());
  editor.MostraGriglia();
  editor.Attesa(false);
}

}  // namespace kvr5
