#pragma once

namespace kvr5::cli {

/// Ctrl-C (and a request to end) as a cancel button, for as long as one stands; before and after it
/// does what it did. One at a time. A signal that was ignored stays ignored.
class Interrupt {
 public:
  /// What becomes of a wait for input when it is pressed.
  enum class Waits { GoOn, End };

  explicit Interrupt(Waits waits = Waits::GoOn);
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  /// True once it was pressed; the next call is false again until it is pressed anew.
  static bool Pressed();
};

}  // namespace kvr5::cli
