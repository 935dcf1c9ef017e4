// Variations made by batch runs, simulated cycle by cycle against the test benches in both languages.
#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

// A variation the bench instantiates: its base name, modulon and values.
struct Variation {
  const char* name;
  const char* modulon;
  const char* pluginArgs;
};

// tb_<bench>.v and tb_<bench>.vhd; a bench with vectors reads vectors/<bench>.vec (made by
// reference/make_vectors.py) through benches/common, the others check their own sums. A bench without
// variations instantiates library modules itself.
struct Bench {
  const char* bench;
  std::vector<Variation> variations;
  bool vectors = true;
};

const Bench kBenches[] = {
    {"cnt10",
     {{"cnt10", "lpm_counter", "LPM_WIDTH=4 LPM_DIRECTION=UP LPM_MODULUS=10 ACLR=YES CNT_EN=LOW COUT=YES"}},
     false},
    {"add8",
     {{"add8", "lpm_add_sub",
       "LPM_WIDTH=8 LPM_DIRECTION=UNUSED LPM_REPRESENTATION=SIGNED COUT=YES OVERFLOW=YES"}},
     false},
    {"ram32", {{"ram32", "lpm_ram_dq", "LPM_WIDTH=8 LPM_WIDTHAD=5"}}, false},
    {"ticker", {{"ticker", "count_compare", "LPM_WIDTH=4 MATCH_VALUE=5 ACLR=YES"}}, false},
    {"defaults", {}},
    {"inv", {{"inv1", "lpm_inv", "LPM_WIDTH=1"}, {"inv64", "lpm_inv", "LPM_WIDTH=64"}}},
    {"gates",
     {{"and64x3", "lpm_and", "LPM_WIDTH=64 LPM_SIZE=3"},
      {"or1x5", "lpm_or", "LPM_WIDTH=1 LPM_SIZE=5"},
      {"xor8x4", "lpm_xor", "LPM_WIDTH=8 LPM_SIZE=4"}}},
    {"bustri", {{"bustri1", "lpm_bustri", "LPM_WIDTH=1"}, {"bustri64", "lpm_bustri", "LPM_WIDTH=64"}}},
    {"clshift",
     {{"lsh8", "lpm_clshift", "LPM_WIDTH=8 LPM_WIDTHDIST=4 DIRECTION=INPUT OVERFLOW=YES UNDERFLOW=YES"},
      {"ash64", "lpm_clshift",
       "LPM_WIDTH=64 LPM_WIDTHDIST=7 LPM_SHIFTTYPE=ARITHMETIC DIRECTION=INPUT OVERFLOW=YES UNDERFLOW=YES"},
      {"rot8", "lpm_clshift", "LPM_WIDTH=8 LPM_WIDTHDIST=4 LPM_SHIFTTYPE=ROTATE DIRECTION=INPUT"},
      {"rsh1", "lpm_clshift", "LPM_WIDTH=1 LPM_WIDTHDIST=2 DIRECTION=RIGHT UNDERFLOW=YES"}}},
    {"mult",
     {{"mult_u8", "lpm_mult", "LPM_WIDTHA=8 LPM_WIDTHB=8 LPM_WIDTHP=12"},
      {"mult_s8x6_p3", "lpm_mult",
       "LPM_WIDTHA=8 LPM_WIDTHB=6 LPM_REPRESENTATION=SIGNED LPM_PIPELINE=3 CLKEN=YES ACLR=YES"},
      {"mult_s64", "lpm_mult", "LPM_WIDTHA=64 LPM_WIDTHB=64 LPM_REPRESENTATION=SIGNED"},
      {"mult_u1_p3", "lpm_mult", "LPM_WIDTHA=1 LPM_WIDTHB=1 LPM_PIPELINE=3"}}},
    {"divide",
     {{"div_u8x4", "lpm_divide", "LPM_WIDTHN=8 LPM_WIDTHD=4"},
      {"div_s16x8_p3", "lpm_divide",
       "LPM_WIDTHN=16 LPM_WIDTHD=8 LPM_NREPRESENTATION=SIGNED LPM_DREPRESENTATION=SIGNED "
       "LPM_REMAINDERPOSITIVE=FALSE LPM_PIPELINE=3 CLKEN=YES ACLR=YES"},
      {"div_s64", "lpm_divide",
       "LPM_WIDTHN=64 LPM_WIDTHD=64 LPM_NREPRESENTATION=SIGNED LPM_DREPRESENTATION=SIGNED"},
      {"div_u1_p3", "lpm_divide", "LPM_WIDTHN=1 LPM_WIDTHD=1 LPM_PIPELINE=3"}}},
    {"abs",
     {{"abs1", "lpm_abs", "LPM_WIDTH=1"},
      {"abs8", "lpm_abs", "LPM_WIDTH=8"},
      {"abs64", "lpm_abs", "LPM_WIDTH=64"}}},
    {"mux",
     {{"mux8x5_p3", "lpm_mux", "LPM_WIDTH=8 LPM_SIZE=5 LPM_PIPELINE=3"},
      {"mux64x2", "lpm_mux", "LPM_WIDTH=64 LPM_SIZE=2"},
      {"mux1x3", "lpm_mux", "LPM_WIDTH=1 LPM_SIZE=3"}}},
    {"decode",
     {{"dec3x6", "lpm_decode", "LPM_WIDTH=3 LPM_DECODES=6 ENABLE=YES"},
      {"dec1x2", "lpm_decode", "LPM_WIDTH=1 LPM_DECODES=2"}}},
    {"storage",
     {{"dff64", "lpm_ff",
       "LPM_WIDTH=64 ENABLE=YES ACLR=YES ASET=YES ALOAD=YES SCLR=YES SSET=YES LPM_SVALUE=1234567"},
      {"tff1", "lpm_ff", "LPM_WIDTH=1 LPM_FFTYPE=TFF ENABLE=YES ACLR=YES SSET=YES LPM_SVALUE=0 SLOAD=YES"},
      {"latch64", "lpm_latch", "LPM_WIDTH=64 ACLR=YES ASET=YES LPM_AVALUE=2147483647"},
      {"latch1", "lpm_latch", "LPM_WIDTH=1"}}},
    {"memory",
     {{"rom_hex", "lpm_rom", "LPM_WIDTH=64 LPM_WIDTHAD=4 LPM_NUMWORDS=12 LPM_FILE=memory.hex"},
      {"rom_txt", "lpm_rom",
       "LPM_WIDTH=1 LPM_WIDTHAD=5 LPM_FILE=memory.txt LPM_ADDRESS_CONTROL=UNREGISTERED "
       "LPM_OUTDATA=REGISTERED"},
      {"ramdp64", "lpm_ram_dp", "LPM_WIDTH=64 LPM_WIDTHAD=4 WRCLKEN=YES RDCLKEN=YES"},
      {"ramdp1", "lpm_ram_dp",
       "LPM_WIDTH=1 LPM_WIDTHAD=3 LPM_NUMWORDS=6 LPM_RDADDRESS_CONTROL=UNREGISTERED LPM_OUTDATA=REGISTERED "
       "RDEN=YES"}}},
    {"fifo",
     {{"fifo64", "scfifo",
       "LPM_WIDTH=64 LPM_NUMWORDS=5 ACLR=YES SCLR=YES USEDW=YES ALMOST_FULL_VALUE=4 ALMOST_EMPTY_VALUE=2"},
      {"fifo1", "scfifo", "LPM_WIDTH=1 LPM_NUMWORDS=8 LPM_SHOWAHEAD=ON USEDW=YES"},
      {"dcfifo_sync", "dcfifo",
       "LPM_WIDTH=64 LPM_NUMWORDS=8 LPM_SHOWAHEAD=ON ACLR=YES RDSYNC_DELAYPIPE=2 WRSYNC_DELAYPIPE=3 "
       "RDFULL=YES "
       "RDUSEDW=YES WREMPTY=YES WRUSEDW=YES"},
      {"level", "fifo_level", "LPM_WIDTH=8 LPM_NUMWORDS=8 LEVEL=6 ACLR=YES USEDW=YES"}}},
    // The dual-clock FIFO on two unrelated clocks, checked by the bench's own scoreboard.
    {"dcfifo_async",
     {{"dcfifo_async", "dcfifo",
       "LPM_WIDTH=16 LPM_NUMWORDS=16 RDFULL=YES RDUSEDW=YES WREMPTY=YES WRUSEDW=YES"}},
     false},
};

class SimulationTest : public ::testing::TestWithParam<std::tuple<Bench, bool>> {};

// The bench prints PASS when every checked cycle matched and FAIL lines for the ones that did not.
void expectPassed(const ToolRun& run) {
  EXPECT_NE(run.output.find("PASS"), std::string::npos) << run.output;
  EXPECT_EQ(run.output.find("FAIL"), std::string::npos) << run.output;
}

TEST_P(SimulationTest, BenchPasses) {
  const Bench& b = std::get<0>(GetParam());
  const bool verilog = std::get<1>(GetParam());
  const std::string top = std::string("tb_") + b.bench;
  const std::string benches = PLOVIX_BENCH_DIR;
  if (verilog ? !haveProgram("iverilog") : !haveProgram("ghdl")) GTEST_SKIP() << "simulator missing";

  TempDir dir;
  std::vector<std::string> files;
  if (b.vectors) files.push_back(benches + "/common/bench_vectors" + (verilog ? ".v" : ".vhd"));
  for (const Variation& v : b.variations) {
    const std::string design = std::string(v.name) + (verilog ? ".v" : ".vhd");
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
  return std::string(std::get<0>(info.param).bench) + (std::get<1>(info.param) ? "_verilog" : "_vhdl");
}

INSTANTIATE_TEST_SUITE_P(Benches, SimulationTest,
                         ::testing::Combine(::testing::ValuesIn(kBenches), ::testing::Bool()), benchName);

// The counter bench also runs on Verilator's own simulator, which treats the models' pulls and timing its own
// way.
TEST(VerilatorSimulationTest, CounterBenchPasses) {
  if (!haveProgram("verilator")) GTEST_SKIP() << "Verilator missing";
  TempDir dir;
  const ToolRun made =
      plovixBatch(dir, "lpm_counter", "verilog", kBenches[0].variations[0].pluginArgs, "cnt10.v");
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
