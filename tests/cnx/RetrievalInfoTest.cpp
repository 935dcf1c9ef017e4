// The retrieval info: the block a design file ends with, the CNX file rebuilt from a variation file in edit
// mode, and the generation line stripped from a CNX file left by an earlier run.
#include "CnxFixture.h"
#include "base/FileSystem.h"
#include "base/PathText.h"
#include "cnx/RetrievalInfo.h"

namespace plovix::testing {
namespace {

const std::string kRule = std::string(60, '=');
const std::string kWarning32 = reported(Msg::kExtraGenerationTokens);
const std::string kError30 = reported(Msg::kCnxWithoutModule, kManagerName);
const std::string kError31 = reported(Msg::kCnxUnknownVersion, kManagerName);

const std::string kDescriptionText = kCnxHead +
                                     "MODULE: lpm_counter\n"
                                     "MODULE: lpm_add_sub adder\n"
                                     "  LIBRARY: lpm lpm_components   \n"
                                     "// PARAMETER: commented out\n"
                                     "PARAMETER: LPM_WIDTH NUMERIC 8\n"
                                     "\n"
                                     "CONSTANT: c STRING \"a b\" adder\n"
                                     "PRIVATE: p STRING x\n"
                                     "USED_PORT:\tq 8 0 0 0 OUTPUT NODEFVAL\n"
                                     "CONNECT: q 8 0 0 0 @q 8 0 0 0\n"
                                     "SYMBOL: BOX 1 2 3 4\n";

const std::string kRetrievalLines =
    " Retrieval info: LIBRARY: lpm lpm_components\n"
    " Retrieval info: PARAMETER: LPM_WIDTH NUMERIC 8\n"
    " Retrieval info: CONSTANT: c STRING \"a b\" adder\n"
    " Retrieval info: PRIVATE: p STRING x\n"
    " Retrieval info: USED_PORT:\tq 8 0 0 0 OUTPUT NODEFVAL\n"
    " Retrieval info: CONNECT: q 8 0 0 0 @q 8 0 0 0\n";

// Puts `leader` in front of every line of `lines`.
std::string led(const std::string& leader, const std::string& lines) {
  std::string out;
  size_t pos = 0;
  while (pos < lines.size()) {
    const size_t end = lines.find('\n', pos);
    out += leader + lines.substr(pos, end + 1 - pos);
    pos = end + 1;
  }
  return out;
}

using RetrievalInfoTest = CnxFixture;

TEST_F(RetrievalInfoTest, BlockCarriesTheStatementLinesOnlyBehindTheCommentLeader) {
  // The statement word ends at a blank or tab only, so the last line is not carried.
  ASSERT_TRUE(read(kDescriptionText + "LIBRARY:;x y\n"));
  EXPECT_EQ(retrievalInfoText(description, "--"),
            "-- " + kRule + "\n-- CNX file retrieval info\n-- " + kRule + "\n" + led("--", kRetrievalLines));
  EXPECT_EQ(retrievalInfoText(description, "//"),
            "// " + kRule + "\n// CNX file retrieval info\n// " + kRule + "\n" + led("//", kRetrievalLines));
  EXPECT_TRUE(ui.boxes.empty());
}

// A variation file as the design-file writer lays it out: signature, header lines, design text, retrieval
// info.
std::string variationFile(const std::string& headerLines, const std::string& retrievalInfo) {
  return "-- modulon wizard: %lpm_counter%\n" + headerLines +
         "\n-- a design line that mentions no retrieval\nENTITY count8 IS\nEND count8;\n" + retrievalInfo;
}

TEST_F(RetrievalInfoTest, RoundTripRebuildsTheCnxFileThePlugInStartsFrom) {
  ASSERT_TRUE(read(kDescriptionText));
  const std::string block = retrievalInfoText(description, "--");
  int errorNumber = 0;
  ASSERT_TRUE(
      writeTextFile(temp.path("count8.vhd"),
                    variationFile("-- GENERATION: STANDARD\n-- VERSION: WM1.0\n-- MODULE: lpm_counter\n"
                                  "--\tMODULE:;lpm_add_sub adder\n",
                                  block),
                    errorNumber));

  ASSERT_TRUE(extractRetrievalInfo(ui, temp.path("count8.vhd")));
  EXPECT_TRUE(ui.boxes.empty());
  const std::string rebuilt =
      "VERSION: WM1.0\nMODULE: lpm_counter\nMODULE: lpm_add_sub adder\nLIBRARY: lpm lpm_components\n"
      "PARAMETER: LPM_WIDTH NUMERIC 8\nCONSTANT: c STRING \"a b\" adder\nPRIVATE: p STRING x\n"
      "USED_PORT:\tq 8 0 0 0 OUTPUT NODEFVAL\nCONNECT: q 8 0 0 0 @q 8 0 0 0\n";
  EXPECT_EQ(temp.read("count8.cnx"), toTextMode(rebuilt));

  // Read as it stands, it lacks the generation line the plug-in writes back.
  const CnxDescription written = std::move(description);
  EXPECT_FALSE(readFile("count8.cnx"));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{reported(Msg::kCnxFormatError, temp.path("count8.cnxerr"))});

  // With it, the description reads back as it was written, but for the symbol the header does not carry.
  temp.write("count8.cnx", "GENERATION: STANDARD\n" + temp.read("count8.cnx"));
  ASSERT_TRUE(readFile("count8.cnx"));
  const CnxDescription& again = description;
  EXPECT_EQ(textsOf(again.moduleNames), textsOf(written.moduleNames));
  EXPECT_EQ(again.modules[1].instanceName, "adder");
  EXPECT_EQ(again.libraries[0].use, written.libraries[0].use);
  EXPECT_EQ(again.constants[0].value, "a b");
  EXPECT_EQ(again.outputPorts[0].name, "q");
  EXPECT_EQ(again.retrievedStatements, written.retrievedStatements);
  EXPECT_TRUE(again.symbolElements.empty());
  EXPECT_TRUE(again.defaultSymbolBox);
}

TEST_F(RetrievalInfoTest, ExtraTextOnHeaderLinesIsIgnoredWithAWarning) {
  int errorNumber = 0;
  ASSERT_TRUE(writeTextFile(temp.path("v.vhd"),
                            variationFile("-- GENERATION: STANDARD extra\n-- VERSION: WM1.0 extra\n"
                                          "-- MODULE: a b c\n-- MODULE: d\n",
                                          "-- Retrieval info:\n-- Retrieval info: LIBRARY: lpm x\n"),
                            errorNumber));
  ASSERT_TRUE(extractRetrievalInfo(ui, temp.path("v.vhd")));
  EXPECT_EQ(ui.boxes, std::vector<std::string>(3, kWarning32));
  EXPECT_EQ(fromTextMode(temp.read("v.cnx")), "VERSION: WM1.0\nMODULE: a b\nMODULE: d\n\nLIBRARY: lpm x\n");
}

TEST_F(RetrievalInfoTest, UnknownVersionOrNoModuleStopsTheEdit) {
  int errorNumber = 0;
  const std::string badVersions[] = {"-- VERSION:\n", "// VERSION: WM1.0\n", "-- version: WM1.0\n", ""};
  for (const std::string& versionLine : badVersions) {
    SCOPED_TRACE(versionLine);
    ui.boxes.clear();
    ASSERT_TRUE(writeTextFile(temp.path("v.vhd"),
                              variationFile("-- GENERATION: STANDARD\n" + versionLine + "-- MODULE: a\n", ""),
                              errorNumber));
    EXPECT_FALSE(extractRetrievalInfo(ui, temp.path("v.vhd")));
    EXPECT_EQ(ui.boxes, std::vector<std::string>{kError31});
    EXPECT_FALSE(fileExists(temp.path("v.cnx")));
  }

  ui.boxes.clear();
  ASSERT_TRUE(
      writeTextFile(temp.path("v.vhd"),
                    variationFile("-- GENERATION: STANDARD\n-- VERSION: WM1.0\n-- MODULE:\n// MODULE: b\n",
                                  "-- Retrieval info: LIBRARY: lpm x\n"),
                    errorNumber));
  EXPECT_FALSE(extractRetrievalInfo(ui, temp.path("v.vhd")));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{kError30});
  // The file is written all the same.
  EXPECT_EQ(fromTextMode(temp.read("v.cnx")), "VERSION: WM1.0\nLIBRARY: lpm x\n");
}

TEST_F(RetrievalInfoTest, OnlyStandardWizardFilesAreRebuilt) {
  const std::pair<std::string, std::string> files[] = {
      {"plain.vhd", "ENTITY x IS\n-- GENERATION: STANDARD\n-- VERSION: WM1.0\n-- MODULE: a\n"},
      {"second.vhd", "\n-- modulon wizard: %lpm_counter%\n-- GENERATION: STANDARD\n-- VERSION: WM1.0\n"},
      {"symbol.vhd", variationFile("-- GENERATION: SYMBOL_ONLY\n-- VERSION: WM1.0\n-- MODULE: a\n", "")},
      {"bad.vhd", variationFile("-- GENERATION:\n-- VERSION: WM1.0\n-- MODULE: a\n", "")},
      {"short.vhd", "-- modulon wizard: %lpm_counter%\n"},
  };
  for (const auto& [name, text] : files) {
    temp.write(name, text);
    const bool wizardFile = name != "plain.vhd" && name != "second.vhd";
    EXPECT_EQ(extractRetrievalInfo(ui, temp.path(name)), wizardFile) << name;
    EXPECT_FALSE(fileExists(pathWithoutExtension(temp.path(name)) + ".cnx")) << name;
  }
  EXPECT_FALSE(extractRetrievalInfo(ui, temp.path("missing.vhd")));
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(RetrievalInfoTest, RebuiltFileThatCannotBeWrittenIsAFileError) {
  temp.write("v.vhd", variationFile("-- GENERATION: STANDARD\n-- VERSION: WM1.0\n-- MODULE: a\n", ""));
  temp.write("v.cnx/occupied", "");
  EXPECT_FALSE(extractRetrievalInfo(ui, temp.path("v.vhd")));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{reported(Msg::kUnknownFileError)});
}

TEST_F(RetrievalInfoTest, StripGenerationLineRemovesOnlyAValidGenerationLine) {
  temp.write("a.cnx", "GENERATION: SYMBOL_ONLY extra\r\nVERSION: WM1.0\nMODULE: m");
  EXPECT_TRUE(stripGenerationLine(ui, temp.path("a.cnx")));
  EXPECT_EQ(temp.read("a.cnx"), "VERSION: WM1.0\r\nMODULE: m\r\n");

  const std::string untouched[] = {"VERSION: WM1.0\nMODULE: m\n", "GENERATION: INVALID\nVERSION: WM1.0\n",
                                   "\nGENERATION: STANDARD\n", ""};
  for (const std::string& text : untouched) {
    SCOPED_TRACE(text);
    temp.write("b.cnx", text);
    EXPECT_TRUE(stripGenerationLine(ui, temp.path("b.cnx")));
    EXPECT_EQ(temp.read("b.cnx"), text);
  }
  EXPECT_TRUE(ui.boxes.empty());

  EXPECT_FALSE(stripGenerationLine(ui, temp.path("none.cnx")));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{reported(Msg::kFileNotOpened, temp.path("none.cnx"))});
}

}  // namespace
}  // namespace plovix::testing
