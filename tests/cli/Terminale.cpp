#include "cli/Terminale.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

namespace kvr5::test {

Terminale::Terminale(const std::function<int()>& child, unsigned short columns) {
  winsize size{};
  size.ws_row = 25;
  size.ws_col = columns;
  child_ = forkpty(&master_, nullptr, nullptr, &size);
  if (child_ == 0) _exit(child());
  EXPECT_GT(child_, 0);
}

Terminale::~Terminale() {
  if (child_ > 0) {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }
  if (master_ >= 0) close(master_);
}

bool Terminale::Read() {
  constexpr int kPatience = 120'000;  // ms; a busy disk takes its time to write what is waiting
  pollfd ready{.fd = master_, .events = POLLIN, .revents = 0};
  if (poll(&ready, 1, kPatience) != 1) return false;
  std::array<char, 4096> bytes{};
  const ssize_t count = read(master_, bytes.data(), bytes.size());  // EIO once the child is gone
  if (count <= 0) return false;
  screen_.append(bytes.data(), static_cast<std::size_t>(count));
  return true;
}

bool Terminale::Aspetta(std::string_view text) {
  while (screen_.find(text) == std::string::npos) {
    if (!Read()) return false;
  }
  return true;
}

void Terminale::Scrivi(std::string_view typed) {
  EXPECT_EQ(write(master_, typed.data(), typed.size()), static_cast<ssize_t>(typed.size()));
}

int Terminale::Fine() {
  while (Read()) {
  }
  // The stream ends with the process, or with the patience of Read; then it is ended.
  int status = 0;
  for (int wait = 0; waitpid(child_, &status, WNOHANG) == 0; ++wait) {
    if (wait == 200) kill(child_, SIGKILL);
    usleep(10'000);
  }
  child_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace kvr5::test
