// The plovix command's tasks besides a manager run.
#pragma once

#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "ui/BatchFrontEnd.h"

namespace plovix {

// Whether there is a modulon library to use: a library path that the user set (even an empty one), a user
// library path, or the bundled library found beside the install or in the build tree. When there is none,
// reports so, naming the places looked in, and gives false.
bool modulonLibraryFound(UserInterface& ui);

// Prints the catalog as a tab-separated table on standard output; the exit status. An empty catalog gets a
// hint naming the library paths read.
int listModulons(BatchFrontEnd& messages);

// Writes an SVG picture of a .sym file to standard output; the exit status.
int renderSymbol(UserInterface& ui, const std::string& symPath);

// Prints a modulon's catalog entry and the settings its plug-in describes, as text or as one JSON object;
// the exit status.
int describeModulonCommand(BatchFrontEnd& messages, const std::string& name, bool json);

// Reads each variation file with the HDL tools that are installed and prints one "lint:" line per finding on
// standard output; the exit status (1 when a tool rejected a file or a file could not be read).
int lintCommand(const std::vector<std::string>& files);

}  // namespace plovix
