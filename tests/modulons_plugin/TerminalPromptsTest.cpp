// The terminal prompts: keeping, changing and refusing values, Back and Cancel.
#include <gtest/gtest.h>

#include <sstream>

#include "ModulonLibrary.h"
#include "TerminalPrompts.h"

namespace plovix::wizard {
namespace {

struct Session {
  DialogOutcome outcome;
  SettingValues values;
  std::string shown;
};

Session answer(const Modulon& modulon, const std::string& input) {
  std::istringstream in(input);
  std::ostringstream out;
  TerminalPrompts prompts(in, out);
  PluginArguments arguments;
  arguments.outputPath = "/p/x.v";
  SettingValues values = modulon.defaultValues();
  const DialogOutcome outcome = prompts.collect(modulon, arguments, values);
  return {outcome, values, out.str()};
}

TEST(TerminalPromptsTest, EnterKeepsAndBadAnswersAreAskedAgain) {
  // decode: LPM_WIDTH, LPM_DECODES, ENABLE; then the finish question.
  const Session s = answer(decodeModulon(), "  4 \nmany\n16\n\nfinish\n");
  EXPECT_EQ(s.outcome, DialogOutcome::kFinish);
  EXPECT_EQ(s.values.at("LPM_WIDTH"), "4");
  EXPECT_EQ(s.values.at("LPM_DECODES"), "16");
  EXPECT_EQ(s.values.at("ENABLE"), "NO");
  EXPECT_NE(
      s.shown.find("\"many\" is not allowed for LPM_DECODES; allowed values: a whole number from 1 to 1024"),
      std::string::npos);
  EXPECT_NE(s.shown.find("LPM_WIDTH: Width of the data input (a whole number from 1 to 10) [3]: "),
            std::string::npos);
}

TEST(TerminalPromptsTest, ValuesThatDoNotFitAreAskedAgainFromTheStart) {
  const Session s = answer(decodeModulon(), "2\n8\n\n\n4\nyes\n\n");
  EXPECT_EQ(s.outcome, DialogOutcome::kFinish);
  EXPECT_NE(s.shown.find("LPM_DECODES=8 does not fit LPM_WIDTH=2"), std::string::npos);
  EXPECT_EQ(s.values.at("LPM_WIDTH"), "2");
  EXPECT_EQ(s.values.at("LPM_DECODES"), "4");
  EXPECT_EQ(s.values.at("ENABLE"), "YES");
}

TEST(TerminalPromptsTest, BackAndCancel) {
  EXPECT_EQ(answer(decodeModulon(), "4\n<\n").outcome, DialogOutcome::kBack);
  EXPECT_EQ(answer(decodeModulon(), "\n\n\nback\n").outcome, DialogOutcome::kBack);
  EXPECT_EQ(answer(decodeModulon(), "4\n").outcome, DialogOutcome::kCancel);
  EXPECT_EQ(answer(decodeModulon(), "\n\n\ncancel\n").outcome, DialogOutcome::kCancel);
  EXPECT_EQ(answer(decodeModulon(), "").outcome, DialogOutcome::kCancel);
}

}  // namespace
}  // namespace plovix::wizard
