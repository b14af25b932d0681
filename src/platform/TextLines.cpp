#include "platform/TextLines.h"

#include <span>

namespace kvr5 {

bool TextLines::Fill() {
  constexpr std::size_t kPiece = std::size_t{64} << 10U;
  if (ended_) return false;
  piece_.resize(kPiece);
  at_ = 0;
  const Result<std::size_t> read = file_.Read(std::span(piece_));
  if (!read) failure_ = read.Err();
  piece_.resize(read ? read.Value() : 0);
  ended_ = piece_.empty();
  return !ended_;
}

bool TextLines::Next(std::string& line) {
  line.clear();
  bool any = false;
  while (at_ < piece_.size() || Fill()) {
    any = true;
    const std::size_t end = piece_.find('\n', at_);
    const std::size_t stop = end == std::string::npos ? piece_.size() : end;
    line.append(piece_, at_, stop - at_);
    if (line.size() > kLongestLine) {
      failure_ = Error(errors::OutOfMemory);
      ended_ = true;
      at_ = piece_.size();
      return false;
    }
    at_ = stop + 1;
    if (end == std::string::npos) continue;
    if (line.ends_with('\r')) line.pop_back();
    return true;
  }
  return any && !failure_;
}

}  // namespace kvr5
