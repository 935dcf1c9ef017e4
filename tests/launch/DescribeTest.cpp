// Asking a plug-in to describe its settings: how the program is run and read, the command it gets, and what
// the manager makes of what it prints.
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>

#include "LaunchFixture.h"
#include "base/Format.h"
#include "entry/DescribeModulon.h"
#include "platform/CapturedProcess.h"

namespace plovix {
namespace {

using testing::LaunchFixture;
using testing::writeScript;
using End = CapturedRun::End;

TEST(CapturedProcess, ReadsOutputAndEndsWhatOverstaysOrOverflows) {
  const struct {
    const char* script;
    End end;
    int status;
    const char* output;
  } cases[] = {
      {"printf out; exit 0", End::kExited, 0, "out"},
      {"exit 3", End::kExited, 3, ""},
      {"kill -TERM $$", End::kSignalled, SIGTERM, ""},
      {"head -c 5000 /dev/zero", End::kTooMuchOutput, 0, nullptr},
      {"sleep 5", End::kTimedOut, 0, ""},
      // A process left behind holding the output open does not keep the reader waiting.
      {"sleep 5 & printf done", End::kExited, 0, "done"},
      {"read line; printf \"[$line]\"", End::kExited, 0, "[]"},
  };
  for (const auto& c : cases) {
    const auto start = std::chrono::steady_clock::now();
    const CapturedRun run = runCapturingOutput({"/bin/sh", "-c", c.script}, 4096, 500);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3)) << c.script;
    EXPECT_EQ(run.end, c.end) << c.script;
    if (c.output != nullptr) {
      EXPECT_EQ(run.status, c.status) << c.script;
      EXPECT_EQ(run.output, c.output) << c.script;
    }
  }
  const CapturedRun missing = runCapturingOutput({"no-such-program-here"}, 10, 100);
  EXPECT_EQ(missing.end, End::kNotStarted);
  EXPECT_EQ(missing.status, ENOENT);
}

class DescribeTest : public LaunchFixture {
 protected:
  // The catalog entry of a plug-in that prints `output` (and then runs `after`) when asked to describe.
  const CatalogEntry& pluginPrinting(const std::string& output, const std::string& after = "exit 0") {
    lib.write("out.json", output);
    writeScript(lib, "plug", "cat \"$(dirname \"$0\")/out.json\"\n" + after + "\n");
    writeCatalog("M=plug -m M <INFO><DESCRIBE/></INFO>\n");
    return app.run.catalog->entries()[0];
  }

  // The failure text of describing, or "" when the settings were taken.
  std::string describe(const CatalogEntry& entry) {
    settings = {};
    std::string failure;
    describeModulon(app, ui, entry, settings, failure);
    return failure;
  }

  ModulonSettings settings;
};

TEST_F(DescribeTest, CommandIsTheCatalogLineSplitThenExpandedWithTheDescribeWords) {
  writeScript(lib, "plug", "exit 0\n");
  writeCatalog("M=plug \"%w/a b\" x%%y <INFO><DESCRIBE ARGS=\" --describe  -v \"/></INFO>\n");
  std::string directory = lib.dir();
  directory.pop_back();
  EXPECT_EQ(describeCommand(app, ui, app.run.catalog->entries()[0]),
            (std::vector<std::string>{lib.path("plug"), directory + "/a b", "x%y", "--describe", "-v"}));
}

TEST_F(DescribeTest, TakesTheSettingsOrSaysWhatIsWrong) {
  const std::string good =
      R"({"modulon": "M", "title": "T", "settings": [
         {"name": "W", "kind": "integer", "minimum": 1, "maximum": 64, "default": "8", "help": "width"},
         {"name": "D", "kind": "choice", "values": ["UP", "DOWN"], "default": "UP", "help": "direction"},
         {"name": "F", "kind": "text", "default": "", "help": "file"}]})";
  EXPECT_EQ(describe(pluginPrinting(good)), "");
  EXPECT_EQ(
      writeJson(settingsToJson(settings)),
      R"({"modulon": "M", "title": "T", "settings": [)"
      R"({"name": "W", "kind": "integer", "minimum": 1, "maximum": 64, "default": "8", "help": "width"}, )"
      R"({"name": "D", "kind": "choice", "values": ["UP", "DOWN"], "default": "UP", "help": "direction"}, )"
      R"({"name": "F", "kind": "text", "default": "", "help": "file"}]})");

  const auto failed = [](const std::string& cause) { return errorMessage(Msg::kDescribeFailed, "M", cause); };
  const std::pair<std::pair<std::string, std::string>, std::string> cases[] = {
      {{good, "exit 4"}, failed(errorMessage(Msg::kDescribeExitStatus, "4"))},
      {{good, "kill -KILL $$"}, failed(errorMessage(Msg::kDescribeKilled, formatInt(SIGKILL)))},
      {{std::string(kDescribeOutputLimit + 1, ' '), "exit 0"},
       failed(errorMessage(Msg::kDescribeOutputTooLarge, formatInt(kDescribeOutputLimit)))},
      {{"{\"modulon\": \"M\",\n \"settings\": [}", "exit 0"},
       failed(errorMessage(Msg::kDescribeNotJson, "2", "15",
                           std::string(errorText(Msg::kJsonUnexpectedCharacter))))},
      {{R"({"modulon": "N", "settings": []})", "exit 0"},
       failed(errorMessage(Msg::kDescribeOtherModulon, "N"))},
      {{R"({"modulon": "M"})", "exit 0"}, failed(errorMessage(Msg::kDescribeBadField, "settings"))},
      {{R"({"modulon": "M", "settings": [{"name": "W", "kind": "integer", "minimum": 1, "default": "1", "help": ""}]})",
        "exit 0"},
       failed(errorMessage(Msg::kDescribeBadField, "settings[0].maximum"))},
      {{R"({"modulon": "M", "settings": [{"name": "W", "kind": "list", "default": "1", "help": ""}]})",
        "exit 0"},
       failed(errorMessage(Msg::kDescribeBadField, "settings[0].kind"))},
  };
  for (const auto& [plugin, expected] : cases)
    EXPECT_EQ(describe(pluginPrinting(plugin.first, plugin.second)), expected);

  writeCatalog("M=missing-describing-plugin <INFO><DESCRIBE/></INFO>\n");
  EXPECT_EQ(describe(app.run.catalog->entries()[0]),
            failed(errorMessage(Msg::kDescribeCannotStart, std::strerror(ENOENT))));
}

}  // namespace
}  // namespace plovix
