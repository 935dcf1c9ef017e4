// The plovix command: one manager run, scripted or interactive, as a small host of the manager; or one of the
// sub-commands.
#include <unistd.h>

#include <cstdio>
#include <memory>

#include "Check.h"
#include "CommandLine.h"
#include "RunManifest.h"
#include "Subcommands.h"
#include "entry/ManagerApp.h"
#include "entry/RunFlow.h"
#include "entry/StandardRunSteps.h"
#include "ui/BatchFrontEnd.h"

namespace {

// A sub-command: never a window; its messages go to standard error.
int runTask(const plovix::CommandLine& commandLine) {
  plovix::BatchFrontEnd messages(commandLine.frontEnd);
  switch (commandLine.task) {
    case plovix::Task::kRenderSymbol:
      return plovix::renderSymbol(messages, commandLine.renderSymbol);
    case plovix::Task::kListModulons:
      return plovix::modulonLibraryFound(messages) ? plovix::listModulons(messages) : 1;
    case plovix::Task::kDescribeModulon:
      if (!plovix::modulonLibraryFound(messages)) return 1;
      return plovix::describeModulonCommand(messages, commandLine.describeModulon, commandLine.json);
    case plovix::Task::kCheck:
      return plovix::runCheck(
          messages, {commandLine.checkPaths, commandLine.update, commandLine.jobs, commandLine.json});
    case plovix::Task::kLint:
      return plovix::lintCommand(commandLine.checkPaths);
    case plovix::Task::kRun:
      break;
  }
  return 1;
}

}  // namespace

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
  if (commandLine.task != plovix::Task::kRun) return runTask(commandLine);

  commandLine.frontEnd.startedByCommand = true;
  // With --json standard output carries the object alone: what plug-ins and scripts print goes to standard
  // error while the run lasts.
  int jsonOutput = -1;
  if (commandLine.json) {
    std::fflush(stdout);
    jsonOutput = dup(STDOUT_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
  }

  std::unique_ptr<plovix::FrontEnd> frontEnd = plovix::makeFrontEnd(commandLine.frontEnd);
  auto* batch = dynamic_cast<plovix::BatchFrontEnd*>(frontEnd.get());
  plovix::ManagerApp& app = plovix::ManagerApp::instance();
  int status = plovix::RunOutcome::kNotGenerated;
  if (plovix::modulonLibraryFound(*frontEnd)) {
    app.restoreDirectoryAtExit = false;
    app.fetchProjectDirectory();
    plovix::StandardRunSteps steps(app, *frontEnd, *frontEnd);
    plovix::runManager(app, *frontEnd, steps,
                       commandLine.hasDesignFile ? commandLine.designFile.c_str() : nullptr,
                       commandLine.pluginArgs.c_str());
    status = app.run.outcome.exitStatus();
  }
  frontEnd->showSummary(app.run.outcome);
  if (jsonOutput >= 0) {
    std::fflush(stdout);
    dup2(jsonOutput, STDOUT_FILENO);
    close(jsonOutput);
    if (batch != nullptr && !plovix::printJson(plovix::runManifest(commandLine.designFile, app.run.outcome,
                                                                   status, batch->boxes())))
      return 1;
  }
  return status;
}
