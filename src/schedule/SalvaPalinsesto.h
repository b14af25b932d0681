#pragma once

#include "core/FinestraProgresso.h"
#include "schedule/EditorPalinsesto.h"

namespace kvr5 {

/// Writes the report of the working copy, "Scheduler.htm": all segments of all days.
void ScriviReport(EditorPalinsesto& editor);

/// What picSave does: writes the report, names the spots for the card, writes the files of the
/// schedule, offers to bring the MP3 files into the project folder, puts the working copy in the
/// place of scheduler.mdb and copies the files. The editor is to be closed then.
///
/// Failures are swallowed: nothing is told but by the copy window.
void SalvaPalinsesto(EditorPalinsesto& editor, FinestraProgresso& progresso);

}  // namespace kvr5
