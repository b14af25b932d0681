#pragma once

#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "platform/Drives.h"

namespace kvr5 {

/// A card's facts in one line: "SHOP, FAT, 7.4 GB, 6.1 GB free, /media/shop, lock open", with the
/// numbers in the locale's form. What the host doesn't tell is left out; a drive without a medium
/// says so.
std::string FattiScheda(Contesto& contesto, const Drive& drive);

/// Which project a card's root holds and when it was written: "On it: Museum-Hall-2, written today
/// 14:32"; that it holds none, where there is no descriptor. Reads two look-ups and at most 64 KB.
std::string ProgettoSullaScheda(Contesto& contesto, std::string_view radice);

}  // namespace kvr5
