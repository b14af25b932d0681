#pragma once

#include <string>

#include "core/Contesto.h"
#include "mp3/Accettazione.h"
#include "mp3/modMp3Infos.h"

namespace kvr5 {

/// Why a file is refused, for a tool tip: the file's own figure and what the player takes, such as
/// "48,000 Hz; the player takes 22,050 to 44,100 Hz". "" for a file that is good.
std::string ParoleRifiuto(Contesto& contesto, RifiutoMp3 motivo, const InfoMp3& info);

/// The same after an analysis by `lettore`: also where the file wasn't there (`manca`) or couldn't
/// be read.
std::string ParoleRifiutoDelFile(Contesto& contesto, const modMp3Infos& lettore, bool manca,
                                 RifiutoMp3 motivo, const InfoMp3& info);

}  // namespace kvr5
