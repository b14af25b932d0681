#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace kvr5 {

/// The tag that encoders leave in the first frame of a file: "Xing" or "Info" with flags and up to
/// two counts, or "VBRI" with both counts at fixed places.
struct TagVbr {
  bool Vbri = false;
  std::optional<std::int32_t> Frames;     ///< nothing where the tag doesn't give it
  std::optional<std::int32_t> FileBytes;  ///< nothing where the tag doesn't give it
};

/// The tag of a first frame, or nothing.
///
/// The whole frame is searched for "Xing", then "Info", then "VBRI"; a tag at the frame's very
/// first byte doesn't count. As many bytes are taken from the tag on as stand *before* it, at most
/// 121, and no more than the frame holds; what is missing counts as zero. So a tag near the start
/// of a small frame loses its last bytes.
std::optional<TagVbr> CercaTagVbr(std::span<const char> frame);

/// The flags word of a "Xing" tag from its little-endian reading: the hexadecimal digits, without
/// leading zeros, read backwards. For the flags 0 to 15, stored big-endian, that gives the flags.
constexpr std::uint32_t FlagXing(std::uint32_t littleEndian) {
  std::uint32_t flags = 0;
  for (; littleEndian != 0; littleEndian >>= 4) flags = flags << 4 | (littleEndian & 0xF);
  return flags;
}

}  // namespace kvr5
