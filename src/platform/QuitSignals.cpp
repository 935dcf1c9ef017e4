// The quit signals read through a signalfd while they are blocked for the waiting thread.
#include "platform/QuitSignals.h"

#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace plovix {

namespace {

sigset_t quitSignalSet() {
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, SIGINT);
  sigaddset(&set, SIGTERM);
  return set;
}

}  // namespace

QuitSignals::QuitSignals() {
  const sigset_t set = quitSignalSet();
  pthread_sigmask(SIG_BLOCK, &set, &previousMask_);
  fd_ = signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC);
}

QuitSignals::~QuitSignals() {
  if (fd_ >= 0) close(fd_);
  pthread_sigmask(SIG_SETMASK, &previousMask_, nullptr);
}

int QuitSignals::take() {
  if (fd_ < 0) return 0;
  signalfd_siginfo info{};
  if (read(fd_, &info, sizeof info) != static_cast<ssize_t>(sizeof info)) return 0;
  return static_cast<int>(info.ssi_signo);
}

}  // namespace plovix
