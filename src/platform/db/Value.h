#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace kvr5 {

/// What a column of a row holds: Null, a whole number, a real or a text (UTF-8). Times of day are
/// texts "HH:MM:SS".
using DbValue = std::variant<std::monostate, std::int64_t, double, std::string>;

/// True for Null.
inline bool IsNull(const DbValue& value) {
  return std::holds_alternative<std::monostate>(value);
}

}  // namespace kvr5
