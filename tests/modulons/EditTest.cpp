// Editing variations: refused values and a plug-in cancelled at its prompt leave every file as it was (edits
// that succeed are the batch create-and-edit runs').
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "BatchRun.h"
#include "TerminalSession.h"

namespace plovix::testing {
namespace {

// Every file of the directory tree with its bytes.
std::map<std::string, std::string> snapshot(const TempDir& dir) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.dir())) {
    if (entry.is_regular_file()) files[entry.path().string()] = TempDir::readFile(entry.path().string());
  }
  return files;
}

const char* const kCounterArgs = "LPM_WIDTH=8 LPM_DIRECTION=DOWN ACLR=YES COUT=YES";

TEST(EditTest, RefusedValuesLeaveEveryFileUnchanged) {
  TempDir dir;
  ASSERT_EQ(plovixBatch(dir, "lpm_counter", "verilog", kCounterArgs, "count.v").exitCode, 0);
  const auto before = snapshot(dir);
  for (const char* args :
       {"LPM_WIDTH=99", "LPM_DIRECTION=SIDEWAYS", "WIDTH=4", "LPM_WIDTH=2 LPM_MODULUS=5", "8"}) {
    const ToolRun edit = plovixBatch(dir, "", "", args, "count.v");
    EXPECT_EQ(edit.exitCode, 1) << args << "\n" << edit.output;
    std::filesystem::remove(
        dir.path("count.cnx"));  // the manager's prepared description stays after a cancel
    EXPECT_EQ(snapshot(dir), before) << args;
  }
  const ToolRun bad = plovixBatch(dir, "", "", "LPM_DIRECTION=SIDEWAYS", "count.v");
  EXPECT_NE(
      bad.output.find("\"SIDEWAYS\" is not allowed for LPM_DIRECTION; allowed values: UP, DOWN, UNUSED"),
      std::string::npos)
      << bad.output;

  // A new variation refused the same way creates nothing.
  const ToolRun create = plovixBatch(dir, "lpm_decode", "verilog", "LPM_WIDTH=2 LPM_DECODES=5", "dec.v");
  EXPECT_EQ(create.exitCode, 1);
  EXPECT_NE(create.output.find("LPM_DECODES=5 does not fit LPM_WIDTH=2"), std::string::npos) << create.output;
  EXPECT_FALSE(std::filesystem::exists(dir.path("dec.v")));
}

// Runs plovix with a terminal as its standard input, ends the input at the plug-in's first prompt, and gives
// the exit code and everything shown on the terminal.
ToolRun cancelAtPrompt(const TempDir& dir, const std::string& designFile) {
  const std::string plovix = std::string(PLOVIX_BINARY_DIR) + "/cli/plovix";
  testing::TerminalSession session(
      dir.dir(), {plovix, "--batch", "--project", dir.dir(), designFile},
      {"PLOVIX_LIB_PATH", "PLOVIX_USER_LIB_PATH", "PLOVIX_UI", "DISPLAY", "WAYLAND_DISPLAY"});
  if (session.expect("LPM_WIDTH: ", 60)) session.writeRaw("\x04");  // end of input at the start of a line
  const int exitCode = session.exitCode(10);
  return {exitCode, session.output};
}

TEST(EditTest, PluginCancelledAtItsPromptLeavesEveryFileUnchanged) {
  TempDir dir;
  ASSERT_EQ(plovixBatch(dir, "lpm_counter", "verilog", kCounterArgs, "count.v").exitCode, 0);
  const auto before = snapshot(dir);
  const ToolRun run = cancelAtPrompt(dir, "count.v");
  EXPECT_NE(run.output.find("LPM_WIDTH: Width of the count output q (a whole number from 1 to 32) [8]: "),
            std::string::npos)
      << run.output;
  EXPECT_NE(run.output.find("Cancelled: no description was written."), std::string::npos) << run.output;
  EXPECT_EQ(run.exitCode, 1) << run.output;
  std::filesystem::remove(dir.path("count.cnx"));
  EXPECT_EQ(snapshot(dir), before);
}

TEST(EditTest, SymbolOnlyConstantWritesTheDrawnSymbolAlone) {
  TempDir dir;
  const ToolRun run =
      plovixBatch(dir, "lpm_constant", "verilog", "LPM_WIDTH=4 LPM_CVALUE=9 SYMBOL_ONLY=YES", "k9.v");
  ASSERT_EQ(run.exitCode, 0) << run.output;
  EXPECT_TRUE(std::filesystem::exists(dir.path("k9.sym")));
  for (const char* other : {"k9.v", "k9.inc", "k9.cmp", "k9_bb.v", "k9_inst.v"})
    EXPECT_FALSE(std::filesystem::exists(dir.path(other))) << other;
}

}  // namespace
}  // namespace plovix::testing
