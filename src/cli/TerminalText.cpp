#include "cli/TerminalText.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include "platform/Utf8.h"

namespace kvr5::cli {
namespace {

bool IsControl(char32_t c) {
  return (c < 0x20 && c != '\n') || (c >= 0x7F && c < 0xA0);
}

}  // namespace

std::string WithPlainLineEnds(std::string_view text) {
  std::string result(text);
  std::erase(result, '\r');
  return result;
}

std::string ShownOnTerminal(std::string_view text) {
  std::string shown;
  shown.reserve(text.size());
  while (!text.empty()) {
    const utf8::Step step = utf8::Next(text);
    if (step.Valid && !IsControl(step.Value)) {
      shown += text.substr(0, step.Length);
    } else {
      shown += "\uFFFD";
    }
    text.remove_prefix(step.Length);
  }
  return shown;
}

std::string_view CutToWidth(std::string_view line, std::size_t columns) {
  std::size_t end = 0;
  for (; columns > 0 && end < line.size(); --columns) end += utf8::Next(line.substr(end)).Length;
  return line.substr(0, end);
}

std::size_t TerminalColumns() {
  constexpr std::size_t kUsual = 80;
  winsize size{};
  const bool known = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return known ? size.ws_col : kUsual;
}

}  // namespace kvr5::cli
