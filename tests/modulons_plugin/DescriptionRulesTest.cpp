// Every modulon, in every language and with every choice, describes a variation that the HDL writers turn
// into text the tools accept: ports declared and connected consistently, and none of the forms that the
// writers' known limits cover (two-dimensional ports only in THDL).
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

#include "ModulonLibrary.h"
#include "PluginMessages.h"
#include "WizardRun.h"

namespace plovix::wizard {
namespace {

struct Port {
  std::vector<std::string> bounds;
  std::string direction;
};

std::vector<std::string> words(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> out;
  for (std::string w; in >> w;) out.push_back(w);
  return out;
}

bool isConstant(std::string ref) {
  if (!ref.empty() && ref[0] == '!') ref.erase(0, 1);
  if (ref == "VCC" || ref == "GND") return true;
  return !ref.empty() && ref.find_first_not_of("-0123456789") == std::string::npos;
}

// Checks one description; failures name the modulon and the values.
void checkDescription(const std::string& cnx, OutputLanguage language, const std::string& context) {
  std::map<std::string, Port> ports;
  std::set<std::string> instances, connected, drivenSubPorts;
  std::string mainModule;
  for (std::istringstream in(cnx); !in.eof();) {
    std::string line;
    std::getline(in, line);
    const std::vector<std::string> w = words(line);
    if (w.empty()) continue;
    if (w[0] == "MODULE:") {
      if (mainModule.empty()) mainModule = w[1];
      instances.insert(w.size() > 2 ? w[2] : mainModule);
    } else if (w[0] == "USED_PORT:") {
      ASSERT_GE(w.size(), 8u) << context << line;
      EXPECT_NE(w[1][0], '@') << context << line;
      EXPECT_TRUE(w[7] == "NODEFVAL" || w[7] == "GND" || w[7] == "VCC") << context << line;
      if (w[2] != "0" && w[4] != "0") {
        EXPECT_EQ(language, OutputLanguage::kThdl)
            << context << "two-dimensional port outside THDL: " << line;
      }
      ports[w[1]] = Port{{w[2], w[3], w[4], w[5]}, w[6]};
    } else if (w[0] == "PARAMETER:") {
      ASSERT_GE(w.size(), 5u) << context
                              << "a parameter without a target is passed to every instance: " << line;
      EXPECT_EQ(instances.count(w[4]), 0u) << context << "parameter passed to a sub-module: " << line;
    } else if (w[0] == "CONNECT:") {
      ASSERT_EQ(w.size(), 11u) << context << line;
      const std::string& driven = w[1];
      const std::string& driver = w[6];
      const std::vector<std::string> drivenBounds(w.begin() + 2, w.begin() + 6);
      const std::vector<std::string> driverBounds(w.begin() + 7, w.begin() + 11);
      EXPECT_EQ(driven.find('!'), std::string::npos) << context << line;
      if (driven.find('@') != std::string::npos) {
        EXPECT_TRUE(drivenSubPorts.insert(driven).second) << context << "sub-module port fed twice: " << line;
      } else {
        ASSERT_TRUE(ports.count(driven)) << context << "undeclared port: " << line;
        EXPECT_EQ(ports[driven].direction, "OUTPUT") << context << line;
        EXPECT_EQ(ports[driven].bounds, drivenBounds) << context << line;
        EXPECT_EQ(driver[0] == '!', false) << context << "inverted sub-module output: " << line;
        connected.insert(driven);
      }
      if (isConstant(driver)) {
        EXPECT_FALSE(driver == "VCC" && drivenBounds[2] != "0") << context << "VCC driving a bus: " << line;
        EXPECT_EQ(drivenBounds[3], "0") << context << "constant feeding a slice: " << line;
      } else if (driver.find('@') == std::string::npos) {
        const std::string name = driver[0] == '!' ? driver.substr(1) : driver;
        ASSERT_TRUE(ports.count(name)) << context << "undeclared port: " << line;
        // A bidirectional bus is handed to the sub-module as it is, like an input.
        EXPECT_TRUE(ports[name].direction == "INPUT" || ports[name].direction == "BIDIR") << context << line;
        EXPECT_EQ(ports[name].bounds, driverBounds) << context << line;
        connected.insert(name);
      }
      EXPECT_FALSE(drivenBounds[2] != "0" && driverBounds[2] == "0" && driverBounds[0] == "0" &&
                   !isConstant(driver))
          << context << "one bit driving a bus: " << line;
    }
  }
  for (const auto& [name, port] : ports)
    EXPECT_TRUE(connected.count(name)) << context << "unused port " << name;
}

// Defaults, then every choice of every choice setting and both ends of every number range, one at a time;
// combinations the modulon itself refuses are left out.
std::vector<SettingValues> variationsOf(const Modulon& modulon) {
  std::vector<SettingValues> out{modulon.defaultValues()};
  for (const Setting& setting : modulon.settings) {
    std::vector<std::string> candidates = setting.choices;
    if (setting.isNumber()) candidates = {std::to_string(setting.minimum), std::to_string(setting.maximum)};
    for (const std::string& candidate : candidates) {
      SettingValues values = modulon.defaultValues();
      values[setting.name] = candidate;
      if (!modulon.check(values)) out.push_back(values);
    }
  }
  return out;
}

TEST(DescriptionRulesTest, EveryModulonInEveryLanguage) {
  for (const Modulon& modulon : bundledModulons()) {
    EXPECT_FALSE(modulon.check(modulon.defaultValues())) << modulon.name << ": defaults must fit together";
    for (const OutputLanguage language :
         {OutputLanguage::kThdl, OutputLanguage::kVhdl, OutputLanguage::kVerilog}) {
      for (const SettingValues& values : variationsOf(modulon)) {
        std::string context = modulon.name + " (language " + std::to_string(static_cast<int>(language)) + ")";
        for (const auto& [name, value] : values) context += " " + name + "=" + value;
        context += ": ";
        checkDescription(descriptionFor(modulon, values, language), language, context);
      }
    }
  }
}

TEST(DescriptionRulesTest, WordGroupsAreRowsInThdlAndFlattenedElsewhere) {
  const Modulon mux = muxModulon();
  SettingValues values = mux.defaultValues();
  values["LPM_SIZE"] = "5";
  values["LPM_WIDTH"] = "3";
  const std::string rows = descriptionFor(mux, values, OutputLanguage::kThdl);
  EXPECT_NE(rows.find("USED_PORT: data 5 0 3 0 INPUT NODEFVAL \"data[4..0][2..0]\""), std::string::npos);
  EXPECT_NE(rows.find("CONSTANT: LPM_WIDTHS NUMERIC 3\n"), std::string::npos);
  for (const OutputLanguage language : {OutputLanguage::kVhdl, OutputLanguage::kVerilog}) {
    const std::string flat = descriptionFor(mux, values, language);
    EXPECT_NE(flat.find("USED_PORT: data 0 0 15 0 INPUT NODEFVAL \"data[14..0]\""), std::string::npos);
    EXPECT_NE(flat.find("USED_PORT: sel 0 0 3 0 INPUT"), std::string::npos);
  }
}

TEST(DescriptionRulesTest, ChecksRefuseValuesThatDoNotFitTogether) {
  struct Case {
    const char* modulon;
    SettingValues changes;  // from the defaults
    std::string refusal;    // empty: accepted
  };
  const Case kCases[] = {
      {"lpm_mult", {{"LPM_WIDTHA", "12"}, {"LPM_WIDTHP", "21"}}, productTooWideText(21, 20)},
      {"lpm_mult", {{"LPM_WIDTHA", "12"}, {"LPM_WIDTHP", "20"}}, ""},
      {"lpm_mult", {{"ACLR", "YES"}}, needsPipelineText("ACLR")},
      {"lpm_divide", {{"CLKEN", "YES"}}, needsPipelineText("CLKEN")},
      {"lpm_divide", {{"CLKEN", "YES"}, {"LPM_PIPELINE", "1"}}, ""},
      {"lpm_clshift", {{"LPM_SHIFTTYPE", "ROTATE"}, {"UNDERFLOW", "YES"}}, rotateHasNoFlagText("UNDERFLOW")},
      {"lpm_clshift",
       {{"DIRECTION", "RIGHT"}, {"OVERFLOW", "YES"}},
       flagNeedsDirectionText("OVERFLOW", "LEFT or INPUT")},
      {"lpm_clshift", {{"UNDERFLOW", "YES"}}, flagNeedsDirectionText("UNDERFLOW", "RIGHT or INPUT")},
      {"lpm_clshift", {{"DIRECTION", "INPUT"}, {"OVERFLOW", "YES"}, {"UNDERFLOW", "YES"}}, ""},
      {"lpm_bustri", {{"ENABLEDT", "NO"}, {"ENABLETR", "NO"}}, noBusPathText()},
      {"lpm_ff", {{"LPM_FFTYPE", "TFF"}, {"SLOAD", "YES"}}, ""},
      {"lpm_ff", {{"SLOAD", "YES"}}, loadNeedsToggleText()},
      {"lpm_ff", {{"LPM_WIDTH", "4"}, {"LPM_AVALUE", "15"}, {"LPM_SVALUE", "0"}}, ""},
      {"lpm_ff", {{"LPM_WIDTH", "4"}, {"LPM_SVALUE", "16"}}, setValueTooWideText("LPM_SVALUE", 16, 4)},
      {"lpm_ff", {{"LPM_WIDTH", "31"}, {"LPM_AVALUE", "2147483647"}}, ""},
      {"lpm_latch", {{"LPM_WIDTH", "1"}, {"LPM_AVALUE", "2"}}, setValueTooWideText("LPM_AVALUE", 2, 1)},
      {"lpm_rom", {{"LPM_WIDTHAD", "3"}, {"LPM_NUMWORDS", "8"}, {"LPM_FILE", "data/rom.hex"}}, ""},
      {"lpm_rom", {{"LPM_WIDTHAD", "3"}, {"LPM_NUMWORDS", "9"}}, tooManyWordsText(9, 3)},
      {"lpm_rom", {{"LPM_FILE", ""}}, missingFileText()},
      {"lpm_rom", {{"LPM_FILE", "data\\rom.hex"}}, badValueText("LPM_FILE", "data\\rom.hex", fileNameText())},
      {"lpm_ram_dp",
       {{"LPM_RDADDRESS_CONTROL", "UNREGISTERED"},
        {"LPM_OUTDATA", "REGISTERED"},
        {"RDEN", "YES"},
        {"RDCLKEN", "YES"}},
       ""},
      {"lpm_ram_dp",
       {{"LPM_RDADDRESS_CONTROL", "UNREGISTERED"}, {"RDCLKEN", "YES"}},
       readEnableNeedsClockText()},
      {"scfifo", {{"LPM_NUMWORDS", "4"}, {"ALMOST_FULL_VALUE", "4"}, {"ALMOST_EMPTY_VALUE", "4"}}, ""},
      {"scfifo",
       {{"LPM_NUMWORDS", "4"}, {"ALMOST_EMPTY_VALUE", "5"}},
       levelAboveDepthText("ALMOST_EMPTY_VALUE", 5, 4)},
      {"fifo_level", {{"LPM_NUMWORDS", "8"}, {"LEVEL", "9"}}, levelAboveDepthText("LEVEL", 9, 8)},
  };
  const std::vector<Modulon> modulons = bundledModulons();
  for (const Case& c : kCases) {
    const Modulon* modulon = findModulon(modulons, c.modulon);
    ASSERT_NE(modulon, nullptr) << c.modulon;
    SettingValues values = modulon->defaultValues();
    for (const auto& [name, value] : c.changes) values[name] = value;
    EXPECT_EQ(modulon->check(values).value_or(""), c.refusal) << c.modulon;
  }
}

TEST(DescriptionRulesTest, CompositeWiresTheCounterIntoTheComparator) {
  const Modulon composite = countCompareModulon();
  const std::string cnx = descriptionFor(composite, composite.defaultValues(), OutputLanguage::kVhdl);
  EXPECT_NE(cnx.find("MODULE: lpm_counter counter\nMODULE: lpm_compare compare\n"), std::string::npos);
  EXPECT_NE(cnx.find("CONNECT: compare@dataa 0 0 8 0 counter@q 0 0 8 0\n"), std::string::npos);
  EXPECT_NE(cnx.find("CONNECT: compare@datab 0 0 8 0 10 0 0 0 0\n"), std::string::npos);
  EXPECT_NE(cnx.find("CONSTANT: LPM_TYPE STRING \"LPM_COMPARE\" compare\n"), std::string::npos);
}

}  // namespace
}  // namespace plovix::wizard
