#pragma once

#include <cstddef>
#include <string>

namespace kvr5::cli {

/// The lines of standard input. A wait for the next one ends with Ctrl-C while an Interrupt stands.
class InputLines {
 public:
  /// The longest line in bytes, unless it is told; more than any path has. Of a longer one the rest
  /// is passed over.
  static constexpr std::size_t kLongest = std::size_t{64} << 10U;

  explicit InputLines(std::size_t longest = kLongest) : longest_(longest) {}

  /// Takes the next line, without its line end; false at the end of the input or when cancelled.
  bool Next(std::string& line);
  /// True once the input could not be read on, so that its end isn't the end.
  bool Failed() const { return failed_; }
  /// True when the last line was longer than may be.
  bool WasCut() const { return cut_; }

 private:
  /// Reads what is there; false at the end or when cancelled.
  bool Fill();

  std::size_t longest_;
  std::string unread_;
  bool cut_ = false;
  bool cancelled_ = false;
  bool failed_ = false;
};

}  // namespace kvr5::cli
