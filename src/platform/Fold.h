#pragma once

#include <string>
#include <string_view>

namespace kvr5 {

/// The text with every Latin, Greek, Cyrillic and Armenian capital made small, one character for
/// one; a byte that isn't UTF-8 stays as it is. The result has the length of the argument.
std::string FoldCase(std::string_view utf8);

/// True when two texts differ in nothing but the case of letters.
bool EqualFold(std::string_view a, std::string_view b);

}  // namespace kvr5
