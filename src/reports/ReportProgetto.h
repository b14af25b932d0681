#pragma once

#include "core/Contesto.h"
#include "core/Esecutore.h"
#include "platform/db/Recordset.h"

namespace kvr5 {

/// What the project report asks of the hub.
struct FontiReport {
  /// All rows of the inputs by Pos; null, or closed, where the project has none. The cursor is
  /// moved.
  Recordset* Ingressi = nullptr;
  /// Whether the analyser's frame is shown.
  bool AnalyzerVisibile = false;
};

/// Writes the project report, ProjectName + ".htm" in the project's folder: the model with its
/// picture, the inputs, Config.txt, and the bodies of the playlist and schedule reports as they lie
/// in the folder. What can't be read or written is missing, and the pending error.
void ScriviReportProgetto(Contesto& contesto, const FontiReport& fonti);

/// The same, opened for the user then; the busy pointer is on meanwhile.
void MostraReportProgetto(Contesto& contesto, Esecutore& esecutore, const FontiReport& fonti);

}  // namespace kvr5
