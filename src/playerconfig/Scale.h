#pragma once

#include <string_view>

namespace kvr5 {

/// What the sliders' positions 0 to 20 mean. The scales are uneven on purpose and are tables, not
/// formulas; a value outside 1 to 20 gets the text of 0.

/// Output level in dB, 0 "OFF", 14 "0 dB".
std::string_view TestoScalaVolume(int indice);
/// Loudness in dB, 0 "0 dB".
std::string_view TestoScalaLoudness(int indice);
/// Treble and bass in dB, 10 "0 dB"; the lowest has no unit.
std::string_view TestoScalaToni(int indice);
/// MP3 level of the mix in percent, 0 "OFF", 14 "100%".
std::string_view TestoScalaPercento(int indice);

}  // namespace kvr5
