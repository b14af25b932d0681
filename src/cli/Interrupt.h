#pragma once

namespace kvr5::cli {

/// Ctrl-C as a cancel button, for as long as one stands; before and after it ends the process as
/// usual.
class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  /// True once it was pressed; the next call is false again until it is pressed anew.
  static bool Pressed();
};

}  // namespace kvr5::cli
