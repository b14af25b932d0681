#pragma once

#include <cstdint>
#include <ctime>
#include <string>

namespace kvr5 {

/// The local clock; tests set their own.
class Orologio {
 public:
  virtual ~Orologio() = default;
  /// Date and time of day here and now.
  virtual std::tm Adesso() const = 0;
};

/// A moment in seconds since 1970-01-01 UTC as date and time of day here. One that the host can't
/// tell (beyond its years) is the beginning of 1970.
std::tm InOraLocale(std::int64_t secondi);

/// A moment in the form that strftime takes, "%H:%M"; "" where it has more than 31 bytes.
std::string FormattaMomento(const std::tm& momento, const char* forma);

/// The host's clock.
class OrologioDiSistema : public Orologio {
 public:
  std::tm Adesso() const override;
};

}  // namespace kvr5
