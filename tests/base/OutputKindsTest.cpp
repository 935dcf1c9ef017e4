// Tests of the output kinds, the output-name rules and the signature reader.
#include <gtest/gtest.h>

#include <optional>

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
  // Every row is found again by its extension, CLI word and button, and by nothing else.
  for (const OutputKind& kind : kOutputKinds) {
    EXPECT_EQ(outputKindOfExtension(kind.designExtension), &kind);
    EXPECT_EQ(outputKindOfCliWord(kind.cliWord), &kind);
    EXPECT_EQ(outputKindOfButton(kind.buttonIndex), &kind);
    EXPECT_EQ(&outputKind(kind.language), &kind);
  }
  EXPECT_EQ(outputKindOfCliWord("VHDL"), nullptr);
  EXPECT_EQ(outputKindOfButton(3), nullptr);
}

struct NameCase {
  const char* extension;
  const char* name;
  std::optional<Msg> error;  // none when the name passes
};

constexpr Msg kThdlRule = Msg::kIllegalThdlName;
constexpr Msg kVerilogRule = Msg::kIllegalVerilogName;
constexpr Msg kVhdlRule = Msg::kIllegalVhdlName;

TEST(CheckOutputFileName, RulesPerLanguage) {
  const NameCase cases[] = {
      {".tdf", "a~b", {}},
      {".vhd", "a~b", kVhdlRule},
      {".v", "a~b", kVerilogRule},
      {".vhd", "_x", kVhdlRule},
      {".v", "_x", {}},
      {".vhd", "9x", kVhdlRule},
      {".v", "9x", kVerilogRule},
      {".tdf", "9x", {}},
      {".tdf", "a b", kThdlRule},
      {".vhd", "a b", kVhdlRule},
      {".v", "a b", kVerilogRule},
      {".tdf", "", {}},
      {".vhd", "", kVhdlRule},
      {".v", "", kVerilogRule},
      {".txt", "a b", {}},
      {".vhd", "count8", {}},
  };
  for (const NameCase& c : cases) {
    RecordingInterface ui;
    EXPECT_EQ(checkOutputFileName(ui, c.extension, c.name), !c.error) << c.extension << " " << c.name;
    if (!c.error) {
      EXPECT_TRUE(ui.boxes.empty());
    } else {
      ASSERT_EQ(ui.boxes.size(), 1u);
      EXPECT_EQ(ui.boxes[0], testing::reported(*c.error)) << c.extension << " " << c.name;
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
