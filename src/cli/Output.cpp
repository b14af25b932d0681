#include "cli/Output.h"

#include <unistd.h>

#include <algorithm>

#include "cli/TerminalText.h"

namespace kvr5::cli {
namespace {

/// A line is told when it is true, also into a pipe.
bool Put(std::FILE* stream, const std::string& line) {
  const bool written = std::fwrite(line.data(), 1, line.size(), stream) == line.size() &&
                       std::fputc('\n', stream) != EOF;
  return std::fflush(stream) == 0 && written;
}

std::string Dump(const Json& object) {
  return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

Output::Output(bool json)
    : json_(json),
      resultsOnTerminal_(isatty(STDOUT_FILENO) == 1),
      boxesOnTerminal_(isatty(STDERR_FILENO) == 1) {}

void Output::Result(const std::string& line) {
  if (!Put(stdout, resultsOnTerminal_ ? ShownOnTerminal(line) : line)) failed_ = true;
}

void Output::Line(std::string_view text) {
  Result(std::string(text));
}

void Output::Object(const Json& object) {
  Result(Dump(object));
}

void Output::Box(std::string_view kind, std::string_view title, std::string_view text,
                 std::string_view answer) {
  const std::string words = WithPlainLineEnds(text);
  Told(json_ ? Dump({{"box", kind}, {"title", title}, {"text", words}, {"answer", answer}})
             : WithPlainLineEnds(title) + ": " + words);
}

void Output::Refused(std::string_view line, std::string_view why) {
  std::string words = WithPlainLineEnds(why);
  std::ranges::replace(words, '\n', ' ');
  Told(json_ ? Dump({{"refused", line}, {"why", words}}) : std::string(line) + ": " + words);
}

void Output::Told(const std::string& line) {
  std::fflush(stdout);
  static_cast<void>(Put(stderr, boxesOnTerminal_ ? ShownOnTerminal(line) : line));
}

}  // namespace kvr5::cli
