#pragma once

#include <cstdint>
#include <optional>

#include "core/Contesto.h"
#include "platform/db/Connection.h"

namespace kvr5 {

/// All tracks of named playlists, by name.
inline constexpr const char* kBraniConNome =
    "SELECT [HEAD].[NScheduler],[HEAD].[Descript],[List].[ID],[List].[Filename],[List].[FilePath],"
    "[List].[NPlaylist],[List].[Pos] FROM [List] INNER JOIN [HEAD] ON "
    "[HEAD].[NScheduler]=[LIST].[NPlaylist] ORDER BY [Descript],[Pos] ASC";

/// Writes the page "Playlist.htm" of the project's folder from the database of an editor: the
/// tracks of one playlist, or of all, each under its own heading. In mode 9 always those of all
/// named ones. Without a track no page is written, and an old one stays. False then.
bool ScriviReportPlaylist(Contesto& contesto, Connection& connessione,
                          std::optional<std::int32_t> numero);

}  // namespace kvr5
