// A started program: its start in a process group of its own, the descriptor that signals its end, its exit,
// and the end of what is left of its group.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

namespace plovix {

// Whether a started program gets a process group of its own (a plug-in) or stays in the caller's, as a
// command of the system's shell call would (a vendor script).
enum class ProcessGroup { kOwn, kCaller };

class ChildProcess {
 public:
  ChildProcess() = default;
  // A process still running when its owner goes is ended, so none outlives the wait.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  // Starts arguments[0], found by findProgram on PATH, with the caller's environment, working directory and
  // no inherited signal mask, in the process group `group` says. On failure gives false and sets
  // `errorNumber`.
  bool start(const std::vector<std::string>& arguments, int& errorNumber,
             ProcessGroup group = ProcessGroup::kOwn);

  // A descriptor that becomes readable when the process ends; -1 when the system offers none.
  int endDescriptor() const { return pidFd_; }

  // True once the process has ended, with its exit code: the exit status, or 2 when a signal ended it.
  // With `endGroup`, whatever is left of its process group (children it left running) is ended (SIGKILL)
  // before the process is collected, while its group id cannot yet be reused.
  bool hasEnded(int32_t& exitCode, bool endGroup = false);

  // Waits until the process has ended, without ending its group, and gives its exit code as hasEnded does.
  int32_t waitForEnd();

  // The signal that ended the process, once hasEnded said so; 0 when it exited or was ended by kill().
  int endSignal() const { return endSignal_; }

  // Ends the process (and everything in its group, when it has a group of its own) at once (SIGKILL) and
  // collects it.
  void kill();

  pid_t pid() const { return pid_; }

 private:
  void closeDescriptor();
  // Collects the ended process and keeps its exit code and signal.
  void collect();

  pid_t pid_ = -1;
  int pidFd_ = -1;
  bool ownGroup_ = true;
  bool reaped_ = true;
  int32_t exitCode_ = 0;
  int endSignal_ = 0;
};

}  // namespace plovix
