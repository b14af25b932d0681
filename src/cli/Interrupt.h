#pragma once

namespace kvr5::cli {

/// Ctrl-C (and a request to end) as a cancel button, for as long as one stands; before and after it
/// does what it did. One at a time. A signal that was ignored stays ignored.
class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  /// True once it was pressed; the next call is false again until it is pressed anew.
  static bool Pressed();
  /// Waits until standard input has something to read or is at its end; false when it is pressed
  /// before, which stays to be told by Pressed.
  static bool WaitForInput();
};

}  // namespace kvr5::cli
