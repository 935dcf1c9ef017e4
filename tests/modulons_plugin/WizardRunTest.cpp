// Whole plug-in runs: new and edited variations, refusals, and files left alone.
#include <gtest/gtest.h>

#include <sstream>

#include "ModulonLibrary.h"
#include "PreparedDescription.h"
#include "TempDir.h"
#include "WizardRun.h"

namespace plovix::wizard {
namespace {

class NoQuestions : public DialogChooser {
 public:
  ValueDialog* dialogFor(const PluginArguments&) override { return nullptr; }
};

// A dialog that answers with a fixed outcome and records that it was asked.
class FixedDialog : public DialogChooser, public ValueDialog {
 public:
  explicit FixedDialog(DialogOutcome outcome) : outcome_(outcome) {}
  ValueDialog* dialogFor(const PluginArguments&) override { return this; }
  DialogOutcome collect(const Modulon&, const PluginArguments&, SettingValues& values) override {
    asked = true;
    values["LPM_WIDTH"] = "5";
    return outcome_;
  }
  bool asked = false;

 private:
  DialogOutcome outcome_;
};

class WizardRunTest : public ::testing::Test {
 protected:
  int run(std::vector<std::string> argv, DialogChooser& chooser) {
    output.str("");
    messages.str("");
    return runWizard(argv, bundledModulons(), chooser, output, messages);
  }
  int run(std::vector<std::string> argv) {
    NoQuestions none;
    return run(std::move(argv), none);
  }
  std::string privateValue(const std::string& cnx, const std::string& name) {
    for (const PrivateValue& value : readPrivateValues(cnx)) {
      if (value.name == name) return value.value;
    }
    return "<absent>";
  }

  plovix::testing::TempDir dir;
  std::ostringstream output, messages;
};

TEST_F(WizardRunTest, NewVariationWritesTheDescriptionBesideTheOutput) {
  ASSERT_EQ(
      run({"-m", "lpm_counter", dir.path("count8.v"), "-n", "-symbol", "LPM_WIDTH=8", "LPM_DIRECTION=x"}),
      kExitCancel);
  EXPECT_NE(messages.str().find("allowed values: UP, DOWN, UNUSED"), std::string::npos);
  EXPECT_FALSE(std::ifstream(dir.path("count8.cnx")).good());

  ASSERT_EQ(
      run({"-m", "lpm_counter", dir.path("count8.v"), "-n", "-symbol", "lpm_width=8", "Lpm_Direction=down"}),
      kExitFinish)
      << messages.str();
  const std::string cnx = dir.read("count8.cnx");
  EXPECT_EQ(cnx.rfind("GENERATION: STANDARD\nVERSION: WM1.0\nLIBRARY: lpm lpm.lpm_components.all\n", 0), 0u);
  EXPECT_NE(cnx.find("CONSTANT: LPM_DIRECTION STRING \"DOWN\"\n"), std::string::npos);
  EXPECT_NE(cnx.find("USED_PORT: q 0 0 8 0 OUTPUT NODEFVAL \"q[7..0]\"\n"), std::string::npos);
  EXPECT_EQ(privateValue(cnx, "LPM_DIRECTION"), "DOWN");
}

TEST_F(WizardRunTest, EditStartsFromThePreparedValuesAndKeepsWhatIsNotGiven) {
  // The prepared description an edit starts with: retrieval info rebuilt by the manager.
  dir.write("acc.cnx",
            "VERSION: WM1.0\r\nMODULE: lpm_add_sub\r\nPRIVATE: LPM_WIDTH NUMERIC \"12\"\r\n"
            "PRIVATE: LPM_DIRECTION STRING \"SUB\"\r\nPRIVATE: COUT STRING \"YES\"\r\n"
            "PRIVATE: LPM_PIPELINE NUMERIC \"99\"\r\nPRIVATE: RETIRED STRING \"X\"\r\n");
  ASSERT_EQ(run({"-m", "lpm_add_sub", dir.path("acc.vhd"), "-symbol", "OVERFLOW=YES"}), kExitFinish)
      << messages.str();
  const std::string cnx = dir.read("acc.cnx");
  EXPECT_EQ(privateValue(cnx, "LPM_WIDTH"), "12");
  EXPECT_EQ(privateValue(cnx, "LPM_DIRECTION"), "SUB");
  EXPECT_EQ(privateValue(cnx, "COUT"), "YES");
  EXPECT_EQ(privateValue(cnx, "OVERFLOW"), "YES");
  EXPECT_EQ(privateValue(cnx, "LPM_PIPELINE"), "0");  // a stored value out of range falls back to the default
  EXPECT_EQ(privateValue(cnx, "RETIRED"), "<absent>");
  EXPECT_NE(cnx.find("CONNECT: @cin 0 0 0 0 VCC 0 0 0 0\n"), std::string::npos);

  // A new variation ignores a description that happens to lie there.
  ASSERT_EQ(run({"-m", "lpm_add_sub", dir.path("acc.vhd"), "-n"}), kExitFinish);
  EXPECT_EQ(privateValue(dir.read("acc.cnx"), "LPM_WIDTH"), "8");
}

TEST_F(WizardRunTest, RefusalsNameTheAllowedValuesAndLeaveFilesAlone) {
  const std::string prepared = "VERSION: WM1.0\nPRIVATE: LPM_WIDTH NUMERIC \"4\"\n";
  dir.write("m.cnx", prepared);
  EXPECT_EQ(run({"-m", "lpm_counter", dir.path("m.v"), "WIDTH=4"}), kExitCancel);
  EXPECT_NE(messages.str().find("its settings are: LPM_WIDTH, LPM_DIRECTION"), std::string::npos);
  EXPECT_EQ(run({"-m", "lpm_counter", dir.path("m.v"), "LPM_MODULUS=17"}), kExitCancel);
  EXPECT_NE(messages.str().find("from 0 to 16"), std::string::npos);
  EXPECT_EQ(run({"-m", "lpm_counter", dir.path("m.v"), "LPM_WIDTH=0"}), kExitCancel);
  EXPECT_NE(messages.str().find("a whole number from 1 to 32"), std::string::npos);
  EXPECT_EQ(run({"-m", "nothing", dir.path("m.v")}), kExitCancel);
  EXPECT_NE(messages.str().find("lpm_counter, lpm_add_sub"), std::string::npos);
  EXPECT_EQ(run({dir.path("m.v")}), kExitCancel);
  EXPECT_EQ(dir.read("m.cnx"), prepared);
}

TEST_F(WizardRunTest, DialogOutcomesBecomeExitCodes) {
  FixedDialog back(DialogOutcome::kBack), cancel(DialogOutcome::kCancel), finish(DialogOutcome::kFinish);
  EXPECT_EQ(run({"-m", "lpm_decode", dir.path("d.v"), "-n"}, back), kExitBack);
  EXPECT_EQ(run({"-m", "lpm_decode", dir.path("d.v"), "-n"}, cancel), kExitCancel);
  EXPECT_FALSE(std::ifstream(dir.path("d.cnx")).good());
  EXPECT_EQ(run({"-m", "lpm_decode", dir.path("d.v"), "-n"}, finish), kExitFinish);
  EXPECT_TRUE(finish.asked);
  EXPECT_EQ(privateValue(dir.read("d.cnx"), "LPM_WIDTH"), "5");
}

TEST_F(WizardRunTest, DescriptionThatCannotBeWrittenIsReportedAsCancel) {
  EXPECT_EQ(run({"-m", "lpm_counter", dir.path("missing/c.v"), "-n"}), kExitCancel);
  EXPECT_NE(messages.str().find("Cannot write " + dir.path("missing/c.cnx") + ": No such file"),
            std::string::npos);
}

TEST_F(WizardRunTest, SymbolOnlyAndDrawnSymbol) {
  ASSERT_EQ(run({"-m", "lpm_constant", dir.path("k.tdf"), "-n", "LPM_CVALUE=300", "LPM_WIDTH=9",
                 "SYMBOL_ONLY=yes"}),
            kExitFinish);
  const std::string cnx = dir.read("k.cnx");
  EXPECT_EQ(cnx.rfind("GENERATION: SYMBOL_ONLY\n", 0), 0u);
  EXPECT_NE(cnx.find("SYMBOL: BOX "), std::string::npos);
  EXPECT_NE(cnx.find("SYMBOL: PINSTUB 184 64 OUT result 100 58 \"result[8..0]\""), std::string::npos);
  EXPECT_EQ(run({"-m", "lpm_constant", dir.path("k.tdf"), "LPM_CVALUE=512", "LPM_WIDTH=9"}), kExitCancel);
}

TEST_F(WizardRunTest, DescribeAndHelpAnswerOnStandardOutputAndWriteNothing) {
  // Asked with an output path and values too, --describe still only prints the settings table.
  ASSERT_EQ(run({"-m", "lpm_counter", "--describe", dir.path("c.v"), "LPM_WIDTH=4"}), kExitFinish);
  EXPECT_EQ(output.str(), dir.readFile(std::string(PLOVIX_TEST_DATA_DIR) + "/lpm_counter.json"));
  EXPECT_FALSE(std::ifstream(dir.path("c.cnx")).good());
  EXPECT_EQ(run({"--describe"}), kExitCancel);
  EXPECT_EQ(run({"-m", "nothing", "--describe"}), kExitCancel);
  EXPECT_EQ(output.str(), "");

  ASSERT_EQ(run({"--help"}), kExitFinish);
  for (const Modulon& modulon : bundledModulons())
    EXPECT_NE(output.str().find("\n  " + modulon.name + " "), std::string::npos) << modulon.name;
  EXPECT_NE(output.str().find("--describe"), std::string::npos);
}

}  // namespace
}  // namespace plovix::wizard
