// Moving the terminal's foreground group; SIGTTOU is blocked meanwhile, since a background group that changes
// it would otherwise be stopped.
#include "TerminalForeground.h"

#include <signal.h>
#include <unistd.h>

namespace plovix::wizard {

namespace {

void setForeground(pid_t group) {
  sigset_t block, saved;
  sigemptyset(&block);
  sigaddset(&block, SIGTTOU);
  sigprocmask(SIG_BLOCK, &block, &saved);
  tcsetpgrp(STDIN_FILENO, group);
  sigprocmask(SIG_SETMASK, &saved, nullptr);
}

}  // namespace

TerminalForeground::TerminalForeground() {
  if (!isatty(STDIN_FILENO)) return;
  const pid_t holder = tcgetpgrp(STDIN_FILENO);
  if (holder < 0 || holder == getpgrp()) return;
  setForeground(getpgrp());
  if (tcgetpgrp(STDIN_FILENO) == getpgrp()) previous_ = holder;
}

TerminalForeground::~TerminalForeground() {
  if (previous_ > 0) setForeground(previous_);
}

}  // namespace plovix::wizard
