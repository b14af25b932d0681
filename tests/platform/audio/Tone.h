#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kvr5::test {

/// One moment of sound: left and right.
struct Frame {
  std::int16_t Left = 0;
  std::int16_t Right = 0;
};
using Sound = std::vector<Frame>;

/// Takes the silence off both ends.
Sound Trimmed(Sound sound);
/// The mean difference, in steps of 16 bits, from the tone that EncodeMp3 encodes, at 44,100 Hz;
/// of the best alignment within a few samples.
double DifferenceFromTone(const Sound& sound, int hertz);
/// How often the left side goes from below zero to above it, in a second.
double Frequency(const Sound& sound, int rate);
/// Whether both sides are the same throughout.
bool IsMono(const Sound& sound);

}  // namespace kvr5::test
