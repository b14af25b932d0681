#pragma once

#include <string>

namespace kvr5 {

/// A length in seconds as "hh.mm.ss", such as "01.02.03"; hours take as many digits as they need.
///
/// Hours and minutes are cut from the seconds rounded to a whole number (half to even), while what
/// is left keeps its fraction. So a value just under a boundary counts into the next minute and
/// leaves a small negative rest: 59.6 gives "00.01.-00". A negative length shows all three groups
/// as they are. A value whose whole seconds don't fit 32 bits gives "00:00:00", with colons.
std::string FormattaDurata(double secondi);

}  // namespace kvr5
