#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kvr5 {

/// A time of day to the minute.
struct Ora {
  int Ore = 0;     ///< 0 to 23
  int Minuti = 0;  ///< 0 to 59
  bool operator==(const Ora&) const = default;
};

/// The time that a stored StartTime ("08:30:00") stands for. A date in front of it
/// ("2019-03-04 08:30:00"), as other programs write it, counts for nothing, and alone is midnight.
/// Nothing for a Null ("") and for what is no time.
std::optional<Ora> OraDa(std::string_view memorizzata);

/// The picture "HH.mm"; "" for no time.
std::string OraConPunto(const std::optional<Ora>& ora);
/// The picture "HH:mm" with a colon whatever the host's mark; "" for no time.
std::string OraConDuePunti(const std::optional<Ora>& ora);

}  // namespace kvr5
