#include "platform/Utf16.h"

#include "platform/Utf8.h"

namespace kvr5::utf16 {
namespace {

char32_t UnitAt(std::string_view bytes, std::size_t at) {
  const auto byte = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  return byte(at) | static_cast<char32_t>(byte(at + 1)) << 8U;
}

void AppendUnit(std::string& bytes, char32_t unit) {
  bytes += static_cast<char>(unit & 0xFFU);
  bytes += static_cast<char>(unit >> 8U);
}

bool IsHigh(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLow(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

bool HasMark(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE");
}

std::string ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t character = UnitAt(bytes, at);
    if (IsHigh(character) && at + 3 < bytes.size() && IsLow(UnitAt(bytes, at + 2))) {
      at += 2;
      character = 0x10000 + ((character - 0xD800) << 10U) + (UnitAt(bytes, at) - 0xDC00);
    }
    utf8::Append(text, character);
  }
  return text;
}

std::string FromUtf8(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size() * 2);
  while (!text.empty()) {
    const utf8::Step step = utf8::Next(text);
    const bool known = step.Valid || IsHigh(step.Value) || IsLow(step.Value);
    const char32_t character = known ? step.Value : U'\uFFFD';
    if (character < 0x10000) {
      AppendUnit(bytes, character);
    } else {
      AppendUnit(bytes, 0xD800 + ((character - 0x10000) >> 10U));
      AppendUnit(bytes, 0xDC00 + ((character - 0x10000) & 0x3FFU));
    }
    text.remove_prefix(step.Length);
  }
  return bytes;
}

}  // namespace kvr5::utf16
