// Accepted statement lines and the records they leave: libraries, modules, values, ports, and the tokenizer
// rules that decide what a record holds.
#include <algorithm>
#include <filesystem>

#include "CnxFixture.h"
#include "Golden.h"
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

// The records of a description, one a line, with every field.
std::string recordsOf(const CnxDescription& d) {
  std::string out = "main module: " + d.mainModuleName.str() + "\nmodule names:";
  for (Name name : d.moduleNames) out += " " + name.str();
  out += "\n";
  for (const CnxLibrary& l : d.libraries) out += "LIBRARY " + l.name.str() + " [" + l.use.str() + "]\n";
  for (const CnxModule& m : d.modules)
    out += "MODULE " + m.moduleName.str() + " " + m.instanceName.str() + " [" + m.givenInstanceName.str() +
           "]\n";
  auto value = [&out](const char* kind, Name name, ValueType type, Name text, const std::string& target) {
    out += std::string(kind) + " " + name.str() + (type == ValueType::kString ? " STRING [" : " NUMERIC [") +
           text.str() + "]" + target + "\n";
  };
  for (const CnxParameter& p : d.parameters)
    value("PARAMETER", p.name, p.type, p.value, " " + p.target.str());
  for (const CnxConstant& c : d.constants) value("CONSTANT", c.name, c.type, c.value, " " + c.target.str());
  for (const CnxPrivate& p : d.privates) value("PRIVATE", p.name, p.type, p.value, "");
  for (const auto& [list, ports] :
       {std::pair{"input", &d.inputPorts}, {"output", &d.outputPorts}, {"main module", &d.mainModulePorts}}) {
    for (const CnxUsedPort& p : *ports) {
      out += std::string(list) + " port " + p.name.str() + " (" + textsOf(p.shape)[0] + " " +
             textsOf(p.shape)[1] + " " + textsOf(p.shape)[2] + " " + textsOf(p.shape)[3] + ") " +
             std::string(directionKeyword(p.direction)) + " default " +
             std::to_string(static_cast<int>(p.defaultValue.kind)) + " " + p.defaultValue.text.str() +
             " tag [" + p.tag.str() + "]\n";
    }
  }
  return out + (d.uses2D ? "two-dimensional\n" : "");
}

std::vector<std::string> statementSamples() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(PLOVIX_TEST_DATA_DIR "/statements")) {
    if (entry.path().extension() == ".cnx") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class StatementSample : public CnxFixture, public ::testing::WithParamInterface<std::string> {};

// Accepted lines of every kind (data/statements/*.cnx, each saying its rule) and the records they leave
// (golden *.records).
TEST_P(StatementSample, LeavesItsRecords) {
  const std::string file = std::string(PLOVIX_TEST_DATA_DIR) + "/statements/" + GetParam();
  ASSERT_TRUE(read(TempDir::readFile(file + ".cnx")));
  expectGolden(recordsOf(description), file + ".records");
}

INSTANTIATE_TEST_SUITE_P(Samples, StatementSample, ::testing::ValuesIn(statementSamples()),
                         [](const auto& info) { return info.param; });

TEST_F(StatementsTest, ModuleNamesAreCollectedEvenWhenOtherLinesFail) {
  EXPECT_FALSE(read(kCnxHead + "MODULE: B\nFOO:\nMODULE: A\nMODULE: B\n"));
  EXPECT_EQ(textsOf(description.moduleNames), (std::vector<std::string>{"B", "A"}));
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
