// plovix --lint: each variation file read by the HDL tools that are installed, one line per finding.
#include <cstdio>
#include <string>
#include <vector>

#include "Subcommands.h"
#include "base/HostQueries.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "lint/LintVariation.h"

namespace plovix {

namespace {

std::vector<std::string> libraryDirectories() {
  std::vector<std::string> directories;
  for (bool user : {true, false}) {
    std::string rest = libraryPath(user);
    for (std::string directory = splitFirstToken(rest, ";"); !directory.empty();
         directory = splitFirstToken(rest, ";"))
      directories.push_back(trimText(directory));
  }
  return directories;
}

std::string joinTexts(const std::vector<std::string>& texts, const char* separator) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : separator) + text;
  return joined;
}

void note(const std::string& text) {
  std::fprintf(stderr, "plovix: %s\n", text.c_str());
}

}  // namespace

int lintCommand(const std::vector<std::string>& files) {
  LintSettings settings;
  settings.libraryDirectories = libraryDirectories();
  int rejected = 0;
  size_t findings = 0;
  for (const std::string& file : files) {
    const LintReport report = lintVariation(file, settings);
    if (!report.problem.empty()) {
      note(report.problem);
      ++rejected;
      continue;
    }
    if (report.toolsRun.empty())
      note(errorMessage(Msg::kLintNoTools, joinTexts(lintToolsOfLanguage(file), ", "), file));
    for (const LintFinding& finding : report.findings) {
      const std::string place = finding.file.empty() ? file : finding.file;
      const std::string line = finding.line > 0
                                   ? errorMessage(Msg::kLintFindingAt, finding.tool, place,
                                                  std::to_string(finding.line), finding.message)
                                   : errorMessage(Msg::kLintFinding, finding.tool, place, finding.message);
      std::printf("%s\n", line.c_str());
    }
    findings += report.findings.size();
    if (!report.rejectedBy.empty()) ++rejected;
  }
  std::fflush(stdout);
  note(errorMessage(Msg::kLintSummary, std::to_string(files.size()), std::to_string(rejected),
                    std::to_string(findings)));
  return rejected > 0 ? 1 : 0;
}

}  // namespace plovix
