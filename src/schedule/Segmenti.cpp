#include "schedule/Segmenti.h"

#include "core/Domanda.h"
#include "core/Lingua.h"
#include "platform/db/Walk.h"

namespace kvr5 {
namespace {

constexpr const char* kNewest = "SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC";

Ora MinuteLater(Ora time) {
  constexpr int kHour = 60;  // minutes
  constexpr int kDay = 24 * kHour;
  const int minutes = (time.Ore * kHour + time.Minuti + 1) % kDay;
  return {minutes / kHour, minutes % kHour};
}

/// The spots of a segment, copied to another. They get the day 0 whatever day is edited: so in a
/// weekly schedule they are in the database but belong to no day. That is meant so.
void CopySpots(EditorPalinsesto& editor, std::int64_t from, std::int64_t to) {
  Recordset spots;
  const std::string id = std::to_string(from);
  if (!editor.Record(
          spots.Open(editor.ConnessionePalinsesto(),
                     "SELECT * FROM [LIST] WHERE [IDSched]=" + id + " ORDER BY ID DESC"))) {
    return;
  }
  Transaction all(editor.ConnessionePalinsesto());
  editor.Record(WalkRows(spots, [&] {
    editor.Record(editor.ConnessionePalinsesto().Execute(
        "INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) VALUES(" +
        spots.Text("Pos") + ",'" + spots.Text("FileName") + "','" + spots.Text("FilePath") + "','" +
        spots.Text("Alias") + "',0," + std::to_string(to) + ")"));
    return true;
  }));
  editor.Record(all.End());
}

/// The segment behind the current one, or before it where it is the last; 0 where it is the only
/// one.
std::int64_t Neighbour(EditorPalinsesto& editor) {
  auto& rows = editor.rsSegmenti();
  const bool last = rows.AbsolutePosition() == rows.RecordCount();
  editor.Record(last ? rows.MovePrevious() : rows.MoveNext());
  return rows.Number("ID");
}

bool OnASegment(EditorPalinsesto& editor) {
  return editor.QuantiSegmenti() > 0 && editor.rsSegmenti().AbsolutePosition() > 0;
}

}  // namespace

Ora UltimaOraPalinsesto(EditorPalinsesto& editor) {
  Recordset rows;
  const bool read = editor.Record(rows.Open(editor.ConnessionePalinsesto(),
                                            "SELECT max(starttime) as UltimaOra FROM [HEAD] WHERE "
                                            "[NScheduler]=" +
                                                std::to_string(editor.GiornoCorrente())));
  const auto latest = read ? OraDa(rows.Text("UltimaOra")) : std::nullopt;
  return latest ? MinuteLater(*latest) : Ora{};
}

std::int64_t AggiungiRigaHead(EditorPalinsesto& editor, const std::optional<Ora>& orario) {
  Recordset rows;
  if (!editor.Record(rows.Open(editor.ConnessionePalinsesto(), kNewest))) return 0;
  editor.Record(rows.AddNew());
  editor.Record(rows.Set("NScheduler", std::int64_t{editor.GiornoCorrente()}));
  // A segment without a time stays so in its copy.
  if (orario) editor.Record(rows.Set("StartTime", OraConPunto(orario)));
  if (!editor.Record(rows.Update())) {
    rows.CancelUpdate();
    return 0;
  }
  editor.Modificato();
  rows.Close();
  return editor.Record(rows.Open(editor.ConnessionePalinsesto(), kNewest)) ? rows.Number("ID") : 0;
}

void AggiungiSegmento(EditorPalinsesto& editor) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  if (editor.QuantiSegmenti() > kSegmentiOltreCui) {
    DiciPalinsesto(context,
                   TestoLingua(context, "0140025") + " " +
                       std::to_string(editor.Disposizione().NumeroMassimoSegmenti) + ")",
                   TestoLingua(context, "0140026"));
    return;
  }
  Ora start = UltimaOraPalinsesto(editor);
  // A KVR5 has all its segments in hour 00, so the one after 00.59 starts at 00.00 again.
  if (editor.Disposizione().OreBloccate) start.Ore = 0;
  const std::int64_t id = AggiungiRigaHead(editor, start);
  if (id < 1) return;
  editor.SelezionaNuovo(id);
  if (editor.SuFuocoOrario) editor.SuFuocoOrario();
}

void DuplicaSegmento(EditorPalinsesto& editor) {
  // The limit of a day isn't looked at here: that is meant so.
  auto& context = editor.C();
  const OwnError own(context.Errore);
  if (!OnASegment(editor)) return;
  const std::int64_t from = editor.rsSegmenti().Number("ID");
  const std::int64_t to = AggiungiRigaHead(editor, OraDa(editor.rsSegmenti().Text("StartTime")));
  if (to < 1) return;
  CopySpots(editor, from, to);
  editor.SelezionaNuovo(to);
  if (editor.SuFuocoOrario) editor.SuFuocoOrario();
  if (editor.SuMostra) editor.SuMostra();
  DiciPalinsesto(context, TestoLingua(context, "0140038"), TestoLingua(context, "0140039"));
}

void RimuoviSegmento(EditorPalinsesto& editor) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  if (editor.SegmentoCorrente() < 1 || !OnASegment(editor)) return;
  const std::string time = OraConPunto(OraDa(editor.rsSegmenti().Text("StartTime")));
  const BoxSiNo question{TestoLingua(context, "0140018"),
                         TestoLingua(context, "0140019") + " " + time + "?",
                         {},
                         {},
                         true};
  if (ChiediSiNo(context, question) != 1) return;
  const std::int64_t segment = editor.SegmentoCorrente();
  const std::int64_t neighbour = Neighbour(editor);
  const std::string id = std::to_string(segment);
  auto& connection = editor.ConnessionePalinsesto();
  const bool gone = editor.Record(connection.Execute("DELETE * FROM [HEAD] WHERE [ID]=" + id));
  if (gone) editor.Modificato();
  editor.Record(connection.Execute("DELETE * FROM [List] WHERE [IDSched]=" + id));
  editor.AggiornaElencoSegmenti(gone ? neighbour : segment);
}

}  // namespace kvr5
