// The plovix command's options and their parsing.
#pragma once

#include <string>

#include "ui/FrontEndFactory.h"

namespace plovix {

struct CommandLine {
  std::string designFile;
  bool hasDesignFile = false;
  std::string pluginArgs;
  FrontEndOptions frontEnd;
  bool listModulons = false;
  std::string renderSymbol;
};

enum class ParseOutcome { kRun, kExit0, kUsageError };

// Parses argv, applying the options that configure the host as environment variables (options win over the
// environment). Help and version are printed here.
ParseOutcome parseCommandLine(int argc, char** argv, CommandLine& out);

}  // namespace plovix
