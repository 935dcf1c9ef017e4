// Starting a modulon's plug-in: the program lookup, the completed command line, the start and the wait.
#include "entry/PluginLaunch.h"

#include <signal.h>

#include <cstring>

#include "base/FileSystem.h"
#include "base/Format.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "entry/CommandWords.h"
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

std::vector<std::string> pluginArguments(ManagerApp& app, UserInterface& ui, const std::string& command,
                                         long threadId) {
  const ManagerRun& run = app.run;
  std::vector<std::string> words = pluginCommandWords(ui, commandContextOf(run), command);
  words.push_back(run.outputPath());
  if (run.newFile) words.push_back("-n");
  words.push_back("-symbol");
  for (std::string& word : splitCommandLine(run.extraArguments)) words.push_back(std::move(word));
  if (!run.directLaunch) {
    words.push_back(formatText("-x%d", app.corner.right));
    words.push_back(formatText("-y%d", app.corner.bottom));
    words.push_back("-p2");
    words.push_back(formatText("-h%ld", threadId));
  }
  return words;
}

namespace {

// Says once in a run that the position channel's name is taken (the run goes on without the channel).
void noteTakenChannel(ManagerRun& run, UserInterface& ui, const PositionChannel& channel, long threadId) {
  if (!channel.nameTaken() || run.positionChannelNoted) return;
  run.positionChannelNoted = true;
  reportError(ui, Msg::kPositionChannelTaken, positionSocketName(threadId));
}

}  // namespace

LaunchResult launchPlugin(ManagerApp& app, UserInterface& ui) {
  ManagerRun& run = app.run;
  const std::string command = run.catalog->findCommandLine(run.modulonName);
  // A command of blanks alone names no program either.
  if (splitCommandLine(command).empty()) {
    reportError(ui, Msg::kNoLaunchCommandLine, run.modulonName);
    return {};
  }
  const long threadId = currentThreadId();
  const std::vector<std::string> arguments = pluginArguments(app, ui, command, threadId);

  LaunchResult result;
  int quitSignal = 0;
  {
    QuitSignals quitSignals;
    PositionChannel channel(threadId);
    noteTakenChannel(run, ui, channel, threadId);
    ChildProcess child;
    int errorNumber = 0;
    if (!child.start(arguments, errorNumber)) {
      reportError(ui, Msg::kCannotStartPlugin, run.modulonName, std::strerror(errorNumber));
      return {};
    }
    const PluginWaitResult waited = waitForPlugin(child, channel, quitSignals, app.corner, ui);
    result.started = true;
    result.exitCode = waited.exitCode;
    quitSignal = waited.quitSignal;
    // The run reads this as Cancel, as the exit code says; the user learns why.
    if (waited.endSignal != 0) {
      reportError(ui, Msg::kPluginEndedBySignal, run.modulonName, formatInt(waited.endSignal),
                  strsignal(waited.endSignal));
    }
  }
  // The quit request goes on to the host, as the signal it came as, once its hold has ended.
  if (quitSignal != 0) raise(quitSignal);
  return result;
}

}  // namespace plovix
