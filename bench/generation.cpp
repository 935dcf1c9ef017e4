// Generating the THDL, VHDL and Verilog texts of a description with many connections over 200 instances: the
// netlist (built once, as a run builds it) and every text of the three languages.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "TempDir.h"
#include "base/UserInterface.h"
#include "cnx/CnxReader.h"
#include "hdl/Netlist.h"
#include "hdl/ThdlFileWriter.h"
#include "hdl/VerilogFileWriter.h"
#include "hdl/VhdlFileWriter.h"

namespace {

constexpr int kInstances = 200;
constexpr int64_t kThdl = 1, kVhdl = 2, kVerilog = 4, kAll = 7;

class SilentInterface : public plovix::UserInterface {
 public:
  void report(const std::string& text) override { reports += text; }
  bool ask(const std::string&) override { return true; }
  std::string reports;
};

// `lines` CONNECT lines spread evenly over the instances: each instance port is fed, in turn, by a slice of
// the next instance's output, by a variation input, by a constant, or drives a variation output.
std::string description(int lines) {
  const int perInstance = lines / kInstances;
  std::string text = "GENERATION: STANDARD\nVERSION: WM1.0\n";
  for (int k = 0; k < kInstances; ++k) text += "MODULE: pvx_block i" + std::to_string(k) + "\n";
  text += "CONSTANT: DEPTH NUMERIC 4\n";
  for (int j = 0; j < perInstance; j += 4) {
    text += "USED_PORT: in" + std::to_string(j) + " 0 0 8 0 INPUT NODEFVAL\n";
  }
  for (int k = 0; k < kInstances; ++k) {
    const std::string instance = "i" + std::to_string(k);
    const std::string next = "i" + std::to_string((k + 1) % kInstances);
    for (int j = 0; j < perInstance; ++j) {
      const std::string port = std::to_string(j);
      switch (j % 4) {
        case 0:
          text += "CONNECT: " + instance + "@d" + port + " 0 0 8 0 " + next + "@o" + port + " 0 0 8 8\n";
          break;
        case 1:
          text += "CONNECT: " + instance + "@d" + port + " 0 0 8 0 in" + std::to_string(j - 1) + " 0 0 8 0\n";
          break;
        case 2:
          text += "CONNECT: " + instance + "@d" + port + " 0 0 8 0 " + port + " 0 0 0 0\n";
          break;
        default: {
          const std::string output = "out" + std::to_string(k) + "_" + port;
          text += "USED_PORT: " + output + " 0 0 8 0 OUTPUT NODEFVAL\n";
          text += "CONNECT: " + output + " 0 0 8 0 " + instance + "@o" + port + " 0 0 8 0\n";
        }
      }
    }
  }
  return text;
}

void generateAllLanguages(benchmark::State& state) {
  plovix::testing::TempDir work;
  work.write("wide.cnx", description(static_cast<int>(state.range(0))));
  SilentInterface ui;
  plovix::CnxReader reader(ui, work.path("wide.cnx"));
  if (!reader.read()) {
    state.SkipWithError("the description could not be read");
    return;
  }
  const plovix::CnxDescription cnx = reader.takeDescription();
  const int64_t languages = state.range(1);
  size_t bytes = 0;
  for (auto _ : state) {
    const plovix::Netlist netlist =
        languages & (kVhdl | kVerilog) ? plovix::buildNetlist(cnx, "pvx_block") : plovix::Netlist();
    if (languages & kThdl) {
      plovix::ThdlFileWriter thdl(ui, work.path("wide"), "pvx_block", cnx);
      bytes +=
          thdl.buildDesignText().size() + thdl.buildCompanionText().size() + thdl.buildInstanceText().size();
    }
    if (languages & kVhdl) {
      plovix::VhdlFileWriter vhdl(ui, work.path("wide"), "pvx_block", cnx, netlist);
      bytes +=
          vhdl.buildDesignText().size() + vhdl.buildCompanionText().size() + vhdl.buildInstanceText().size();
    }
    if (languages & kVerilog) {
      plovix::VerilogFileWriter verilog(ui, work.path("wide"), "pvx_block", cnx, netlist);
      bytes += verilog.buildDesignText().size() + verilog.buildBlackBoxText().size() +
               verilog.buildInstanceText().size();
    }
  }
  state.SetBytesProcessed(static_cast<int64_t>(bytes));
}

}  // namespace

// The first argument is the number of CONNECT lines, the second picks the languages: all three at every
// size, then each alone at 20,000 lines to see where the time goes.
BENCHMARK(generateAllLanguages)
    ->ArgsProduct({{20000, 200000, 1000000}, {kAll}})
    ->ArgsProduct({{20000}, {kThdl, kVhdl, kVerilog}})
    ->Unit(benchmark::kMillisecond);
