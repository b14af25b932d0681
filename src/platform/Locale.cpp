#include "platform/Locale.h"

#include <cstdlib>

#include "platform/LocaleTable.h"

namespace kvr5 {

Locale Locale::FromEnvironment(const std::function<std::string(const std::string&)>& variable) {
  const auto chosen = [&variable](const char* category) {
    for (const char* name : {"LC_ALL", category, "LANG"}) {
      std::string value = variable(name);
      if (!value.empty()) return value;
    }
    return std::string();
  };
  const LocaleRow& numbers = FindLocale(chosen("LC_NUMERIC"));
  Locale locale;
  locale.Lcid = LcidOf(chosen("LC_MESSAGES"));
  locale.AnsiCodePage = AnsiCodePageOf(chosen("LC_CTYPE"));
  locale.DecimalMark = numbers.DecimalMark;
  locale.GroupMark = numbers.GroupMark;
  return locale;
}

Locale Locale::Host() {
  return FromEnvironment([](const std::string& name) {
    const char* const value = std::getenv(name.c_str());
    return std::string(value != nullptr ? value : "");
  });
}

}  // namespace kvr5
