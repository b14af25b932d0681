#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5 {

/// The runtime's file statements, told in terms of FileSystem.

/// True when a directory look-up with the normal attribute finds something: a file (read-only or
/// not) that is neither hidden nor a system file nor a folder. The last component may hold `*`
/// and `?`; then one match suffices.
bool FileExists(const FileSystem& files, std::string_view path);

/// True when the path names a folder; a trailing backslash is allowed, the empty text is none.
bool FolderExists(const FileSystem& files, std::string_view path);

/// True when `name` matches a pattern with `*` and `?`, without regard to case; `*.*` matches
/// every name, also one without a dot.
bool MatchesWildcard(std::string_view name, std::string_view pattern);

/// The files (no folders, none hidden or system) that match the last component of `pattern`, by
/// name; empty when the folder isn't there.
std::vector<FileInfo> ListMatching(const FileSystem& files, std::string_view pattern);

/// Deletes one file, or all that match a wildcard: 53 when there is none. Hidden and system files
/// are not matched; the first failure ends it and is returned, the files before it are gone.
Error DeleteMatching(FileSystem& files, std::string_view pattern);

/// Copies one file under a new name, replacing one that is there; the copy is whole or absent.
Error CopyOneFile(FileSystem& files, std::string_view from, std::string_view to);

/// All bytes of a file.
Result<std::string> ReadWhole(FileSystem& files, std::string_view path);

/// Replaces a file's content in such a way that a crash leaves the old or the new one.
Error ReplaceWhole(FileSystem& files, std::string_view path, std::string_view bytes);

}  // namespace kvr5
