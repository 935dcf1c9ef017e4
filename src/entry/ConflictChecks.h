// The checks before a variation's files are written: sub-module name clash, same-name design files, and
// existing companion and symbol files.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "entry/ManagerRun.h"

namespace plovix {

// The base name to use for the variation: fileTitle, or a new one when it is the name of a sub-module.
std::string resolveSubComponentClash(UserInterface& ui, const ManagerRun& run);

// Asks when other design files with the variation's base name exist; true to go on.
bool confirmSameNameFiles(UserInterface& ui, const ManagerRun& run, const std::string& projectDirectory);

// The overwrite question for existing companion and symbol files, or empty when nothing would be overwritten.
std::string listExistingOutputs(const ManagerRun& run, const std::string& projectDirectory, bool companions,
                                bool symbol);

}  // namespace plovix
