// The plovix command's options and their parsing.
#pragma once

#include <string>
#include <vector>

#include "ui/FrontEndFactory.h"

namespace plovix {

// What the command does: one manager run, or one of the sub-commands.
enum class Task { kRun, kListModulons, kRenderSymbol, kCheck, kDescribeModulon, kLint };

struct CommandLine {
  Task task = Task::kRun;
  std::string designFile;  // a run's design file name, with the --language extension when it had none
  bool hasDesignFile = false;
  std::string pluginArgs;  // every --plugin-args text, joined with a blank
  FrontEndOptions frontEnd;
  bool json = false;                    // one JSON object on standard output at the end
  std::string renderSymbol;             // --render-symbol FILE
  std::string describeModulon;          // --describe-modulon NAME
  std::vector<std::string> checkPaths;  // --check PATH..., --lint FILE...
  bool update = false;                  // --check --update
  int jobs = 1;                         // --check -j N
};

enum class ParseOutcome { kRun, kExit0, kUsageError };

// Parses argv, applying the options that configure the host as environment variables (options win over the
// environment). Help and version are printed here; a usage error is one line on standard error (and, with
// --json, the object of a run that ended with status 2 on standard output).
ParseOutcome parseCommandLine(int argc, char** argv, CommandLine& out);

}  // namespace plovix
