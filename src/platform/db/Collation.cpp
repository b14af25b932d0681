#include "platform/db/Collation.h"

#include <sqlite3.h>

#include <cstddef>

#include "platform/LetterCase.h"
#include "platform/Utf8.h"

namespace kvr5 {
namespace {

char32_t Small(char32_t c) {
  constexpr char32_t kFinalSigma = 0x03C2;  // a small sigma at the end of a word
  return c == kFinalSigma ? kFinalSigma + 1 : SmallLetter(c);
}

/// Takes the next character off the text; a byte out of place as a value beyond all characters.
char32_t TakeCharacter(std::string_view& text) {
  constexpr char32_t kBeyondUnicode = 0x110000;
  const utf8::Step step = utf8::Next(text);
  text.remove_prefix(step.Length);
  return step.Valid ? step.Value : kBeyondUnicode + step.Value;
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
