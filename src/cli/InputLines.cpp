#include "cli/InputLines.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "cli/Interrupt.h"

namespace kvr5::cli {

bool InputLines::Next(std::string& line) {
  cut_ = false;
  std::size_t end = unread_.find('\n');
  while (end == std::string::npos) {
    unread_.resize(std::min(unread_.size(), longest_ + 1));
    const std::size_t searched = unread_.size();
    if (!Fill()) {
      if (cancelled_) return false;  // half a line is none
      line = std::move(unread_);
      unread_.clear();
      cut_ = line.size() > longest_;
      return !line.empty();
    }
    end = unread_.find('\n', searched);
  }
  cut_ = end > longest_;
  line = unread_.substr(0, std::min(end, longest_));
  unread_.erase(0, end + 1);
  if (line.ends_with('\r')) line.pop_back();
  return true;
}

bool InputLines::Fill() {
  cancelled_ = !Interrupt::WaitForInput();
  if (cancelled_) return false;
  std::array<char, 4096> bytes{};
  ssize_t count = 0;
  do {
    count = read(STDIN_FILENO, bytes.data(), bytes.size());
  } while (count < 0 && errno == EINTR);
  failed_ = count < 0;
  if (count <= 0) return false;
  unread_.append(bytes.data(), static_cast<std::size_t>(count));
  return true;
}

}  // namespace kvr5::cli
