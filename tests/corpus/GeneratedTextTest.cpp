// Every writer's texts for every sample description, compared with golden files: the shared corpus
// (tests/corpus) and the language folders' own samples (tests/<language>/data/*.cnx).
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "CorpusCase.h"
#include "Golden.h"
#include "RecordingInterface.h"
#include "hdl/Netlist.h"
#include "hdl/ThdlFileWriter.h"
#include "hdl/VerilogFileWriter.h"
#include "hdl/VhdlFileWriter.h"

namespace plovix::testing {
namespace {

namespace fs = std::filesystem;

const std::string kTests = std::string(PLOVIX_SOURCE_DIR) + "/tests/";

struct Sample {
  std::string name;
  std::string cnxFile;
};

// The corpus first, then the folders' own samples in name order.
std::vector<Sample> allSamples() {
  std::vector<Sample> samples;
  for (const char* name : kCorpusCases) samples.push_back({name, corpusDir() + name + ".cnx"});
  for (const char* folder : {"thdl/data", "verilog/data", "vhdl/data"}) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(kTests + folder)) {
      if (entry.path().extension() == ".cnx") files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) samples.push_back({file.stem().string(), file.string()});
  }
  return samples;
}

// Where a language's golden files live and how their names end: design, companion, instance template.
struct Language {
  const char* name;
  const char* folder;
  const char* endings[3];
};

const Language kLanguages[] = {{"thdl", "thdl/expected/", {".tdf", ".inc", "_inst.tdf"}},
                               {"vhdl", "vhdl/expected/", {".vhd", ".cmp", "_inst.vhd"}},
                               {"verilog", "verilog/data/", {".v", "_bb.v", "_inst.v"}}};

class GeneratedText : public ::testing::TestWithParam<Sample> {};

// The corpus is written for the corpus's modulon, a folder's own sample for its main module (for a sample
// without one, a modulon of its own name).
TEST_P(GeneratedText, MatchesTheGoldenFiles) {
  const Sample& sample = GetParam();
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  readCnxText(sample.name, TempDir::readFile(sample.cnxFile), work, ui, description);
  std::string signature = description.mainModuleName.str();
  if (sample.cnxFile.rfind(corpusDir(), 0) == 0) signature = kCorpusSignature;
  if (signature.empty()) signature = sample.name;
  const Netlist netlist = buildNetlist(description, signature);
  const std::string base = work.path(sample.name);
  const ThdlFileWriter thdl(ui, base, signature, description);
  const VhdlFileWriter vhdl(ui, base, signature, description, netlist);
  const VerilogFileWriter verilog(ui, base, signature, description, netlist);
  // THDL's files as written (line ends and retrieval info included; the retrieval info comes from what was
  // read, the CNX file being gone by then), the others' texts.
  fs::remove(work.path(sample.name + ".cnx"));
  EXPECT_TRUE(thdl.writeDesignFile() && thdl.writeCompanionFile() && thdl.writeInstanceFile());
  const std::string texts[3][3] = {
      {work.read(sample.name + ".tdf"), work.read(sample.name + ".inc"),
       work.read(sample.name + "_inst.tdf")},
      {vhdl.designText(), vhdl.buildCompanionText(), vhdl.buildInstanceText()},
      {verilog.designText(), verilog.buildBlackBoxText(), verilog.buildInstanceText()}};
  for (int language = 0; language < 3; ++language) {
    const Language& l = kLanguages[language];
    for (int file = 0; file < 3; ++file)
      expectGolden(texts[language][file], kTests + l.folder + sample.name + l.endings[file]);
  }
  // The texts depend on their inputs only, and a Verilog variation has no companion file.
  EXPECT_EQ(verilog.designText(), texts[2][0]);
  EXPECT_EQ(verilog.buildCompanionText(), "");
}

INSTANTIATE_TEST_SUITE_P(Samples, GeneratedText, ::testing::ValuesIn(allSamples()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace plovix::testing
