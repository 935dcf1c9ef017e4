// Console sessions of the plovix command driven through a pseudo-terminal: a variation is created on the
// modulon page and then edited through the browser page, by typing the pages' commands.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <vector>

#include "TempDir.h"
#include "TerminalSession.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "pages/PageTexts.h"

namespace plovix {
namespace {

using testing::TempDir;

// The last line of a message: what a terminal session can wait for whatever the lines before it hold.
std::string lastLine(const std::string& text) {
  return text.substr(text.rfind('\n') + 1);
}

constexpr const char* kCounterDescription =
    "GENERATION: STANDARD\n"
    "VERSION: WM1.0\n"
    "MODULE: lpm_counter\n"
    "PARAMETER: WIDTH NUMERIC 8\n"
    "USED_PORT: clock 0 0 0 0 INPUT NODEFVAL\n"
    "USED_PORT: q 8 0 0 0 OUTPUT NODEFVAL\n"
    "CONNECT: lpm_counter@clock 0 0 0 0 clock 0 0 0 0\n"
    "CONNECT: q 8 0 0 0 lpm_counter@q 8 0 0 0\n";

// plovix --ui console in a pseudo-terminal, started in the project folder with the test's library (or the
// bundled one) and `arguments`.
class ConsoleSession : public testing::TerminalSession {
 public:
  explicit ConsoleSession(const TempDir& dir, std::vector<std::string> arguments = {}, int columns = 0,
                          bool bundledLibrary = false)
      : TerminalSession(
            dir.path("proj"), withProgram(std::move(arguments)),
            {"PLOVIX_LIB_PATH=" +
                 (bundledLibrary ? std::string(PLOVIX_BINARY_DIR) + "/modulons/lib" : dir.path("lib")),
             "PLOVIX_USER_LIB_PATH=", "PLOVIX_PROJECT_DIR=" + dir.path("proj"), "TERM=xterm", "DISPLAY",
             "WAYLAND_DISPLAY"},
            columns) {}

 private:
  static std::vector<std::string> withProgram(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {std::string(PLOVIX_BINARY_DIR) + "/cli/plovix", "--ui", "console"});
    return arguments;
  }
};

class ConsoleSessionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir.write("lib/count.cnx", kCounterDescription);
    dir.write("lib/fake-plugin",
              "#!/bin/sh\n"
              "cp \"$(dirname \"$0\")/count.cnx\" \"${1%.*}.cnx\"\n");
    chmod(dir.path("lib/fake-plugin").c_str(), 0755);
    dir.write("lib/test_wizard.lst", "[counters]\nlpm_counter=" + dir.path("lib/fake-plugin") + "\n");
    dir.write("proj/.keep", "");
  }
  TempDir dir;
};

TEST_F(ConsoleSessionTest, CreatesAVariationAndEditsItThroughTheBrowser) {
  {
    ConsoleSession session(dir);
    ASSERT_TRUE(session.expect("== Plovix Plug-In Manager [page 1] ==")) << session.output;
    ASSERT_TRUE(session.expect("  1 (*) Create a new custom modulon variation"));
    ASSERT_TRUE(session.expect("> "));
    session.send("n");
    ASSERT_TRUE(session.expect("== Plovix Plug-In Manager [page 2a] ==")) << session.output;
    ASSERT_TRUE(session.expect("   1  counters/"));
    ASSERT_TRUE(session.expect("   2    lpm_counter"));
    ASSERT_TRUE(session.expect("> "));
    session.send("n");  // nothing selected yet
    ASSERT_TRUE(session.expect(errorMessage(Msg::kSelectAvailableModulon)));
    session.send("");
    ASSERT_TRUE(session.expect("-> the modulon list"));
    ASSERT_TRUE(session.expect("> "));
    session.send("2");
    ASSERT_TRUE(session.expect("*  2    lpm_counter"));
    session.send("verilog");
    ASSERT_TRUE(session.expect("[x] Verilog HDL"));
    session.send("o count8");
    ASSERT_TRUE(session.expect("What name do you want for the output file? count8"));
    session.send("n");
    // The plovix command's account of the run.
    const std::string written = errorMessage(Msg::kSummaryWritten, "6");
    EXPECT_TRUE(session.expect(written.substr(0, written.size() - 1))) << session.output;
    EXPECT_TRUE(session.expect("  " + dir.path("proj/count8.v"))) << session.output;
    EXPECT_EQ(session.exitCode(), 0) << session.output;
  }
  EXPECT_FALSE(dir.read("proj/count8.v").empty());
  EXPECT_FALSE(dir.read("proj/count8_inst.v").empty());

  {
    ConsoleSession session(dir);
    ASSERT_TRUE(session.expect("> "));
    session.send("2");
    ASSERT_TRUE(session.expect("  2 (*) Edit an existing custom modulon variation"));
    session.send("n");
    ASSERT_TRUE(session.expect("== Plovix Plug-In Manager [page 2b] ==")) << session.output;
    ASSERT_TRUE(session.expect("Look in: " + dir.path("proj/")));
    ASSERT_TRUE(session.expect("   1  count8.v"));
    ASSERT_TRUE(session.expect("Modulon name: Not a wizard-generated file"));
    ASSERT_TRUE(session.expect("> "));
    session.send("d");
    ASSERT_TRUE(session.expect("Verilog HDL"));
    session.send("1");
    ASSERT_TRUE(session.expect("File name: count8.v"));
    ASSERT_TRUE(session.expect("Modulon name: lpm_counter"));
    session.send("n");
    ASSERT_TRUE(session.expect(lastLine(questions::overwriteExistingOutputs("")))) << session.output;
    session.send("o");
    EXPECT_EQ(session.exitCode(), 0) << session.output;
  }
}

// Keys are edited by libedit (cursor keys never echoed as "^[[A"), earlier lines come back with the up key,
// and texts wrap between words at the terminal's width.
TEST_F(ConsoleSessionTest, LineEditingHistoryAndWrapping) {
  ConsoleSession session(dir, {}, 40);
  ASSERT_TRUE(session.expect("> ")) << session.output;
  session.send("2");
  ASSERT_TRUE(session.expect("2 (*) Edit"));
  ASSERT_TRUE(session.expect("> "));
  session.send("1");
  ASSERT_TRUE(session.expect("1 (*) Create"));
  ASSERT_TRUE(session.expect("> "));
  session.type("\x1b[A\x1b[A\n");  // up twice: "2" again
  ASSERT_TRUE(session.expect("2 (*) Edit")) << session.output;
  ASSERT_TRUE(session.expect("> "));
  session.send("1");
  ASSERT_TRUE(session.expect("> "));
  session.send("n");
  ASSERT_TRUE(session.expect("[page 2a]"));
  ASSERT_TRUE(session.expect("> "));
  session.type("o countX8\x1b[D\x7f\n");  // left, then the key before the cursor deleted
  EXPECT_TRUE(session.expect("file? count8")) << session.output;
  session.send("c");
  EXPECT_EQ(session.exitCode(), 1);

  EXPECT_EQ(session.output.find("^["), std::string::npos) << session.output;
  std::string flowing;  // the output with its line breaks read as blanks
  size_t widest = 0;
  for (size_t start = 0, end; start < session.output.size(); start = end + 1) {
    end = std::min(session.output.find('\n', start), session.output.size());
    std::string line = session.output.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.find_first_of("\x1b\b\r") == std::string::npos) widest = std::max(widest, line.size());
    flowing += line + " ";
  }
  EXPECT_LE(widest, 40u) << session.output;
  EXPECT_NE(flowing.find(std::string(pagetexts::kActionIntro)), std::string::npos) << session.output;
}

// Ctrl-C ends the command with status 130: at a prompt, and while the bundled plug-in asks its questions in
// the terminal (a plug-in that runs on is stopped by the launch, whose tests show it).
TEST_F(ConsoleSessionTest, CtrlCEndsWithStatus130) {
  {
    ConsoleSession session(dir);
    ASSERT_TRUE(session.expect("> "));
    session.type("");
    session.writeRaw("\x03");
    EXPECT_EQ(session.exitCode(), 130) << session.output;
  }
  {
    ConsoleSession session(dir, {"k.tdf"}, 0, true);
    ASSERT_TRUE(session.expect("(o/c): "));
    session.send("o");
    ASSERT_TRUE(session.expect("  lpm_constant"));
    const size_t line = session.output.rfind('\n', session.output.rfind("  lpm_constant")) + 2;
    ASSERT_TRUE(session.expect("> "));
    session.send(std::to_string(std::atoi(session.output.c_str() + line)));
    ASSERT_TRUE(session.expect("> "));
    session.send("n");
    ASSERT_TRUE(session.expect("LPM_WIDTH: ")) << session.output;
    session.writeRaw("\x03");
    EXPECT_EQ(session.exitCode(), 130) << session.output;
  }
}

TEST_F(ConsoleSessionTest, EndOfInputCancels) {
  ConsoleSession session(dir);
  ASSERT_TRUE(session.expect("> "));
  session.send("\x04");
  EXPECT_EQ(session.exitCode(), 1) << session.output;
}

}  // namespace
}  // namespace plovix
