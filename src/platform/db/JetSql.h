#pragma once

#include <string>
#include <string_view>

#include "platform/Error.h"

namespace kvr5 {

/// Turns one statement as the system writes it (the dialect of the Jet engine) into SQLite's
/// words: `SELECT TOP n` (also in a subselect), `DELETE *`, `#12.30#` and `#12:30:00#`,
/// `ISNULL(x)`, names in brackets, texts in single or double quotes.
///
/// Values are joined into statements by the callers as they stand: a text with an apostrophe
/// breaks its statement, which is then error -2147217900, as are `--`, `/*`, a second statement
/// and an unclosed text or bracket.
Result<std::string> TranslateJetSql(std::string_view statement);

}  // namespace kvr5
