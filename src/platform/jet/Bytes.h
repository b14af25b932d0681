#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

namespace kvr5::jet {

/// Numbers, low byte first, at places of a piece of a file. A place beyond the piece reads as 0 and
/// spoils it: whoever has read all that he needs asks once whether every place was there.
class Bytes {
 public:
  explicit Bytes(std::span<const unsigned char> content) : content_(content) {}

  std::size_t Size() const { return content_.size(); }
  bool Spoilt() const { return spoilt_; }

  std::uint8_t U8(std::size_t at) { return static_cast<std::uint8_t>(Number(at, 1)); }
  std::uint16_t U16(std::size_t at) { return static_cast<std::uint16_t>(Number(at, 2)); }
  std::uint32_t U32(std::size_t at) { return static_cast<std::uint32_t>(Number(at, 4)); }
  double F64(std::size_t at) { return std::bit_cast<double>(Number(at, 8)); }
  /// The bytes from `at` up to `end`.
  std::span<const unsigned char> Piece(std::size_t at, std::size_t end) {
    if (Has(at, end)) return content_.subspan(at, end - at);
    return {};
  }

 private:
  bool Has(std::size_t at, std::size_t end) {
    const bool has = at <= end && end <= content_.size();
    spoilt_ = spoilt_ || !has;
    return has;
  }
  std::uint64_t Number(std::size_t at, std::size_t size) {
    std::uint64_t number = 0;
    if (!Has(at, at + size)) return 0;
    for (std::size_t i = size; i > 0; --i) number = number << 8U | content_[at + i - 1];
    return number;
  }

  std::span<const unsigned char> content_;
  bool spoilt_ = false;
};

}  // namespace kvr5::jet
