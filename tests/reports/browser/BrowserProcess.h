#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

namespace kvr5::test {

/// Chromium without a window, as a process of this one, spoken to over the pair of pipes that it
/// offers to debuggers: no port, nothing that another run could meet. Ends with the object, and
/// with this process whatever becomes of it.
class BrowserProcess {
 public:
  /// The executable's path; nothing where the browser isn't installed.
  static std::optional<std::string> Executable();

  /// Starts it with an empty profile in `folder` (host path). Throws std::runtime_error.
  explicit BrowserProcess(const std::string& folder);
  ~BrowserProcess();
  BrowserProcess(const BrowserProcess&) = delete;
  BrowserProcess& operator=(const BrowserProcess&) = delete;

  /// Sends one message; one that can't be sent shows by its missing answer.
  void Send(const std::string& message);
  /// The next message; nothing when the browser has ended or is silent for half a minute.
  std::optional<std::string> Receive();

 private:
  int write_ = -1;
  int read_ = -1;
  pid_t process_ = -1;
  std::string received_;
};

}  // namespace kvr5::test
