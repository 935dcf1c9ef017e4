// The HDL construct checks over the corpus and the limits corpus: the findings as the listing has them, the
// standard text of the limits cases as the expected files have it, and the valid text, which differs from the
// standard text exactly where a finding says the valid mode rewrites it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../corpus/LimitCases.h"
#include "Golden.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/Report.h"
#include "hdl/HdlChecks.h"
#include "hdl/VerilogFileWriter.h"
#include "hdl/VhdlFileWriter.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

const std::string kLimitsDir = testing::corpusDir() + "limits/";

struct Case {
  explicit Case(const std::string& name) {
    loaded = testing::readCnxText(name, testing::caseText(name), work, ui, description);
    netlist = buildNetlist(description, testing::kCorpusSignature);
  }
  std::vector<HdlFinding> findings(OutputLanguage language) const {
    return findHdlConstructs(description, netlist, testing::kCorpusSignature, language);
  }
  // Every text the language's writer gives in `mode`, one after the other.
  std::string texts(OutputLanguage language, HdlTextMode mode) const {
    const std::string base = work.path("variation");
    if (language == OutputLanguage::kVhdl) {
      const VhdlFileWriter w(ui, base, testing::kCorpusSignature, description, netlist, mode);
      return w.buildDesignText() + w.buildCompanionText() + w.buildInstanceText();
    }
    const VerilogFileWriter w(ui, base, testing::kCorpusSignature, description, netlist, mode);
    return w.buildDesignText() + w.buildBlackBoxText() + w.buildInstanceText();
  }

  TempDir work;
  mutable RecordingInterface ui;
  CnxDescription description;
  Netlist netlist;
  bool loaded = false;
};

constexpr OutputLanguage kLanguages[] = {OutputLanguage::kVhdl, OutputLanguage::kVerilog};

// One line per finding of every case: case, language, construct, instance.port, line.
TEST(HdlChecks, FindingsOfEveryCaseAsTheListingHasThem) {
  std::string listing;
  for (const std::string& name : testing::corpusAndLimitCases()) {
    const Case sample(name);
    ASSERT_TRUE(sample.loaded) << name;
    for (OutputLanguage language : kLanguages) {
      for (const HdlFinding& f : sample.findings(language)) {
        listing += name + " " + std::string(outputKind(language).cliWord) + " " +
                   hdlConstructName(f.construct) + " " + f.instance + "." + f.port + " line " +
                   std::to_string(f.line) + "\n";
      }
    }
  }
  testing::expectGolden(listing, kLimitsDir + "findings.txt");
  // THDL holds none of the constructs.
  EXPECT_TRUE(Case("three_feeds").findings(OutputLanguage::kThdl).empty());
}

class HdlTextModes : public ::testing::TestWithParam<std::string> {};

// The valid text equals the standard text unless a finding is one the valid mode rewrites; a run warns about
// every finding in the standard mode and, in the valid mode, about the ones it could not make valid.
TEST_P(HdlTextModes, ValidTextDiffersOnlyWhereAFindingIsRewritten) {
  const std::string name = GetParam();
  const Case sample(name);
  ASSERT_TRUE(sample.loaded);
  for (OutputLanguage language : kLanguages) {
    const std::vector<HdlFinding> findings = sample.findings(language);
    size_t rewritten = 0, validWarnings = 0;
    for (const HdlFinding& finding : findings) {
      const bool valid = hdlRemedy(finding.construct, language) == HdlRemedy::kValidText;
      rewritten += valid ? 1 : 0;
      EXPECT_FALSE(hdlFindingWarning(finding, "v.vhd", HdlTextMode::kStandard).empty());
      validWarnings += hdlFindingWarning(finding, "v.vhd", HdlTextMode::kValid).empty() ? 0 : 1;
    }
    EXPECT_EQ(validWarnings, findings.size() - rewritten);
    const std::string standard = sample.texts(language, HdlTextMode::kStandard);
    const std::string valid = sample.texts(language, HdlTextMode::kValid);
    if (rewritten == 0) {
      EXPECT_EQ(valid, standard) << outputKind(language).cliWord;
    } else {
      EXPECT_NE(valid, standard) << outputKind(language).cliWord;
    }
  }
  // The standard design texts of the limits cases stay as they are.
  if (!testing::isLimitCase(name)) return;
  const std::string base = sample.work.path(name);
  const VhdlFileWriter vhdl(sample.ui, base, testing::kCorpusSignature, sample.description, sample.netlist);
  testing::expectGolden(vhdl.buildDesignText(), kLimitsDir + "expected/" + name + ".vhd");
  const VerilogFileWriter verilog(sample.ui, base, testing::kCorpusSignature, sample.description,
                                  sample.netlist);
  testing::expectGolden(verilog.buildDesignText(), kLimitsDir + "expected/" + name + ".v");
}

INSTANTIATE_TEST_SUITE_P(Cases, HdlTextModes, ::testing::ValuesIn(testing::corpusAndLimitCases()));

// The warning names the file, the construct, the place and the line, in the form the remedy asks for.
TEST(HdlChecks, WarningsNameFileConstructPlaceAndRemedy) {
  const HdlFinding inverted{HdlConstruct::kInvertedOutput, OutputLanguage::kVerilog, "q", "cnt", 7};
  EXPECT_EQ(hdlFindingWarning(inverted, "v.v", HdlTextMode::kStandard),
            errorMessage(Msg::kHdlWarningValid, "v.v", errorMessage(Msg::kHdlInvertedOutput),
                         errorMessage(Msg::kHdlWherePortOfInstance, "q", "cnt"), "7"));
  EXPECT_EQ(hdlFindingWarning(inverted, "v.v", HdlTextMode::kValid), "");
  const HdlFinding rows{HdlConstruct::kTwoDimensionalRows, OutputLanguage::kVhdl, "data", "m", 9};
  EXPECT_EQ(hdlFindingWarning(rows, "v.vhd", HdlTextMode::kStandard),
            errorMessage(Msg::kHdlWarningOtherLanguage, "v.vhd", errorMessage(Msg::kHdlTwoDimensionalRows),
                         errorMessage(Msg::kHdlWherePortOfInstance, "data", "m"), "9", "THDL"));
}

}  // namespace
}  // namespace plovix
