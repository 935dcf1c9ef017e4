// Holding back the quit signals (SIGINT, SIGTERM) while a plug-in runs, so that they can be read as requests.
#pragma once

#include <signal.h>

namespace plovix {

// While an object lives, SIGINT and SIGTERM aimed at the calling thread or the process are kept pending and
// read through a descriptor instead of ending the process; the previous signal mask comes back at its end.
class QuitSignals {
 public:
  QuitSignals();
  ~QuitSignals();
  QuitSignals(const QuitSignals&) = delete;
  QuitSignals& operator=(const QuitSignals&) = delete;

  // Readable when a quit signal is pending; -1 when none could be made.
  int descriptor() const { return fd_; }

  // The number of a pending quit signal, now taken; 0 when none is pending.
  int take();

 private:
  sigset_t previousMask_;
  int fd_ = -1;
};

}  // namespace plovix
