#pragma once

#include <filesystem>

namespace kvr5 {

/// True where the rollback journal beside a database names a further file, as that of a transaction
/// over several databases does. Whoever opens the database has SQLite read that file and, as the
/// case may be, delete it. No database of ours has such a journal; one on a card may name any file
/// of the host. (SQLite's file format, 3: the name is followed by its length, a checksum and eight
/// bytes that mark it.)
bool JournalNamesAFile(const std::filesystem::path& database);

}  // namespace kvr5
