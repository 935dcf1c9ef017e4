// Runs a program for a test and collects its exit status, standard output and standard error.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "TempDir.h"

namespace plovix::testing {

struct CommandResult {
  int exitCode = -1;
  std::string out;
  std::string err;
};

// Quotes a word for /bin/sh.
inline std::string shellQuote(const std::string& word) {
  std::string out = "'";
  for (char c : word) {
    if (c == '\'') {
      out += "'\\''";
    } else {
      out += c;
    }
  }
  return out + "'";
}

// Runs `program` with `args` in `directory`, with extra "NAME=value" environment settings and no input.
inline CommandResult runCommand(const std::string& program, const std::vector<std::string>& args,
                                const std::string& directory = ".",
                                const std::vector<std::string>& env = {}) {
  TempDir capture;
  std::string command = "cd " + shellQuote(directory) + " && env";
  for (const std::string& setting : env) command += " " + shellQuote(setting);
  command += " " + shellQuote(program);
  for (const std::string& arg : args) command += " " + shellQuote(arg);
  command += " </dev/null >" + shellQuote(capture.path("out")) + " 2>" + shellQuote(capture.path("err"));
  const int status = std::system(command.c_str());
  CommandResult result;
  result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  result.out = capture.read("out");
  result.err = capture.read("err");
  return result;
}

// The plovix command of this build.
inline std::string plovixProgram() {
  return std::string(PLOVIX_BINARY_DIR) + "/cli/plovix";
}

}  // namespace plovix::testing
