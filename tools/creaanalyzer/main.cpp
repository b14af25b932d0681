// Makes the signal of Analyzer.mp3, which players with an analyser play on request: creaanalyzer
// TARGET, a WAV file that an encoder takes.
//
// A sine whose pitch rises evenly over the octaves from 20 Hz to 20 kHz within 10 s, at -6 dB, with
// 20 ms of fade at both ends: each band of an analyser lights up in turn, for the same time.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <numbers>
#include <string>

namespace {

constexpr std::uint32_t kRate = 44100;  // samples a second
constexpr double kSeconds = 10;
constexpr double kLow = 20;  // Hz
constexpr double kHigh = 20000;
constexpr double kPeak = 0.5 * 32767;
constexpr double kFade = kRate / 50.0;  // samples
constexpr auto kSamples = static_cast<std::uint32_t>(kRate * kSeconds);

std::int16_t Sample(std::uint32_t at) {
  const double octaves = std::log(kHigh / kLow);
  const double passed = static_cast<double>(at) / kSamples;
  const double turns = kLow * kSeconds / octaves * (std::exp(passed * octaves) - 1);
  const double fade = std::min({1.0, at / kFade, (kSamples - 1 - at) / kFade});
  return static_cast<std::int16_t>(
      std::lround(kPeak * fade * std::sin(2 * std::numbers::pi * turns)));
}

/// A number of `size` bytes, the lowest first.
void Append(std::string& out, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) out += static_cast<char>((number >> (8 * i)) & 0xFFU);
}

/// A WAV file of one channel of 16-bit samples.
std::string Wave() {
  constexpr std::uint32_t kBytes = kSamples * 2;
  std::string out = "RIFF";
  Append(out, 36 + kBytes, 4);
  out += "WAVEfmt ";
  Append(out, 16, 4);
  Append(out, 1, 2);  // plain samples
  Append(out, 1, 2);  // of one channel
  Append(out, kRate, 4);
  Append(out, kRate * 2, 4);
  Append(out, 2, 2);
  Append(out, 16, 2);
  out += "data";
  Append(out, kBytes, 4);
  for (std::uint32_t at = 0; at < kSamples; ++at) {
    Append(out, static_cast<std::uint16_t>(Sample(at)), 2);
  }
  return out;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: creaanalyzer TARGET\n";
    return 2;
  }
  std::ofstream out(argv[1], std::ios::binary);
  out << Wave();
  out.close();
  if (out) return 0;
  std::cerr << argv[1] << ": can't be written\n";
  return 1;
}
