// Accepted statement lines and the records they leave: libraries, modules, values, ports, and the tokenizer
// rules that decide what a record holds.
#include "CnxFixture.h"
#include "cnx/CnxLineReader.h"

namespace plovix::testing {
namespace {

using StatementsTest = CnxFixture;

std::vector<std::string> tokensOf(std::string_view rest, std::vector<bool>* emptyQuoted = nullptr) {
  std::vector<std::string> tokens;
  CnxLine line;
  line.rest = rest;
  for (int guard = 0; guard < 20; ++guard) {
    line.take();
    if (line.token.empty() && !line.emptyQuoted) break;
    tokens.emplace_back(line.token);
    if (emptyQuoted != nullptr) emptyQuoted->push_back(line.emptyQuoted);
  }
  return tokens;
}

TEST(CnxTokenizerTest, DelimitersQuotesAndTheEmptyQuotedToken) {
  EXPECT_EQ(tokensOf(";; a\tb;;c ;"), (std::vector<std::string>{"a", "b", "c"}));
  // A quoted token keeps blanks and semicolons; a quote inside an unquoted token is an ordinary character.
  EXPECT_EQ(tokensOf("\"a b;c\" d\"e f"), (std::vector<std::string>{"a b;c", "d\"e", "f"}));
  // All leading and trailing quotes of a quoted token go; an unclosed one runs to the end of the line.
  EXPECT_EQ(tokensOf("\"x\"\"y z"), (std::vector<std::string>{"x", "y", "z"}));
  EXPECT_EQ(tokensOf("\"open to the end"), (std::vector<std::string>{"open to the end"}));
  // Two adjacent quotes are the empty quoted token, tested before a quoted token starts.
  std::vector<bool> quoted;
  EXPECT_EQ(tokensOf("\"\" \"\"\"x\" y", &quoted), (std::vector<std::string>{"", "", "x", "y"}));
  EXPECT_EQ(quoted, (std::vector<bool>{true, true, false, false}));

  // The rest after a token starts at the next token.
  CnxLine line;
  line.rest = "one;  two three";
  line.emptyQuoted = true;
  line.take();
  EXPECT_EQ(line.token, "one");
  EXPECT_EQ(line.rest, "two three");
  EXPECT_FALSE(line.emptyQuoted);
}

TEST_F(StatementsTest, LibrariesAndModules) {
  ASSERT_TRUE(read(kCnxHead + "LIBRARY: NO_DEFAULT_LIB\n"
                              "LIBRARY: lpm lpm_components\n"
                              "MODULE: A\n"
                              "MODULE: B\n"
                              "MODULE: A second\n"
                              "MODULE: C \"\"\n"));
  ASSERT_EQ(description.libraries.size(), 2u);
  EXPECT_EQ(description.libraries[0].name, "NO_DEFAULT_LIB");
  EXPECT_EQ(description.libraries[0].use, "");
  EXPECT_EQ(description.libraries[1].use, "lpm_components");
  EXPECT_EQ(description.mainModuleName, "A");
  ASSERT_EQ(description.modules.size(), 4u);
  // Modules without an instance name are instances of the main module's name.
  EXPECT_EQ(description.modules[0].instanceName, "A");
  EXPECT_EQ(description.modules[1].instanceName, "A");
  EXPECT_EQ(description.modules[1].givenInstanceName, "");
  EXPECT_EQ(description.modules[2].instanceName, "second");
  EXPECT_EQ(description.modules[2].givenInstanceName, "second");
  EXPECT_EQ(description.modules[3].instanceName, "A");
  EXPECT_EQ(textsOf(description.moduleNames), (std::vector<std::string>{"A", "B", "C"}));
}

TEST_F(StatementsTest, ModuleNamesAreCollectedEvenWhenOtherLinesFail) {
  EXPECT_FALSE(read(kCnxHead + "MODULE: B\nFOO:\nMODULE: A\nMODULE: B\n"));
  EXPECT_EQ(textsOf(description.moduleNames), (std::vector<std::string>{"B", "A"}));
}

TEST_F(StatementsTest, ParametersConstantsAndPrivates) {
  ASSERT_TRUE(read(kCnxHead + "MODULE: m\n"
                              "PARAMETER: width NUMERIC\n"
                              "PARAMETER: name STRING \"a b;c\" inst\n"
                              "PARAMETER: odd NUMERIC not_a_number\n"
                              "CONSTANT: C1;STRING;;\"\";target\n"
                              "PRIVATE: state STRING \"x y\"\n"));
  ASSERT_EQ(description.parameters.size(), 3u);
  EXPECT_EQ(description.parameters[0].value, "");
  EXPECT_EQ(description.parameters[0].target, "");
  EXPECT_EQ(description.parameters[1].value, "a b;c");
  EXPECT_EQ(description.parameters[1].target, "inst");
  EXPECT_EQ(description.parameters[2].value, "not_a_number");
  ASSERT_EQ(description.constants.size(), 1u);
  EXPECT_EQ(description.constants[0].type, ValueType::kString);
  EXPECT_EQ(description.constants[0].value, "");
  EXPECT_EQ(description.constants[0].target, "target");
  ASSERT_EQ(description.privates.size(), 1u);
  EXPECT_EQ(description.privates[0].value, "x y");
}

TEST_F(StatementsTest, UsedPortsGoToTheListOfTheirDirectionOrOfTheMainModule) {
  ASSERT_TRUE(read(kCnxHead + "MODULE: m\n"
                              "USED_PORT: data 8 0 0 0 INPUT NODEFVAL\n"
                              "USED_PORT: q 8 0 0 0 OUTPUT NODEFVAL Q_tag\n"
                              "USED_PORT: io 1 0 0 0 BIDIR GND\n"
                              "USED_PORT: @clock 0 0 0 0 OUTPUT NODEFVAL\n"
                              "USED_PORT: !@x 0 0 0 0 INPUT VCC\n"
                              "USED_PORT: !inv 0 0 0 0 INPUT NODEFVAL\n"
                              "USED_PORT: sub@y 4 0 0 0 INPUT NODEFVAL\n"));
  ASSERT_EQ(description.inputPorts.size(), 4u);
  EXPECT_EQ(description.inputPorts[0].name, "data");
  EXPECT_EQ(textsOf(description.inputPorts[0].shape), (std::vector<std::string>{"8", "0", "0", "0"}));
  EXPECT_EQ(description.inputPorts[0].tag, "");
  EXPECT_EQ(description.inputPorts[1].name, "x");
  EXPECT_EQ(description.inputPorts[1].defaultValue.kind, DefaultKind::kPower);
  EXPECT_EQ(description.inputPorts[2].name, "inv");
  EXPECT_EQ(description.inputPorts[3].name, "y");
  ASSERT_EQ(description.outputPorts.size(), 2u);
  EXPECT_EQ(description.outputPorts[0].tag, "Q_tag");
  EXPECT_EQ(description.outputPorts[1].direction, PortDirection::kBidir);
  EXPECT_EQ(description.outputPorts[1].defaultValue.kind, DefaultKind::kGround);
  ASSERT_EQ(description.mainModulePorts.size(), 1u);
  EXPECT_EQ(description.mainModulePorts[0].name, "clock");
  EXPECT_EQ(description.mainModulePorts[0].direction, PortDirection::kOutput);
  EXPECT_FALSE(description.uses2D);
}

TEST_F(StatementsTest, TwoNonZeroWidthsMakeTheDescriptionTwoDimensional) {
  struct Case {
    std::string line;
    bool twoD;
  };
  const Case cases[] = {
      {"USED_PORT: q 8 0 4 0 OUTPUT NODEFVAL", true},
      {"USED_PORT: q 8 0 00 0 OUTPUT NODEFVAL", true},  // compared as text
      {"USED_PORT: q 0 0 4 0 OUTPUT NODEFVAL", false},
      {"CONNECT: q 8 0 2 0 s@a 8 0 0 0", true},
      {"CONNECT: q 8 0 0 0 s@a 8 0 2 0", true},
      {"CONNECT: q 8 0 0 0 s@a 0 0 2 0", false},
      {"CONNECT: q 8 0 0 0 5 8 0 2 0", false},  // a constant's values are discarded
      {"CONNECT: q 8 0 2 0", false},            // a dropped line changes nothing
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.line);
    read(kCnxHead + "MODULE: m\n" + c.line + "\n");
    EXPECT_EQ(description.uses2D, c.twoD);
  }
}

}  // namespace
}  // namespace plovix::testing
