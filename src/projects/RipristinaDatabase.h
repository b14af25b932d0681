#pragma once

#include <string>

#include "core/Contesto.h"

namespace kvr5 {

/// Puts a project database (full path) back as it was where an interrupted change left its journal
/// beside it, so that a copy of the file is whole. Nothing to do is no error; a database that can't
/// be put back is the error of opening it.
Error RipristinaDatabase(Contesto& contesto, const std::string& percorso);

}  // namespace kvr5
