// Tests of the plovix command: options, usage errors and the start of a run on bad design file names.
#include <gtest/gtest.h>

#include <algorithm>

#include "RecordingInterface.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "base/QuestionTexts.h"
#include "ui/BatchFrontEnd.h"

namespace plovix {
namespace {

using testing::asked;
using testing::CommandResult;
using testing::plovixProgram;
using testing::reported;
using testing::runCommand;
using testing::TempDir;

class PlovixCommandTest : public ::testing::Test {
 protected:
  // A batch run in the temp directory with an empty library path and every question cancelled.
  CommandResult plovix(std::vector<std::string> args) {
    std::vector<std::string> all = {"--batch",  "--answer",   "cancel", "--project",
                                    temp.dir(), "--lib-path", ""};
    all.insert(all.end(), args.begin(), args.end());
    return runCommand(plovixProgram(), all, temp.dir());
  }
  TempDir temp;
};

TEST_F(PlovixCommandTest, HelpAndVersionExitZero) {
  const CommandResult help = runCommand(plovixProgram(), {"--help"});
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_NE(help.out.find("--plugin-args"), std::string::npos);
  EXPECT_NE(help.out.find("--batch"), std::string::npos);
  const CommandResult version = runCommand(plovixProgram(), {"--version"});
  EXPECT_EQ(version.exitCode, 0);
  EXPECT_EQ(version.out.rfind("plovix ", 0), 0u);
}

TEST_F(PlovixCommandTest, UnknownOptionsAndValuesGiveOneUsageLine) {
  for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
           {"--frobnicate"}, {"--ui", "web"}, {"--language", "ada"}, {"--answer", "maybe"}, {"a.v", "b.v"}}) {
    const CommandResult result = runCommand(plovixProgram(), args, temp.dir());
    EXPECT_EQ(result.exitCode, 2) << args[0];
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
    EXPECT_NE(result.err.find("usage: plovix"), std::string::npos);
  }
}

// Design file names that stop the run at its start (every question cancelled): the first box as batch shows
// it, and exit status 1.
TEST_F(PlovixCommandTest, DesignFileNamesThatStopTheRun) {
  temp.write("plain.v", "module plain;\nendmodule\n");
  temp.write("g.v", "// modulon wizard: %lpm_gone%\r\n");
  const struct {
    const char* name;
    std::string box;
  } cases[] = {
      {"count8", asked(questions::noExtension(), false)},
      {"count8.TDF", asked(questions::illegalExtension(".TDF"), false)},
      {"count8.vhd", asked(questions::fileDoesNotExistCreate("count8.vhd"), false)},
      {"plain.v", asked(questions::notWizardGenerated("plain.v"), false)},
      {"g.v", reported(Msg::kModulonNotListed, "lpm_gone")},
  };
  for (const auto& c : cases) {
    const CommandResult r = plovix({c.name});
    EXPECT_EQ(r.err.substr(0, r.err.find('\n') + 1), escapeBoxText(c.box) + "\n") << c.name;
    EXPECT_EQ(r.exitCode, 1) << c.name;
  }
}

TEST_F(PlovixCommandTest, WildcardGoesToTheBrowserWithoutAQuestion) {
  const CommandResult r = plovix({"*.vhd"});
  EXPECT_EQ(r.err.find("question:"), std::string::npos) << r.err;
  EXPECT_EQ(r.exitCode, 1);
}

TEST_F(PlovixCommandTest, CancelledRunChangesNothingOnDisk) {
  temp.write("plain.v", "module plain;\nendmodule\n");
  plovix({"plain.v"});
  plovix({"count8.vhd"});
  EXPECT_EQ(temp.read("plain.v"), "module plain;\nendmodule\n");
  int count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(temp.dir())) ++count;
  EXPECT_EQ(count, 1);
}

}  // namespace
}  // namespace plovix
