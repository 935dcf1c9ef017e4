// Tests of the output kinds, the output-name rules and the signature reader.
#include <gtest/gtest.h>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/OutputKinds.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

TEST(OutputKinds, ExtensionsAreComparedExactly) {
  EXPECT_TRUE(isOutputExtension(".tdf"));
  EXPECT_TRUE(isOutputExtension(".v"));
  EXPECT_FALSE(isOutputExtension(".TDF"));
  EXPECT_FALSE(isOutputExtension(".vhdl"));
  EXPECT_FALSE(isOutputExtension(".gdf"));
  EXPECT_TRUE(isDesignExtension(".gdf"));
  EXPECT_EQ(extensionOfKind(" VHDL "), ".vhd");
  EXPECT_EQ(extensionOfKind("Verilog HDL"), "");
  EXPECT_EQ(extensionOfKind("VERILOG"), ".v");
  EXPECT_EQ(commentLeaderOfExtension(".v"), "//");
  EXPECT_EQ(commentLeaderOfExtension(" .tdf"), "--");
  EXPECT_EQ(commentLeaderOfExtension(".x"), "");
}

struct NameCase {
  const char* extension;
  const char* name;
  int error;  // 0 when the name passes
};

TEST(CheckOutputFileName, RulesPerLanguage) {
  const NameCase cases[] = {
      {".tdf", "a~b", 0},  {".vhd", "a~b", 40}, {".v", "a~b", 39},  {".vhd", "_x", 40},
      {".v", "_x", 0},     {".vhd", "9x", 40},  {".v", "9x", 39},   {".tdf", "9x", 0},
      {".tdf", "a b", 38}, {".vhd", "a b", 40}, {".v", "a b", 39},  {".tdf", "", 0},
      {".vhd", "", 40},    {".v", "", 39},      {".txt", "a b", 0}, {".vhd", "count8", 0},
  };
  const char* texts[41] = {};
  texts[38] =
      "Illegal character in output file name.\nFile names may only contain underscore,\ntilda, or "
      "alphanumeric characters";
  texts[39] =
      "Illegal character in output file name.\nFile names may only contain underscore or\nalphanumeric "
      "characters and begin only with a letter or an underscore";
  texts[40] =
      "Illegal character in output file name.\nFile names may only contain underscore or\nalphanumeric "
      "characters and begin only with a letter";
  for (const NameCase& c : cases) {
    RecordingInterface ui;
    EXPECT_EQ(checkOutputFileName(ui, c.extension, c.name), c.error == 0) << c.extension << " " << c.name;
    if (c.error == 0) {
      EXPECT_TRUE(ui.boxes.empty());
    } else {
      ASSERT_EQ(ui.boxes.size(), 1u);
      EXPECT_EQ(ui.boxes[0], std::string("report: ") + texts[c.error]) << c.extension << " " << c.name;
    }
  }
}

TEST(ReadModulonName, SignatureOnTheFirstLineOnly) {
  TempDir temp;
  temp.write("a.vhd", "-- modulon wizard: %lpm_counter%\r\n-- GENERATION: STANDARD\r\n");
  temp.write("b.vhd", "\n-- modulon wizard: %lpm_counter%\n");
  temp.write("c.v", "// modulon wizard: %%%\n");
  temp.write("d.v", "// modulon wizard:");
  EXPECT_EQ(readModulonNameOfFile(temp.path("a.vhd")), "lpm_counter");
  EXPECT_EQ(readModulonNameOfFile(temp.path("b.vhd")), kNotWizardMarker);
  EXPECT_EQ(readModulonNameOfFile(temp.path("c.v")), "");
  EXPECT_EQ(readModulonNameOfFile(temp.path("d.v")), "");
  EXPECT_EQ(readModulonNameOfFile(temp.path("missing.v")), kNotWizardMarker);
}

TEST(OfferThdlFallback, OnlyForVhdlAndVerilog) {
  RecordingInterface ui;
  ui.answers = {false};
  std::string extension = ".vhd";
  EXPECT_FALSE(offerThdlFallback(ui, extension));
  EXPECT_EQ(extension, ".tdf") << "the extension changes whatever the answer";
  std::string thdl = ".tdf";
  EXPECT_TRUE(offerThdlFallback(ui, thdl));
  EXPECT_EQ(ui.boxes.size(), 1u);
}

}  // namespace
}  // namespace plovix
