// The vendor scripts a catalog attaches to a modulon, offered after generation and started without a shell.
#include <cstring>

#include "base/QuestionTexts.h"
#include "base/TextHelpers.h"
#include "entry/CommandWords.h"
#include "entry/PluginLaunch.h"
#include "platform/ChildProcess.h"

namespace plovix {

void offerVendorScript(ManagerApp& app, UserInterface& ui) {
  const ManagerRun& run = app.run;
  if (!run.catalog) return;
  const std::string tool = run.catalog->findNativeTool(run.modulonName);
  std::string scripts = run.catalog->findScripts(run.modulonName);
  if (tool.empty() || scripts.empty()) return;
  if (!ui.ask(questions::runVendorScript(tool))) return;
  const CommandContext context = commandContextOf(run);
  while (!scripts.empty()) {
    const std::string script = splitFirstToken(scripts, "+");
    // The expanded text is what the user reads; the words are what runs.
    const std::string shown = expandCommandMacros(context, script);
    if (!runScriptCommand(ui, commandWords(context, script), shown, false)) {
      ui.report(questions::vendorScriptFailed(shown, tool));
      return;
    }
  }
}

bool runScriptCommand(UserInterface& ui, const std::vector<std::string>& words,
                      const std::string& shownCommand, bool showMessage) {
  ChildProcess child;
  int errorNumber = 0;
  if (child.start(words, errorNumber, ProcessGroup::kCaller)) {
    child.waitForEnd();
    return true;
  }
  if (showMessage) ui.report(questions::cannotExecuteCommand(shownCommand, std::strerror(errorNumber)));
  return false;
}

}  // namespace plovix
