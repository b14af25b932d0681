#include "platform/jet/Rc4.h"

#include <array>
#include <utility>

namespace kvr5::jet {

void Rc4(std::uint32_t key, std::span<unsigned char> content) {
  std::array<unsigned char, 256> state{};
  for (unsigned i = 0; i < 256; ++i) state[i] = static_cast<unsigned char>(i);
  unsigned char j = 0;
  for (unsigned i = 0; i < 256; ++i) {
    const auto byte = static_cast<unsigned char>(key >> 8 * (i % 4));
    j = static_cast<unsigned char>(j + state[i] + byte);
    std::swap(state[i], state[j]);
  }
  unsigned char i = 0;
  j = 0;
  for (unsigned char& byte : content) {
    j = static_cast<unsigned char>(j + state[++i]);
    std::swap(state[i], state[j]);
    byte ^= state[static_cast<unsigned char>(state[i] + state[j])];
  }
}

}  // namespace kvr5::jet
