// Running a program to read what it prints: no input, its standard output captured, a size and a time limit.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace plovix {

struct CapturedRun {
  enum class End { kExited, kSignalled, kTimedOut, kTooMuchOutput, kNotStarted };
  End end = End::kNotStarted;
  int status = 0;      // kExited: the exit status; kSignalled: the signal; kNotStarted: the errno value
  std::string output;  // what the program printed on standard output (at most the limit)
};

// Where a captured program runs and what it sees besides its arguments.
struct CaptureSetup {
  std::string workingDirectory;                 // empty: the caller's
  bool withErrors = false;                      // standard error into the same pipe as standard output
  std::vector<std::string> withoutEnvironment;  // variables the program does not get (e.g. DISPLAY)
};

// Starts arguments[0] (found on PATH like a plug-in) in a process group of its own, with standard input from
// /dev/null, standard output into a pipe and standard error inherited, and reads its output until it ends.
// More than `outputLimit` bytes, or a run longer than `timeoutMs`, ends the whole group at once (SIGKILL);
// whatever is left of the group when the program has ended is ended too.
CapturedRun runCapturingOutput(const std::vector<std::string>& arguments, size_t outputLimit, int timeoutMs,
                               const CaptureSetup& setup = {});

}  // namespace plovix
