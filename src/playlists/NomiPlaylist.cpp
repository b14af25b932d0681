#include "playlists/NomiPlaylist.h"

#include <limits>

#include "core/Aiuti.h"
#include "core/Domanda.h"
#include "core/Lingua.h"
#include "core/Parole.h"
#include "platform/CodePage.h"
#include "platform/db/Walk.h"

namespace kvr5 {
namespace {

constexpr const char* kNames = "SELECT DISTINCT [Descript],[NScheduler] FROM [HEAD]";

bool Open(EditorPlaylist& editor, Recordset& rows, const std::string& statement) {
  return editor.Record(rows.Open(editor.ConnessionePlaylist(), statement));
}

/// Shows the dialog for a name; what it gave.
std::string Ask(EditorPlaylist& editor, const std::function<void()>& show) {
  editor.C().Stato.NomePlaylistScelta.clear();
  show();
  return editor.C().Stato.NomePlaylistScelta;
}

}  // namespace

std::string DifettoNomePlaylist(Contesto& contesto, std::string_view nome) {
  constexpr int kUtf8 = 65001;
  if (CodePage(kUtf8).Length(nome) > kCaratteriNomePlaylist) {
    return ConValori(TestoLingua(contesto, "0150102"), {std::to_string(kCaratteriNomePlaylist)});
  }
  if (Rifila(nome).empty()) return TestoLingua(contesto, "0150005");
  if (nome.find_first_of(kVietatiNomePlaylist) == std::string_view::npos) return {};
  return TestoLingua(contesto, "0150006") + "\r\n \\ / : ? \" < > |";
}

void CaricaNomiPlaylist(EditorPlaylist& editor) {
  std::vector<VocePlaylist> entries;
  Recordset rows;
  if (Open(editor, rows, std::string(kNames) + " ORDER BY [Descript] ASC")) {
    editor.Record(WalkRows(rows, [&] {
      entries.push_back(
          {rows.Text("Descript"), static_cast<std::int32_t>(rows.Number("NScheduler"))});
      return true;
    }));
    rows.Close();
  }
  editor.CambiaVoci(std::move(entries));
  if (!editor.Voci().empty()) editor.ImpostaIndice(0);
}

std::int32_t CercaPlaylistPerNome(EditorPlaylist& editor, const std::string& nome) {
  if (Rifila(nome).empty()) return -1;
  Recordset rows;
  const bool found =
      Open(editor, rows,
           std::string(kNames) + " WHERE [Descript]='" + nome + "' ORDER BY [Descript] ASC") &&
      !rows.Eof();
  return found ? static_cast<std::int32_t>(rows.Number("NScheduler", -1)) : -1;
}

std::int32_t ProssimoNScheduler(EditorPlaylist& editor) {
  Recordset rows;
  if (!Open(editor, rows, "SELECT MAX ([NScheduler]) AS ValoreMax FROM [HEAD]")) return 1;
  const std::int64_t next = rows.Number("ValoreMax") + 1;
  // A sum that doesn't fit is dropped like one with a Null.
  return next <= std::numeric_limits<std::int32_t>::max() ? static_cast<std::int32_t>(next) : 1;
}

void AggiungiTestata(EditorPlaylist& editor, const std::string& nome, std::int32_t numero) {
  Recordset rows;
  if (!Open(editor, rows, "SELECT TOP 1 * FROM [HEAD]")) return;
  editor.Record(rows.AddNew());
  editor.Record(rows.Set("Descript", nome));
  editor.Record(rows.Set("NScheduler", std::int64_t{numero}));
  if (editor.Record(rows.Update())) editor.Modificato();
}

void EliminaPlaylist(EditorPlaylist& editor, std::int32_t numero) {
  auto& connection = editor.ConnessionePlaylist();
  const std::string number = std::to_string(numero);
  editor.Record(connection.Execute("DELETE * FROM [List] WHERE [NPlaylist]=" + number));
  editor.Record(connection.Execute("DELETE * FROM [HEAD] WHERE [NScheduler]=" + number));
  editor.Modificato();
}

int ContaPlaylist(EditorPlaylist& editor) {
  Recordset rows;
  return Open(editor, rows, "SELECT DISTINCT [NPlaylist] FROM [LIST]") ? rows.RecordCount() : 0;
}

void AggiungiPlaylist(EditorPlaylist& editor, const std::function<void()>& chiedi) {
  auto& context = editor.C();
  std::string name = Ask(editor, chiedi);
  if (CercaPlaylistPerNome(editor, name) > 0) {
    ChiediSiNo(context, {TestoLingua(context, "0150001"),
                         TestoLingua(context, "0150007"),
                         TestoLingua(context, "0140022"),
                         {}});
    name = Ask(editor, chiedi);
  }
  name = Rifila(name);
  if (name.empty()) return;
  AggiungiTestata(editor, name, ProssimoNScheduler(editor));
  CaricaNomiPlaylist(editor);
  editor.ImpostaTesto(name);
}

void RimuoviPlaylist(EditorPlaylist& editor) {
  auto& context = editor.C();
  if (editor.Voci().empty()) return;
  const std::string question = TestoLingua(context, "0050038") + " '" + editor.Testo() + "'?";
  if (ChiediSiNo(context, {TestoLingua(context, "0050037"), question, {}, {}, true}) != 1) return;
  EliminaPlaylist(editor, editor.PlaylistCorrente());
  CaricaNomiPlaylist(editor);
  if (editor.Voci().empty()) editor.AggiornaGrigliaPlaylist();  // the rows of the last one
}

}  // namespace kvr5
