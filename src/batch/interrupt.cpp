#include "batch/interrupt.h"

#include <csignal>

namespace kov {
namespace {

volatile std::sig_atomic_t interrupt_seen = 0;

void note_interrupt(int) { interrupt_seen = 1; }

void take_interrupts() {
  // Whoever starts a program with the interrupt ignored, as a shell does in the background, means it so.
  struct sigaction before {};
  if (sigaction(SIGINT, nullptr, &before) == 0 && before.sa_handler == SIG_IGN) return;
  struct sigaction on_interrupt {};
  on_interrupt.sa_handler = note_interrupt;
  // Without SA_RESTART a read that waits for standard input returns; with SA_RESETHAND a program that
  // does not reach its next check can still be ended.
  on_interrupt.sa_flags = static_cast<int>(SA_RESETHAND);
  sigemptyset(&on_interrupt.sa_mask);
  sigaction(SIGINT, &on_interrupt, nullptr);
}

void ignore_closed_pipes() {
  struct sigaction on_pipe {};
  on_pipe.sa_handler = SIG_IGN;
  sigemptyset(&on_pipe.sa_mask);
  sigaction(SIGPIPE, &on_pipe, nullptr);
}

}  // namespace

void install_signal_handlers() {
  take_interrupts();
  ignore_closed_pipes();
}

bool interrupted() { return interrupt_seen != 0; }

}  // namespace kov
