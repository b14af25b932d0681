#pragma once

#include <optional>
#include <span>
#include <string>

namespace kvr5::jet {

/// UTF-16, low byte first, as UTF-8; U+FFFD for a half of a pair that stands alone, as where a text
/// was cut at its column's length; nothing where half a character is left over.
std::optional<std::string> PlainText(std::span<const unsigned char> content);

/// The content of a text column as UTF-8, in the same way. After FF FE it is
/// compressed: a byte is the low half of a character below 256, and a zero byte changes to plain
/// UTF-16 and back.
std::optional<std::string> StoredText(std::span<const unsigned char> content);

}  // namespace kvr5::jet
