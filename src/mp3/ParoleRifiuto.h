#pragma once

#include <string>

#include "core/Contesto.h"
#include "mp3/Accettazione.h"

namespace kvr5 {

/// Why a file is refused, for a tool tip: the file's own figure and what the player takes, such as
/// "48,000 Hz; the player takes 22,050 to 44,100 Hz". "" for a file that is good.
std::string ParoleRifiuto(Contesto& contesto, RifiutoMp3 motivo, const InfoMp3& info);

}  // namespace kvr5
