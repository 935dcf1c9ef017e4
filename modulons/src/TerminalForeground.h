// Taking the terminal for the prompts when the plug-in was started in a process group of its own, and giving
// it back afterwards.
#pragma once

#include <sys/types.h>

namespace plovix::wizard {

class TerminalForeground {
 public:
  // Makes the plug-in's process group the terminal's foreground group when standard input is a terminal that
  // another group holds.
  TerminalForeground();
  ~TerminalForeground();
  TerminalForeground(const TerminalForeground&) = delete;
  TerminalForeground& operator=(const TerminalForeground&) = delete;

 private:
  pid_t previous_ = -1;  // the group to give the terminal back to, -1 when it was not taken
};

}  // namespace plovix::wizard
