#pragma once

#include <string_view>

struct sqlite3;

namespace kvr5 {

/// The name under which the databases know the comparison below.
inline constexpr const char* kCollationName = "KVR5NOCASE";

/// Compares two texts (UTF-8) without regard to case: below 0, 0 or above 0.
///
/// Letters of the Latin, Greek and Cyrillic scripts are made small one by one, accented ones
/// included; accents count. Order is that of the code points. Bytes that aren't UTF-8 count as
/// characters of their own behind all others, so that any two texts have an order.
int CompareNoCase(std::string_view a, std::string_view b);

/// Makes the comparison known to a connection; false when SQLite has no memory for it.
bool RegisterCollation(sqlite3* handle);

}  // namespace kvr5
