// Running the plovix command for end-to-end tests: arguments, captured output streams and the exit status.
#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "TempDir.h"

extern char** environ;

namespace plovix::testing {

struct PlovixResult {
  int status = -1;  // the raw wait status
  std::string out;
  std::string err;
  bool exited(int code) const { return WIFEXITED(status) && WEXITSTATUS(status) == code; }
};

// A started plovix process whose standard output and error go to files in `dir`.
class PlovixProcess {
 public:
  PlovixProcess(const TempDir& dir, const std::vector<std::string>& arguments) : dir_(dir) {
    std::vector<std::string> all = {PLOVIX_BINARY_DIR "/cli/plovix", "--batch"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& argument : all) argv.push_back(argument.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, dir.path("plovix.out").c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_addopen(&actions, 2, dir.path("plovix.err").c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (posix_spawn(&pid_, argv[0], &actions, nullptr, argv.data(), environ) != 0) pid_ = -1;
    posix_spawn_file_actions_destroy(&actions);
  }

  pid_t pid() const { return pid_; }

  PlovixResult finish() {
    PlovixResult result;
    if (pid_ > 0) waitpid(pid_, &result.status, 0);
    pid_ = -1;
    result.out = dir_.read("plovix.out");
    result.err = dir_.read("plovix.err");
    return result;
  }

 private:
  const TempDir& dir_;
  pid_t pid_ = -1;
};

inline PlovixResult runPlovix(const TempDir& dir, const std::vector<std::string>& arguments) {
  return PlovixProcess(dir, arguments).finish();
}

}  // namespace plovix::testing
