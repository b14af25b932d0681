#include "projects/OraDelSegmento.h"

#include <algorithm>

#include "core/Aiuti.h"
#include "platform/db/TimeOfDay.h"

namespace kvr5 {
namespace {

/// What follows the date at the beginning, "YYYY-MM-DD" and a blank or "T"; all of it where there
/// is none.
std::string_view WithoutDate(std::string_view text) {
  constexpr std::string_view kPicture = "0000-00-00";
  if (text.size() < kPicture.size()) return text;
  const bool date = std::equal(kPicture.begin(), kPicture.end(), text.begin(), [](char p, char c) {
    return p == '-' ? c == '-' : c >= '0' && c <= '9';
  });
  if (!date) return text;
  text.remove_prefix(kPicture.size());
  if (text.empty()) return "00:00";
  return text.front() == ' ' || text.front() == 'T' ? text.substr(1) : std::string_view();
}

std::string Picture(const std::optional<Ora>& ora, char mark) {
  if (!ora) return {};
  return RiempiZeri(std::to_string(ora->Ore), 2) + mark +
         RiempiZeri(std::to_string(ora->Minuti), 2);
}

}  // namespace

std::optional<Ora> OraDa(std::string_view memorizzata) {
  const auto time = StoredTime(WithoutDate(memorizzata));
  if (!time) return {};
  return Ora{std::stoi(time->substr(0, 2)), std::stoi(time->substr(3, 2))};
}

std::string OraConPunto(const std::optional<Ora>& ora) {
  return Picture(ora, '.');
}

std::string OraConDuePunti(const std::optional<Ora>& ora) {
  return Picture(ora, ':');
}

}  // namespace kvr5
