#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kvr5 {

/// A time of day as it is stored, "HH:MM:SS", from "HH.MM", "HH:MM" or "HH:MM:SS" with two digits
/// each; nothing when the text is of another form or out of range.
std::optional<std::string> StoredTime(std::string_view text);

}  // namespace kvr5
