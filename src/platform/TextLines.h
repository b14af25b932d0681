#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace kvr5 {

/// The lines of a text file of any size, one after another, in pieces of a fixed size. A line ends
/// at LF, and a CR in front of it belongs to the end; the last line may lack its end. Bytes are
/// left as they are.
class TextLines {
 public:
  /// A line longer than this (bytes) is no text's: reading ends there.
  static constexpr std::size_t kLongestLine = std::size_t{1} << 26U;

  /// `file` must outlive it and is read from its current place on.
  explicit TextLines(File& file) : file_(file) {}

  /// The next line without its end. False at the end of the file, and after a failure.
  bool Next(std::string& line);
  /// What ended the reading early: a read that failed, or 7 for a line beyond all measure.
  const Error& Failure() const { return failure_; }

 private:
  bool Fill();

  File& file_;
  std::string piece_;
  std::size_t at_ = 0;
  bool ended_ = false;
  Error failure_;
};

}  // namespace kvr5
