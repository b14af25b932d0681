#include "platform/db/Collation.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace kvr5 {
namespace {

/// Capitals of a run of the Unicode table and how far off their small letters stand. In runs of
/// step 2 capital and small letter alternate, the capital first.
struct Capitals {
  char32_t first;
  char32_t last;
  std::int32_t offset;
  char32_t step;
};

constexpr std::array kCapitals{
    Capitals{0x00C0, 0x00D6, 32, 1},   Capitals{0x00D8, 0x00DE, 32, 1},
    Capitals{0x0100, 0x012E, 1, 2},    Capitals{0x0132, 0x0136, 1, 2},
    Capitals{0x0139, 0x0147, 1, 2},    Capitals{0x014A, 0x0176, 1, 2},
    Capitals{0x0178, 0x0178, -121, 1}, Capitals{0x0179, 0x017D, 1, 2},
    Capitals{0x0200, 0x021E, 1, 2},    Capitals{0x0222, 0x0232, 1, 2},
    Capitals{0x0386, 0x0386, 38, 1},   Capitals{0x0388, 0x038A, 37, 1},
    Capitals{0x038C, 0x038C, 64, 1},   Capitals{0x038E, 0x038F, 63, 1},
    Capitals{0x0391, 0x03A1, 32, 1},   Capitals{0x03A3, 0x03AB, 32, 1},
    Capitals{0x03C2, 0x03C2, 1, 1},  // the final sigma is a small sigma
    Capitals{0x0400, 0x040F, 80, 1},   Capitals{0x0410, 0x042F, 32, 1},
    Capitals{0x0460, 0x0480, 1, 2},    Capitals{0x048A, 0x04BE, 1, 2},
    Capitals{0x04C0, 0x04C0, 15, 1},   Capitals{0x04C1, 0x04CD, 1, 2},
    Capitals{0x04D0, 0x052E, 1, 2},    Capitals{0x1E00, 0x1E94, 1, 2},
    Capitals{0x1EA0, 0x1EFE, 1, 2},
};

char32_t Small(char32_t c) {
  if (c < 0x80) return c >= U'A' && c <= U'Z' ? c + 32 : c;
  const auto* run = std::lower_bound(kCapitals.begin(), kCapitals.end(), c,
                                     [](const Capitals& r, char32_t x) { return r.last < x; });
  if (run == kCapitals.end() || c < run->first || (c - run->first) % run->step != 0) return c;
  return static_cast<char32_t>(static_cast<std::int32_t>(c) + run->offset);
}

constexpr char32_t kBeyondUnicode = 0x110000;

/// The bytes that follow a leading byte in UTF-8; 0 for a byte that leads nothing.
std::size_t Followers(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 1;
  if (lead >= 0xE0 && lead <= 0xEF) return 2;
  return lead >= 0xF0 && lead <= 0xF4 ? 3 : 0;
}

/// Takes the next character off the text; a byte out of place as a value beyond all characters.
char32_t TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  text.remove_prefix(1);
  if (lead < 0x80) return lead;
  const std::size_t followers = Followers(lead);
  if (followers == 0 || followers > text.size()) return kBeyondUnicode + lead;
  char32_t c = lead & (0x3FU >> followers);
  for (std::size_t i = 0; i < followers; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80) return kBeyondUnicode + lead;
    c = (c << 6U) | (byte & 0x3FU);
  }
  text.remove_prefix(followers);
  return c;
}

int Collate(void* /*unused*/, int sizeA, const void* a, int sizeB, const void* b) {
  return CompareNoCase({static_cast<const char*>(a), static_cast<std::size_t>(sizeA)},
                       {static_cast<const char*>(b), static_cast<std::size_t>(sizeB)});
}

}  // namespace

int CompareNoCase(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    const char32_t x = Small(TakeCharacter(a));
    const char32_t y = Small(TakeCharacter(b));
    if (x != y) return x < y ? -1 : 1;
  }
  return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

bool RegisterCollation(sqlite3* handle) {
  return sqlite3_create_collation_v2(handle, kCollationName, SQLITE_UTF8, nullptr, Collate,
                                     nullptr) == SQLITE_OK;
}

}  // namespace kvr5
