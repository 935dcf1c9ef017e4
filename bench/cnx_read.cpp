// Reading 100,000-line CNX files: a mix of every statement kind, and one port fed bit by bit from the lowest
// bit up (the filing order that moves every end of a port's list).
#include <benchmark/benchmark.h>

#include <string>

#include "TempDir.h"
#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"

namespace {

constexpr int kLines = 100000;

class SilentInterface : public plovix::UserInterface {
 public:
  void report(const std::string& text) override { reports += text; }
  bool ask(const std::string&) override { return true; }
  std::string reports;
};

std::string mixedDescription() {
  std::string text = "GENERATION: STANDARD\nVERSION: WM1.0\nMODULE: lpm_counter\n";
  for (int i = 3; i < kLines; ++i) {
    const std::string n = std::to_string(i);
    switch (i % 8) {
      case 0:
        text += "MODULE: lpm_add_sub add" + n + "\n";
        break;
      case 1:
        text += "PARAMETER: LPM_WIDTH" + n + " NUMERIC " + n + " add" + n + "\n";
        break;
      case 2:
        text += "USED_PORT: data" + n + " 8 0 0 0 INPUT NODEFVAL\n";
        break;
      case 3:
        text += "CONNECT: add" + n + "@dataa 8 0 0 0 data" + n + " 8 0 0 0\n";
        break;
      case 4:
        text += "CONNECT: result" + n + " 1 " + std::to_string(i % 16) + " 0 0 add" + n + "@result 1 0 0 0\n";
        break;
      case 5:
        text +=
            "SYMBOL: PINSTUB 0 " + n + " IN data" + n + " 4 " + n + " \"D " + n + "\" HORIZ \"Arial,8\"\n";
        break;
      case 6:
        text += "// a comment line\n";
        break;
      default:
        text += "CONSTANT: C" + n + " STRING \"value; with blanks\"\n";
        break;
    }
  }
  return text;
}

std::string oneWideBus() {
  std::string text = "GENERATION: STANDARD\nVERSION: WM1.0\nMODULE: lpm_counter\n";
  for (int i = 3; i < kLines; ++i) {
    text += "CONNECT: q 1 " + std::to_string(i) + " 0 0 s@d" + std::to_string(i) + " 1 0 0 0\n";
  }
  return text;
}

void readFile(benchmark::State& state, const std::string& text) {
  plovix::testing::TempDir temp;
  temp.write("bench.cnx", text);
  SilentInterface ui;
  for (auto _ : state) {
    plovix::CnxDescription description(temp.path("bench.cnx"));
    const bool ok = description.readDescription(ui);
    benchmark::DoNotOptimize(ok);
    if (!ok) state.SkipWithError(("the generated file does not read: " + ui.reports).c_str());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(text.size()));
  state.counters["lines"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * kLines, benchmark::Counter::kIsRate);
}

void BM_ReadMixedCnx(benchmark::State& state) {
  readFile(state, mixedDescription());
}
BENCHMARK(BM_ReadMixedCnx)->Unit(benchmark::kMillisecond);

void BM_ReadOnePortBitByBit(benchmark::State& state) {
  readFile(state, oneWideBus());
}
BENCHMARK(BM_ReadOnePortBitByBit)->Unit(benchmark::kMillisecond);

}  // namespace
