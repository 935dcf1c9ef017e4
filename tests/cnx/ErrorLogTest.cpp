// The .cnxerr log, compared whole: faults in every statement kind, in the first two lines and at the end of
// the file, and what happens around the log file itself.
#include "CnxFixture.h"

namespace plovix::testing {
namespace {

using ErrorLogTest = CnxFixture;

TEST_F(ErrorLogTest, FaultsInEveryStatementKindAreLoggedInFileOrderAndTheLinesDropped) {
  const std::string text = kCnxHead +
                           "// a comment line\n"
                           "MODULE: lpm_counter\n"
                           "LIBRARY: lpm\n"
                           "LIBRARY: 9lpm lpm.components\n"
                           "MODULE:\n"
                           "MODULE: m inst extra more\n"
                           "PARAMETER: 1width NUMERIC 8\n"
                           "PARAMETER: width numeric 8\n"
                           "PARAMETER: width NUMERIC 8 4target\n"
                           "CONSTANT: c STRING \"a b\" t extra tokens\n"
                           "PRIVATE: p\n"
                           "PRIVATE: p STRING v t\n"
                           "USED_PORT:\n"
                           "USED_PORT: q 8 0 0 OUTPUT NODEFVAL\n"
                           "USED_PORT: q 8 0 0 0 OUTPUT\n"
                           "USED_PORT: q 8 0 0 0 OUTPUT NODEFVAL tag more text\n"
                           "CONNECT: q 8 0 0\n"
                           "CONNECT: q 8 0 0 0\n"
                           "CONNECT: q 8 0 0 0 GND 1 0 0\n"
                           "CONNECT: q 8 0 0 0 GND 1 0 0 0 x\n"
                           "   FOO: bar  \n"
                           "SYMBOL: BOGUS 1 2\n"
                           "PARAMETER: width NUMERIC 8\n";
  EXPECT_FALSE(read(text));
  EXPECT_EQ(log(), banner() + entry(5, "", Msg::kCnxNoIdentifier) +
                       entry(6, "lpm.components", Msg::kCnxIdentifierStart) +
                       entry(7, "", Msg::kCnxNoIdentifier) + entry(8, "more", Msg::kCnxExtraTokens) +
                       entry(9, "NUMERIC 8", Msg::kCnxIdentifierStart) + entry(10, "8", Msg::kCnxNoType) +
                       entry(11, "", Msg::kCnxIdentifierStart) + entry(12, "tokens", Msg::kCnxExtraTokens) +
                       entry(13, "", Msg::kCnxNoType) + entry(14, "", Msg::kCnxExtraTokens) +
                       entry(15, "", Msg::kCnxNoIdentifier) + entry(16, "", Msg::kCnxNoPortType) +
                       entry(17, "", Msg::kCnxNoValue) + entry(18, "text", Msg::kCnxExtraTokens) +
                       entry(19, "", Msg::kCnxNoValue) + entry(20, "", Msg::kCnxNoIdentifier) +
                       entry(21, "", Msg::kCnxNoValue) + entry(22, "", Msg::kCnxExtraTokens) +
                       entry(23, "bar", Msg::kCnxUnknownStatement) +
                       entry(24, "1 2", Msg::kCnxUnknownSymbolElement));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{error33()});
  // Only the accepted lines left records.
  EXPECT_EQ(description.modules.size(), 1u);
  EXPECT_TRUE(description.libraries.empty());
  EXPECT_EQ(description.parameters.size(), 1u);
  EXPECT_TRUE(description.constants.empty());
  EXPECT_TRUE(description.privates.empty());
  EXPECT_TRUE(description.outputPorts.empty());
  EXPECT_TRUE(description.connectionMap.empty());
  EXPECT_TRUE(description.symbolElements.empty());
}

TEST_F(ErrorLogTest, FaultsInSymbolLinesAreLoggedWithTheirOwnMessages) {
  const std::string text = kCnxHead +
                           "MODULE: m\n"
                           "SYMBOL:\n"
                           "SYMBOL: LINE 0 0 10 x\n"
                           "SYMBOL: LINE 0 0 10 10 solid\n"
                           "SYMBOL: RECT 0 0 10 10 SOLID FAT\n"
                           "SYMBOL: ARC 1 2 3 4 5 6\n"
                           "SYMBOL: CIRCLE 1 2 3 YES\n"
                           "SYMBOL: TEXT t 1 2 DIAGONAL font\n"
                           "SYMBOL: PINSTUB 0 0 a 10 10 a\n"
                           "SYMBOL: PARAMETER\n"
                           "SYMBOL: BOX 100 100 5\n"
                           "SYMBOL: LINE 0 0 10 10 SOLID THIN extra words\n"
                           "SYMBOL: CIRCLE 1 2 3 TRUE\n";
  EXPECT_FALSE(read(text));
  EXPECT_EQ(log(), banner() + entry(4, "", Msg::kCnxUnknownSymbolElement) + entry(5, "", Msg::kCnxNoNumber) +
                       entry(6, "", Msg::kCnxNoLineStyle) + entry(7, "", Msg::kCnxNoLineWidth) +
                       entry(8, "", Msg::kCnxNoNumber) + entry(9, "", Msg::kCnxNoLogical) +
                       entry(10, "font", Msg::kCnxNoOrientation) + entry(11, "10 10 a", Msg::kCnxNoStubType) +
                       entry(13, "", Msg::kCnxNoNumber) + entry(14, "words", Msg::kCnxExtraTokens));
  // The PARAMETER element without its text is dropped silently; the dropped BOX still asks for a drawn
  // symbol.
  EXPECT_FALSE(description.defaultSymbolBox);
  ASSERT_EQ(description.symbolElements.size(), 1u);
  EXPECT_EQ(description.symbolElements[0].kind, SymbolKind::kCircle);
}

TEST_F(ErrorLogTest, FirstTwoLinesMustBeTheGenerationAndVersionLines) {
  struct Case {
    std::string text, log;
  };
  const Case cases[] = {
      {"", entry(0, "", Msg::kCnxUnexpectedEnd)},
      {"GENERATION: STANDARD extra words\n", entry(1, "extra words", Msg::kCnxUnexpectedEnd)},
      {"GENERATION: standard\nVERSION: WM1.0\nMODULE: m\n", entry(1, "", Msg::kCnxNoGenerationMode)},
      {"\nGENERATION: STANDARD\n", entry(1, "", Msg::kCnxNoGenerationMode)},
      {"// GENERATION: STANDARD\n", entry(1, "GENERATION: STANDARD", Msg::kCnxNoGenerationMode)},
      {"GENERATION: SYMBOL_ONLY\nVERSION: WM3.0 x\nMODULE: m\n",
       entry(2, "x", Msg::kCnxUnknownVersionNumber)},
      {"GENERATION: STANDARD\n\nVERSION: WM1.0\n", entry(2, "", Msg::kCnxUnknownVersionNumber)},
      // A WM2.0 body has no reader: the read fails with the banner alone.
      {"GENERATION: STANDARD\nVERSION: WM2.0\nMODULE: m\n", ""},
      {kCnxHead + "// only\n\n   \n// comments\n", entry(6, "comments", Msg::kCnxNoModuleName)},
      {kCnxHead, entry(2, "", Msg::kCnxNoModuleName)},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    ui.boxes.clear();
    EXPECT_FALSE(read(c.text));
    EXPECT_EQ(log(), banner() + c.log);
    EXPECT_EQ(ui.boxes, std::vector<std::string>{error33()});
  }
}

TEST_F(ErrorLogTest, ValidFileLeavesTheBannerAloneInTextMode) {
  temp.write("var.cnxerr", "an older log that must go\n");
  EXPECT_TRUE(read("GENERATION: SYMBOL_ONLY trailing words\nVERSION: WM1.0 more\r\nMODULE: m\r\n"));
  EXPECT_EQ(temp.read("var.cnxerr"),
            "*******************************************\r\n"
            "**       CNX File Error Log              **\r\n"
            "*******************************************\r\n\r\n");
  EXPECT_TRUE(ui.boxes.empty());
  EXPECT_EQ(description.generationMode, GenerationMode::kSymbolOnly);
  EXPECT_EQ(description.version, "WM1.0");
}

TEST_F(ErrorLogTest, MissingCnxFileIsAFileErrorAfterTheLogWasCreated) {
  EXPECT_FALSE(readFile("none.cnx"));
  EXPECT_EQ(ui.boxes, std::vector<std::string>{reported(Msg::kFileNotOpened, temp.path("none.cnx"))});
  EXPECT_EQ(fromTextMode(temp.read("none.cnxerr")), banner());

  // Without any path neither file can be opened.
  RecordingInterface pathless;
  EXPECT_FALSE(CnxReader(pathless, "").read());
  EXPECT_EQ(pathless.boxes, std::vector<std::string>(2, reported(Msg::kFileNotOpened, "")));
}

TEST_F(ErrorLogTest, LogThatCannotBeCreatedIsReportedAtEveryFaultAndNoEntryIsWritten) {
  temp.write("dir/var.cnx", kCnxHead + "FOO:\nMODULE: m\n");
  // A directory where the log should be: it can neither be created nor appended to.
  temp.write("dir/var.cnxerr/keep", "");
  EXPECT_FALSE(readFile("dir/var.cnx"));
  // The log stays to be created, so the fault of line 3 tries again and its entry is lost; reading goes on.
  const std::vector<std::string> expected = {reported(Msg::kUnknownFileError),
                                             reported(Msg::kUnknownFileError),
                                             reported(Msg::kCnxFormatError, temp.path("dir/var.cnxerr"))};
  EXPECT_EQ(ui.boxes, expected);
  EXPECT_EQ(description.modules.size(), 1u);
}

}  // namespace
}  // namespace plovix::testing
