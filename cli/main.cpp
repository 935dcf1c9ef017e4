// The plovix command: one manager run, scripted or interactive, as a small host of the manager.
#include <cstdio>
#include <memory>

#include "CommandLine.h"
#include "Subcommands.h"
#include "entry/ManagerApp.h"
#include "entry/RunFlow.h"
#include "entry/StandardRunSteps.h"

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

  std::unique_ptr<plovix::FrontEnd> frontEnd = plovix::makeFrontEnd(commandLine.frontEnd);
  if (commandLine.listModulons) return plovix::listModulons(*frontEnd);
  if (!commandLine.renderSymbol.empty()) return plovix::renderSymbol(*frontEnd, commandLine.renderSymbol);

  plovix::ManagerApp& app = plovix::ManagerApp::instance();
  app.restoreDirectoryAtExit = false;
  app.fetchProjectDirectory();
  plovix::StandardRunSteps steps(app, *frontEnd, *frontEnd);
  plovix::runManager(app, *frontEnd, steps,
                     commandLine.hasDesignFile ? commandLine.designFile.c_str() : nullptr,
                     commandLine.pluginArgs.c_str());
  return app.run.outcome.exitStatus();
}
