#pragma once

#include <string>

namespace kvr5::test {

/// Encodes two seconds of a tone as a real MP3 file at a path of the host, with the encoder's own
/// options (such as "-b 128 --cbr" or "-V 2 --resample 32"). False when the encoder isn't there.
bool EncodeMp3(const std::string& hostPath, const std::string& options, int hertz = 440);

}  // namespace kvr5::test
