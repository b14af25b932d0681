#pragma once

#include <ctime>

namespace kvr5 {

/// The local clock; tests set their own.
class Orologio {
 public:
  virtual ~Orologio() = default;
  /// Date and time of day here and now.
  virtual std::tm Adesso() const = 0;
};

/// The host's clock.
class OrologioDiSistema : public Orologio {
 public:
  std::tm Adesso() const override;
};

}  // namespace kvr5
