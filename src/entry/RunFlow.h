// One manager run: the first state from the file name, the loop over pages, launch and generation, the end.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "entry/ManagerApp.h"
#include "entry/RunSteps.h"

namespace plovix {

// Performs one run. `fileName` and `extraArguments` may be null.
void runManager(ManagerApp& app, UserInterface& ui, RunSteps& steps, const char* fileName,
                const char* extraArguments);

// Chooses the first state from the file name; false when the user cancelled the run.
bool chooseFirstState(ManagerApp& app, UserInterface& ui, const char* fileName);

// The state loop.
void runPages(ManagerApp& app, RunSteps& steps);

}  // namespace plovix
