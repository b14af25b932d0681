#include "platform/db/TimeOfDay.h"

namespace kvr5 {
namespace {

/// Two digits below `limit` at `at`.
bool IsPart(std::string_view text, std::size_t at, int limit) {
  const char tens = text[at];
  const char ones = text[at + 1];
  if (tens < '0' || tens > '9' || ones < '0' || ones > '9') return false;
  return (tens - '0') * 10 + (ones - '0') < limit;
}

}  // namespace

std::optional<std::string> StoredTime(std::string_view text) {
  const bool seconds = text.size() == 8;
  if (!seconds && text.size() != 5) return std::nullopt;
  if (!IsPart(text, 0, 24) || !IsPart(text, 3, 60)) return std::nullopt;
  if (text[2] != ':' && (seconds || text[2] != '.')) return std::nullopt;
  if (seconds && (text[5] != ':' || !IsPart(text, 6, 60))) return std::nullopt;
  std::string time(text);
  time[2] = ':';
  if (!seconds) time += ":00";
  return time;
}

}  // namespace kvr5
