#pragma once

#include "platform/db/Recordset.h"

namespace kvr5 {

/// Visits the rows from the first to the last. `visit` gives false to end early. A move that fails
/// (a damaged page, a lock) ends the walk and is returned: the cursor stays where it was, so going
/// on would visit one row for ever.
template <typename Visit>
Error WalkRows(Recordset& rows, Visit visit) {
  if (rows.RecordCount() < 1) return {};
  Error error = rows.MoveFirst();
  while (!error && !rows.Eof()) {
    if (!visit()) return {};
    error = rows.MoveNext();
  }
  return error;
}

}  // namespace kvr5
