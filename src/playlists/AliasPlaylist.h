#pragma once

#include <cstdint>
#include <string>

#include "playlists/EditorPlaylist.h"

namespace kvr5 {

/// The name on the card of a track whose file stands nowhere before it: "P01-007.mp3".
std::string AliasDelBrano(std::int64_t nPlaylist, std::int64_t pos);

/// Gives every distinct file (name and folder, without regard to case) one name on the card, that
/// of its first track in the order of rsList, which holds all playlists. In mode 9 each keeps its
/// own name.
///
/// A name or folder with an apostrophe breaks the statement that finds the other tracks of a file:
/// each of them then gets a name of its own, and the file is on the card more than once.
void AssegnaAlias(EditorPlaylist& editor);

}  // namespace kvr5
