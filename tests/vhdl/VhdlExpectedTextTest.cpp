// Whole VHDL texts of sample variations compared with the expected files: design text, component
// declaration and instantiation template.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "TempDir.h"
#include "VhdlCases.h"

namespace plovix {
namespace {

namespace fs = std::filesystem;
using testing::TempDir;
using testing::VhdlCase;

const fs::path kExpected = fs::path(PLOVIX_SOURCE_DIR) / "tests" / "vhdl" / "expected";

// Compares a text with its expected file; on a difference the text is left beside the build for review.
void expectText(const std::string& actual, const std::string& expectedName) {
  const fs::path expectedPath = kExpected / expectedName;
  const std::string expected = TempDir::readFile(expectedPath.string());
  EXPECT_TRUE(fs::exists(expectedPath)) << expectedPath;
  EXPECT_EQ(actual, expected) << expectedName;
  if (actual != expected) {
    const fs::path dump = fs::path(PLOVIX_BINARY_DIR) / "tests" / "vhdl" / "actual";
    fs::create_directories(dump);
    std::ofstream(dump / expectedName, std::ios::binary) << actual;
  }
}

class VhdlExpectedText : public ::testing::TestWithParam<std::string> {};

TEST_P(VhdlExpectedText, MatchesExpectedFiles) {
  const std::string name = GetParam();
  VhdlCase sample(name);
  ASSERT_TRUE(sample.loaded) << sample.work.read(name + ".cnxerr");
  EXPECT_TRUE(sample.ui.boxes.empty());
  expectText(sample.writer->designText(), name + ".vhd");
  expectText(sample.writer->buildCompanionText(), name + ".cmp");
  expectText(sample.writer->buildInstanceText(), name + "_inst.vhd");
}

INSTANTIATE_TEST_SUITE_P(Cases, VhdlExpectedText, ::testing::ValuesIn(testing::allVhdlCases()));

}  // namespace
}  // namespace plovix
