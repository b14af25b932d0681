#include "cli/Output.h"

namespace kvr5::cli {
namespace {

/// Line ends of boxes are CR LF inside the system; a terminal takes LF.
std::string ForTerminal(std::string_view text) {
  std::string result;
  for (const char each : text) {
    if (each != '\r') result += each;
  }
  return result;
}

void Put(std::FILE* stream, std::string line) {
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stream);
  std::fflush(stream);  // a line is told when it is true, also into a pipe
}

std::string Dump(const Json& object) {
  return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

void Output::Line(std::string_view text) {
  Put(stdout, std::string(text));
}

void Output::Object(const Json& object) {
  Put(stdout, Dump(object));
}

void Output::Box(std::string_view kind, std::string_view title, std::string_view text,
                 std::string_view answer) {
  std::fflush(stdout);
  if (json_) {
    Put(stderr,
        Dump({{"box", kind}, {"title", title}, {"text", ForTerminal(text)}, {"answer", answer}}));
  } else {
    Put(stderr, ForTerminal(title) + ": " + ForTerminal(text));
  }
  std::fflush(stderr);
}

}  // namespace kvr5::cli
