// plovix --lint on real variations: the corpus's generated files are rejected by exactly the tools that the
// known-limits lists name, and a bundled modulon's variation reads cleanly with its library models.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "RunCommand.h"
#include "TempDir.h"
#include "lint/LintVariation.h"

namespace plovix {
namespace {

using testing::plovixProgram;
using testing::runCommand;
using testing::TempDir;

const std::string kSource = PLOVIX_SOURCE_DIR;

// The tools that rejected a file: each rejection ends with its own line "lint: TOOL: FILE: rejected ...".
std::set<std::string> rejectingTools(const std::string& out) {
  static const std::regex finding(R"(lint: (ghdl|iverilog|verilator|yosys): [^ ]+?(:\d+)?: .+)");
  std::set<std::string> tools;
  std::istringstream lines(out);
  for (std::string line; std::getline(lines, line);) {
    std::smatch match;
    EXPECT_TRUE(std::regex_match(line, match, finding)) << line;
    if (line.find(": rejected the file (exit status") != std::string::npos) tools.insert(match[1].str());
  }
  return tools;
}

// (case) -> the tools a known-limits list names for it ("<case> <tool or step>: ...").
std::map<std::string, std::set<std::string>> limits(const std::string& list) {
  std::map<std::string, std::set<std::string>> named;
  std::ifstream in(list);
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string name, what;
    if (line.empty() || line[0] == '#' || !(words >> name >> what)) continue;
    what.pop_back();  // the colon
    // VHDL steps that read the design file itself; the others read the companion files.
    if (what == "analyse" || what == "elaborate" || what == "stubs") what = "ghdl";
    named[name].insert(what);
  }
  return named;
}

TEST(LintCommandTest, CorpusFilesAreRejectedByTheToolsTheLimitsListsName) {
  struct Language {
    const char* folder;
    const char* extension;
    const char* limits;
    const char* probe;
  };
  const Language languages[] = {
      {"/tests/verilog/data/", ".v", "/tests/corpus/verilog_limits.txt", "x.v"},
      {"/tests/vhdl/expected/", ".vhd", "/tests/vhdl_tools/vhdl_limits.txt", "x.vhd"}};
  for (const Language& language : languages) {
    const std::vector<std::string> installed = installedLintTools(language.probe);
    const auto named = limits(kSource + language.limits);
    for (const char* name : {"counter", "two_modules", "constants", "inverted", "three_feeds", "rows_2d",
                             "main_ports", "number_bit", "declared_slices"}) {
      const std::string file = kSource + language.folder + name + language.extension;
      if (!std::ifstream(file)) continue;
      SCOPED_TRACE(file);
      std::set<std::string> expected;
      const auto listed = named.find(name);
      for (const std::string& tool : installed)
        if (listed != named.end() && listed->second.count(tool) > 0) expected.insert(tool);
      const auto result = runCommand(plovixProgram(), {"--lint", file});
      EXPECT_EQ(rejectingTools(result.out), expected) << result.out << result.err;
      EXPECT_EQ(result.exitCode, expected.empty() ? 0 : 1) << result.err;
    }
  }
}

TEST(LintCommandTest, BundledModulonReadsCleanlyWithTheLibraryModels) {
  TempDir project;
  for (const char* file : {"count8.v", "count8.vhd"}) {
    SCOPED_TRACE(file);
    const auto made = runCommand(
        plovixProgram(),
        {"--batch", "--modulon", "lpm_counter", "--plugin-args", "LPM_WIDTH=8 LPM_DIRECTION=UP", file},
        project.dir());
    ASSERT_EQ(made.exitCode, 0) << made.err;
    const auto result = runCommand(plovixProgram(), {"--lint", file}, project.dir());
    EXPECT_EQ(result.exitCode, 0) << result.out << result.err;
    EXPECT_EQ(result.out, "");
  }
}

}  // namespace
}  // namespace plovix
