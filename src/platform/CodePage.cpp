#include "platform/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "platform/CodePageTables.h"
#include "platform/LetterCase.h"
#include "platform/Utf8.h"

namespace kvr5 {
namespace {

constexpr int kUtf8 = 65001;

struct Encoded {
  char16_t Character;
  std::uint8_t Byte;
};

/// A single-byte page, ready for both directions and for folding.
struct Page {
  HighHalf Characters;
  std::array<Encoded, 128> Bytes;       ///< by character
  std::array<std::uint8_t, 256> Small;  ///< the byte of the small letter
};

constexpr std::optional<std::uint8_t> ByteOf(const Page& page, char32_t character) {
  if (character < 0x80) return static_cast<std::uint8_t>(character);
  const auto found = std::ranges::lower_bound(page.Bytes, character, {}, [](const Encoded& entry) {
    return static_cast<char32_t>(entry.Character);
  });
  if (found == page.Bytes.end() || found->Character != character) return std::nullopt;
  return found->Byte;
}

constexpr char32_t CharacterOf(const Page& page, std::uint8_t byte) {
  return byte < 0x80 ? char32_t{byte} : char32_t{page.Characters[byte - 0x80U]};
}

constexpr Page MakePage(const HighHalf& characters) {
  Page page{characters, {}, {}};
  for (std::size_t i = 0; i < page.Bytes.size(); ++i) {
    page.Bytes[i] = {characters[i], static_cast<std::uint8_t>(0x80 + i)};
  }
  std::ranges::sort(page.Bytes, {}, &Encoded::Character);
  for (std::size_t i = 0; i < page.Small.size(); ++i) {
    const auto byte = static_cast<std::uint8_t>(i);
    page.Small[i] = ByteOf(page, SmallLetter(CharacterOf(page, byte))).value_or(byte);
  }
  return page;
}

constexpr Page kPage1250 = MakePage(k1250);
constexpr Page kPage1251 = MakePage(k1251);
constexpr Page kPage1252 = MakePage(k1252);
constexpr Page kPage1253 = MakePage(k1253);
constexpr Page kPage1254 = MakePage(k1254);
constexpr Page kPage1257 = MakePage(k1257);

/// The page of a number, or nothing for a number that isn't among them.
const Page* Find(int number) {
  switch (number) {
    case 1250:
      return &kPage1250;
    case 1251:
      return &kPage1251;
    case 1252:
      return &kPage1252;
    case 1253:
      return &kPage1253;
    case 1254:
      return &kPage1254;
    case 1257:
      return &kPage1257;
    default:
      return nullptr;
  }
}

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string FoldUtf8(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  while (!text.empty()) {
    const utf8::Step step = utf8::Next(text);
    if (step.Valid) {
      utf8::Append(folded, SmallLetter(step.Value));
    } else {
      folded.append(text.substr(0, step.Length));
    }
    text.remove_prefix(step.Length);
  }
  return folded;
}

}  // namespace

CodePage::CodePage(int number)
    : number_(number == kUtf8 || Find(number) != nullptr ? number : 1252) {}

std::string CodePage::Decode(std::string_view bytes) const {
  if (IsUtf8() || IsAscii(bytes)) return std::string(bytes);
  const Page& page = *Find(number_);
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const char byte : bytes) {
    utf8::Append(text, CharacterOf(page, static_cast<std::uint8_t>(byte)));
  }
  return text;
}

std::string CodePage::Encode(std::string_view utf8) const {
  if (IsUtf8() || IsAscii(utf8)) return std::string(utf8);
  const Page& page = *Find(number_);
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const utf8::Step step = utf8::Next(utf8);
    const auto byte = step.Valid ? ByteOf(page, step.Value) : std::nullopt;
    bytes += static_cast<char>(byte.value_or('?'));
    utf8.remove_prefix(step.Length);
  }
  return bytes;
}

bool CodePage::CanEncode(std::string_view utf8) const {
  if (IsUtf8() || IsAscii(utf8)) return true;
  const Page& page = *Find(number_);
  while (!utf8.empty()) {
    const utf8::Step step = utf8::Next(utf8);
    if (!step.Valid || !ByteOf(page, step.Value)) return false;
    utf8.remove_prefix(step.Length);
  }
  return true;
}

std::string CodePage::Fold(std::string_view bytes) const {
  if (IsUtf8()) return FoldUtf8(bytes);
  const Page& page = *Find(number_);
  std::string folded(bytes);
  for (char& byte : folded) {
    byte = static_cast<char>(page.Small[static_cast<std::uint8_t>(byte)]);
  }
  return folded;
}

std::size_t CodePage::Length(std::string_view bytes) const {
  if (!IsUtf8()) return bytes.size();
  std::size_t count = 0;
  for (; !bytes.empty(); ++count) bytes.remove_prefix(utf8::Next(bytes).Length);
  return count;
}

std::string_view CodePage::Left(std::string_view bytes, std::size_t count) const {
  if (!IsUtf8()) return bytes.substr(0, count);
  std::size_t length = 0;
  for (; count > 0 && length < bytes.size(); --count) {
    length += utf8::Next(bytes.substr(length)).Length;
  }
  return bytes.substr(0, length);
}

}  // namespace kvr5
