#pragma once

#include <string>
#include <vector>

#include "mp3/modMp3Infos.h"
#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// A line of a list that names a file which is there.
struct RigaImportata {
  std::string FilePath;  ///< as it is stored: the line's own folder, that of the list where it has
                         ///< none; may be relative to the list's
  std::string FileName;
  std::string Cartella;  ///< the folder where the file is
  bool operator==(const RigaImportata&) const = default;
};

/// Reads a text list of files, a path a line, in the ANSI code page or in UTF-8, as a rule with its
/// mark: a line that names no file in the code page is tried as UTF-8.
/// Blanks around a line and lines that begin with "#EXT" don't count; a line that names no file is
/// dropped. A path of the host's form counts as the system's; one without a drive is looked for
/// from the list's folder; slashes are read as backslashes. An unreadable list has none. Events
/// run between the lines.
std::vector<RigaImportata> RigheDellaLista(Contesto& contesto, const std::string& lista);

/// Whether an import may begin: a playlist is there, and it isn't full (told).
bool PuoImportare(EditorPlaylist& editor);

/// Adds the files of a list that the player takes to the current playlist, until it is full
/// (told). Nothing is said of the others. Events run between the files.
void ImportaPlaylist(EditorPlaylist& editor, modMp3Infos& lettore, const std::string& lista);

}  // namespace kvr5
