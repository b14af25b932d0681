#pragma once

#include <string>

#include "core/Contesto.h"

namespace kvr5 {

/// Whether a file of the project can have this name.
bool PuoChiamarsi(const std::string& nome);

/// Whether the project's file of the name `alias` is a copy of the file at `sorgente`: as long and
/// as old, as copies are made. A file that is gone can't speak against it.
bool SembraCopiaDi(const Contesto& contesto, const std::string& alias, const std::string& sorgente);

}  // namespace kvr5
