// The plovix command: one manager run, scripted or interactive, as a small host of the manager.
#include <cstdio>
#include <memory>

#include "CommandLine.h"
#include "Subcommands.h"
#include "entry/ManagerApp.h"
#include "entry/RunFlow.h"
#include "entry/StandardRunSteps.h"
#include "ui/BatchFrontEnd.h"

int main(int argc, char** argv) {
  plovix::CommandLine commandLine;
  switch (plovix::parseCommandLine(argc, argv, commandLine)) {
    case plovix::ParseOutcome::kExit0:
      return 0;
    case plovix::ParseOutcome::kUsageError:
      return 2;
    case plovix::ParseOutcome::kRun:
      break;
  }

  if (commandLine.listModulons || !commandLine.renderSymbol.empty()) {
    // Sub-commands never open a window: their messages go to standard error.
    plovix::BatchFrontEnd messages(commandLine.frontEnd);
    if (!commandLine.renderSymbol.empty()) return plovix::renderSymbol(messages, commandLine.renderSymbol);
    return plovix::modulonLibraryFound(messages) ? plovix::listModulons(messages) : 1;
  }

  commandLine.frontEnd.startedByCommand = true;
  std::unique_ptr<plovix::FrontEnd> frontEnd = plovix::makeFrontEnd(commandLine.frontEnd);
  if (!plovix::modulonLibraryFound(*frontEnd)) return 1;

  plovix::ManagerApp& app = plovix::ManagerApp::instance();
  app.restoreDirectoryAtExit = false;
  app.fetchProjectDirectory();
  plovix::StandardRunSteps steps(app, *frontEnd, *frontEnd);
  plovix::runManager(app, *frontEnd, steps,
                     commandLine.hasDesignFile ? commandLine.designFile.c_str() : nullptr,
                     commandLine.pluginArgs.c_str());
  frontEnd->showSummary(app.run.outcome);
  return app.run.outcome.exitStatus();
}
