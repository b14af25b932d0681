#pragma once

#include <optional>
#include <span>
#include <string>

namespace kvr5::jet {

/// UTF-16, low byte first, as UTF-8; nothing where it isn't well formed.
std::optional<std::string> PlainText(std::span<const unsigned char> content);

/// The content of a text column as UTF-8; nothing where it isn't well formed. After FF FE it is
/// compressed: a byte is the low half of a character below 256, and a zero byte changes to plain
/// UTF-16 and back.
std::optional<std::string> StoredText(std::span<const unsigned char> content);

}  // namespace kvr5::jet
