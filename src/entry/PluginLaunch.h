// Starting a modulon's plug-in, waiting for it, and the vendor scripts offered after generation.
#pragma once

#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "entry/ManagerApp.h"
#include "entry/RunSteps.h"

namespace plovix {

// Starts the plug-in of app.run.modulonName with its completed command line and waits for it.
LaunchResult launchPlugin(ManagerApp& app, UserInterface& ui);

// Offers to run the modulon's vendor scripts and runs them on OK.
void offerVendorScript(ManagerApp& app, UserInterface& ui);

// Runs a vendor script's command: its words (commandWords) started as a program, without any shell, and
// waited for. False only when the program cannot be started (its exit status is not looked at), with the
// message "Cannot execute the command line" naming `shownCommand` when `showMessage`.
bool runScriptCommand(UserInterface& ui, const std::vector<std::string>& words,
                      const std::string& shownCommand, bool showMessage);

}  // namespace plovix
