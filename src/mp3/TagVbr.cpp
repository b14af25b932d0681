#include "mp3/TagVbr.h"

#include <algorithm>
#include <string_view>

#include "mp3/TabelleMp3.h"

namespace kvr5 {
namespace {

constexpr std::size_t kScratchSize = 121;
using Scratch = std::array<char, kScratchSize>;

/// 4 bytes as the little-endian number that they are in memory of the original host.
std::uint32_t LittleEndian(const Scratch& scratch, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) {
    value = value << 8 | static_cast<unsigned char>(scratch.at(at + i));
  }
  return value;
}

std::int32_t BigEndian(const Scratch& scratch, std::size_t at) {
  return static_cast<std::int32_t>(InvertiByte(LittleEndian(scratch, at)));
}

Scratch TakeBytes(std::string_view frame, std::size_t position) {
  Scratch scratch{};
  frame.substr(position, std::min(position, kScratchSize)).copy(scratch.data(), kScratchSize);
  return scratch;
}

TagVbr ParseXing(const Scratch& scratch) {
  constexpr std::uint32_t kFrames = 1;
  constexpr std::uint32_t kBytes = 2;
  TagVbr tag;
  const std::uint32_t flags = FlagXing(LittleEndian(scratch, 4));
  std::size_t at = 8;
  if ((flags & kFrames) != 0) {
    tag.Frames = BigEndian(scratch, at);
    at += 4;
  }
  if ((flags & kBytes) != 0) tag.FileBytes = BigEndian(scratch, at);
  return tag;
}

TagVbr ParseVbri(const Scratch& scratch) {
  return {.Vbri = true, .Frames = BigEndian(scratch, 14), .FileBytes = BigEndian(scratch, 10)};
}

}  // namespace

std::optional<TagVbr> CercaTagVbr(std::span<const char> frame) {
  const std::string_view bytes(frame.data(), frame.size());
  for (const std::string_view name : {"Xing", "Info", "VBRI"}) {
    const std::size_t position = bytes.find(name);
    if (position == std::string_view::npos || position == 0) continue;
    const Scratch scratch = TakeBytes(bytes, position);
    return name == "VBRI" ? ParseVbri(scratch) : ParseXing(scratch);
  }
  return std::nullopt;
}

}  // namespace kvr5
