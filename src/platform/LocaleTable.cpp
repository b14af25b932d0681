#include "platform/LocaleTable.h"

#include <algorithm>
#include <array>
#include <string>

namespace kvr5 {
namespace {

constexpr std::string_view kNarrow = "\u202F";
constexpr std::string_view kBlank = "\u00A0";
constexpr std::string_view kQuote = "\u2019";

// Numbers of Windows' locales; marks of the C library's locales (so de_CH has the typographic
// quote, fr_FR the narrow blank), or Windows' own where the C library doesn't group at all.
constexpr std::array kRows{
    LocaleRow{"en", "US", 1033, ".", ","},        LocaleRow{"en", "GB", 2057, ".", ","},
    LocaleRow{"en", "AU", 3081, ".", ","},        LocaleRow{"en", "CA", 4105, ".", ","},
    LocaleRow{"en", "HK", 15369, ".", ","},       LocaleRow{"en", "IE", 6153, ".", ","},
    LocaleRow{"en", "IN", 16393, ".", ","},       LocaleRow{"en", "NZ", 5129, ".", ","},
    LocaleRow{"en", "PH", 13321, ".", ","},       LocaleRow{"en", "SG", 18441, ".", ","},
    LocaleRow{"en", "ZA", 7177, ".", ","},        LocaleRow{"en", "ZW", 12297, ".", ","},
    LocaleRow{"it", "IT", 1040, ",", "."},        LocaleRow{"it", "CH", 2064, ".", kQuote},
    LocaleRow{"de", "DE", 1031, ",", "."},        LocaleRow{"de", "AT", 3079, ",", "."},
    LocaleRow{"de", "CH", 2055, ".", kQuote},     LocaleRow{"de", "LI", 5127, ".", kQuote},
    LocaleRow{"de", "LU", 4103, ",", "."},        LocaleRow{"fr", "FR", 1036, ",", kNarrow},
    LocaleRow{"fr", "BE", 2060, ",", "."},        LocaleRow{"fr", "CA", 3084, ",", kNarrow},
    LocaleRow{"fr", "CH", 4108, ".", kQuote},     LocaleRow{"fr", "LU", 5132, ",", kNarrow},
    LocaleRow{"fr", "MC", 6156, ",", kNarrow},    LocaleRow{"es", "ES", 3082, ",", "."},
    LocaleRow{"es", "AR", 11274, ",", "."},       LocaleRow{"es", "BO", 16394, ",", "."},
    LocaleRow{"es", "CL", 13322, ",", "."},       LocaleRow{"es", "CO", 9226, ",", "."},
    LocaleRow{"es", "CR", 5130, ",", kNarrow},    LocaleRow{"es", "CU", 23562, ",", "."},
    LocaleRow{"es", "DO", 7178, ".", ","},        LocaleRow{"es", "EC", 12298, ",", "."},
    LocaleRow{"es", "GT", 4106, ".", ","},        LocaleRow{"es", "HN", 18442, ".", ","},
    LocaleRow{"es", "MX", 2058, ".", kNarrow},    LocaleRow{"es", "NI", 19466, ".", ","},
    LocaleRow{"es", "PA", 6154, ".", ","},        LocaleRow{"es", "PE", 10250, ",", "."},
    LocaleRow{"es", "PR", 20490, ".", ","},       LocaleRow{"es", "PY", 15370, ",", "."},
    LocaleRow{"es", "SV", 17418, ".", ","},       LocaleRow{"es", "US", 21514, ".", ","},
    LocaleRow{"es", "UY", 14346, ",", "."},       LocaleRow{"es", "VE", 8202, ",", "."},
    LocaleRow{"pt", "BR", 1046, ",", "."},        LocaleRow{"pt", "PT", 2070, ",", "."},
    LocaleRow{"nl", "NL", 1043, ",", "."},        LocaleRow{"nl", "BE", 2067, ",", "."},
    LocaleRow{"ca", "ES", 1027, ",", "."},        LocaleRow{"eu", "ES", 1069, ",", "."},
    LocaleRow{"gl", "ES", 1110, ",", "."},        LocaleRow{"oc", "FR", 1154, ",", kNarrow},
    LocaleRow{"br", "FR", 1150, ",", kNarrow},    LocaleRow{"fy", "NL", 1122, ",", "."},
    LocaleRow{"lb", "LU", 1134, ",", "."},        LocaleRow{"rm", "CH", 1047, ".", kQuote},
    LocaleRow{"da", "DK", 1030, ",", "."},        LocaleRow{"fo", "FO", 1080, ",", "."},
    LocaleRow{"kl", "GL", 1135, ",", "."},        LocaleRow{"is", "IS", 1039, ",", "."},
    LocaleRow{"nb", "NO", 1044, ",", kNarrow},    LocaleRow{"no", "NO", 1044, ",", kNarrow},
    LocaleRow{"nn", "NO", 2068, ",", kNarrow},    LocaleRow{"se", "NO", 1083, ",", "."},
    LocaleRow{"sv", "SE", 1053, ",", kNarrow},    LocaleRow{"sv", "FI", 2077, ",", kNarrow},
    LocaleRow{"fi", "FI", 1035, ",", kNarrow},    LocaleRow{"ga", "IE", 2108, ".", ","},
    LocaleRow{"gd", "GB", 1169, ".", ","},        LocaleRow{"cy", "GB", 1106, ".", ","},
    LocaleRow{"mt", "MT", 1082, ".", ","},        LocaleRow{"cs", "CZ", 1029, ",", kNarrow},
    LocaleRow{"sk", "SK", 1051, ",", kNarrow},    LocaleRow{"pl", "PL", 1045, ",", kNarrow},
    LocaleRow{"hu", "HU", 1038, ",", "."},        LocaleRow{"sl", "SI", 1060, ",", "."},
    LocaleRow{"hr", "HR", 1050, ",", "."},        LocaleRow{"hr", "BA", 4122, ",", "."},
    LocaleRow{"bs", "BA", 5146, ",", "."},        LocaleRow{"ro", "RO", 1048, ",", "."},
    LocaleRow{"sq", "AL", 1052, ",", "."},        LocaleRow{"hsb", "DE", 1070, ",", "."},
    LocaleRow{"dsb", "DE", 2094, ",", "."},       LocaleRow{"sr", "RS", 10266, ",", "."},
    LocaleRow{"sr", "BA", 7194, ",", "."},        LocaleRow{"sr", "ME", 12314, ",", "."},
    LocaleRow{"sr@latin", "RS", 9242, ",", "."},  LocaleRow{"sr@latin", "BA", 6170, ",", "."},
    LocaleRow{"sr@latin", "ME", 11290, ",", "."}, LocaleRow{"mk", "MK", 1071, ",", kNarrow},
    LocaleRow{"bg", "BG", 1026, ",", kBlank},     LocaleRow{"ru", "RU", 1049, ",", kNarrow},
    LocaleRow{"uk", "UA", 1058, ",", kNarrow},    LocaleRow{"be", "BY", 1059, ",", "."},
    LocaleRow{"el", "GR", 1032, ",", "."},        LocaleRow{"tr", "TR", 1055, ",", "."},
    LocaleRow{"et", "EE", 1061, ",", kNarrow},    LocaleRow{"lv", "LV", 1062, ",", kNarrow},
    LocaleRow{"lt", "LT", 1063, ",", "."},        LocaleRow{"az", "AZ", 1068, ",", "."},
    LocaleRow{"hy", "AM", 1067, ".", ","},        LocaleRow{"ka", "GE", 1079, ",", "."},
    LocaleRow{"kk", "KZ", 1087, ",", kNarrow},    LocaleRow{"ky", "KG", 1088, ",", kNarrow},
    LocaleRow{"mn", "MN", 1104, ",", "."},        LocaleRow{"tg", "TJ", 1064, ",", "."},
    LocaleRow{"tk", "TM", 1090, ".", ","},        LocaleRow{"tt", "RU", 1092, ",", kNarrow},
    LocaleRow{"uz", "UZ", 1091, ".", ","},        LocaleRow{"af", "ZA", 1078, ".", ","},
    LocaleRow{"ar", "SA", 1025, ".", ","},        LocaleRow{"ar", "AE", 14337, ".", ","},
    LocaleRow{"ar", "BH", 15361, ".", ","},       LocaleRow{"ar", "DZ", 5121, ".", ","},
    LocaleRow{"ar", "EG", 3073, ".", ","},        LocaleRow{"ar", "IQ", 2049, ".", ","},
    LocaleRow{"ar", "JO", 11265, ".", ","},       LocaleRow{"ar", "KW", 13313, ".", ","},
    LocaleRow{"ar", "LB", 12289, ".", ","},       LocaleRow{"ar", "LY", 4097, ".", ","},
    LocaleRow{"ar", "MA", 6145, ".", ","},        LocaleRow{"ar", "OM", 8193, ".", ","},
    LocaleRow{"ar", "QA", 16385, ".", ","},       LocaleRow{"ar", "SY", 10241, ".", ","},
    LocaleRow{"ar", "TN", 7169, ".", ","},        LocaleRow{"ar", "YE", 9217, ".", ","},
    LocaleRow{"fa", "IR", 1065, ".", ","},        LocaleRow{"fil", "PH", 1124, ".", ","},
    LocaleRow{"he", "IL", 1037, ".", ","},        LocaleRow{"hi", "IN", 1081, ".", ","},
    LocaleRow{"id", "ID", 1057, ",", "."},        LocaleRow{"ja", "JP", 1041, ".", ","},
    LocaleRow{"km", "KH", 1107, ".", ","},        LocaleRow{"ko", "KR", 1042, ".", ","},
    LocaleRow{"lo", "LA", 1108, ".", ","},        LocaleRow{"ms", "MY", 1086, ".", ","},
    LocaleRow{"sw", "KE", 1089, ".", ","},        LocaleRow{"th", "TH", 1054, ".", ","},
    LocaleRow{"ur", "PK", 1056, ".", ","},        LocaleRow{"vi", "VN", 1066, ",", "."},
    LocaleRow{"zh", "CN", 2052, ".", ","},        LocaleRow{"zh", "HK", 3076, ".", ","},
    LocaleRow{"zh", "MO", 5124, ".", ","},        LocaleRow{"zh", "SG", 4100, ".", ","},
    LocaleRow{"zh", "TW", 1028, ".", ","},
};

struct LanguagePage {
  std::string_view Language;
  int CodePage;
};

// Languages that aren't written in Windows-1252.
constexpr std::array kPages{
    LanguagePage{"bs", 1250},       LanguagePage{"cs", 1250}, LanguagePage{"hr", 1250},
    LanguagePage{"hu", 1250},       LanguagePage{"pl", 1250}, LanguagePage{"ro", 1250},
    LanguagePage{"sk", 1250},       LanguagePage{"sl", 1250}, LanguagePage{"sq", 1250},
    LanguagePage{"sr@latin", 1250}, LanguagePage{"tk", 1250}, LanguagePage{"be", 1251},
    LanguagePage{"bg", 1251},       LanguagePage{"kk", 1251}, LanguagePage{"ky", 1251},
    LanguagePage{"mk", 1251},       LanguagePage{"mn", 1251}, LanguagePage{"ru", 1251},
    LanguagePage{"sr", 1251},       LanguagePage{"tg", 1251}, LanguagePage{"tt", 1251},
    LanguagePage{"uk", 1251},       LanguagePage{"el", 1253}, LanguagePage{"az", 1254},
    LanguagePage{"tr", 1254},       LanguagePage{"uz", 1254}, LanguagePage{"et", 1257},
    LanguagePage{"lt", 1257},       LanguagePage{"lv", 1257},
};

/// The parts of "language_COUNTRY.charset@modifier"; the charset is passed over.
struct Name {
  std::string Language;
  std::string Country;
  std::string Modified;  ///< language with the modifier, or empty
};

Name Split(std::string_view text) {
  const std::string_view modifier = text.substr(std::min(text.find('@'), text.size()));
  text = text.substr(0, text.find_first_of(".@"));
  if (text.empty() || text == "C" || text == "POSIX") return {"en", "US", ""};
  const std::size_t language = std::min(text.find_first_of("_-"), text.size());
  Name name{std::string(text.substr(0, language)), "", ""};
  if (language < text.size()) name.Country = text.substr(language + 1);
  if (!modifier.empty()) name.Modified = name.Language + std::string(modifier);
  return name;
}

const LocaleRow* Find(std::string_view language, std::string_view country) {
  const auto first = std::ranges::find(kRows, language, &LocaleRow::Language);
  const auto exact = std::find_if(first, kRows.end(), [&](const LocaleRow& row) {
    return row.Language == language && row.Country == country;
  });
  if (exact != kRows.end()) return &*exact;
  return first != kRows.end() ? &*first : nullptr;
}

}  // namespace

const LocaleRow& FindLocale(std::string_view name) {
  const Name parts = Split(name);
  if (const LocaleRow* row = Find(parts.Modified, parts.Country)) return *row;
  if (const LocaleRow* row = Find(parts.Language, parts.Country)) return *row;
  return kRows.front();
}

std::uint32_t LcidOf(std::string_view name) {
  constexpr std::uint32_t kUnspecified = 0x1000;
  const LocaleRow& row = FindLocale(name);
  const Name parts = Split(name);
  const bool known = row.Language == parts.Language || row.Language == parts.Modified;
  const bool elsewhere = known && !parts.Country.empty() && parts.Country != row.Country;
  return elsewhere ? kUnspecified : row.Lcid;
}

int AnsiCodePageOf(std::string_view name) {
  const Name parts = Split(name);
  for (const std::string& language : {parts.Modified, parts.Language}) {
    const auto found = std::ranges::find(kPages, language, &LanguagePage::Language);
    if (found != kPages.end()) return found->CodePage;
  }
  return 1252;
}

}  // namespace kvr5
