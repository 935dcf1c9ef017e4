// The plovix command's tasks besides a manager run.
#pragma once

#include <string>

#include "base/UserInterface.h"

namespace plovix {

// Prints the catalog as a tab-separated table on standard output; the exit status.
int listModulons(UserInterface& ui);

// Writes an SVG picture of a .sym file to standard output; the exit status.
int renderSymbol(UserInterface& ui, const std::string& symPath);

}  // namespace plovix
