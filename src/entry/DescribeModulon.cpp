// Starting a plug-in with its DESCRIBE words and reading the settings it prints.
#include "entry/DescribeModulon.h"

#include <cstring>

#include "base/Format.h"
#include "base/Json.h"
#include "base/Report.h"
#include "entry/CommandWords.h"
#include "entry/PluginLaunch.h"
#include "entry/PluginLaunchParts.h"
#include "platform/CapturedProcess.h"
#include "platform/CommandLineWords.h"

namespace plovix {

std::vector<std::string> describeCommand(ManagerApp& app, UserInterface& ui, const CatalogEntry& entry) {
  ManagerRun& run = app.run;
  // The %-codes read the run: this modulon, and no output file.
  run.modulonName = entry.name;
  run.directory.clear();
  run.fileTitle.clear();
  run.extension.clear();
  // As for a run: the catalog's words with their %-codes expanded inside each word, then the DESCRIBE words,
  // each a whole argument.
  CommandContext context = commandContextOf(run);
  context.modulonDirectory = entry.directory;
  std::vector<std::string> words = pluginCommandWords(ui, context, entry.commandLine);
  if (words.empty()) return words;
  for (std::string& word : splitCommandLine(entry.describeArgs)) words.push_back(std::move(word));
  return words;
}

namespace {

// Why a finished describe run gave no output to read; empty when it ended well.
std::string endProblem(const CapturedRun& ran) {
  switch (ran.end) {
    case CapturedRun::End::kNotStarted:
      return errorMessage(Msg::kDescribeCannotStart, std::strerror(ran.status));
    case CapturedRun::End::kTimedOut:
      return errorMessage(Msg::kDescribeTimedOut, formatInt(kDescribeTimeoutSeconds));
    case CapturedRun::End::kTooMuchOutput:
      return errorMessage(Msg::kDescribeOutputTooLarge, formatInt(kDescribeOutputLimit));
    case CapturedRun::End::kSignalled:
      return errorMessage(Msg::kDescribeKilled, formatInt(ran.status));
    case CapturedRun::End::kExited:
      return ran.status == 0 ? std::string() : errorMessage(Msg::kDescribeExitStatus, formatInt(ran.status));
  }
  return {};
}

// The settings from the printed text, or why they cannot be taken from it.
std::string readSettings(const std::string& text, const std::string& modulon, ModulonSettings& out) {
  JsonValue json;
  JsonError error;
  if (!parseJson(text, json, error)) {
    return errorMessage(Msg::kDescribeNotJson, formatInt(static_cast<long long>(error.line)),
                        formatInt(static_cast<long long>(error.column)),
                        std::string(errorText(error.message)));
  }
  std::string badField;
  if (!settingsFromJson(json, out, badField)) return errorMessage(Msg::kDescribeBadField, badField);
  if (out.modulon != modulon) return errorMessage(Msg::kDescribeOtherModulon, out.modulon);
  return {};
}

}  // namespace

bool describeModulon(ManagerApp& app, UserInterface& ui, const CatalogEntry& entry, ModulonSettings& out,
                     std::string& failure) {
  const CapturedRun ran = runCapturingOutput(describeCommand(app, ui, entry), kDescribeOutputLimit,
                                             kDescribeTimeoutSeconds * 1000);
  std::string problem = endProblem(ran);
  if (problem.empty()) problem = readSettings(ran.output, entry.name, out);
  if (problem.empty()) return true;
  failure = errorMessage(Msg::kDescribeFailed, entry.name, problem);
  return false;
}

}  // namespace plovix
