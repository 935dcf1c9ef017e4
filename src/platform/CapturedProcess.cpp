// Running a program to read its standard output, with posix_spawn, poll and a deadline.
#include "platform/CapturedProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>

#include "platform/ProgramSearch.h"

extern char** environ;

namespace plovix {

namespace {

// Both ends of a pipe, closed when it goes.
struct Pipe {
  int read = -1;
  int write = -1;
  ~Pipe() {
    if (read >= 0) close(read);
    if (write >= 0) close(write);
  }
};

// Spawn settings: a process group of its own, no blocked signals, default quit signals, input from
// /dev/null, output (and errors, when asked) into the pipe, and the working directory asked for.
struct SpawnSetup {
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_t actions;
  SpawnSetup(const Pipe& output, const CaptureSetup& setup) {
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    sigset_t defaults;
    sigemptyset(&defaults);
    for (int quit : {SIGINT, SIGTERM, SIGPIPE}) sigaddset(&defaults, quit);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output.write, STDOUT_FILENO);
    if (setup.withErrors) posix_spawn_file_actions_adddup2(&actions, output.write, STDERR_FILENO);
    if (!setup.workingDirectory.empty())
      posix_spawn_file_actions_addchdir_np(&actions, setup.workingDirectory.c_str());
    posix_spawn_file_actions_addclose(&actions, output.read);
    posix_spawn_file_actions_addclose(&actions, output.write);
  }
  ~SpawnSetup() {
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
  }
  SpawnSetup(const SpawnSetup&) = delete;
  SpawnSetup& operator=(const SpawnSetup&) = delete;
};

// Reads what is in the pipe now, waiting at most `waitMs` for something to come; false once the pipe has
// closed or the output passed the limit (then `end` says so).
bool readSome(int fd, int waitMs, size_t limit, std::string& output, CapturedRun::End& end) {
  pollfd watch{fd, POLLIN, 0};
  const int ready = poll(&watch, 1, waitMs);
  if (ready <= 0) return ready == 0 || errno == EINTR;
  char buffer[16384];
  const ssize_t n = ::read(fd, buffer, sizeof buffer);
  if (n < 0) return errno == EINTR;
  if (n == 0) return false;
  if (static_cast<size_t>(n) > limit - output.size()) {
    end = CapturedRun::End::kTooMuchOutput;
    return false;
  }
  output.append(buffer, static_cast<size_t>(n));
  return true;
}

// Reads the program's output until it has ended and the pipe is empty, the output passes the limit or the
// deadline comes. A process the program left behind may hold the pipe open: once the program has ended,
// only what is already in the pipe is read.
CapturedRun::End readWhileRunning(pid_t pid, int fd, size_t limit,
                                  std::chrono::steady_clock::time_point deadline, std::string& output,
                                  int& status) {
  constexpr int kSliceMs = 20;
  CapturedRun::End end = CapturedRun::End::kExited;
  bool open = true;
  for (;;) {
    if (std::chrono::steady_clock::now() >= deadline) return CapturedRun::End::kTimedOut;
    if (open) {
      open = readSome(fd, kSliceMs, limit, output, end);
      if (end != CapturedRun::End::kExited) return end;
    } else {
      usleep(kSliceMs * 1000);
    }
    const pid_t result = waitpid(pid, &status, WNOHANG);
    if (result == pid || (result < 0 && errno != EINTR)) {
      while (open && readSome(fd, 0, limit, output, end)) {
        if (end != CapturedRun::End::kExited) return end;
        pollfd watch{fd, POLLIN, 0};
        if (poll(&watch, 1, 0) <= 0) break;
      }
      return end == CapturedRun::End::kExited && result == pid ? CapturedRun::End::kExited : end;
    }
  }
}

// The environment without the variables named.
std::vector<char*> environmentWithout(const std::vector<std::string>& names) {
  std::vector<char*> kept;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    bool drop = false;
    for (const std::string& name : names)
      drop = drop || (std::strncmp(*entry, name.c_str(), name.size()) == 0 && (*entry)[name.size()] == '=');
    if (!drop) kept.push_back(*entry);
  }
  kept.push_back(nullptr);
  return kept;
}

}  // namespace

CapturedRun runCapturingOutput(const std::vector<std::string>& arguments, size_t outputLimit, int timeoutMs,
                               const CaptureSetup& setup) {
  CapturedRun run;
  const std::string program = arguments.empty() ? std::string() : findProgramOnPath(arguments[0]);
  if (program.empty()) {
    run.status = ENOENT;
    return run;
  }
  Pipe output;
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) {
    run.status = errno;
    return run;
  }
  output.read = ends[0];
  output.write = ends[1];
  std::vector<char*> argv;
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);

  std::vector<char*> environment = environmentWithout(setup.withoutEnvironment);

  pid_t pid = -1;
  {
    SpawnSetup spawn(output, setup);
    const int result = posix_spawn(&pid, program.c_str(), &spawn.actions, &spawn.attributes, argv.data(),
                                   environment.data());
    if (result != 0) {
      run.status = result;
      return run;
    }
  }
  close(output.write);
  output.write = -1;

  const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
  int status = 0;
  run.end = readWhileRunning(pid, output.read, outputLimit, deadline, run.output, status);
  if (run.end != CapturedRun::End::kExited) {
    kill(-pid, SIGKILL);
    kill(pid, SIGKILL);
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    return run;
  }
  // What the program left running in its group must not outlive it.
  kill(-pid, SIGKILL);
  if (WIFSIGNALED(status)) {
    run.end = CapturedRun::End::kSignalled;
    run.status = WTERMSIG(status);
  } else {
    run.status = WEXITSTATUS(status);
  }
  return run;
}

}  // namespace plovix
