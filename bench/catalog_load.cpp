// Loading large catalogs: entries spread over 50 files, with information blocks, variants and duplicates.
#include <benchmark/benchmark.h>

#include <string>

#include "TempDir.h"
#include "base/UserInterface.h"
#include "catalog/WizardCatalog.h"

namespace {

constexpr int kFiles = 50;

class SilentInterface : public plovix::UserInterface {
 public:
  void report(const std::string& text) override { reports += text.size(); }
  bool ask(const std::string&) override { return true; }
  size_t reports = 0;
};

// One catalog file: every tenth group of three entries are variants of one name, every fifth entry has an
// information block, and every fiftieth line is read twice.
std::string catalogFile(int file, int entries) {
  std::string text =
      "// catalog " + std::to_string(file) + "\n[family" + std::to_string(file % 10) + "|sub]\n";
  for (int i = 0; i < entries; ++i) {
    const int id = file * entries + i;
    const std::string name = i % 10 < 3 ? "VAR" + std::to_string(id / 10) : "MOD" + std::to_string(id);
    const std::string line = name + " [-No2D]=wizard.exe -m " + std::to_string(id) + "\n";
    text += line;
    if (i % 5 == 0) {
      text += "<INFO>\n<ABSTRACT>Module " + std::to_string(id) + " &lt;demo&gt;</ABSTRACT>\n<ALIAS>old" +
              std::to_string(id) + ", older" + std::to_string(id) + "</ALIAS>\n</INFO>\n";
    }
    if (i % 50 == 0) text += line;
  }
  return text;
}

void catalogLoad(benchmark::State& state) {
  const int entries = static_cast<int>(state.range(0));
  plovix::testing::TempDir dir;
  for (int file = 0; file < kFiles; ++file) {
    dir.write("lib" + std::to_string(file) + "_wizard.lst", catalogFile(file, entries / kFiles));
  }
  size_t loaded = 0;
  for (auto _ : state) {
    SilentInterface ui;
    plovix::WizardCatalog catalog;
    catalog.loadFrom(ui, "", dir.dir());
    loaded = catalog.entries().size();
    benchmark::DoNotOptimize(loaded);
  }
  state.counters["entries"] = static_cast<double>(loaded);
  state.SetComplexityN(entries);
}

BENCHMARK(catalogLoad)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);

}  // namespace
