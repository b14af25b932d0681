#include "core/Orologio.h"

namespace kvr5 {
namespace {

bool ToLocal(std::time_t seconds, std::tm& local) {
#ifdef _WIN32
  return localtime_s(&local, &seconds) == 0;
#else
  return localtime_r(&seconds, &local) != nullptr;
#endif
}

}  // namespace

std::tm InOraLocale(std::int64_t secondi) {
  std::tm local{};
  if (ToLocal(static_cast<std::time_t>(secondi), local)) return local;
  std::tm epoch{};
  epoch.tm_mday = 1;
  epoch.tm_year = 70;
  return epoch;
}

std::string FormattaMomento(const std::tm& momento, const char* forma) {
  std::string text(32, '\0');
  text.resize(std::strftime(text.data(), text.size(), forma, &momento));
  return text;
}

std::tm OrologioDiSistema::Adesso() const {
  return InOraLocale(static_cast<std::int64_t>(std::time(nullptr)));
}

}  // namespace kvr5
