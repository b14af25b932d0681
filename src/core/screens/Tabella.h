#pragma once

class QTableView;

namespace kvr5 {

/// Has a table look and behave as all do: whole rows, no grid, no numbers beside them, nothing
/// edited in place; `altezza` is a row's, in logical pixels.
void VestiTabella(QTableView& tabella, int altezza);

}  // namespace kvr5
