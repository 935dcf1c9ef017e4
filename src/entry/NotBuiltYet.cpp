// Temporary: plug-in launch, conflict checks and generation are being written; each says so plainly.
#include "base/Report.h"
#include "entry/ConflictChecks.h"
#include "entry/GenerateVariation.h"
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

std::string resolveSubComponentClash(UserInterface&, const ManagerRun& run) { return run.fileTitle; }
bool confirmSameNameFiles(UserInterface&, const ManagerRun&, const std::string&) { return true; }
std::string listExistingOutputs(const ManagerRun&, const std::string&, bool, bool) { return {}; }

bool generateVariationFiles(ManagerApp&, UserInterface& ui, const std::string&, bool, bool) {
  ui.report("Writing variation files is not built yet.");
  return false;
}

}  // namespace plovix
