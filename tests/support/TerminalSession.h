// A program driven through a pseudo-terminal: what it prints is read as it comes, keys are typed once its
// line editor reads them, and its exit status is waited for.
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

namespace plovix::testing {

// `arguments` (the program first) started in `directory` in a terminal `columns` wide (0: a terminal that
// gives no width), after the "NAME=value" settings of `environment` ("NAME" alone removes the variable).
class TerminalSession {
 public:
  TerminalSession(const std::string& directory, std::vector<std::string> arguments,
                  const std::vector<std::string>& environment, int columns = 0) {
    winsize size{};
    size.ws_col = static_cast<unsigned short>(columns);
    size.ws_row = 50;
    pid_ = forkpty(&master_, nullptr, nullptr, &size);
    if (pid_ == 0) {
      if (chdir(directory.c_str()) != 0) _exit(120);
      for (const std::string& setting : environment) {
        const size_t equals = setting.find('=');
        if (equals == std::string::npos) {
          unsetenv(setting.c_str());
        } else {
          setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
        }
      }
      std::vector<char*> argv;
      for (std::string& argument : arguments) argv.push_back(argument.data());
      argv.push_back(nullptr);
      execv(argv[0], argv.data());
      _exit(127);
    }
  }
  ~TerminalSession() {
    if (pid_ > 0 && !exited_) {
      kill(pid_, SIGKILL);
      waitpid(pid_, nullptr, 0);
    }
    if (master_ >= 0) close(master_);
  }
  TerminalSession(const TerminalSession&) = delete;
  TerminalSession& operator=(const TerminalSession&) = delete;

  // Reads until `text` appears after what earlier calls consumed; false after `seconds`.
  bool expect(const std::string& text, int seconds = 5) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    for (;;) {
      const size_t at = output.find(text, consumed_);
      if (at != std::string::npos) {
        consumed_ = at + text.size();
        return true;
      }
      if (std::chrono::steady_clock::now() > deadline || !readSome(100)) return false;
    }
  }
  // Types `bytes` once the line editor reads the keys one by one (it prints its prompt first and then leaves
  // the terminal's line mode; keys typed before would be taken by the terminal's own line editing).
  void type(const std::string& bytes) {
    for (int i = 0; i < 500 && inLineMode(); ++i) usleep(10000);
    writeRaw(bytes);
  }
  void send(const std::string& line) { type(line + "\n"); }
  void writeRaw(const std::string& bytes) {
    ASSERT_EQ(write(master_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  // Waits for the program to end (reading what it still prints) and gives its exit code; -1 when it was
  // still running after `seconds` or ended by a signal.
  int exitCode(int seconds = 10) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (std::chrono::steady_clock::now() < deadline) {
      int status = 0;
      if (waitpid(pid_, &status, WNOHANG) == pid_) {
        exited_ = true;
        while (readSome(50) && pending_) {
        }
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
      }
      if (!readSome(100)) usleep(10000);  // the terminal is closed; the program is ending
    }
    return -1;
  }
  pid_t pid() const { return pid_; }

  std::string output;

 private:
  bool inLineMode() const {
    termios mode{};
    return tcgetattr(master_, &mode) == 0 && (mode.c_lflag & ICANON) != 0;
  }
  bool readSome(int milliseconds) {
    pollfd fd{master_, POLLIN, 0};
    pending_ = false;
    if (poll(&fd, 1, milliseconds) <= 0) return true;
    pending_ = true;
    char buffer[4096];
    const ssize_t n = read(master_, buffer, sizeof buffer);
    if (n <= 0) return false;
    output.append(buffer, static_cast<size_t>(n));
    return true;
  }

  pid_t pid_ = -1;
  int master_ = -1;
  size_t consumed_ = 0;
  bool exited_ = false;
  bool pending_ = false;  // whether the last read found something
};

}  // namespace plovix::testing
