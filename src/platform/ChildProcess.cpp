// Starting a program with posix_spawn, watching it through a pidfd, and collecting or killing it.
#include "platform/ChildProcess.h"

#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "platform/ProgramSearch.h"

extern char** environ;

namespace plovix {

namespace {

// The attributes of a spawn: a new process group (unless the caller's is kept), an empty signal mask and
// default quit signals.
class SpawnAttributes {
 public:
  explicit SpawnAttributes(bool ownGroup) {
    posix_spawnattr_init(&attributes_);
    sigset_t none;
    sigemptyset(&none);
    sigset_t defaults;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGINT);
    sigaddset(&defaults, SIGTERM);
    sigaddset(&defaults, SIGPIPE);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &defaults);
    posix_spawnattr_setpgroup(&attributes_, 0);
    posix_spawnattr_setflags(&attributes_, static_cast<short>(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF |
                                                              (ownGroup ? POSIX_SPAWN_SETPGROUP : 0)));
  }
  ~SpawnAttributes() { posix_spawnattr_destroy(&attributes_); }
  SpawnAttributes(const SpawnAttributes&) = delete;
  SpawnAttributes& operator=(const SpawnAttributes&) = delete;
  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_;
};

}  // namespace

ChildProcess::~ChildProcess() {
  kill();
  closeDescriptor();
}

bool ChildProcess::start(const std::vector<std::string>& arguments, int& errorNumber, ProcessGroup group) {
  errorNumber = 0;
  if (arguments.empty()) {
    errorNumber = ENOENT;
    return false;
  }
  const std::string program = findProgramOnPath(arguments[0]);
  if (program.empty()) {
    errorNumber = ENOENT;
    return false;
  }
  std::vector<char*> argv;
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);

  SpawnAttributes attributes(group == ProcessGroup::kOwn);
  pid_t pid = -1;
  const int result = posix_spawn(&pid, program.c_str(), nullptr, attributes.get(), argv.data(), environ);
  if (result != 0) {
    errorNumber = result;
    return false;
  }
  pid_ = pid;
  ownGroup_ = group == ProcessGroup::kOwn;
  reaped_ = false;
  pidFd_ = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
  return true;
}

bool ChildProcess::hasEnded(int32_t& exitCode, bool endGroup) {
  if (!reaped_) {
    // Looked at without collecting it: an ended process stays a zombie that holds its group id.
    siginfo_t info{};
    const int looked = waitid(P_PID, static_cast<id_t>(pid_), &info, WEXITED | WNOHANG | WNOWAIT);
    if ((looked == 0 && info.si_pid == 0) || (looked != 0 && errno == EINTR)) return false;
    if (looked == 0 && endGroup && ownGroup_) ::kill(-pid_, SIGKILL);
    collect();
  }
  exitCode = exitCode_;
  return true;
}

int32_t ChildProcess::waitForEnd() {
  if (!reaped_) collect();
  return exitCode_;
}

void ChildProcess::collect() {
  int status = 0;
  pid_t result = -1;
  do {
    result = waitpid(pid_, &status, 0);
  } while (result < 0 && errno == EINTR);
  reaped_ = true;
  // A status the system could not give back (the child was collected elsewhere) counts as Cancel.
  exitCode_ = result == pid_ && WIFEXITED(status) ? WEXITSTATUS(status) : 2;
  endSignal_ = result == pid_ && WIFSIGNALED(status) ? WTERMSIG(status) : 0;
  closeDescriptor();
}

void ChildProcess::kill() {
  if (reaped_) return;
  if (ownGroup_) ::kill(-pid_, SIGKILL);
  ::kill(pid_, SIGKILL);
  int status = 0;
  while (waitpid(pid_, &status, 0) < 0 && errno == EINTR) {
  }
  reaped_ = true;
  exitCode_ = 2;
  closeDescriptor();
}

void ChildProcess::closeDescriptor() {
  if (pidFd_ >= 0) close(pidFd_);
  pidFd_ = -1;
}

}  // namespace plovix
