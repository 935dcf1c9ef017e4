// Symbols built from sample descriptions (data/*.cnx), compared with golden files (data/*.trace): the drawing
// library calls the builder makes, then the symbol file the library writes.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "../corpus/CorpusCase.h"
#include "GioTraceCapture.h"
#include "Golden.h"
#include "RecordingInterface.h"
#include "symbol/SymbolBuilder.h"

namespace plovix {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> sampleNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(PLOVIX_TEST_DATA_DIR)) {
    if (entry.path().extension() == ".cnx") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The trace with the test's directory shown as "<dir>/", one call a line.
std::string traceText(testing::GioTraceCapture& trace) {
  std::string text;
  for (std::string line : trace.take()) {
    for (size_t at = line.find(trace.dir()); at != std::string::npos; at = line.find(trace.dir()))
      line.replace(at, trace.dir().size(), "<dir>/");
    text += line + "\n";
  }
  return text;
}

class SymbolTrace : public ::testing::TestWithParam<std::string> {};

TEST_P(SymbolTrace, MatchesTheGoldenFile) {
  const std::string name = GetParam();
  testing::GioTraceCapture trace;
  testing::TempDir work;
  testing::RecordingInterface ui;
  CnxDescription d;
  ASSERT_TRUE(testing::readCnxText(
      name, testing::TempDir::readFile(std::string(PLOVIX_TEST_DATA_DIR) + "/" + name + ".cnx"), work, ui,
      d));
  trace.take();
  EXPECT_TRUE(SymbolBuilder(ui, trace.dir() + name, d).buildSymbol());
  EXPECT_TRUE(ui.boxes.empty());
  testing::expectGolden(traceText(trace) + "-- " + name + ".sym\n" + trace.read(name + ".sym"),
                        std::string(PLOVIX_TEST_DATA_DIR) + "/" + name + ".trace");
}

INSTANTIATE_TEST_SUITE_P(Samples, SymbolTrace, ::testing::ValuesIn(sampleNames()),
                         [](const auto& info) { return info.param; });

// A directory that does not exist makes the drawing library report an error; the instance is given back and
// the remaining calls go to instance 0, which writes nothing.
TEST(AutomaticSymbol, ErrorWhileStartingLeavesNoInstanceAndNoFile) {
  testing::GioTraceCapture trace;
  testing::RecordingInterface ui;
  testing::TempDir work;
  CnxDescription d;
  testing::readCnxText("reg8", testing::TempDir::readFile(PLOVIX_TEST_DATA_DIR "/automatic_register.cnx"),
                       work, ui, d);
  EXPECT_FALSE(SymbolBuilder(ui, trace.dir() + "missing/reg8", d).buildSymbol());
  const std::vector<std::string> lines = trace.take();
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[1], "gio_db_delete_instance(1, 0) -> 1");
  EXPECT_EQ(lines[2], "gio_sym_add_pin_stub_w_alt_text(\"\", \"data[7..0]\", 2, 0) -> 0");
  EXPECT_EQ(lines[4], "gio_sym_auto_gen_sym_w_params_w_alt_text(0, \"WIDTH=8\\nDIRECTION=\") -> 0");
  EXPECT_TRUE(ui.boxes.empty());
  EXPECT_FALSE(fs::exists(trace.dir() + "missing"));
}

}  // namespace
}  // namespace plovix
