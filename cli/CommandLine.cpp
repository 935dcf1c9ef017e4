// Parsing the plovix command line with CLI11.
#include "CommandLine.h"

#include <cstdio>
#include <cstdlib>

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "base/OutputKinds.h"

namespace plovix {

namespace {

constexpr const char* kUsage =
    "usage: plovix [options] [<design file name>] (plovix --help lists the options)";

void setEnvironment(const char* name, const std::string& value) {
  setenv(name, value.c_str(), 1);
}

// The words --language takes: the output kinds' CLI words.
std::vector<std::string> languageWords() {
  std::vector<std::string> words;
  for (const OutputKind& kind : kOutputKinds) words.emplace_back(kind.cliWord);
  return words;
}

}  // namespace

ParseOutcome parseCommandLine(int argc, char** argv, CommandLine& out) {
  CLI::App app{
      "plovix: create and edit custom variations of modulons.\n\n"
      "With a design file name (.tdf, .vhd or .v) an existing variation is edited, or a missing one "
      "created;\n"
      "without one the wizard starts at its first page.",
      "plovix"};
  app.set_version_flag("--version", std::string("plovix ") + PLOVIX_VERSION);

  std::string ui, language, answer, project, userLibPath, libPath, topFile;
  bool batch = false;
  app.add_option("design-file", out.designFile, "The variation's design file (.tdf, .vhd or .v)");
  app.add_option("--ui", ui,
                 "Front end: batch, console or qt (default: qt with a display, console on a terminal, "
                 "else batch)")
      ->check(CLI::IsMember({"batch", "console", "qt"}));
  app.add_flag("--batch", batch, "Same as --ui batch: no pages are shown, every box is one line on stderr");
  app.add_option("--modulon", out.frontEnd.modulon, "Batch: the modulon to use");
  app.add_option("--language", language, "Batch: the output language")->check(CLI::IsMember(languageWords()));
  app.add_option("--answer", answer, "Batch: the answer to every question (default ok)")
      ->check(CLI::IsMember({"ok", "cancel"}));
  app.add_option("--project", project, "Project root directory");
  app.add_option("--user-lib-path", userLibPath, "User library directories, ';'-separated");
  app.add_option("--lib-path", libPath,
                 "Host library directories, ';'-separated (default: the bundled modulons)");
  app.add_option("--top-file", topFile, "The project's top design file");
  app.add_option("--plugin-args", out.pluginArgs, "Extra arguments appended to the plug-in's command line");
  app.add_flag("--list-modulons", out.listModulons, "Print the catalog of modulons and exit");
  app.add_option("--render-symbol", out.renderSymbol,
                 "Write an SVG picture of a .sym file to standard output");

  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& e) {
    app.exit(e);
    return ParseOutcome::kExit0;
  } catch (const CLI::CallForVersion& e) {
    app.exit(e);
    return ParseOutcome::kExit0;
  } catch (const CLI::ParseError& e) {
    std::fprintf(stderr, "plovix: %s; %s\n", e.what(), kUsage);
    return ParseOutcome::kUsageError;
  }

  out.hasDesignFile = app.count("design-file") > 0;
  out.frontEnd = frontEndOptionsFromEnvironment();
  if (app.count("--modulon") > 0) {
    // CLI11 wrote the value into the options before they were reset from the environment.
    out.frontEnd.modulon = app["--modulon"]->as<std::string>();
  }
  if (!ui.empty()) parseFrontEndKind(ui, out.frontEnd.kind);
  if (batch) out.frontEnd.kind = FrontEndKind::kBatch;
  if (!language.empty()) out.frontEnd.language = language;
  if (!answer.empty()) out.frontEnd.answerOk = answer == "ok";
  if (app.count("--project") > 0) setEnvironment("PLOVIX_PROJECT_DIR", project);
  if (app.count("--user-lib-path") > 0) setEnvironment("PLOVIX_USER_LIB_PATH", userLibPath);
  if (app.count("--lib-path") > 0) setEnvironment("PLOVIX_LIB_PATH", libPath);
  if (app.count("--top-file") > 0) setEnvironment("PLOVIX_TOP_FILE", topFile);
  return ParseOutcome::kRun;
}

}  // namespace plovix
