#pragma once

#include <string>

#include "core/Contesto.h"
#include "core/Dialoghi.h"
#include "projects/Subentro.h"

namespace kvr5 {

/// What came of one database: "playlist.mdb: 120 files", "playlist.mdb: the file is damaged".
std::string SubentroInParole(Contesto& contesto, const DatabaseSubentrato& database);

/// The box that tells of a taking over.
Messaggio BoxSubentro(Contesto& contesto, const EsitoSubentro& esito);

}  // namespace kvr5
