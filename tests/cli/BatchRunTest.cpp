// End-to-end batch runs of plovix with the bundled modulons: what scripts rely on (exit status, wrote: and
// hint: lines, --json), and that sub-commands never wait for a window.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <functional>

#include "RunCommand.h"
#include "TempDir.h"
#include "base/Json.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "ui/BatchFrontEnd.h"

namespace plovix {
namespace {

using testing::CommandResult;
using testing::plovixProgram;
using testing::runCommand;
using testing::TempDir;

constexpr const char* kHandWritten = "entity mine is end;\n";

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// One row: files made first, the arguments and environment, then the exit status, lines that must be on
// standard error, and a check of the directory afterwards.
struct Row {
  const char* name;
  std::vector<std::string> args;
  std::vector<std::string> env;
  int status;
  std::function<std::vector<std::string>(const TempDir&)> lines;
  std::function<void(const TempDir&)> after = [](const TempDir&) {};
};

TEST(BatchRun, ScriptedRunsSayWhatHappenedAndWhy) {
  const auto hint = [](Msg id, auto... args) { return batchLine("hint", errorMessage(id, args...)); };
  const Row rows[] = {
      {"a name without extension gets the --language one",
       {"--modulon", "lpm_counter", "--language", "vhdl", "cnt"},
       {},
       0,
       [](const TempDir& d) { return std::vector<std::string>{batchLine("wrote", d.path("cnt.vhd"))}; }},
      {"a hand-written design file is not replaced without --force",
       {"--modulon", "lpm_counter", "mine.vhd"},
       {},
       1,
       [&](const TempDir&) {
         return std::vector<std::string>{
             batchLine("question", questions::notWizardGenerated("mine.vhd") + " => Cancel"),
             hint(Msg::kHintForce, "mine.vhd")};
       },
       [](const TempDir& d) { EXPECT_EQ(d.read("mine.vhd"), kHandWritten); }},
      {"--force lets the answer replace it",
       {"--force", "--modulon", "lpm_counter", "mine.vhd"},
       {},
       0,
       [](const TempDir& d) { return std::vector<std::string>{batchLine("wrote", d.path("mine.vhd"))}; }},
      {"the --plugin-args texts are joined",
       {"--modulon", "lpm_counter", "--plugin-args", "LPM_WIDTH=4", "--plugin-args", "LPM_DIRECTION=DOWN",
        "c.vhd"},
       {},
       0,
       [](const TempDir&) { return std::vector<std::string>{}; },
       [](const TempDir& d) {
         EXPECT_TRUE(contains(d.read("c.vhd"), "Retrieval info: CONSTANT: LPM_WIDTH NUMERIC 4"));
         EXPECT_TRUE(contains(d.read("c.vhd"), "Retrieval info: CONSTANT: LPM_DIRECTION STRING \"DOWN\""));
       }},
      {"an invalid PLOVIX_ANSWER is a usage error", {"c.vhd"}, {"PLOVIX_ANSWER=maybe"}, 2, nullptr},
      {"an invalid PLOVIX_UI is a usage error", {"c.vhd"}, {"PLOVIX_UI=web"}, 2, nullptr},
      {"a misspelt modulon gets the closest names",
       {"--modulon", "lpm_countr", "c.vhd"},
       {},
       1,
       [&](const TempDir&) {
         return std::vector<std::string>{batchLine("report", errorMessage(Msg::kSelectAvailableModulon)),
                                         hint(Msg::kHintUnknownModulon, "lpm_countr", "lpm_counter")};
       }},
      {"a missing directory is named",
       {"--modulon", "lpm_counter", "rtl/c.vhd"},
       {},
       1,
       [&](const TempDir& d) {
         return std::vector<std::string>{hint(Msg::kHintDirectoryMissing, d.path("rtl"))};
       }},
      {"an empty catalog names the library path read",
       {"--list-modulons", "--lib-path", "/nonexistent-lib", "--user-lib-path", ""},
       {},
       0,
       [&](const TempDir&) {
         return std::vector<std::string>{hint(Msg::kHintEmptyCatalog, "", "/nonexistent-lib")};
       }},
  };
  for (const Row& row : rows) {
    TempDir dir;
    dir.write("mine.vhd", kHandWritten);
    std::vector<std::string> args = {"--batch", "--project", dir.dir()};
    if (row.args[0] == std::string("--list-modulons")) args = {};
    args.insert(args.end(), row.args.begin(), row.args.end());
    const CommandResult r = runCommand(plovixProgram(), args, dir.dir(), row.env);
    EXPECT_EQ(r.exitCode, row.status) << row.name << "\n" << r.err;
    if (row.lines == nullptr) {
      EXPECT_TRUE(contains(r.err, "plovix: ") && contains(r.err, row.env[0])) << row.name << "\n" << r.err;
      continue;
    }
    for (const std::string& line : row.lines(dir))
      EXPECT_TRUE(contains(r.err, line)) << row.name << "\n" << r.err;
    row.after(dir);
  }
}

// The manifest names what the wrote: lines name, and every box with its answer.
TEST(BatchRun, JsonManifestListsFilesAndBoxes) {
  TempDir dir;
  const CommandResult r = runCommand(
      plovixProgram(),
      {"--json", "--project", dir.dir(), "--modulon", "lpm_counter", "--answer", "cancel", "c.tdf"},
      dir.dir());
  JsonValue manifest;
  JsonError error;
  ASSERT_TRUE(parseJson(r.out, manifest, error)) << r.out;
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(manifest.member("status")->text, "not-generated");
  EXPECT_EQ(manifest.member("exit_code")->text, "1");
  EXPECT_TRUE(manifest.member("written")->items.empty());
  const JsonValue& box = manifest.member("boxes")->items.at(0);
  EXPECT_EQ(box.member("text")->text, questions::fileDoesNotExistCreate("c.tdf"));
  EXPECT_EQ(box.member("answer")->text, "Cancel");

  const CommandResult made = runCommand(
      plovixProgram(), {"--json", "--project", dir.dir(), "--modulon", "lpm_counter", "c.tdf"}, dir.dir());
  ASSERT_TRUE(parseJson(made.out, manifest, error)) << made.out;
  std::string wroteLines;
  for (const JsonValue& path : manifest.member("written")->items) wroteLines += batchLine("wrote", path.text);
  EXPECT_EQ(made.exitCode, 0);
  EXPECT_EQ(manifest.member("written")->items.size(), 5u);
  EXPECT_TRUE(contains(made.err, wroteLines)) << made.err;
}

// With a display (and a Qt platform that would open windows), sub-commands still report on standard error and
// end at once; their input is not read.
TEST(BatchRun, SubcommandsNeverOpenAWindow) {
  TempDir dir;
  const std::vector<std::string> display = {"DISPLAY=:0", "QT_QPA_PLATFORM=offscreen"};
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{"--render-symbol", "missing.sym"}, batchLine("report", fileErrnoMessage(ENOENT, "missing.sym"))},
      {{"--describe-modulon", "no_such_modulon"},
       batchLine("report", errorMessage(Msg::kModulonNotListed, "no_such_modulon"))},
      {{"--check", "missing-dir"},
       batchLine("report", errorMessage(Msg::kCheckPathUnreadable, "missing-dir", std::strerror(ENOENT)))},
  };
  for (const auto& [args, firstLine] : cases) {
    const CommandResult r = runCommand(plovixProgram(), args, dir.dir(), display);
    EXPECT_EQ(r.exitCode, 1) << args[0];
    EXPECT_EQ(r.err.substr(0, r.err.find('\n') + 1), firstLine) << args[0];
  }
}

// Every bundled modulon's plug-in describes its settings through its catalog's DESCRIBE element; the text
// form gives each setting a line of its own.
TEST(BatchRun, EveryBundledModulonDescribesItself) {
  const CommandResult list = runCommand(plovixProgram(), {"--list-modulons"});
  ASSERT_EQ(list.exitCode, 0);
  size_t modulons = 0;
  for (size_t line = list.out.find('\n') + 1; line < list.out.size(); line = list.out.find('\n', line) + 1) {
    const std::string name = list.out.substr(line, list.out.find('\t', line) - line);
    const CommandResult json = runCommand(plovixProgram(), {"--describe-modulon", name, "--json"});
    JsonValue described;
    JsonError error;
    ASSERT_TRUE(parseJson(json.out, described, error)) << name << json.err;
    EXPECT_EQ(json.exitCode, 0) << name << json.err;
    EXPECT_TRUE(described.member("described")->boolean) << name;
    const CommandResult text = runCommand(plovixProgram(), {"--describe-modulon", name});
    for (const JsonValue& setting : described.member("settings")->items)
      EXPECT_TRUE(contains(text.out, "\n  " + setting.member("name")->text + " ")) << name << text.out;
    ++modulons;
  }
  EXPECT_GT(modulons, 20u);
}

}  // namespace
}  // namespace plovix
