#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace kvr5 {

/// The runtime's file statements, told in terms of FileSystem.

/// True when a name holds `*` or `?`.
bool HasWildcard(std::string_view name);

/// True when a directory look-up with the normal attribute finds something: a file (read-only or
/// not) that is neither hidden nor a system file nor a folder. The last component may hold `*`
/// and `?`; then one match suffices. A path that ends in a backslash asks for any file in there.
bool FileExists(const FileSystem& files, std::string_view path);

/// True when the path names a folder; a trailing backslash is allowed, the empty text is none.
bool FolderExists(const FileSystem& files, std::string_view path);

/// True when `name` matches a pattern with `*` and `?`, without regard to case; `*.*` matches
/// every name, also one without a dot, and "a*.*" every name that begins with "a".
bool MatchesWildcard(std::string_view name, std::string_view pattern);

/// The files (no folders, none hidden or system) that match the last component of `pattern`, by
/// name without regard to case; empty when the folder isn't there. Names that no path can hold are
/// passed over.
std::vector<FileInfo> ListMatching(const FileSystem& files, std::string_view pattern);

/// Deletes one file, or all that match a wildcard: 53 when there is none. Hidden and system files
/// are not matched; the first failure ends it and is returned, the files before it are gone.
Error DeleteMatching(FileSystem& files, std::string_view pattern);

/// Copies one file under a new name with its time of change, replacing one that is there; the copy
/// is whole or absent. 75 where that one is read-only or a folder; onto itself nothing is done.
Error CopyOneFile(FileSystem& files, std::string_view from, std::string_view to);

/// Whether another program, or another part of this one, holds a file (FileSystem::Hold).
bool IsHeld(FileSystem& files, std::string_view path);

/// Whether two files hold the same bytes; false where one of them can't be read.
bool HoldTheSame(FileSystem& files, std::string_view a, std::string_view b);

/// All bytes of a file.
Result<std::string> ReadWhole(FileSystem& files, std::string_view path);

/// Replaces a file's content, or makes the file, in such a way that a crash leaves the old or the
/// new one. 75 where it is read-only or a folder.
Error ReplaceWhole(FileSystem& files, std::string_view path, std::string_view bytes);

/// Deletes what copies that were cut off (the card pulled out, the power gone) left in a folder
/// under passing names. Those of a program that is still at work stay.
void SweepLeftovers(FileSystem& files, std::string_view folder);

}  // namespace kvr5
