#pragma once

#include "core/FinestraProgresso.h"
#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// Writes the report of the working copy: the tracks of the current playlist where the project has
/// one list file, else those of all. False without a track: no page is written then.
bool ScriviReport(EditorPlaylist& editor);

/// What picSave does, up to the commit: renumbers the tracks, writes the report, names the files
/// for the card, writes the playlist files, offers to bring the MP3 files into the project folder,
/// and puts the working copy in the place of playlist.mdb. The editor is to be closed then.
///
/// Failures are swallowed: nothing is told but by the copy window.
void SalvaPlaylist(EditorPlaylist& editor, FinestraProgresso& progresso);

}  // namespace kvr5
