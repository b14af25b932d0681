#pragma once

#include <string>

namespace kvr5::cli {

/// The lines of standard input. A wait for the next one ends with Ctrl-C while an Interrupt stands.
class InputLines {
 public:
  /// Takes the next line, without its line end; false at the end of the input or when cancelled.
  bool Next(std::string& line);

 private:
  /// Reads what is there; false at the end or when cancelled.
  bool Fill();

  std::string unread_;
};

}  // namespace kvr5::cli
