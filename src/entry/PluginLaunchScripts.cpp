// The vendor scripts a catalog attaches to a modulon, offered after generation and run through the shell.
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "base/QuestionTexts.h"
#include "base/TextHelpers.h"
#include "entry/PluginLaunch.h"

namespace plovix {

void offerVendorScript(ManagerApp& app, UserInterface& ui) {
  const ManagerRun& run = app.run;
  if (!run.catalog) return;
  const std::string tool = run.catalog->findNativeTool(run.modulonName);
  std::string scripts = run.catalog->findScripts(run.modulonName);
  if (tool.empty() || scripts.empty()) return;
  if (!ui.ask(questions::runVendorScript(tool))) return;
  while (!scripts.empty()) {
    const std::string command = expandCommandMacros(app, splitFirstToken(scripts, "+"));
    if (!runShellCommand(ui, command, false)) {
      ui.report(questions::vendorScriptFailed(command, tool));
      return;
    }
  }
}

bool runShellCommand(UserInterface& ui, const std::string& command, bool showMessage) {
  errno = 0;
  if (std::system(command.c_str()) != -1) return true;
  const int errorNumber = errno;
  if (showMessage) ui.report(questions::cannotExecuteCommand(command, std::strerror(errorNumber)));
  return false;
}

}  // namespace plovix
