// Tests that start real plug-ins: the arguments they get, exit codes, start failures, quitting and positions.
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <thread>

#include "LaunchFixture.h"
#include "base/QuestionTexts.h"
#include "base/TextFile.h"
#include "platform/PositionChannel.h"

namespace plovix {
namespace {

using testing::fileExistsForTest;
using testing::reported;
using testing::writeScript;

// Records its arguments one per line in args.txt beside itself, then runs the rest of its body.
std::string recorder(const std::string& rest) {
  return "out=\"$(dirname \"$0\")/args.txt\"\n: > \"$out\"\n"
         "for a in \"$@\"; do printf '%s|\\n' \"$a\" >> \"$out\"; done\n" +
         rest;
}

// A user interface that asks to quit after a number of event rounds.
class QuittingInterface : public testing::RecordingInterface {
 public:
  bool processEvents() override { return ++rounds < quitAfter; }
  int rounds = 0;
  int quitAfter = 1 << 30;
};

bool processIsGone(pid_t pid) {
  return kill(pid, 0) != 0 && errno == ESRCH;
}

pid_t readPid(const std::string& path) {
  return static_cast<pid_t>(std::atoi(testing::TempDir::readFile(path).c_str()));
}

class LaunchRunTest : public testing::LaunchFixture {
 protected:
  LaunchResult launch() { return launchPlugin(app, ui); }
};

TEST_F(LaunchRunTest, PluginGetsTheCompletedCommandLineAsArguments) {
  writeScript(lib, "rec", recorder("exit 0\n"));
  writeCatalog("M=rec -w %w -q \"two words\" back\\\\slash\n");
  app.run.extraArguments = "extra";
  app.corner = {640, 480, true};
  const LaunchResult result = launch();
  EXPECT_TRUE(result.started);
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(lib.read("args.txt"), "-w|\n" + lib.dir().substr(0, lib.dir().size() - 1) +
                                      "|\n-q|\ntwo words|\nback//slash|\n" + outputPath() +
                                      "|\n-n|\n-symbol|\nextra|\n-x640|\n-y480|\n-p2|\n-h" +
                                      std::to_string(currentThreadId()) + "|\n");
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(LaunchRunTest, ExitCodesComeBackAsTheirStatus) {
  writeScript(lib, "code", "exit \"$1\"\n");
  writeScript(lib, "killed", "kill -KILL $$\n");
  writeCatalog("C0=code 0\nC3=code 3\nC255=code 255\nC1=code 1\nC259=code 259\nK=killed\n");
  const std::pair<const char*, int32_t> cases[] = {{"C0", 0}, {"C3", 3},   {"C255", 255},
                                                   {"C1", 1}, {"C259", 3}, {"K", 2}};
  for (const auto& [name, code] : cases) {
    app.run.modulonName = name;
    const LaunchResult result = launch();
    EXPECT_TRUE(result.started) << name;
    EXPECT_EQ(result.exitCode, code) << name;
  }
  // Only the death by a signal is worth a word.
  EXPECT_EQ(ui.boxes,
            (std::vector<std::string>{reported(Msg::kPluginEndedBySignal, "K", "9", strsignal(9))}));
}

// A process still running: not gone, and not a zombie waiting to be collected.
bool processIsRunning(pid_t pid) {
  const std::string stat = testing::TempDir::readFile("/proc/" + std::to_string(pid) + "/stat");
  const size_t close = stat.rfind(')');
  return close != std::string::npos && close + 2 < stat.size() && stat[close + 2] != 'Z';
}

TEST_F(LaunchRunTest, WhatThePluginLeftRunningEndsWithIt) {
  writeScript(lib, "bg", "sleep 30 &\necho $! > \"$(dirname \"$0\")/pid\"\nexit 0\n");
  writeCatalog("M=bg\n");
  EXPECT_EQ(launch().exitCode, 0);
  const pid_t child = readPid(lib.path("pid"));
  for (int i = 0; i < 200 && processIsRunning(child); ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_FALSE(processIsRunning(child));
}

TEST_F(LaunchRunTest, StartFailuresAreReported) {
  lib.write("noexec", "#!/bin/sh\nexit 0\n");
  writeCatalog("N=noexec\nG=gone_program_xyz\n");
  app.run.modulonName = "N";
  EXPECT_FALSE(launch().started);
  app.run.modulonName = "G";
  EXPECT_FALSE(launch().started);
  app.run.modulonName = "NONE";
  EXPECT_FALSE(launch().started);
  EXPECT_EQ(ui.boxes, (std::vector<std::string>{reported(Msg::kCannotStartPlugin, "N", std::strerror(EACCES)),
                                                reported(Msg::kCannotStartPlugin, "G", std::strerror(ENOENT)),
                                                reported(Msg::kNoLaunchCommandLine, "NONE")}));
}

TEST_F(LaunchRunTest, QuittingKillsAHungPlugin) {
  writeScript(lib, "hang", "echo $$ > \"$(dirname \"$0\")/pid\"\nexec sleep 30\n");
  writeCatalog("M=hang\n");
  QuittingInterface quitting;
  quitting.quitAfter = 30;
  const auto start = std::chrono::steady_clock::now();
  const LaunchResult result = launchPlugin(app, quitting);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_TRUE(result.started);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(quitting.rounds, 30);
  EXPECT_TRUE(processIsGone(readPid(lib.path("pid"))));
}

std::atomic<int> termSignalsSeen{0};

TEST_F(LaunchRunTest, QuitSignalEndsTheWaitAndIsPassedOn) {
  termSignalsSeen = 0;
  struct sigaction counting {};
  counting.sa_handler = [](int) { ++termSignalsSeen; };
  struct sigaction previous {};
  sigaction(SIGTERM, &counting, &previous);
  writeScript(lib, "hang", "echo $$ > \"$(dirname \"$0\")/pid\"\nkill -TERM $PPID\nexec sleep 30\n");
  writeCatalog("M=hang\n");
  const LaunchResult result = launch();
  sigaction(SIGTERM, &previous, nullptr);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(termSignalsSeen.load(), 1);
  EXPECT_TRUE(processIsGone(readPid(lib.path("pid"))));
}

// The report is sent from another thread of this process, as a plug-in would send it.
void sendReport(long threadId, const std::string& text) {
  const int fd = socket(AF_UNIX, SOCK_DGRAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string name = positionSocketName(threadId);
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  sendto(fd, text.data(), text.size(), 0, reinterpret_cast<const sockaddr*>(&address), length);
  close(fd);
}

TEST_F(LaunchRunTest, PositionReportsUpdateTheWindowCorner) {
  writeScript(lib, "wait",
              "touch \"$(dirname \"$0\")/started\"\n"
              "while [ ! -e \"$(dirname \"$0\")/go\" ]; do sleep 0.02; done\n");
  writeCatalog("M=wait\n");
  const long threadId = currentThreadId();
  std::thread plugin([&] {
    while (!fileExistsForTest(lib.path("started")))
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    sendReport(threadId, formatPositionReport(800, 600));
    sendReport(threadId, "1034 oops 1");
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    lib.write("go", "");
  });
  const LaunchResult result = launch();
  plugin.join();
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(app.corner.known);
  EXPECT_EQ(app.corner.right, 800);
  EXPECT_EQ(app.corner.bottom, 600);
}

// A report from a process of another user never moves the window; this needs root to become another user.
TEST_F(LaunchRunTest, OnlyReportsOfTheSameUserCount) {
  if (geteuid() != 0) GTEST_SKIP() << "sending as another user needs root";
  writeScript(lib, "wait", "while [ ! -e \"$(dirname \"$0\")/go\" ]; do sleep 0.02; done\n");
  writeCatalog("M=wait\n");
  const long threadId = currentThreadId();
  std::thread plugin([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    const pid_t other = fork();
    if (other == 0) {
      if (setresgid(65534, 65534, 65534) == 0 && setresuid(65534, 65534, 65534) == 0)
        sendReport(threadId, formatPositionReport(800, 600));
      _exit(0);
    }
    waitpid(other, nullptr, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    lib.write("go", "");
  });
  launch();
  plugin.join();
  EXPECT_FALSE(app.corner.known);
}

TEST_F(LaunchRunTest, ATakenChannelNameIsNotedOnceAndTheRunGoesOn) {
  writeScript(lib, "ok", "exit 0\n");
  writeCatalog("M=ok\n");
  const int squatter = socket(AF_UNIX, SOCK_DGRAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string name = positionSocketName(currentThreadId());
  std::memcpy(address.sun_path + 1, name.data(), name.size());
  ASSERT_EQ(bind(squatter, reinterpret_cast<const sockaddr*>(&address),
                 static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size())),
            0);
  EXPECT_EQ(launch().exitCode, 0);
  EXPECT_EQ(launch().exitCode, 0);
  close(squatter);
  EXPECT_EQ(ui.boxes, (std::vector<std::string>{reported(Msg::kPositionChannelTaken, name)}));
}

class VendorScriptTest : public testing::LaunchFixture {
 protected:
  // The first script records its arguments in "one" beside itself; the second makes "two".
  void catalogWithScripts(const std::string& tool, const std::string& first = "sh %w/record.sh %p") {
    writeScript(lib, "record.sh", "printf '%s|' \"$@\" > \"$(dirname \"$0\")/one\"\n");
    writeCatalog("M=run\n<INFO>\n<NATIVE_TOOL NAME=\"" + tool + "\">\n<SCRIPT HREF=\"" + first +
                 "\"/>\n<SCRIPT HREF=\"touch %w/two\"/>\n</NATIVE_TOOL>\n</INFO>\n");
  }
};

TEST_F(VendorScriptTest, RunsEveryScriptInOrderAfterOk) {
  catalogWithScripts("sh");
  offerVendorScript(app, ui);
  EXPECT_EQ(lib.read("one"), toBackslashes(outputPath()) + "|");
  EXPECT_TRUE(fileExistsForTest(lib.path("two")));
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0].substr(0, 9), "question:");
}

TEST_F(VendorScriptTest, NothingRunsOnCancelOrWithoutTool) {
  catalogWithScripts("sh");
  ui.defaultAnswer = false;
  offerVendorScript(app, ui);
  writeCatalog("M=run\n");
  ui.defaultAnswer = true;
  offerVendorScript(app, ui);
  EXPECT_FALSE(fileExistsForTest(lib.path("one")));
  EXPECT_EQ(ui.boxes.size(), 1u);
}

TEST_F(VendorScriptTest, AScriptThatCannotStartStopsTheRestWithItsMessage) {
  catalogWithScripts("mytool", "no_such_program_xyz %p");
  offerVendorScript(app, ui);
  EXPECT_FALSE(runScriptCommand(ui, {"no_such_program_xyz"}, "shown text", true));
  EXPECT_FALSE(fileExistsForTest(lib.path("two")));
  ASSERT_EQ(ui.boxes.size(), 3u);
  EXPECT_EQ(ui.boxes[1], "report: " + questions::vendorScriptFailed(
                                          "no_such_program_xyz " + toBackslashes(outputPath()), "mytool"));
  EXPECT_EQ(ui.boxes[2], "report: " + questions::cannotExecuteCommand("shown text", std::strerror(ENOENT)));
}

// No shell ever reads a script line: a directory name built to break out of a shell's quotes (for the line
// as it was quoted before, and for an unquoted one) reaches the script as data.
TEST_F(VendorScriptTest, ScriptsNeverReachAShell) {
  const struct {
    const char* line;
    const char* directory;
  } cases[] = {{"sh '%w/record.sh' '%p'", "a'$(touch${IFS}INJECTED)'b"},
               {"sh %w/record.sh %p", "a$(touch${IFS}INJECTED)b;touch${IFS}INJECTED"}};
  for (const auto& c : cases) {
    catalogWithScripts("sh", c.line);
    app.run.directory = out.path(c.directory) + "/";
    offerVendorScript(app, ui);
    EXPECT_FALSE(fileExistsForTest("INJECTED")) << c.line;
    std::remove("INJECTED");
  }
  EXPECT_EQ(lib.read("one"), toBackslashes(outputPath()) + "|");
}

}  // namespace
}  // namespace plovix
