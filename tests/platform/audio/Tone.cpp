#include "platform/audio/Tone.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kvr5::test {
namespace {

constexpr double kLevel = 12000 * 0.95;  // of the tone, and what the encoder makes of it
constexpr int kRate = 44100;

bool IsSilent(const Frame& frame) {
  return frame.Left == 0 && frame.Right == 0;
}

double Difference(const Sound& sound, int hertz, int shift) {
  double sum = 0;
  for (std::size_t i = 0; i < sound.size(); ++i) {
    const double at = static_cast<double>(i) + shift;
    sum += std::abs(kLevel * std::sin(2 * std::numbers::pi * hertz * at / kRate) - sound[i].Left);
  }
  return sum / static_cast<double>(std::max<std::size_t>(1, sound.size()));
}

}  // namespace

Sound Trimmed(Sound sound) {
  const auto last = std::find_if_not(sound.rbegin(), sound.rend(), IsSilent).base();
  sound.erase(last, sound.end());
  sound.erase(sound.begin(), std::find_if_not(sound.begin(), sound.end(), IsSilent));
  return sound;
}

double DifferenceFromTone(const Sound& sound, int hertz) {
  constexpr int kReach = 4;  // the first samples may be silent in themselves
  double best = Difference(sound, hertz, 0);
  for (int shift = 1; shift <= kReach; ++shift) {
    best = std::min(best, Difference(sound, hertz, shift));
  }
  return best;
}

double Frequency(const Sound& sound, int rate) {
  int rises = 0;
  for (std::size_t i = 1; i < sound.size(); ++i) {
    if (sound[i - 1].Left < 0 && sound[i].Left >= 0) ++rises;
  }
  return static_cast<double>(rises) * rate / static_cast<double>(sound.size());
}

bool IsMono(const Sound& sound) {
  return std::ranges::all_of(sound, [](const Frame& each) { return each.Left == each.Right; });
}

}  // namespace kvr5::test
