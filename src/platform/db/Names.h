#pragma once

#include <algorithm>
#include <string_view>

namespace kvr5 {

/// An ASCII letter made small; any other byte as it is.
constexpr char SmallLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// True when two names of tables, columns or keywords are the same; their case doesn't count.
inline bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return SmallLetter(x) == SmallLetter(y); });
}

}  // namespace kvr5
