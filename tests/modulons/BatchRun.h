// Running plovix in batch mode, the HDL tools and shell commands from the end-to-end tests.
#pragma once

#include <string>

#include "TempDir.h"

namespace plovix::testing {

struct CommandResult {
  int exitCode = -1;
  std::string output;  // standard output and standard error together
};

// Runs a shell command in a directory, standard input from /dev/null.
CommandResult runIn(const std::string& directory, const std::string& command);

// Whether a program is on PATH.
bool haveProgram(const std::string& name);

// plovix --batch in the directory as project, with the bundled library found by default (no library path
// set). modulon and language may be empty (an edit run).
CommandResult plovixBatch(const TempDir& project, const std::string& modulon, const std::string& language,
                          const std::string& pluginArgs, const std::string& designFile);

// The bundled library in the build tree.
std::string modulonLibrary();

// Shell quoting of one word.
std::string quoted(const std::string& word);

}  // namespace plovix::testing
