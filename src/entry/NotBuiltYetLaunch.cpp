// Temporary: plug-in launch is being written; until then a run says so plainly.
#include "base/Report.h"
#include "entry/PluginLaunch.h"

namespace plovix {

LaunchResult launchPlugin(ManagerApp& app, UserInterface& ui) {
  const std::string& name = app.run.modulonName;
  if (app.run.catalog->findCommandLine(name).empty()) {
    reportError(ui, 11, name);
  } else {
    ui.report("Starting plug-ins is not built yet.");
  }
  return {};
}

std::string expandCommandMacros(const ManagerApp&, const std::string& text) { return text; }
void offerVendorScript(ManagerApp&, UserInterface&) {}
bool runShellCommand(UserInterface&, const std::string&, bool) { return false; }

}  // namespace plovix
