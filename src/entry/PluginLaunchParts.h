// The pieces of a plug-in launch: the program lookup, the completed command line and the wait.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "base/WindowCorner.h"
#include "entry/ManagerApp.h"
#include "platform/ChildProcess.h"
#include "platform/PositionChannel.h"
#include "platform/QuitSignals.h"

namespace plovix {

// The path of the program a command line names: found in the modulon's directory `home` or in the
// directory of the running program, as D + T without extension; otherwise the token without its extension.
std::string locatePluginProgram(UserInterface& ui, const std::string& program, const std::string& home);

// The arguments of the run's plug-in: the words of the catalog command line `command` (pluginCommandWords),
// then the manager's own arguments, each a whole argument: the output path, "-n" for a new variation,
// "-symbol", the words of the extra arguments and, unless the run is a direct launch, the window options
// with `threadId`.
std::vector<std::string> pluginArguments(ManagerApp& app, UserInterface& ui, const std::string& command,
                                         long threadId);

// How a wait ended: the exit code, the quit signal that ended it (0 for none), and the signal that ended
// the plug-in on its own (0 for none).
struct PluginWaitResult {
  int32_t exitCode = 0;
  int quitSignal = 0;
  int endSignal = 0;
};

// Waits for the started plug-in while the user interface handles its events, storing in `corner` the window
// corner the plug-in reports. Quitting (processEvents false, or SIGINT/SIGTERM) kills the plug-in; the exit
// code is then 2. A plug-in ended by SIGINT (it held the terminal when the user pressed Ctrl-C) is a quit
// request too. When the plug-in has ended, what is left of its process group is ended too. The channel and
// the quit signals' hold must exist before the plug-in starts.
PluginWaitResult waitForPlugin(ChildProcess& child, PositionChannel& channel, QuitSignals& quitSignals,
                               WindowCorner& corner, UserInterface& ui);

}  // namespace plovix
