#include "platform/audio/Devices.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace kvr5::test {

Devices::~Devices() {
  for (const char* name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY"}) {
    unsetenv(name);
  }
}

void Devices::Use(const char* driver) {
  setenv("SDL_AUDIODRIVER", driver, 1);
}

void Devices::HearInto(const std::string& name) {
  Use("disk");
  setenv("SDL_DISKAUDIOFILE", (folder.Host() / name).c_str(), 1);
  setenv("SDL_DISKAUDIODELAY", "1", 1);  // milliseconds from buffer to buffer
}

std::uintmax_t Devices::Length(const std::string& name) const {
  std::error_code none;
  const auto length = std::filesystem::file_size(folder.Host() / name, none);
  return none ? 0 : length;
}

Sound Devices::Heard(const std::string& name) const {
  const std::string bytes = folder.Read(name);
  Sound sound(bytes.size() / sizeof(Frame));
  std::memcpy(sound.data(), bytes.data(), sound.size() * sizeof(Frame));
  return sound;
}

bool Devices::Encode(const std::string& name, int hertz, const std::string& options) {
  return EncodeMp3((folder.Host() / name).string(), "-b 128 --cbr " + options, hertz);
}

bool Devices::Eventually(const std::function<bool()>& condition) {
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > limit) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

}  // namespace kvr5::test
