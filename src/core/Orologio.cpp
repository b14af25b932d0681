#include "core/Orologio.h"

namespace kvr5 {

std::tm OrologioDiSistema::Adesso() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  return local;
}

}  // namespace kvr5
