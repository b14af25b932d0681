#pragma once

#include <string>
#include <string_view>

#include "core/Contesto.h"

namespace kvr5 {

/// The space of the volume of a path in three lines, divided by CR LF: available to this user,
/// total, free; each in bytes and in units of 2^30 bytes, such as
/// "Available Space:  1073741824 bytes (1.00 G) ". Figures of a volume that can't be asked are 0.
///
/// A utility: recording and erasing never ask how much room there is.
std::string SpazioSuDisco(const Contesto& contesto, std::string_view percorso);

}  // namespace kvr5
