#include "cli/Interrupt.h"

#include <signal.h>

#include <array>
#include <csignal>

namespace kvr5::cli {
namespace {

volatile std::sig_atomic_t g_pressed = 0;

void OnSignal(int /*signal*/) {
  g_pressed = 1;
}

/// What asks a program to stop: Ctrl-C, the end of the terminal, a shutdown.
constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};
std::array<struct sigaction, kSignals.size()> g_before{};

}  // namespace

Interrupt::Interrupt(Waits waits) {
  g_pressed = 0;
  struct sigaction cancel {};
  cancel.sa_handler = OnSignal;
  cancel.sa_flags = waits == Waits::GoOn ? SA_RESTART : 0;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &g_before[i]);
    if (g_before[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &cancel, nullptr);
  }
}

Interrupt::~Interrupt() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], &g_before[i], nullptr);
  }
}

bool Interrupt::Pressed() {
  if (g_pressed == 0) return false;  // a press from now on is for the next call
  g_pressed = 0;
  return true;
}

}  // namespace kvr5::cli
