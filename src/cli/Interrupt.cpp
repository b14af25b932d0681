#include "cli/Interrupt.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace kvr5::cli {
namespace {

volatile std::sig_atomic_t g_pressed = 0;
/// A byte lies in this pipe from a press on, so that a wait for input ends whenever it came.
std::array<int, 2> g_pipe{-1, -1};

void OnSignal(int /*signal*/) {
  const int error = errno;
  g_pressed = 1;
  [[maybe_unused]] const auto written = write(g_pipe[1], "", 1);
  errno = error;
}

void DrainPipe() {
  std::array<char, 16> bytes{};
  while (read(g_pipe[0], bytes.data(), bytes.size()) > 0) {
  }
}

/// What asks a program to stop: Ctrl-C, the end of the terminal, a shutdown.
constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};
std::array<struct sigaction, kSignals.size()> g_before{};

}  // namespace

Interrupt::Interrupt() {
  g_pressed = 0;
  if (pipe2(g_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) g_pipe = {-1, -1};
  struct sigaction cancel {};
  cancel.sa_handler = OnSignal;
  cancel.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &g_before[i]);
    if (g_before[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &cancel, nullptr);
  }
}

Interrupt::~Interrupt() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], &g_before[i], nullptr);
  }
  for (int& end : g_pipe) {
    if (end >= 0) close(end);
    end = -1;
  }
}

bool Interrupt::Pressed() {
  if (g_pressed == 0) return false;
  g_pressed = 0;  // a press from now on is for the next call; at worst this one is told twice
  DrainPipe();
  return true;
}

bool Interrupt::WaitForInput() {
  std::array<pollfd, 2> sources{pollfd{STDIN_FILENO, POLLIN, 0}, pollfd{g_pipe[0], POLLIN, 0}};
  while (g_pressed == 0) {
    const int ready = poll(sources.data(), sources.size(), -1);
    if (ready > 0 && sources[1].revents == 0) return true;
    if (ready > 0) {
      DrainPipe();  // of the press that the condition sees, or of one that was answered already
    } else if (errno != EINTR) {
      return true;  // then the reading itself finds out
    }
  }
  return false;
}

}  // namespace kvr5::cli
