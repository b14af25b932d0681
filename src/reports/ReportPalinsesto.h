#pragma once

#include "core/Contesto.h"
#include "platform/db/Connection.h"

namespace kvr5 {

/// Writes the page "Scheduler.htm" of the project's folder from the database of an editor: the
/// segments of all days, by day and time, each with the names of its spots. The day stands above
/// its segments where the project has a schedule for each. A database without segments, or that
/// isn't open, gives a page with its heading alone.
void ScriviReportPalinsesto(Contesto& contesto, Connection& connessione);

}  // namespace kvr5
