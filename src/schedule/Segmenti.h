#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "projects/OraDelSegmento.h"
#include "schedule/EditorPalinsesto.h"

namespace kvr5 {

/// The segments of the current day: added, duplicated, removed.

/// Adding is refused on a day of more segments than this, for every model: a day can come to 61,
/// and the number that is told then is another one. Both are meant so.
inline constexpr int kSegmentiOltreCui = 60;

/// The start proposed for a new segment: a minute after the latest of the day, midnight on an empty
/// one and after 23.59.
Ora UltimaOraPalinsesto(EditorPalinsesto& editor);
/// Adds a segment to the current day and gives its ID; below 1 means failure.
std::int64_t AggiungiRigaHead(EditorPalinsesto& editor, const std::optional<Ora>& orario);

/// picAggiungiSegmento: adds a segment and has its time edited. A full day is told.
void AggiungiSegmento(EditorPalinsesto& editor);
/// mnuDuplicaRiga, picCopiaSegmento: a second segment with the time and the spots of the current
/// one; that its time has to be changed is told.
void DuplicaSegmento(EditorPalinsesto& editor);
/// picRimuoviSegmento: removes the current segment and its spots after a question. The segment that
/// takes its place is selected, or the last.
void RimuoviSegmento(EditorPalinsesto& editor);

}  // namespace kvr5
