// Running the HDL tools (and other shell commands) from tests, and the lists of their known limits.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <utility>

#include "RunCommand.h"

namespace plovix::testing {

struct ToolRun {
  int exitCode = -1;
  std::string output;  // standard output and standard error together
};

// Runs a shell command in a directory, standard input from /dev/null.
inline ToolRun runIn(const std::string& directory, const std::string& command) {
  const std::string full = "cd " + shellQuote(directory) + " && (" + command + ") </dev/null 2>&1";
  ToolRun result;
  FILE* pipe = popen(full.c_str(), "r");
  if (pipe == nullptr) return result;
  char buffer[4096];
  for (size_t got; (got = fread(buffer, 1, sizeof buffer, pipe)) > 0;) result.output.append(buffer, got);
  const int status = pclose(pipe);
  result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

// Whether a program is on PATH.
inline bool haveProgram(const std::string& name) {
  return std::system(("command -v " + shellQuote(name) + " >/dev/null 2>&1").c_str()) == 0;
}

// A list of known limits: lines "<case> <step or tool>: <part of the tool's message>", "#" comments. A
// listed step must fail with its message, any other must pass.
class KnownLimits {
 public:
  explicit KnownLimits(const std::string& file) {
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
      if (line.empty() || line[0] == '#') continue;
      const size_t blank = line.find(' ');
      const size_t colon = line.find(": ", blank);
      if (blank == std::string::npos || colon == std::string::npos) continue;
      limits_[{line.substr(0, blank), line.substr(blank + 1, colon - blank - 1)}] = line.substr(colon + 2);
    }
  }

  // Checks one step's run against the list; true when it passed.
  bool expect(const std::string& name, const std::string& step, const ToolRun& run) const {
    const auto limit = limits_.find({name, step});
    if (limit == limits_.end()) {
      EXPECT_EQ(run.exitCode, 0) << step << " fails for " << name << ":\n" << run.output;
    } else {
      EXPECT_NE(run.exitCode, 0) << step << " now passes for " << name << "; drop it from the limits";
      EXPECT_NE(run.output.find(limit->second), std::string::npos) << step << " says:\n" << run.output;
    }
    return run.exitCode == 0;
  }

 private:
  std::map<std::pair<std::string, std::string>, std::string> limits_;
};

}  // namespace plovix::testing
