#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kvr5::utf8 {

/// One step through a text that should be UTF-8.
///
/// What isn't well-formed comes as an invalid step: a surrogate in its three bytes (with its value,
/// so that a lone one can be carried through UTF-8 and back), else a single byte.
struct Step {
  char32_t Value;
  std::size_t Length;  ///< bytes taken, at least 1
  bool Valid;
};

/// The step at the start of `text`, which must not be empty.
constexpr Step Next(std::string_view text) {
  const auto byte = [text](std::size_t i) -> char32_t {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const char32_t lead = byte(0);
  if (lead < 0x80) return {lead, 1, true};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  char32_t value = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return {lead, 1, false};
    value = value << 6U | (byte(i) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> kLeast{0, 0, 0x80, 0x800, 0x10000};
  if (lead < 0xC0 || lead > 0xF4 || value < kLeast[length] || value > 0x10FFFF) {
    return {lead, 1, false};
  }
  return {value, length, value < 0xD800 || value > 0xDFFF};
}

/// Adds a character; surrogates are written in their three bytes.
inline void Append(std::string& text, char32_t character) {
  const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
  const auto tail = [&put, character](unsigned shift) {
    put(0x80U | (character >> shift & 0x3FU));
  };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0U | character >> 6U);
    tail(0);
  } else if (character < 0x10000) {
    put(0xE0U | character >> 12U);
    tail(6);
    tail(0);
  } else {
    put(0xF0U | character >> 18U);
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace kvr5::utf8
