#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <string_view>

namespace kvr5::test {

/// A process on a terminal of its own, and the person in front of it.
class Terminale {
 public:
  /// Runs `child` in a process whose three streams are a new terminal; what it returns is the exit
  /// status.
  explicit Terminale(const std::function<int()>& child, unsigned short columns = 80);
  ~Terminale();
  Terminale(const Terminale&) = delete;
  Terminale& operator=(const Terminale&) = delete;

  /// Waits until the screen shows a text; false when the process ends or 20 s pass before.
  bool Aspetta(std::string_view text);
  /// What the person types; "\x03" is Ctrl-C.
  void Scrivi(std::string_view typed);
  /// Waits for the end: the exit status, -1 when a signal ended the process.
  int Fine();
  /// All that came to the terminal so far, as it came.
  const std::string& Schermo() const { return screen_; }

 private:
  /// Reads what is there; false at the end of the stream or when nothing comes in time.
  bool Read();

  int master_ = -1;
  pid_t child_ = -1;
  std::string screen_;
};

}  // namespace kvr5::test
