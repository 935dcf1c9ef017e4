// Parsing the plovix command line with CLI11, and the checks CLI11 cannot make.
#include "CommandLine.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "HelpText.h"
#include "RunManifest.h"
#include "SourceRevision.h"
#include "base/OutputKinds.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "hdl/HdlTextMode.h"

namespace plovix {

namespace {

void setEnvironment(const char* name, const std::string& value) {
  setenv(name, value.c_str(), 1);
}

// The words --language takes: the output kinds' CLI words.
std::vector<std::string> languageWords() {
  std::vector<std::string> words;
  for (const OutputKind& kind : kOutputKinds) words.emplace_back(kind.cliWord);
  return words;
}

std::string versionText() {
  const std::string revision = PLOVIX_SOURCE_REVISION;
  if (revision.empty()) return errorMessage(Msg::kVersionLine, PLOVIX_VERSION);
  return errorMessage(Msg::kVersionWithRevision, PLOVIX_VERSION, revision);
}

// The one line of a usage error, and with --json the object of a run that never started.
ParseOutcome usageError(const std::string& message, bool json) {
  std::fprintf(stderr, "plovix: %s; %s\n", message.c_str(), help::kUsage);
  if (json) printUsageErrorManifest(message);
  return ParseOutcome::kUsageError;
}

bool jsonAsked(int argc, char** argv) {
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], "--json") == 0) return true;
  return false;
}

// The name with the language's extension when it has a base name but no extension (and no wildcard).
std::string withLanguageExtension(const std::string& name, const std::string& language) {
  const OutputKind* kind = outputKindOfCliWord(language);
  if (kind == nullptr || name.find_first_of("*?") != std::string::npos) return name;
  if (splitPath(name, PathPart::kBaseName).empty() || !splitPath(name, PathPart::kExtension).empty())
    return name;
  return name + std::string(kind->designExtension);
}

struct Sources {
  std::string ui, language, answer, hdlText, project, userLibPath, libPath, topFile;
  bool batch = false;
  std::vector<std::string> pluginArgs, files;
};

// The sub-command options given, in the order of the table.
std::vector<std::pair<const char*, Task>> tasksGiven(const CLI::App& app) {
  const std::pair<const char*, Task> options[] = {{"--check", Task::kCheck},
                                                  {"--describe-modulon", Task::kDescribeModulon},
                                                  {"--lint", Task::kLint},
                                                  {"--list-modulons", Task::kListModulons},
                                                  {"--render-symbol", Task::kRenderSymbol}};
  std::vector<std::pair<const char*, Task>> given;
  for (const auto& option : options)
    if (app.count(option.first) > 0) given.push_back(option);
  return given;
}

// The checks between options; empty when they fit together.
std::string combinationError(const CLI::App& app, const Sources& in, CommandLine& out) {
  const auto tasks = tasksGiven(app);
  if (tasks.size() > 1) return errorMessage(Msg::kUsageOneSubcommand, tasks[0].first, tasks[1].first);
  if (!tasks.empty()) out.task = tasks[0].second;
  for (const char* option : {"--update", "--jobs"})
    if (app.count(option) > 0 && out.task != Task::kCheck) return errorMessage(Msg::kUsageNeedsCheck, option);
  if (out.task == Task::kCheck || out.task == Task::kLint) {
    out.checkPaths = in.files;
    if (out.task == Task::kLint && in.files.empty()) return errorMessage(Msg::kUsageLintNeedsFile);
  } else if (out.task != Task::kRun && !in.files.empty()) {
    return errorMessage(Msg::kUsageNoDesignFile, tasks[0].first, in.files[0]);
  } else if (in.files.size() > 1) {
    return errorMessage(Msg::kUsageOneDesignFile, in.files[0], in.files[1]);
  }
  if (out.json &&
      (out.task == Task::kListModulons || out.task == Task::kRenderSymbol || out.task == Task::kLint))
    return errorMessage(Msg::kUsageJsonNotHere, tasks[0].first);
  if (out.json && out.task == Task::kRun && !in.ui.empty() && in.ui != "batch")
    return errorMessage(Msg::kUsageJsonNeedsBatch, in.ui);
  return invalidFrontEndSetting();
}

}  // namespace

ParseOutcome parseCommandLine(int argc, char** argv, CommandLine& out) {
  CLI::App app{help::kSummary, "plovix"};
  app.footer(help::kFooter);
  app.set_version_flag("--version", versionText());

  Sources in;
  app.add_option(
      "design-file", in.files,
      "The variation's design file (.tdf, .vhd or .v); with --check, the files and directories to check; "
      "with --lint, the .vhd and .v files to read");
  app.add_option("--ui", in.ui,
                 "Front end: batch, console or qt (default: qt with a display, console on a terminal, "
                 "else batch)")
      ->check(CLI::IsMember({"batch", "console", "qt"}));
  app.add_flag("--batch", in.batch,
               "Same as --ui batch: no pages are shown, every box is one line on stderr");
  app.add_option("--modulon", out.frontEnd.modulon, "Batch: the modulon to use");
  app.add_option("--language", in.language,
                 "Batch: the output language; a design file name without extension gets its extension")
      ->check(CLI::IsMember(languageWords()));
  app.add_option("--answer", in.answer, "Batch: the answer to every question (default ok)")
      ->check(CLI::IsMember({"ok", "cancel"}));
  app.add_flag("--force", out.frontEnd.force,
               "Batch: let the answer replace a file that no wizard generated (otherwise Cancel)");
  app.add_option("--hdl-text", in.hdlText,
                 "The VHDL and Verilog text: standard (default) or valid, which writes valid HDL of the same "
                 "meaning for the constructs plovix warns about")
      ->check(CLI::IsMember({"standard", "valid"}));
  app.add_flag("--json", out.json,
               "Print one JSON object on stdout at the end (a batch run, --check, --describe-modulon)");
  app.add_option("--project", in.project, "Project root directory");
  app.add_option("--user-lib-path", in.userLibPath, "User library directories, ';'-separated");
  app.add_option("--lib-path", in.libPath,
                 "Host library directories, ';'-separated (default: the bundled modulons)");
  app.add_option("--top-file", in.topFile, "The project's top design file");
  app.add_option("--plugin-args", in.pluginArgs,
                 "Extra arguments appended to the plug-in's command line (may be given more than once)")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->allow_extra_args(false);
  app.add_flag("--check")->description(
      "Check that the files of every variation under the given files and directories (default .) match what "
      "their design files generate; print 'drift: PATH' for each that does not");
  app.add_flag("--update", out.update, "With --check: rewrite the files that drifted");
  app.add_option("-j,--jobs", out.jobs, "With --check: check N variations at a time (default 1)")
      ->check(CLI::Range(1, 256));
  app.add_flag("--lint")->description(
      "Read the given variation files with the HDL tools that are installed (GHDL, Icarus Verilog, "
      "Verilator, "
      "Yosys); print 'lint: TOOL: FILE:LINE: message' for each finding; exit 1 when a tool rejects a file");
  app.add_option("--describe-modulon", out.describeModulon,
                 "Print a modulon's catalog entry and the settings its plug-in takes");
  app.add_flag("--list-modulons")->description("Print the catalog of modulons and exit");
  app.add_option("--render-symbol", out.renderSymbol,
                 "Write an SVG picture of a .sym file to standard output");

  const bool jsonInArguments = jsonAsked(argc, argv);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& e) {
    app.exit(e);
    return ParseOutcome::kExit0;
  } catch (const CLI::CallForVersion& e) {
    app.exit(e);
    return ParseOutcome::kExit0;
  } catch (const CLI::ParseError& e) {
    return usageError(e.what(), jsonInArguments);
  }

  // CLI11 wrote the options into out.frontEnd before it is reset from the environment.
  const std::string modulon = out.frontEnd.modulon;
  const bool force = out.frontEnd.force;
  const std::string problem = combinationError(app, in, out);
  if (!problem.empty()) return usageError(problem, out.json);

  out.frontEnd = frontEndOptionsFromEnvironment();
  if (app.count("--modulon") > 0) out.frontEnd.modulon = modulon;
  out.frontEnd.force = force;
  if (!in.ui.empty()) parseFrontEndKind(in.ui, out.frontEnd.kind);
  if (in.batch || out.json) out.frontEnd.kind = FrontEndKind::kBatch;
  if (!in.language.empty()) out.frontEnd.language = in.language;
  if (!in.answer.empty()) out.frontEnd.answerOk = in.answer == "ok";
  for (const std::string& text : in.pluginArgs) out.pluginArgs += (out.pluginArgs.empty() ? "" : " ") + text;
  if (out.task == Task::kRun && !in.files.empty()) {
    out.hasDesignFile = true;
    out.designFile = withLanguageExtension(in.files[0], out.frontEnd.language);
  }
  if (app.count("--hdl-text") > 0) setEnvironment(kHdlTextVariable, in.hdlText);
  if (app.count("--project") > 0) setEnvironment("PLOVIX_PROJECT_DIR", in.project);
  if (app.count("--user-lib-path") > 0) setEnvironment("PLOVIX_USER_LIB_PATH", in.userLibPath);
  if (app.count("--lib-path") > 0) setEnvironment("PLOVIX_LIB_PATH", in.libPath);
  if (app.count("--top-file") > 0) setEnvironment("PLOVIX_TOP_FILE", in.topFile);
  return ParseOutcome::kRun;
}

}  // namespace plovix
