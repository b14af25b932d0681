#pragma once

#include <string>
#include <string_view>

namespace kvr5::utf16 {

/// True when the bytes begin with the mark of UTF-16, low byte first (FF FE).
bool HasMark(std::string_view bytes);

/// A marked file's bytes, low byte first, without the mark, as UTF-8. A lone surrogate is carried
/// in three bytes; an odd byte at the end is left out.
std::string ToUtf8(std::string_view bytes);

/// The way back; an invalid byte becomes U+FFFD.
std::string FromUtf8(std::string_view text);

}  // namespace kvr5::utf16
