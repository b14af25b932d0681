#pragma once

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "platform/jet/Pages.h"
#include "platform/jet/Rc4.h"
#include "support/CampioniJet.h"

namespace kvr5::test {

/// All bytes of a sample.
inline std::string Content(const std::string& sample) {
  std::ifstream stream(CampioneJet(sample + ".mdb"), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void Put32(std::string& content, std::size_t at, std::uint32_t value) {
  for (unsigned i = 0; i < 4; ++i) content[at + i] = static_cast<char>(value >> 8 * i);
}

inline void Mask(std::string& content, std::size_t at, std::size_t length, std::uint32_t key) {
  std::vector<unsigned char> bytes(content.begin() + static_cast<std::ptrdiff_t>(at),
                                   content.begin() + static_cast<std::ptrdiff_t>(at + length));
  jet::Rc4(key, bytes);
  std::ranges::copy(bytes, content.begin() + static_cast<std::ptrdiff_t>(at));
}

/// The file with its pages encoded by a key, as the engine does it.
inline std::string Encoded(std::string content, std::uint32_t key) {
  constexpr std::uint32_t kHeaderKey = 0x6B39DAC7;
  for (std::size_t page = 1; page < content.size() / jet::kPageSize; ++page) {
    Mask(content, page * jet::kPageSize, jet::kPageSize, key ^ static_cast<std::uint32_t>(page));
  }
  Mask(content, 0x18, 128, kHeaderKey);
  Put32(content, 0x3E, key);
  Mask(content, 0x18, 128, kHeaderKey);
  return content;
}

}  // namespace kvr5::test
