#include "road/Encoder.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <numbers>
#include <vector>

namespace kvr5::test {

bool EncodeMp3(const std::string& hostPath, const std::string& options, int hertz) {
  constexpr int kRate = 44100;
  std::vector<std::int16_t> samples;
  for (int i = 0; i < 2 * kRate; ++i) {
    samples.push_back(
        static_cast<std::int16_t>(12000 * std::sin(2 * std::numbers::pi * hertz * i / kRate)));
  }
  const std::string raw = hostPath + ".raw";
  std::ofstream(raw, std::ios::binary)
      .write(reinterpret_cast<const char*>(samples.data()),
             static_cast<std::streamsize>(samples.size() * sizeof(std::int16_t)));
  // Names go by the environment, so that any will do.
  setenv("KVR5_RAW", raw.c_str(), 1);
  setenv("KVR5_MP3", hostPath.c_str(), 1);
  const std::string command =
      "lame --quiet -r -s 44.1 -m m " + options + " \"$KVR5_RAW\" \"$KVR5_MP3\" 2>/dev/null";
  const int status = std::system(command.c_str());
  std::remove(raw.c_str());
  return status == 0;
}

}  // namespace kvr5::test
