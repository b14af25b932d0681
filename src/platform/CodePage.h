#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kvr5 {

/// One of the 8-bit ANSI code pages in which the system's text files are written, or UTF-8 for
/// the settings file of hosts other than Windows.
///
/// Single-byte pages 1250, 1251, 1252, 1253, 1254 and 1257. A byte that a page leaves undefined
/// stands for the control character of the same value, or, above 9F, for a private-use character
/// (as the original host has it), so that decoding and encoding keep every byte.
class CodePage {
 public:
  /// `number`: 1250, 1251, 1252, 1253, 1254, 1257 or 65001 (UTF-8); any other gives 1252.
  explicit CodePage(int number = 1252);

  int Number() const { return number_; }
  bool IsUtf8() const { return number_ == 65001; }

  /// Bytes of this page to UTF-8. On the UTF-8 page invalid sequences are kept as they are.
  std::string Decode(std::string_view bytes) const;
  /// UTF-8 to bytes of this page; a character that the page lacks becomes "?".
  std::string Encode(std::string_view utf8) const;
  /// True when encoding loses nothing: every character of the text has a byte in this page. On
  /// the UTF-8 page always.
  bool CanEncode(std::string_view utf8) const;
  /// Bytes with all letters of the page made small, for comparing without regard to case. Only
  /// letters whose other case is a single one in the page change; the length stays the same.
  std::string Fold(std::string_view bytes) const;
  /// How many characters the bytes are: bytes on a single-byte page, code points in UTF-8.
  std::size_t Length(std::string_view bytes) const;
  /// The first `count` characters of the bytes.
  std::string_view Left(std::string_view bytes, std::size_t count) const;

 private:
  int number_;
};

}  // namespace kvr5
