#pragma once

namespace kvr5 {

/// True for "0" to "9", whatever the host's locale.
constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace kvr5
