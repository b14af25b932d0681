#pragma once

#include <string>

#include "playerconfig/NomiCartella.h"

namespace kvr5 {

/// "gong (2).mp3" for "gong.mp3", or the next number that no file of the folder has; it counts as
/// taken from then on.
std::string NomeLibero(NomiCartella& nomi, const std::string& nome);

}  // namespace kvr5
