// Values a setting allows, and reading the values stored in a prepared description.
#include <gtest/gtest.h>

#include "PreparedDescription.h"
#include "Setting.h"
#include "SettingsJson.h"

namespace plovix::wizard {
namespace {

TEST(SettingTest, ChoicesMatchWithoutCaseAndComeBackCanonical) {
  const Setting direction = choiceSetting("LPM_DIRECTION", "q", {"UP", "DOWN", "UNUSED"}, "UP");
  EXPECT_EQ(acceptValue(direction, "down"), "DOWN");
  EXPECT_EQ(acceptValue(direction, "Unused"), "UNUSED");
  EXPECT_FALSE(acceptValue(direction, "UPWARD"));
  EXPECT_FALSE(acceptValue(direction, ""));
  EXPECT_EQ(allowedValuesText(direction), "UP, DOWN, UNUSED");
}

TEST(SettingTest, NumbersAreWholeAndInRange) {
  const Setting width = numberSetting("LPM_WIDTH", "q", 1, 32, 8);
  EXPECT_EQ(acceptValue(width, "1"), "1");
  EXPECT_EQ(acceptValue(width, "32"), "32");
  EXPECT_EQ(acceptValue(width, "007"), "7");
  EXPECT_FALSE(acceptValue(width, "0"));
  EXPECT_FALSE(acceptValue(width, "33"));
  EXPECT_FALSE(acceptValue(width, "8bits"));
  EXPECT_FALSE(acceptValue(width, "-"));
  EXPECT_FALSE(acceptValue(width, "99999999999999999999"));
  EXPECT_EQ(allowedValuesText(width), "a whole number from 1 to 32");
}

TEST(SettingTest, TextIsOneLineWithoutDoubleQuotesAndEscapedInJson) {
  const Setting file = textSetting("LPM_FILE", "Initialisation \"file\" \\ path", "");
  EXPECT_EQ(acceptValue(file, "init data.hex"), "init data.hex");
  EXPECT_EQ(acceptValue(file, ""), "");
  EXPECT_FALSE(acceptValue(file, "a\"b"));
  EXPECT_FALSE(acceptValue(file, "a\nb"));
  const Modulon modulon{"m", "T\tt", {file}, nullptr, nullptr};
  EXPECT_EQ(
      settingsJson(modulon),
      "{\"modulon\": \"m\",\n \"title\": \"T\\u0009t\",\n \"settings\": [\n  {\"name\": \"LPM_FILE\", "
      "\"kind\": \"text\", \"default\": \"\", \"help\": \"Initialisation \\\"file\\\" \\\\ path\"}\n ]}\n");
}

TEST(PreparedDescriptionTest, ReadsPrivateValuesAsTheFormatCutsThem) {
  // As the manager rebuilds it for an edit: the VERSION: line first, CRLF line ends, retrieval-info lines.
  const std::string text =
      "VERSION: WM1.0\r\n"
      "MODULE: lpm_counter\r\n"
      "LIBRARY: lpm lpm.lpm_components.all\r\n"
      "PRIVATE: LPM_WIDTH NUMERIC \"12\"\r\n"
      "  PRIVATE:\tNOTE;STRING \"two words; one semicolon\"  \r\n"
      "PRIVATE: EMPTY STRING \"\"\r\n"
      "PRIVATE: BARE STRING UP\n"
      "CONSTANT: LPM_WIDTH NUMERIC 12\r\n"
      "// PRIVATE: COMMENTED STRING \"x\"\r\n"
      "PRIVATE:";
  const std::vector<PrivateValue> values = readPrivateValues(text);
  ASSERT_EQ(values.size(), 4u);
  EXPECT_EQ(values[0].name, "LPM_WIDTH");
  EXPECT_EQ(values[0].type, "NUMERIC");
  EXPECT_EQ(values[0].value, "12");
  EXPECT_EQ(values[1].name, "NOTE");
  EXPECT_EQ(values[1].value, "two words; one semicolon");
  EXPECT_EQ(values[2].value, "");
  EXPECT_EQ(values[3].value, "UP");
}

}  // namespace
}  // namespace plovix::wizard
