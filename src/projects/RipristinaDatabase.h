#pragma once

#include <string>

#include "core/Contesto.h"

namespace kvr5 {

/// Has a project database (full path) whole in its one file: where an interrupted change left its
/// journal beside it, it is put back as it was; changes of another program that still lie in a log
/// beside it are taken in. Nothing to do is no error; a database that can't
/// be put back is the error of opening it.
Error RipristinaDatabase(Contesto& contesto, const std::string& percorso);

}  // namespace kvr5
