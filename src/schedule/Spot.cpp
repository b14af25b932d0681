#include "schedule/Spot.h"

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "platform/db/Walk.h"

namespace kvr5 {
namespace {

std::string PosOf(int slot) {
  return std::to_string(slot + 1);
}

/// Sets the columns of the current or the new row and stores them.
bool Store(EditorPalinsesto& editor, int slot, const std::string& folder, const std::string& name) {
  auto& spots = editor.rsDettaglio();
  editor.Record(spots.Set("FileName", name));
  editor.Record(spots.Set("FilePath", AggiungiBarra(folder)));
  editor.Record(spots.Set("Pos", std::int64_t{slot} + 1));
  editor.Record(spots.Set("NPlaylist", std::int64_t{editor.GiornoCorrente()}));
  editor.Record(spots.Set("IDSched", editor.SegmentoCorrente()));
  if (editor.Record(spots.Update())) return true;
  spots.CancelUpdate();  // the next move would try once more
  return false;
}

}  // namespace

int ContaBrani(EditorPalinsesto& editor) {
  Recordset rows;
  const bool read =
      editor.Record(rows.Open(editor.ConnessionePalinsesto(),
                              "SELECT COUNT([Filename]) AS Brani FROM [LIST] WHERE [NPlaylist]=" +
                                  std::to_string(editor.GiornoCorrente())));
  return read ? static_cast<int>(rows.Number("Brani")) : 0;
}

void RinumeraSpot(EditorPalinsesto& editor, std::int64_t segmento) {
  const std::string which =
      segmento == -1 ? std::string() : " WHERE IDSCHED=" + std::to_string(segmento);
  Recordset spots;
  if (!editor.Record(
          spots.Open(editor.ConnessionePalinsesto(),
                     "SELECT * FROM [List]" + which + " ORDER BY [IDSched],[Pos] ASC"))) {
    return;
  }
  Transaction all(editor.ConnessionePalinsesto());
  std::string segment;
  std::int64_t counter = 0;
  bool first = true;
  editor.Record(WalkRows(spots, [&] {
    std::string its = spots.Text("IDSched");
    counter = !first && its == segment ? counter + 1 : 1;
    first = false;
    segment = std::move(its);
    if (spots.Number("Pos", -1) != counter) {
      editor.Record(spots.Set("Pos", counter));
      if (!editor.Record(spots.Update())) spots.CancelUpdate();
    }
    return true;
  }));
  editor.Record(all.End());
}

bool VaiAlloSlot(EditorPalinsesto& editor, int slot) {
  auto& spots = editor.rsDettaglio();
  if (spots.RecordCount() < 1) return false;
  return !spots.MoveFirst() && !spots.Find("Pos=" + PosOf(slot)) && !spots.Eof();
}

EsitoSpot AggiungiSpot(EditorPalinsesto& editor, int slot, const std::string& cartella,
                       const std::string& nome) {
  auto& context = editor.C();
  const OwnError own(context.Errore);
  if (ContaBrani(editor) >= kLimiteSpot) {
    DiciPalinsesto(context, TestoLingua(context, "0140013"), TestoLingua(context, "0140014"));
    return EsitoSpot::Pieno;
  }
  const UnoSlot& controls = editor.Slot()[slot];
  const bool offered = editor.Slot().picDettaglio && controls.picAggiungiSpot;
  if (!editor.FileMp3Valido || !offered || nome.empty()) return EsitoSpot::NonValido;
  auto& spots = editor.rsDettaglio();
  const bool free = !controls.picRimuoviSpot;
  const bool ready = free ? editor.Record(spots.AddNew()) : VaiAlloSlot(editor, slot);
  const bool stored = ready && Store(editor, slot, cartella, nome);
  if (stored) editor.Modificato();
  if (editor.QuantiSpot() > 0) editor.Record(spots.MoveLast());
  editor.AggiornaElencoSegmenti(editor.SegmentoCorrente());
  return stored ? EsitoSpot::Aggiunto : EsitoSpot::NonScritto;
}

void RimuoviSpot(EditorPalinsesto& editor, int slot) {
  const OwnError own(editor.C().Errore);
  const std::int64_t id = editor.SegmentoCorrente();
  if (id < 1) return;
  const int before = editor.QuantiSpot();
  editor.Record(editor.ConnessionePalinsesto().Execute(
      "DELETE * FROM [List] WHERE [Pos]=" + PosOf(slot) + " AND IDSched=" + std::to_string(id)));
  RinumeraSpot(editor, id);
  editor.AggiornaElencoSegmenti(id);
  if (editor.QuantiSpot() != before) editor.Modificato();
}

void SpostaSpot(EditorPalinsesto& editor, int slot, bool giu) {
  const OwnError own(editor.C().Errore);
  if (!VaiAlloSlot(editor, slot)) return;
  auto& spots = editor.rsDettaglio();
  const std::int64_t id = spots.Number("ID");
  const std::int64_t from = spots.Number("Pos");
  if (giu ? spots.MoveNext() : spots.MovePrevious()) return;
  if (spots.Eof() || spots.Bof()) return;
  const std::string to = spots.Text("Pos");
  Transaction both(editor.ConnessionePalinsesto());
  editor.Record(spots.Set("Pos", from));
  const bool neighbour = editor.Record(spots.Update());
  if (!neighbour) spots.CancelUpdate();
  const bool itself = editor.Record(editor.ConnessionePalinsesto().Execute(
      "UPDATE [List] SET [Pos]=" + to + " WHERE ID=" + std::to_string(id)));
  if (editor.Record(both.End()) && (neighbour || itself)) editor.Modificato();
  RinumeraSpot(editor, editor.SegmentoCorrente());
  editor.AggiornaElencoSegmenti(editor.SegmentoCorrente());
  if (editor.QuantiSpot() > 0 && !editor.Record(spots.Find("ID=" + std::to_string(id)))) return;
  editor.AggiornaSlotSpot();
}

}  // namespace kvr5
