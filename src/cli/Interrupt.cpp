#include "cli/Interrupt.h"

#include <csignal>

namespace kvr5::cli {
namespace {

volatile std::sig_atomic_t g_pressed = 0;

void OnSignal(int /*signal*/) {
  g_pressed = 1;
}

}  // namespace

Interrupt::Interrupt() {
  g_pressed = 0;
  std::signal(SIGINT, OnSignal);
}

Interrupt::~Interrupt() {
  std::signal(SIGINT, SIG_DFL);
}

bool Interrupt::Pressed() {
  const bool pressed = g_pressed != 0;
  g_pressed = 0;
  return pressed;
}

}  // namespace kvr5::cli
