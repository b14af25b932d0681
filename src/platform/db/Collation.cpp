#include "platform/db/Collation.h"

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>

#include "platform/LetterCase.h"

namespace kvr5 {
namespace {

char32_t Small(char32_t c) {
  constexpr char32_t kFinalSigma = 0x03C2;  // a small sigma at the end of a word
  return c == kFinalSigma ? kFinalSigma + 1 : SmallLetter(c);
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
