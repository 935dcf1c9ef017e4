// Chaos test (not timed): plovix killed (SIGKILL) at random moments of a large generation leaves every output
// file either its complete old or its complete new version, and the next complete run leaves no temporary
// file behind.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "PlovixRunner.h"
#include "TempDir.h"

namespace plovix {
namespace {

using testing::PlovixProcess;
using testing::TempDir;

// Leaves the prepared description named in "variant" beside the output file, whole (written, then renamed).
constexpr const char* kPlugin = R"sh(#!/bin/sh
dir="$(dirname "$0")"
cnx="${1%.*}.cnx"
cp "$dir/$(cat "$dir/variant")" "$cnx.$$" && mv "$cnx.$$" "$cnx"
)sh";

// A description with many ports, each `width` bits wide, so that the variation's files are large (some
// megabytes each) and the design file differs between the two widths.
std::string largeDescription(int width) {
  const std::string w = std::to_string(width);
  std::string text =
      "GENERATION: STANDARD\nVERSION: WM1.0\nMODULE: lpm_counter\nPARAMETER: LPM_WIDTH NUMERIC " + w +
      "\nUSED_PORT: q 0 0 " + w + " 0 OUTPUT NODEFVAL\nCONNECT: q 0 0 " + w + " 0 lpm_counter@q 0 0 " + w +
      " 0\n";
  for (int i = 0; i < 20000; ++i) {
    const std::string port = "d" + std::to_string(i);
    text += "USED_PORT: " + port + " 0 0 " + w + " 0 INPUT NODEFVAL\nCONNECT: lpm_counter@" + port + " 0 0 " +
            w + " 0 " + port + " 0 0 " + w + " 0\n";
  }
  return text;
}

class Chaos : public ::testing::Test {
 protected:
  Chaos() {
    lib.write("plugin", kPlugin);
    chmod(lib.path("plugin").c_str(), 0755);
    lib.write("test_wizard.lst", "[tests]\nBIG=plugin\n<INFO>\n<NATIVE_HDL NAME=\"VHDL\"/>\n</INFO>\n");
    lib.write("a.cnx", largeDescription(8));
    lib.write("b.cnx", largeDescription(12));
  }

  PlovixProcess start(const char* variant) {
    lib.write("variant", variant);
    return PlovixProcess(work, {"--lib-path", lib.dir(), "--user-lib-path", "", "--project", project.dir(),
                                "--modulon", "BIG", "--language", "verilog", project.path("var.v")});
  }

  // Every output file and its contents; work files and temporary files are left out.
  std::map<std::string, std::string> outputs() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(project.dir())) {
      const std::string name = entry.path().filename().string();
      if (name[0] != '.' && !name.starts_with("var.cnx")) files[name] = project.read(name);
    }
    return files;
  }

  std::vector<std::string> temporaries() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(project.dir())) {
      const std::string name = entry.path().filename().string();
      if (name.starts_with(".plovix-")) names.push_back(name);
    }
    return names;
  }

  TempDir lib;
  TempDir project;
  TempDir work;
};

TEST_F(Chaos, KilledGenerationsLeaveOldOrNewFilesAndNoStaleTemporaries) {
  const auto begin = std::chrono::steady_clock::now();
  ASSERT_TRUE(start("b.cnx").finish().exited(0));
  const auto fullRun = std::chrono::steady_clock::now() - begin;
  const std::map<std::string, std::string> newer = outputs();
  ASSERT_TRUE(start("a.cnx").finish().exited(0));
  const std::map<std::string, std::string> older = outputs();
  ASSERT_EQ(older.size(), 7u);  // design, include, component, symbol, black box, template, native copy
  ASSERT_NE(older.at("var.v"), newer.at("var.v"));

  std::mt19937 random(20261123);
  std::uniform_int_distribution<long long> moment(
      0, std::chrono::duration_cast<std::chrono::microseconds>(fullRun).count());
  int temporariesSeen = 0;
  for (int kill = 0; kill < 100; ++kill) {
    PlovixProcess plovix = start(kill % 2 == 0 ? "b.cnx" : "a.cnx");
    std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
    ::kill(plovix.pid(), SIGKILL);
    plovix.finish();
    for (const auto& [name, text] : outputs()) {
      ASSERT_TRUE(older.count(name) == 1) << "kill " << kill << ": unexpected file " << name;
      ASSERT_TRUE(text == older.at(name) || text == newer.at(name))
          << "kill " << kill << ": " << name << " torn";
    }
    temporariesSeen += static_cast<int>(temporaries().size());
  }
  std::printf("%d temporary files were left by killed runs along the way\n", temporariesSeen);

  ASSERT_TRUE(start("a.cnx").finish().exited(0));
  EXPECT_EQ(outputs(), older);
  EXPECT_EQ(temporaries(), std::vector<std::string>{});
}

}  // namespace
}  // namespace plovix
