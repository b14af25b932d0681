#pragma once

#include <cstdint>
#include <span>

namespace kvr5::jet {

/// Applies the stream of RC4 that belongs to a key of four bytes, low byte first. Twice is not at
/// all.
void Rc4(std::uint32_t key, std::span<unsigned char> content);

}  // namespace kvr5::jet
