// Tests of the plovix command: options, usage errors and a run cancelled at its start.
#include <gtest/gtest.h>

#include <algorithm>

#include "RunCommand.h"
#include "TempDir.h"

namespace plovix {
namespace {

using testing::CommandResult;
using testing::plovixProgram;
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

// A run cancelled at its first question (the question for each name is the run loop's test) leaves the disk
// as it was.
TEST_F(PlovixCommandTest, CancelledRunChangesNothingOnDisk) {
  temp.write("plain.v", "module plain;\nendmodule\n");
  EXPECT_EQ(plovix({"plain.v"}).exitCode, 1);
  EXPECT_EQ(plovix({"count8.vhd"}).exitCode, 1);
  EXPECT_EQ(temp.read("plain.v"), "module plain;\nendmodule\n");
  int count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(temp.dir())) ++count;
  EXPECT_EQ(count, 1);
}

}  // namespace
}  // namespace plovix
