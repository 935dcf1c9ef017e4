// Reading CNX files of 100,000 and 1,000,000 lines: a mix of every statement kind, and one port fed bit by
// bit from the lowest bit up (the filing order that moves every end of a port's list).
#include <benchmark/benchmark.h>

#include <string>

#include "TempDir.h"
#include "base/UserInterface.h"
#include "cnx/CnxReader.h"

namespace {

class SilentInterface : public plovix::UserInterface {
 public:
  void report(const std::string& text) override { reports += text; }
  bool ask(const std::string&) override { return true; }
  std::string reports;
};

std::string mixedDescription(int lines) {
  std::string text = "GENERATION: STANDARD\nVERSION: WM1.0\nMODULE: lpm_counter\n";
  for (int i = 3; i < lines; ++i) {
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

std::string oneWideBus(int lines) {
  std::string text = "GENERATION: STANDARD\nVERSION: WM1.0\nMODULE: lpm_counter\n";
  for (int i = 3; i < lines; ++i) {
    text += "CONNECT: q 1 " + std::to_string(i) + " 0 0 s@d" + std::to_string(i) + " 1 0 0 0\n";
  }
  return text;
}

void readFile(benchmark::State& state, const std::string& text, int lines) {
  plovix::testing::TempDir temp;
  temp.write("bench.cnx", text);
  SilentInterface ui;
  for (auto _ : state) {
    plovix::CnxReader reader(ui, temp.path("bench.cnx"));
    const bool ok = reader.read();
    benchmark::DoNotOptimize(ok);
    if (!ok) state.SkipWithError(("the generated file does not read: " + ui.reports).c_str());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(text.size()));
  state.counters["lines"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * lines, benchmark::Counter::kIsRate);
}

// The argument is the number of lines.
void BM_ReadMixedCnx(benchmark::State& state) {
  const int lines = static_cast<int>(state.range(0));
  readFile(state, mixedDescription(lines), lines);
}
BENCHMARK(BM_ReadMixedCnx)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void BM_ReadOnePortBitByBit(benchmark::State& state) {
  const int lines = static_cast<int>(state.range(0));
  readFile(state, oneWideBus(lines), lines);
}
BENCHMARK(BM_ReadOnePortBitByBit)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace
