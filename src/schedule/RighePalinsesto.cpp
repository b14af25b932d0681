#include "schedule/RighePalinsesto.h"

#include <map>
#include <unordered_map>

#include "platform/db/Walk.h"

namespace kvr5 {
namespace {

/// How often each time occurs on a day.
using Times = std::map<std::pair<int, int>, int>;

std::pair<int, int> KeyOf(const Ora& time) {
  return {time.Ore, time.Minuti};
}

/// Marks those that start together. A segment without a time starts with no other.
template <typename Segments>
void MarkEqualTimes(Segments& segments) {
  Times times;
  for (const auto& each : segments) {
    if (each.Inizio) ++times[KeyOf(*each.Inizio)];
  }
  for (auto& each : segments) each.StessaOra = each.Inizio && times[KeyOf(*each.Inizio)] > 1;
}

/// The segments of the grid, without their spots.
std::vector<RigaSegmento> SegmentsOf(EditorPalinsesto& editor) {
  std::vector<RigaSegmento> all;
  auto& rows = editor.rsSegmenti();
  if (editor.QuantiSegmenti() < 1) return all;
  const bool onARow = rows.AbsolutePosition() > 0;
  const std::int64_t current = rows.Number("ID");
  all.reserve(static_cast<std::size_t>(rows.RecordCount()));
  editor.Record(WalkRows(rows, [&] {
    all.push_back({rows.Number("ID"), OraDa(rows.Text("StartTime")), {}, false});
    return true;
  }));
  if (onARow && editor.Record(rows.MoveFirst())) {
    editor.Record(rows.Find("ID=" + std::to_string(current)));
  }
  return all;
}

RigaSpot SpotOf(const Recordset& rows) {
  return {rows.Number("ID"),
          {"scheduler.mdb", rows.Number("NPlaylist"), rows.Number("Pos"), rows.Text("Alias"),
           rows.Text("FilePath"), rows.Text("FileName"), false}};
}

}  // namespace

std::vector<RigaSegmento> RigheDellaGriglia(EditorPalinsesto& editor) {
  std::vector<RigaSegmento> all = SegmentsOf(editor);
  std::unordered_map<std::int64_t, RigaSegmento*> byId;
  for (RigaSegmento& each : all) byId[each.ID] = &each;
  Recordset spots;
  if (!all.empty() && editor.Record(spots.Open(editor.ConnessionePalinsesto(),
                                               "SELECT * FROM [List] WHERE [NPlaylist]=" +
                                                   std::to_string(editor.GiornoCorrente()) +
                                                   " ORDER BY [Pos],[ID] ASC"))) {
    editor.Record(WalkRows(spots, [&] {
      const auto found = byId.find(spots.Number("IDSched"));
      if (found != byId.end()) found->second->Spot.push_back(SpotOf(spots));
      return true;
    }));
  }
  MarkEqualTimes(all);
  return all;
}

void SettimanaPalinsesto::Leggi(EditorPalinsesto& editor) {
  for (auto& each : giorni_) each.clear();
  Recordset rows;
  if (!editor.ConnessionePalinsesto().IsOpen() ||
      !editor.Record(rows.Open(
          editor.ConnessionePalinsesto(),
          "SELECT [HEAD].ID,[HEAD].[NScheduler],[HEAD].[StartTime],(SELECT COUNT(Pos) FROM [List] "
          "WHERE [NPlaylist]=[HEAD].[NScheduler] AND IDSched=[HEAD].ID) AS Quanti FROM [HEAD] "
          "ORDER BY [HEAD].[NScheduler],[HEAD].[StartTime] ASC"))) {
    return;
  }
  editor.Record(WalkRows(rows, [&] {
    const std::int64_t day = rows.Number("NScheduler", -1);
    if (day >= 0 && day < static_cast<std::int64_t>(giorni_.size())) {
      giorni_.at(static_cast<std::size_t>(day))
          .push_back({rows.Number("ID"), static_cast<std::int16_t>(day),
                      OraDa(rows.Text("StartTime")),
                      static_cast<std::size_t>(rows.Number("Quanti")), false});
    }
    return true;
  }));
  for (auto& each : giorni_) MarkEqualTimes(each);
}

void SettimanaPalinsesto::Rinnova(std::int16_t giorno, const std::vector<RigaSegmento>& righe) {
  auto& day = giorni_.at(static_cast<std::size_t>(giorno));
  day.clear();
  for (const RigaSegmento& each : righe) {
    day.push_back({each.ID, giorno, each.Inizio, each.Spot.size(), each.StessaOra});
  }
}

const std::vector<SegmentoVisto>& SettimanaPalinsesto::Del(std::int16_t giorno) const {
  return giorni_.at(static_cast<std::size_t>(giorno));
}

}  // namespace kvr5
