// End-to-end runs with a test plug-in: the command line it gets, the files generated from what it leaves,
// the command's status for each way a run ends, and the catalog listing (quitting, start failures and vendor
// scripts are the launch tests').
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

#include "PlovixRunner.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "ui/BatchFrontEnd.h"

namespace plovix {
namespace {

using testing::PlovixProcess;
using testing::PlovixResult;
using testing::reported;
using testing::runPlovix;
using testing::TempDir;

// Counts its starts, records its arguments and the CNX file it found, leaves the prepared description
// beside the output file and ends as line n of "codes" says (a number, "kill" or "hang"; 0 when missing).
constexpr const char* kRecorder = R"sh(#!/bin/sh
dir="$(dirname "$0")"
n=$(( $(cat "$dir/count" 2>/dev/null || echo 0) + 1 ))
echo $n > "$dir/count"
: > "$dir/args-$n.txt"
for a in "$@"; do printf '%s|\n' "$a" >> "$dir/args-$n.txt"; done
cnx="${1%.*}.cnx"
[ -e "$cnx" ] && cp "$cnx" "$dir/seen-$n.cnx"
cp "$dir/prepared.cnx" "$cnx"
code=$(sed -n "${n}p" "$dir/codes" 2>/dev/null)
[ "$code" = kill ] && kill -KILL $$
if [ "$code" = hang ]; then echo $$ > "$dir/pid"; exec sleep 30; fi
if [ "$code" = report ]; then
  for a in "$@"; do case "$a" in -h*) "$(cat "$dir/sender")" "${a#-h}" 900 -70; echo $? > "$dir/sent";; esac; done
  exit 0
fi
exit ${code:-0}
)sh";

bool exists(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0;
}

class PluginRunTest : public ::testing::Test {
 protected:
  PluginRunTest() {
    lib.write("rec", kRecorder);
    chmod(lib.path("rec").c_str(), 0755);
    lib.write("prepared.cnx", TempDir::readFile(PLOVIX_SOURCE_DIR "/tests/corpus/counter.cnx"));
    lib.write("test_wizard.lst", "[tests]\nREC=rec\n");
  }

  std::string variation() const { return project.path("var.tdf"); }

  PlovixResult run(std::vector<std::string> arguments) {
    std::vector<std::string> all = {"--lib-path", lib.dir(),   "--user-lib-path",
                                    "",           "--project", project.dir()};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return runPlovix(work, all);
  }

  // A new variation made with the recorder, so that later runs can edit it.
  void createVariation() {
    const PlovixResult result = run({"--modulon", "REC", "--language", "thdl", variation()});
    ASSERT_TRUE(result.exited(0)) << result.err;
    lib.write("count", "0\n");
  }

  std::string starts() const { return lib.read("count"); }

  TempDir lib;
  TempDir project;
  TempDir work;
};

TEST_F(PluginRunTest, NewVariationGetsTheFullCommandLineAndItsFiles) {
  PlovixProcess plovix(
      work, {"--lib-path", lib.dir(), "--user-lib-path", "", "--project", project.dir(), "--modulon", "REC",
             "--language", "thdl", "--plugin-args", "-extra \"two words\"", variation()});
  // The manager waits on its main thread, whose id is the process id.
  const std::string threadId = std::to_string(plovix.pid());
  const PlovixResult result = plovix.finish();
  ASSERT_TRUE(result.exited(0)) << result.err;
  EXPECT_EQ(
      lib.read("args-1.txt"),
      variation() + "|\n-n|\n-symbol|\n-extra|\ntwo words|\n-x500|\n-y500|\n-p2|\n-h" + threadId + "|\n");
  EXPECT_FALSE(exists(lib.path("seen-1.cnx")));
  const std::string design = project.read("var.tdf");
  EXPECT_NE(design.find("modulon wizard: %REC%"), std::string::npos);
  EXPECT_NE(design.find("Retrieval info:"), std::string::npos);
  EXPECT_FALSE(exists(project.path("var.cnx")));  // the work file is gone after generation
}

// The report can only be delivered while the manager listens on the channel that "-h" names. (That the
// corner reaches the run is checked in the launch tests; a batch run never shows a page twice to see it.)
TEST_F(PluginRunTest, PluginReachesThePositionChannelThatHNames) {
  lib.write("sender", POSITION_SENDER);
  lib.write("codes", "report\n");
  const PlovixResult result = run({"--modulon", "REC", "--language", "thdl", variation()});
  ASSERT_TRUE(result.exited(0)) << result.err;
  EXPECT_EQ(lib.read("sent"), "0\n");
}

TEST_F(PluginRunTest, EditingAGeneratedFileIsADirectLaunchFromTheRebuiltDescription) {
  createVariation();
  const PlovixResult result = run({variation()});
  ASSERT_TRUE(result.exited(0)) << result.err;
  EXPECT_EQ(lib.read("args-1.txt"), variation() + "|\n-symbol|\n");
  const std::string seen = lib.read("seen-1.cnx");
  EXPECT_NE(seen.find("MODULE: pvx_counter"), std::string::npos) << seen;
  EXPECT_NE(seen.find("USED_PORT: q 0 0 8 0 OUTPUT NODEFVAL"), std::string::npos) << seen;
}

TEST_F(PluginRunTest, ExitCodesDriveTheRun) {
  createVariation();
  struct Case {
    const char* codes;
    int plovixStatus;
    const char* starts;
    const char* answer = "ok";
  };
  // The command's status for each way a run ends (the codes' meaning is the run loop's, tested there): 0
  // finishes; death by a signal cancels; 3 goes back to the modulon page after a direct launch, whose Next
  // starts the plug-in again. Declining to overwrite the companion files leaves the variation generated with
  // files not written: status 3.
  for (const Case& c : {Case{"0", 0, "1"}, Case{"kill", 1, "1"}, Case{"3\n1", 1, "2"}, Case{"255\n0", 0, "2"},
                        Case{"0", 3, "1", "cancel"}}) {
    lib.write("count", "0\n");
    lib.write("codes", std::string(c.codes) + "\n");
    const PlovixResult result =
        run({"--answer", c.answer, "--modulon", "REC", "--language", "thdl", variation()});
    EXPECT_TRUE(result.exited(c.plovixStatus)) << c.codes << ": " << result.err;
    EXPECT_EQ(starts(), std::string(c.starts) + "\n") << c.codes;
    if (std::string(c.starts) == "2") {
      EXPECT_EQ(lib.read("args-1.txt"), variation() + "|\n-symbol|\n");
      // The run stays a direct launch: the new start gets " -n " but still no window options.
      EXPECT_EQ(lib.read("args-2.txt"), variation() + "|\n-n|\n-symbol|\n");
    }
  }
}

// A file that cannot be written is reported with its cause and makes the status 3, the others are still
// written, and the file stays as it was; a design file that cannot be written keeps the description.
TEST_F(PluginRunTest, FilesNotWrittenAreReportedAndMakeTheStatus3) {
  createVariation();
  std::filesystem::copy_file("/bin/sleep", project.path("program"));
  chmod(project.path("program").c_str(), 0755);
  const std::string program = project.read("program");
  struct Case {
    const char* file;
    Msg message;
  };
  for (const Case& c : {Case{"var.sym", Msg::kAccessDenied}, Case{"var.inc", Msg::kSharingViolation},
                        Case{"var.tdf", Msg::kAccessDenied}}) {
    const std::string path = project.path(c.file);
    const std::string before = project.read(c.file);
    pid_t running = -1;
    if (c.message == Msg::kSharingViolation) {
      std::filesystem::rename(project.path("program"), path);
      std::string argv0 = path;
      char seconds[] = "30";
      char* argv[] = {argv0.data(), seconds, nullptr};
      ASSERT_EQ(posix_spawn(&running, argv[0], nullptr, nullptr, argv, environ), 0);
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
    } else {
      chmod(path.c_str(), 0444);
    }
    const PlovixResult result = run({variation()});
    if (running > 0) {
      kill(running, SIGKILL);
      waitpid(running, nullptr, 0);
    }
    EXPECT_TRUE(result.exited(3)) << c.file << ": " << result.err;
    EXPECT_NE(result.err.find(escapeBoxText(reported(c.message, path))), std::string::npos) << result.err;
    EXPECT_EQ(project.read(c.file), running > 0 ? program : before) << c.file;
    const bool designFile = std::string(c.file) == "var.tdf";
    EXPECT_EQ(exists(project.path("var.cnx")), designFile) << c.file;
    if (designFile) {
      EXPECT_NE(
          result.err.find(escapeBoxText(reported(Msg::kDescriptionKept, path, project.path("var.cnx")))),
          std::string::npos)
          << result.err;
    }
    std::filesystem::remove(path);
  }
}

// The temporary file's name is short and fixed, so a base name near the system's limit is no obstacle.
TEST_F(PluginRunTest, LongBaseNamesAreWritten) {
  const std::string name(245, 'v');
  const PlovixResult result = run({"--modulon", "REC", "--language", "thdl", project.path(name + ".tdf")});
  EXPECT_TRUE(result.exited(0)) << result.err;
  for (const char* suffix : {".tdf", ".inc", ".cmp", ".sym", "_inst.tdf"})
    EXPECT_TRUE(exists(project.path(name + suffix))) << suffix;
}

TEST(ListModulons, PrintsTheCatalogAsATable) {
  TempDir lib;
  TempDir work;
  lib.write("a_wizard.lst",
            "[top|sub]\nONE [-No2D]=run\\it #x\n<INFO>\n<ABSTRACT>tab\there</ABSTRACT><ALIAS>uno</ALIAS>\n"
            "<NATIVE_HDL NAME=\"vhdl\"/><NATIVE_TOOL NAME=\"t\"><S HREF=\"a\"/></NATIVE_TOOL>\n</INFO>\n"
            "NOCOMMAND\n");
  const PlovixResult result =
      runPlovix(work, {"--lib-path", lib.dir(), "--user-lib-path", "", "--list-modulons"});
  EXPECT_TRUE(result.exited(0));
  EXPECT_EQ(result.out,
            "name\tsection\tdirectory\tcommand_line\tsupports2D\tnative_hdl\tnative_"
            "tool\tscripts\talias\tabstract\n"
            "ONE\ttop|sub\t" +
                lib.dir() + "\trun/it \\nx\tfalse\tvhdl\tt\ta+\tuno\ttab\\there\n");
  EXPECT_EQ(result.err,
            escapeBoxText(reported(Msg::kLineWithoutCommandLine, "7", lib.path("a_wizard.lst"))) + "\n");
}

}  // namespace
}  // namespace plovix
