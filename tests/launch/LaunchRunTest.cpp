// Tests that start real plug-ins: the arguments they get, exit codes, start failures, quitting and positions.
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
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

class VendorScriptTest : public testing::LaunchFixture {
 protected:
  void catalogWithScripts(const std::string& tool) {
    writeCatalog("M=run\n<INFO>\n<NATIVE_TOOL NAME=\"" + tool + "\">\n<SCRIPT HREF=\"printf '%s' '%p' > '" +
                 out.path("one") + "'\"/>\n<SCRIPT HREF=\"touch '" + out.path("two") +
                 "'\"/>\n</NATIVE_TOOL>\n</INFO>\n");
  }
};

TEST_F(VendorScriptTest, RunsEveryScriptInOrderAfterOk) {
  catalogWithScripts("sh");
  offerVendorScript(app, ui);
  EXPECT_EQ(out.read("one"), toBackslashes(outputPath()));
  EXPECT_TRUE(fileExistsForTest(out.path("two")));
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
  EXPECT_FALSE(fileExistsForTest(out.path("one")));
  EXPECT_EQ(ui.boxes.size(), 1u);
}

// With SIGCHLD ignored the shell's end cannot be collected, so the C library's call fails.
TEST_F(VendorScriptTest, AFailedScriptStopsTheRestWithItsMessage) {
  catalogWithScripts("mytool");
  struct sigaction ignore {};
  ignore.sa_handler = SIG_IGN;
  struct sigaction previous {};
  sigaction(SIGCHLD, &ignore, &previous);
  offerVendorScript(app, ui);
  const bool shown = runShellCommand(ui, "true", true);
  sigaction(SIGCHLD, &previous, nullptr);
  EXPECT_FALSE(shown);
  EXPECT_FALSE(fileExistsForTest(out.path("two")));
  const std::string first = "printf '%s' '" + toBackslashes(outputPath()) + "' > '" + out.path("one") + "'";
  ASSERT_EQ(ui.boxes.size(), 3u);
  EXPECT_EQ(ui.boxes[1], "report: " + questions::vendorScriptFailed(first, "mytool"));
  EXPECT_EQ(ui.boxes[2], "report: " + questions::cannotExecuteCommand("true", std::strerror(ECHILD)));
}

}  // namespace
}  // namespace plovix
