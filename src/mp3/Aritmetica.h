#pragma once

#include <cstdint>
#include <limits>

#include "platform/Error.h"
#include "platform/Locale.h"

namespace kvr5 {

/// Arithmetic with the errors of the classic runtime, for figures that come out of files and may
/// be anything. An error is a plain number here: it is met on ordinary files, not only on bad ones.

/// A value, or the number of the error that took its place.
template <typename T>
struct Calcolo {
  T Valore{};
  int Errore = 0;

  explicit operator bool() const { return Errore == 0; }
};

/// A quotient of reals: 11, or 6 for nothing by nothing.
inline Calcolo<double> Dividi(double dividend, double divisor) {
  if (divisor == 0.0) {
    return {0.0, dividend == 0.0 ? errors::Overflow : errors::DivisionByZero};
  }
  return {dividend / divisor, 0};
}

/// A whole number in 32 bits: 6 when it doesn't fit.
inline Calcolo<std::int32_t> InTrentadueBit(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (value < Limits::min() || value > Limits::max()) return {0, errors::Overflow};
  return {static_cast<std::int32_t>(value), 0};
}

/// A real rounded half to even into 32 bits: 6 when it doesn't fit.
inline Calcolo<std::int32_t> ArrotondaInTrentadueBit(double value) {
  using Limits = std::numeric_limits<std::int32_t>;
  const double rounded = ArrotondaPari(value);
  const bool fits = rounded >= Limits::min() && rounded <= Limits::max();
  if (!fits) return {0, errors::Overflow};
  return {static_cast<std::int32_t>(rounded), 0};
}

}  // namespace kvr5
