#pragma once

#include <string>
#include <string_view>

#include "platform/Error.h"

namespace kvr5 {

/// Turns one statement as the system writes it (the dialect of the Jet engine) into SQLite's
/// words.
///
/// Known are SELECT (DISTINCT, TOP n, INNER JOIN, WHERE, ORDER BY, subselects as columns, COUNT,
/// MAX, MIN, SUM, AVG), INSERT with its columns, UPDATE and DELETE (`DELETE *` too), on the tables
/// `List` and `HEAD`; conditions with AND, OR, NOT, comparisons, IS NULL and `ISNULL(x)`, sums,
/// differences and products; `#12.30#` and `#12:30:00#`; names in brackets; texts in single or
/// double quotes. Everything else is error -2147217900, whatever SQLite would make of it: so
/// nothing of its own language can come in with a value.
///
/// Values are joined into statements by the callers as they stand: a text with an apostrophe
/// breaks its statement, which is then error -2147217900, as are `--`, `/*`, a second statement
/// and an unclosed text or bracket.
///
/// Rows that the ORDER BY leaves equal come in the order in which they were added.
Result<std::string> TranslateJetSql(std::string_view statement);

}  // namespace kvr5
