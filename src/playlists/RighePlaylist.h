#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "playlists/EditorPlaylist.h"
#include "projects/SommarioProgetto.h"

namespace kvr5 {

/// A row of grdPlaylist.
struct RigaPlaylist {
  std::int64_t ID = 0;
  RigaProgetto Brano;
};

/// The rows of the current playlist as rsList has them; rsList keeps its place. None where it is
/// closed.
std::vector<RigaPlaylist> RigheDellaGriglia(EditorPlaylist& editor);

/// Makes the row of that ID the current one of rsList; false where it has gone.
bool VaiAllaRiga(EditorPlaylist& editor, std::int64_t id);

}  // namespace kvr5
