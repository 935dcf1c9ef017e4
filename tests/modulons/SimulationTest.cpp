// Variations made by batch runs, simulated cycle by cycle against the test benches in both languages.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <vector>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

// A variation the bench instantiates: its base name, modulon and values.
struct Variation {
  std::string name, modulon, pluginArgs;
};

// A bench (benches/benches.txt) and the variations it instantiates.
struct Bench {
  std::string bench;
  std::vector<Variation> variations;
  bool vectors = true;
};

// The benches of benches/benches.txt, in its order.
std::vector<Bench> readBenches() {
  std::vector<Bench> benches;
  std::set<std::string> ownSums;
  std::ifstream in(PLOVIX_BENCH_DIR "/benches.txt");
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string bench;
    words >> bench;
    if (bench.empty() || bench[0] == '#') continue;
    if (bench == "sums:") {
      for (std::string name; words >> name;) ownSums.insert(name);
      continue;
    }
    if (benches.empty() || benches.back().bench != bench)
      benches.push_back({bench, {}, ownSums.count(bench) == 0});
    Variation v;
    if (!(words >> v.name >> v.modulon)) continue;
    std::getline(words >> std::ws, v.pluginArgs);
    benches.back().variations.push_back(v);
  }
  return benches;
}

class SimulationTest : public ::testing::TestWithParam<std::tuple<Bench, bool>> {};

// The bench prints PASS when every checked cycle matched and FAIL lines for the ones that did not.
void expectPassed(const ToolRun& run) {
  EXPECT_NE(run.output.find("PASS"), std::string::npos) << run.output;
  EXPECT_EQ(run.output.find("FAIL"), std::string::npos) << run.output;
}

TEST_P(SimulationTest, BenchPasses) {
  const Bench& b = std::get<0>(GetParam());
  const bool verilog = std::get<1>(GetParam());
  const std::string top = "tb_" + b.bench;
  const std::string benches = PLOVIX_BENCH_DIR;
  if (verilog ? !haveProgram("iverilog") : !haveProgram("ghdl")) GTEST_SKIP() << "simulator missing";

  TempDir dir;
  std::vector<std::string> files;
  if (b.vectors) files.push_back(benches + "/common/bench_vectors" + (verilog ? ".v" : ".vhd"));
  for (const Variation& v : b.variations) {
    const std::string design = v.name + (verilog ? ".v" : ".vhd");
    const ToolRun made = plovixBatch(dir, v.modulon, verilog ? "verilog" : "vhdl", v.pluginArgs, design);
    ASSERT_EQ(made.exitCode, 0) << made.output;
    files.push_back(design);
  }
  files.push_back(benches + "/" + top + (verilog ? ".v" : ".vhd"));
  const std::string vectors = benches + "/../vectors/" + b.bench + ".vec";
  // The files a variation reads (a memory's initialisation files) lie beside the vectors as <bench>.*; the
  // simulators look for them in their working directory.
  for (const auto& entry : std::filesystem::directory_iterator(benches + "/../vectors")) {
    if (entry.path().stem() == b.bench && entry.path().extension() != ".vec")
      std::filesystem::copy_file(entry.path(), dir.path(entry.path().filename()));
  }

  if (verilog) {
    const ToolRun compiled = icarusCompile(dir, files, top);
    ASSERT_EQ(compiled.exitCode, 0) << compiled.output;
    expectPassed(icarusRun(dir, top, b.vectors ? quoted("+vectors=" + vectors) : ""));
  } else {
    const ToolRun elaborated = ghdlElaborate(dir, files, top);
    ASSERT_EQ(elaborated.exitCode, 0) << elaborated.output;
    expectPassed(ghdlRun(dir, top, b.vectors ? quoted("-gvectors=" + vectors) : ""));
  }
}

std::string benchName(const ::testing::TestParamInfo<SimulationTest::ParamType>& info) {
  return std::get<0>(info.param).bench + (std::get<1>(info.param) ? "_verilog" : "_vhdl");
}

INSTANTIATE_TEST_SUITE_P(Benches, SimulationTest,
                         ::testing::Combine(::testing::ValuesIn(readBenches()), ::testing::Bool()),
                         benchName);

// The counter bench also runs on Verilator's own simulator, which treats the models' pulls and timing its own
// way.
TEST(VerilatorSimulationTest, CounterBenchPasses) {
  if (!haveProgram("verilator")) GTEST_SKIP() << "Verilator missing";
  TempDir dir;
  const ToolRun made =
      plovixBatch(dir, "lpm_counter", "verilog", readBenches()[0].variations[0].pluginArgs, "cnt10.v");
  ASSERT_EQ(made.exitCode, 0) << made.output;
  const ToolRun built =
      runIn(dir.dir(), "verilator --binary --timing -Wno-fatal -Wno-PINMISSING -y " +
                           quoted(modulonLibrary() + "/hdl/verilog") + " --top-module tb_cnt10 cnt10.v " +
                           quoted(std::string(PLOVIX_BENCH_DIR) + "/tb_cnt10.v") + " -o tb_cnt10 -j 1");
  ASSERT_EQ(built.exitCode, 0) << built.output;
  expectPassed(runIn(dir.dir(), "obj_dir/tb_cnt10"));
}

}  // namespace
}  // namespace plovix::testing
