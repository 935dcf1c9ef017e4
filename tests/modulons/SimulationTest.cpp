// Variations made by batch runs, simulated cycle by cycle against the test benches in both languages.
#include <gtest/gtest.h>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

struct Bench {
  const char* variation;  // base name; the bench is tb_<variation>
  const char* modulon;
  const char* pluginArgs;
};

const Bench kBenches[] = {
    {"cnt10", "lpm_counter", "LPM_WIDTH=4 LPM_DIRECTION=UP LPM_MODULUS=10 ACLR=YES CNT_EN=LOW COUT=YES"},
    {"add8", "lpm_add_sub",
     "LPM_WIDTH=8 LPM_DIRECTION=UNUSED LPM_REPRESENTATION=SIGNED COUT=YES OVERFLOW=YES"},
    {"ram32", "lpm_ram_dq", "LPM_WIDTH=8 LPM_WIDTHAD=5"},
    {"ticker", "count_compare", "LPM_WIDTH=4 MATCH_VALUE=5 ACLR=YES"},
};

class SimulationTest : public ::testing::TestWithParam<std::tuple<Bench, bool>> {};

// The bench prints PASS when every checked cycle matched and FAIL lines for the ones that did not.
void expectPassed(const CommandResult& run) {
  EXPECT_NE(run.output.find("PASS"), std::string::npos) << run.output;
  EXPECT_EQ(run.output.find("FAIL"), std::string::npos) << run.output;
}

TEST_P(SimulationTest, BenchPasses) {
  const Bench& b = std::get<0>(GetParam());
  const bool verilog = std::get<1>(GetParam());
  const std::string variation = b.variation;
  const std::string bench = std::string(PLOVIX_BENCH_DIR) + "/tb_" + variation + (verilog ? ".v" : ".vhd");
  if (verilog ? !haveProgram("iverilog") : !haveProgram("ghdl")) GTEST_SKIP() << "simulator missing";

  TempDir dir;
  const std::string design = variation + (verilog ? ".v" : ".vhd");
  const CommandResult made = plovixBatch(dir, b.modulon, verilog ? "verilog" : "vhdl", b.pluginArgs, design);
  ASSERT_EQ(made.exitCode, 0) << made.output;

  if (verilog) {
    const CommandResult compiled = icarusCompile(dir, {design, bench}, "tb_" + variation);
    ASSERT_EQ(compiled.exitCode, 0) << compiled.output;
    expectPassed(icarusRun(dir, "tb_" + variation));
  } else {
    const CommandResult elaborated = ghdlElaborate(dir, {design, bench}, "tb_" + variation);
    ASSERT_EQ(elaborated.exitCode, 0) << elaborated.output;
    expectPassed(ghdlRun(dir, "tb_" + variation));
  }
}

std::string benchName(const ::testing::TestParamInfo<SimulationTest::ParamType>& info) {
  return std::string(std::get<0>(info.param).variation) + (std::get<1>(info.param) ? "_verilog" : "_vhdl");
}

INSTANTIATE_TEST_SUITE_P(Benches, SimulationTest,
                         ::testing::Combine(::testing::ValuesIn(kBenches), ::testing::Bool()), benchName);

// The counter bench also runs on Verilator's own simulator, which treats the models' pulls and timing its own
// way.
TEST(VerilatorSimulationTest, CounterBenchPasses) {
  if (!haveProgram("verilator")) GTEST_SKIP() << "Verilator missing";
  TempDir dir;
  const CommandResult made = plovixBatch(dir, "lpm_counter", "verilog", kBenches[0].pluginArgs, "cnt10.v");
  ASSERT_EQ(made.exitCode, 0) << made.output;
  const CommandResult built =
      runIn(dir.dir(), "verilator --binary --timing -Wno-fatal -Wno-PINMISSING -y " +
                           quoted(modulonLibrary() + "/hdl/verilog") + " --top-module tb_cnt10 cnt10.v " +
                           quoted(std::string(PLOVIX_BENCH_DIR) + "/tb_cnt10.v") + " -o tb_cnt10 -j 1");
  ASSERT_EQ(built.exitCode, 0) << built.output;
  expectPassed(runIn(dir.dir(), "obj_dir/tb_cnt10"));
}

}  // namespace
}  // namespace plovix::testing
