// Starting a modulon's plug-in, waiting for it, and the vendor scripts offered after generation.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "entry/ManagerApp.h"
#include "entry/RunSteps.h"

namespace plovix {

// Starts the plug-in of app.run.modulonName with its completed command line and waits for it.
LaunchResult launchPlugin(ManagerApp& app, UserInterface& ui);

// The command line with its %-codes replaced.
std::string expandCommandMacros(const ManagerApp& app, const std::string& text);

// Offers to run the modulon's vendor scripts and runs them on OK.
void offerVendorScript(ManagerApp& app, UserInterface& ui);

// Runs a command through the shell; false only when the shell cannot be started.
bool runShellCommand(UserInterface& ui, const std::string& command, bool showMessage);

}  // namespace plovix
