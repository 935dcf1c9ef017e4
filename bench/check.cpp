// plovix --check on generated projects of 1,000 and 10,000 variations, with one and two worker processes: the
// time per variation must stay flat as the project grows. The projects are made here, in folders of 100
// variations, from the corpus descriptions in all three languages; every check must find them clean.
#include <benchmark/benchmark.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "RunCommand.h"
#include "TempDir.h"
#include "base/Format.h"
#include "base/UserInterface.h"
#include "cnx/CnxReader.h"
#include "entry/GenerateVariation.h"
#include "entry/ManagerApp.h"

namespace {

class SilentInterface : public plovix::UserInterface {
 public:
  void report(const std::string&) override {}
  bool ask(const std::string&) override { return true; }
};

constexpr const char* kDescriptions[] = {"counter", "constants", "two_modules", "three_feeds"};
constexpr const char* kExtensions[] = {".tdf", ".vhd", ".v"};

// Writes the files of variation `index` into its folder of `root`.
bool makeVariation(plovix::ManagerApp& app, plovix::UserInterface& ui, const std::string& root, int index) {
  const std::string folder = root + plovix::formatText("part%03d/", index / 100);
  std::filesystem::create_directories(folder);
  const std::string base = folder + plovix::formatText("var%05d", index);
  const std::string cnx = base + ".cnx";
  std::filesystem::copy_file(
      std::string(PLOVIX_SOURCE_DIR "/tests/corpus/") + kDescriptions[index % 4] + ".cnx", cnx,
      std::filesystem::copy_options::overwrite_existing);
  plovix::CnxReader reader(ui, cnx);
  if (!reader.read()) return false;
  app.run.description = std::make_unique<plovix::CnxDescription>(reader.takeDescription());
  app.run.modulonName = "pvx_bench";
  app.run.outcome = plovix::RunOutcome{};
  plovix::generateVariationFiles(app, ui, base + kExtensions[index % 3], true, true);
  plovix::deleteCnxWorkFiles(cnx);
  app.run.description.reset();
  return app.run.outcome.exitStatus() == 0;
}

// The project of `variations` variations, made once for all benchmarks that use it.
const plovix::testing::TempDir* project(int variations) {
  static std::map<int, std::unique_ptr<plovix::testing::TempDir>> projects;
  auto& dir = projects[variations];
  if (dir == nullptr) {
    dir = std::make_unique<plovix::testing::TempDir>();
    plovix::ManagerApp& app = plovix::ManagerApp::instance();
    app.restoreDirectoryAtExit = false;
    SilentInterface ui;
    for (int i = 0; i < variations; ++i)
      if (!makeVariation(app, ui, dir->dir(), i)) return nullptr;
  }
  return dir.get();
}

void checkProject(benchmark::State& state) {
  const int variations = static_cast<int>(state.range(0));
  const std::string jobs = std::to_string(state.range(1));
  const plovix::testing::TempDir* dir = project(variations);
  if (dir == nullptr) {
    state.SkipWithError("the project could not be made");
    return;
  }
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    const plovix::testing::CommandResult r = plovix::testing::runCommand(
        plovix::testing::plovixProgram(), {"--check", "-j", jobs, "."}, dir->dir());
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    if (r.exitCode != 0 || !r.out.empty())
      state.SkipWithError(("the project did not check clean: " + r.err).c_str());
  }
  state.counters["variations"] = variations;
  state.counters["per_variation"] = benchmark::Counter(
      variations, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

}  // namespace

BENCHMARK(checkProject)
    ->ArgNames({"variations", "jobs"})
    ->Args({1000, 1})
    ->Args({1000, 2})
    ->Args({10000, 1})
    ->Args({10000, 2})
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kSecond);
