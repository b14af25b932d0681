#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

#include "cli/Companion.h"

namespace {

/// Fills the places of standard streams that came closed, so that no other file gets their numbers:
/// input is at its end, and a result that can't be written fails.
void FillStandardStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) < 0 && errno == EBADF) {
      static_cast<void>(open("/dev/null", stream == STDERR_FILENO ? O_WRONLY : O_RDONLY));
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  FillStandardStreams();
  return kvr5::cli::Run(std::vector<std::string>(argv + 1, argv + argc));
}
