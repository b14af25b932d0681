#pragma once

#include <cstdint>
#include <optional>

#include "core/Contesto.h"
#include "platform/db/Connection.h"

namespace kvr5 {

/// Writes the page "Playlist.htm" of the project's folder from the database of an editor: the
/// tracks of one playlist, or of all, each under its own heading. In mode 9 always those of all
/// named ones. Without a track no page is written, and an old one stays. False then.
bool ScriviReportPlaylist(Contesto& contesto, Connection& connessione,
                          std::optional<std::int32_t> numero);

}  // namespace kvr5
