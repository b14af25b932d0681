#pragma once

#include <cstdint>
#include <string_view>

namespace kvr5 {

/// What is known of a language in a country.
struct LocaleRow {
  std::string_view Language;  ///< ISO 639, with "@latin" where it is also written otherwise
  std::string_view Country;   ///< ISO 3166
  std::uint32_t Lcid;
  std::string_view DecimalMark;  ///< UTF-8
  std::string_view GroupMark;    ///< UTF-8
};

/// The row of a locale's name such as "it_IT.UTF-8" or "sr_RS@latin". A known language in an
/// unknown country is that language's first row; "", "C", "POSIX" and unknown languages are
/// English (US).
const LocaleRow& FindLocale(std::string_view name);

/// The locale identifier of a locale's name. A known language in an unknown country has the number
/// that stands for no country of its own: it must not pass for the language's home.
std::uint32_t LcidOf(std::string_view name);

/// The single-byte code page in which texts of a locale's language are written.
int AnsiCodePageOf(std::string_view name);

}  // namespace kvr5
