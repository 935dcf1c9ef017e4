// Starting a modulon's plug-in: the program lookup, the completed command line, the start and the wait.
#include "entry/PluginLaunch.h"

#include <signal.h>

#include <cstring>

#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "entry/PluginLaunchParts.h"
#include "platform/CommandLineWords.h"

namespace plovix {

namespace {

// The program is found in `place` when D + T or D + T + ".exe" exists, T being the file's base name.
bool findProgramIn(UserInterface& ui, const std::string& program, const std::string& place,
                   std::string& programPath) {
  if (place.empty()) return false;
  std::string directory;
  std::string file;
  if (!findInDirectory(ui, program, place, directory, file)) return false;
  const std::string candidate = directory + splitPath(file, PathPart::kBaseName);
  if (!fileExists(candidate) && !fileExists(candidate + ".exe")) return false;
  programPath = candidate;
  return true;
}

}  // namespace

std::string locatePluginProgram(UserInterface& ui, const std::string& program, const std::string& home) {
  std::string programPath;
  if (findProgramIn(ui, program, home, programPath)) return programPath;
  if (findProgramIn(ui, program, directoryOfPath(plovix::programPath()), programPath)) return programPath;
  return pathWithoutExtension(program);
}

std::string pluginCommandLine(ManagerApp& app, UserInterface& ui, const std::string& command, long threadId) {
  const ManagerRun& run = app.run;
  std::string arguments = trimLeft(command);
  const std::string program = splitFirstToken(arguments, " \t");
  const std::string home = run.catalog->findDirectory(run.modulonName);

  std::string line = expandCommandMacros(app, locatePluginProgram(ui, program, home) + " " + arguments);
  line += " \"" + run.outputPath() + "\"";
  if (run.newFile) line += " -n ";
  line += " -symbol ";
  if (!run.extraArguments.empty()) line += " " + run.extraArguments + " ";
  if (!run.directLaunch) {
    // The line "%s -x%d -y%d -p2 -h%d", with the line itself appended as it is.
    line += formatText(" -x%d -y%d -p2 -h%ld", app.corner.right, app.corner.bottom, threadId);
  }
  return line;
}

LaunchResult launchPlugin(ManagerApp& app, UserInterface& ui) {
  const ManagerRun& run = app.run;
  const std::string command = run.catalog->findCommandLine(run.modulonName);
  if (command.empty()) {
    reportError(ui, Msg::kNoLaunchCommandLine, run.modulonName);
    return {};
  }
  const long threadId = currentThreadId();
  const std::string line = pluginCommandLine(app, ui, command, threadId);

  LaunchResult result;
  int quitSignal = 0;
  {
    QuitSignals quitSignals;
    PositionChannel channel(threadId);
    ChildProcess child;
    int errorNumber = 0;
    if (!child.start(splitCommandLine(line), errorNumber)) {
      reportError(ui, Msg::kCannotStartPlugin, run.modulonName, std::strerror(errorNumber));
      return {};
    }
    const PluginWaitResult waited = waitForPlugin(child, channel, quitSignals, app.corner, ui);
    result.started = true;
    result.exitCode = waited.exitCode;
    quitSignal = waited.quitSignal;
  }
  // The quit request goes on to the host, as the signal it came as, once its hold has ended.
  if (quitSignal != 0) raise(quitSignal);
  return result;
}

}  // namespace plovix
