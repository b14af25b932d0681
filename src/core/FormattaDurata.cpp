#include "core/FormattaDurata.h"

#include <cstdint>
#include <limits>
#include <optional>

#include "platform/Locale.h"

namespace kvr5 {
namespace {

/// How many whole `unit`s the rounded seconds hold; nothing when these don't fit 32 bits.
std::optional<std::int32_t> WholeUnits(double seconds, std::int32_t unit) {
  const double rounded = ArrotondaPari(seconds);
  const bool fits = rounded >= std::numeric_limits<std::int32_t>::min() &&
                    rounded <= std::numeric_limits<std::int32_t>::max();
  if (!fits) return std::nullopt;
  return static_cast<std::int32_t>(rounded) / unit;
}

}  // namespace

std::string FormattaDurata(double secondi) {
  static constexpr const char* kError = "00:00:00";
  const auto hours = WholeUnits(secondi, 3600);
  if (!hours) return kError;
  if (*hours > 0) secondi -= *hours * 3600.0;
  const auto minutes = WholeUnits(secondi, 60);
  if (!minutes) return kError;
  if (*minutes > 0) secondi -= *minutes * 60.0;
  return FormatDigits(*hours, 2) + "." + FormatDigits(*minutes, 2) + "." + FormatDigits(secondi, 2);
}

}  // namespace kvr5
