// Tests of the catalog: records and sections, the variant rule, information blocks, aliases and warnings.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "catalog/WizardCatalog.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::reported;
using testing::TempDir;
using Strings = std::vector<std::string>;

class CatalogTest : public ::testing::Test {
 protected:
  // Loads the catalogs of the given paths; a directory named "@" stands for the temporary directory.
  void load(const std::string& userPath, const std::string& hostPath = "") {
    catalog = WizardCatalog();
    catalog.loadFrom(ui, expand(userPath), expand(hostPath));
  }
  std::string expand(const std::string& path) const {
    std::string result;
    for (char c : path) result += c == '@' ? dir.dir().substr(0, dir.dir().size() - 1) : std::string(1, c);
    return result;
  }
  Strings names() const {
    Strings result;
    for (const CatalogEntry& entry : catalog.entries()) result.push_back(entry.name);
    return result;
  }

  TempDir dir;
  RecordingInterface ui;
  WizardCatalog catalog;
};

TEST_F(CatalogTest, ReadsEntriesSectionsAndOptions) {
  dir.write("a_wizard.lst",
            "// comment\r\n"
            "\r\n"
            "  [arithmetic|counters]  \r\n"
            "COUNTER [-No2D] = wizard.exe -m counter\r\n"
            "ADDER [fast, -no2d]=add\\er.exe#second line==ignored\r\n"
            "LONG=first part+\r\n"
            "  -option\r\n");
  load("@");
  ASSERT_EQ(names(), (Strings{"COUNTER", "ADDER", "LONG"}));
  const CatalogEntry& counter = catalog.entries()[0];
  EXPECT_EQ(counter.section, "arithmetic|counters");
  EXPECT_EQ(counter.commandLine, "wizard.exe -m counter");
  EXPECT_EQ(counter.directory, dir.dir());
  EXPECT_FALSE(counter.supports2D);
  EXPECT_TRUE(counter.primary);
  EXPECT_EQ(counter.variantNumber, 1);
  EXPECT_TRUE(catalog.entries()[1].supports2D);  // options match exactly
  EXPECT_EQ(catalog.entries()[1].commandLine, "add/er.exe\nsecond line");
  EXPECT_EQ(catalog.entries()[2].commandLine, "first part -option");
  EXPECT_EQ(catalog.userLibraryDirectories(), Strings{dir.dir()});
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(CatalogTest, ReadsFilesInNameOrderAndInheritsTheSectionAcrossFiles) {
  dir.write("b_wizard.lst", "SECOND=two\n");
  dir.write("a_wizard.lst", "[first|folder]\nFIRST=one\n");
  dir.write("c_wizard.lst.bak", "IGNORED=x\n");
  dir.write("d_Wizard.lst", "IGNORED=x\n");
  dir.write("sub_wizard.lst/inner_wizard.lst", "IGNORED=x\n");
  load("@");
  ASSERT_EQ(names(), (Strings{"FIRST", "SECOND"}));
  EXPECT_EQ(catalog.entries()[1].section, "first|folder");
}

TEST_F(CatalogTest, ScansBothPathsAndSkipsWhatItCannotRead) {
  dir.write("user/u_wizard.lst", "USER=u\n");
  dir.write("host/h_wizard.lst", "HOST=h\n");
  load(" @/user ; ;@/missing", "@/host/;@/user");
  EXPECT_EQ(names(), (Strings{"USER", "HOST"}));  // user directory scanned twice: the second is a duplicate
  EXPECT_EQ(catalog.userLibraryDirectories(), (Strings{dir.dir() + "user/", dir.dir() + "missing/"}));
  EXPECT_EQ(catalog.findDirectory("HOST"), dir.dir() + "host/");
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(CatalogTest, VariantsOfOneNameAndSectionGetTheirCommandLines) {
  dir.write("a_wizard.lst", "[s]\nFOO=command one\nBAR=bar\n");
  dir.write("b_wizard.lst", "foo=command two\nFOO=command three\nFOO=COMMAND ONE\n[t]\nFOO=other section\n");
  load("@");
  EXPECT_EQ(names(), (Strings{"FOO(command one)", "foo(command two)", "FOO(command three)", "BAR", "FOO"}));
  const std::vector<CatalogEntry>& entries = catalog.entries();
  EXPECT_TRUE(entries[0].primary);
  EXPECT_EQ(entries[0].variantNumber, 4);  // the discarded duplicate still met the last variant
  EXPECT_FALSE(entries[1].primary);
  EXPECT_EQ(entries[1].variantNumber, 2);
  EXPECT_EQ(entries[2].variantNumber, 3);
  EXPECT_EQ(catalog.findCommandLine("foo(command two)"), "command two");
  EXPECT_EQ(catalog.findCommandLine("FOO"), "other section");
  EXPECT_EQ(catalog.findCommandLine("foo"), "");
}

// A lone "+" line leaves a blank before the next record; the record is trimmed, so the name has none.
TEST_F(CatalogTest, ARecordBegunByALonePlusIsTrimmed) {
  dir.write("a_wizard.lst", "MUX=one\n+\nMUX=two\n");
  load("@");
  EXPECT_EQ(names(), (Strings{"MUX(one)", "MUX(two)"}));
  dir.write("a_wizard.lst", "+\n  MUX [-No2D]=run\n");
  load("@");
  EXPECT_EQ(catalog.findCommandLine("MUX"), "run");
  EXPECT_FALSE(catalog.supports2D("MUX"));
}

// A duplicate found before a variant still bumps the primary's number; later ones then start afresh.
TEST_F(CatalogTest, VariantRuleFollowsTheNumbersExactly) {
  dir.write("a_wizard.lst", "X=a\nX=b\nX=c\nX=b\nX=d\n");
  load("@");
  EXPECT_EQ(names(), (Strings{"X(a)", "X(b)", "X(c)", "X"}));
  EXPECT_EQ(catalog.entries()[0].variantNumber, 4);
  EXPECT_EQ(catalog.findCommandLine("X"), "d");
}

TEST_F(CatalogTest, NamesWithParenthesesNeverMatch) {
  dir.write("a_wizard.lst", "Y(1)=a\nY(1)=a\nY=b\n");
  load("@");
  EXPECT_EQ(names(), (Strings{"Y(1)(a)", "Y(b)", "Y(1)"}));
}

TEST_F(CatalogTest, InformationBlockFillsTheEntry) {
  dir.write("a_wizard.lst",
            "COUNTER=wizard.exe\n"
            "<INFO>\n"
            "<ABSTRACT>first</ABSTRACT>\n"
            "// a comment inside the block\n"
            "<ABSTRACT>A counter</ABSTRACT>\n"
            "<ALIAS>OLD_COUNTER, older ,</ALIAS>\n"
            "<NATIVE_HDL NAME=\"vhdl\"/>\n"
            "<NATIVE_TOOL NAME=\"first\"><SCRIPT HREF=\"a.sh\"/></NATIVE_TOOL>\n"
            "<NATIVE_TOOL NAME=\"tool\">\n"
            "<SCRIPT OS_NAME=\"LINUX\" HREF=\"b.sh %p\"/><SCRIPT OS_NAME=\"solaris\" HREF=\"c.sh\"/>\n"
            "<ANY HREF=\"d.sh\"/><SCRIPT OS_NAME=\"linux\"/>\n"
            "</NATIVE_TOOL><OTHER/><DESCRIBE ARGS=\" --describe  -v \"/>\n"
            "</INFO>\n"
            "NEXT=next <INFO><DESCRIBE/></INFO>\n");
  load("@");
  ASSERT_EQ(names(), (Strings{"COUNTER", "NEXT"}));
  const CatalogEntry& entry = catalog.entries()[0];
  EXPECT_EQ(entry.commandLine, "wizard.exe");
  EXPECT_EQ(entry.abstract, "A counter");
  EXPECT_EQ(entry.alias, "OLD_COUNTER, older ,");
  EXPECT_EQ(catalog.findNativeHdl("COUNTER"), "vhdl");
  EXPECT_EQ(catalog.findNativeTool("COUNTER"), "tool");
  EXPECT_EQ(catalog.findScripts("COUNTER"), "a.sh+b.sh %p+d.sh+");
  EXPECT_EQ(catalog.resolveAlias("OLD_COUNTER"), "COUNTER");
  EXPECT_EQ(catalog.resolveAlias("older"), "COUNTER");
  EXPECT_EQ(catalog.resolveAlias(""), "COUNTER");
  EXPECT_EQ(catalog.resolveAlias("old_counter"), "old_counter");
  EXPECT_TRUE(entry.describes);
  EXPECT_EQ(entry.describeArgs, "--describe  -v");
  EXPECT_EQ(catalog.entries()[1].describeArgs, "--describe");  // the default when ARGS is missing
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(CatalogTest, BlockOnTheEntryLineAndBlocksThatGiveNothing) {
  dir.write("a_wizard.lst",
            "A=run a <INFO><ABSTRACT>inline</ABSTRACT></INFO>\n"
            "B=run b\n<INFO>\n<OTHER><ABSTRACT>no</ABSTRACT></OTHER>\n</INFO>\n"
            "C=run c\n<INFO>\n<ALIAS>CC</ALIAS>\n"
            "D=never read\n");
  load("@");
  EXPECT_EQ(names(), (Strings{"A", "B", "C"}));
  EXPECT_EQ(catalog.entries()[0].abstract, "inline");
  EXPECT_EQ(catalog.entries()[0].commandLine, "run a ");
  EXPECT_EQ(catalog.entries()[1].abstract, "");
  EXPECT_EQ(catalog.resolveAlias("CC"), "CC");  // the block never closed and was dropped
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(CatalogTest, MalformedBlockKeepsTheEntryWithoutItsInformation) {
  const std::string file = dir.path("a_wizard.lst");
  dir.write("a_wizard.lst",
            "\nA=run\n<INFO>\n<ALIAS>OLD</ALIAS><ABSTRACT>x</ABSTRACT>\n<NATIVE_HDL NAME='v'/>\n</INFO>\n"
            "B=run\n<INFO>\n<X a=\"1\" a=\"2\"/>\n</INFO>\n");
  load("@");
  EXPECT_EQ(names(), (Strings{"A", "B"}));
  EXPECT_EQ(catalog.entries()[0].abstract, "");
  EXPECT_EQ(catalog.resolveAlias("OLD"), "OLD");
  EXPECT_EQ(ui.boxes,
            (Strings{reported(Msg::kInvalidInformationBlock, "2", file,
                              "Attribute value is missing for attribute : NAME"),
                     reported(Msg::kInvalidInformationBlock, "7", file, "Duplicate attribute name found")}));
}

TEST_F(CatalogTest, WarnsAboutBadLinesWithTheirNumbersAndPath) {
  const std::string file = dir.path("a_wizard.lst");
  dir.write("a_wizard.lst",
            "[open|section\n"
            "NOCOMMAND\n"
            "// comment\n"
            "===\n"
            "EMPTY =   \n"
            " [bracket] = x\n"
            "CONT +\n"
            "  = \n"
            "=  =NAME=cmd\n"
            "[]\n"
            "TOP=cmd\n");
  load("@");
  EXPECT_EQ(ui.boxes, (Strings{reported(Msg::kNoEndingSeparator, "1", file, "]", "]"),
                               reported(Msg::kLineWithoutCommandLine, "2", file),
                               reported(Msg::kLineWithoutWizardName, "4", file),
                               reported(Msg::kLineWithoutCommandLine, "5", file),
                               reported(Msg::kLineWithoutCommandLine, "7", file)}));
  // "[bracket] = x" is a section line; "=  =NAME=cmd" has the key "  " and so no name: dropped silently.
  ASSERT_EQ(names(), Strings{"TOP"});
  EXPECT_EQ(catalog.entries()[0].section, "");
}

TEST_F(CatalogTest, LookupsOfUnknownNames) {
  load("@");
  EXPECT_TRUE(catalog.entries().empty());
  EXPECT_TRUE(catalog.supports2D("NONE"));
  EXPECT_EQ(catalog.findCommandLine("NONE"), "");
  EXPECT_EQ(catalog.findDirectory("NONE"), "");
  EXPECT_EQ(catalog.resolveAlias("NONE"), "NONE");
  EXPECT_TRUE(WizardCatalog::isNotWizardMarker("Not a wizard-generated file  "));
  EXPECT_FALSE(WizardCatalog::isNotWizardMarker(" Not a wizard-generated file"));
}

TEST_F(CatalogTest, ArbitraryBytesNeverStopTheLoad) {
  std::string noise;
  for (int i = 0; i < 4096; ++i) noise += static_cast<char>((i * 7919) % 256);
  dir.write("a_wizard.lst", noise + "\n<INFO>\n" + std::string(100000, 'x') + "=y\n</INFO>\nLAST=ok\n");
  load("@");
  EXPECT_EQ(catalog.findCommandLine("LAST"), "ok");
}

}  // namespace
}  // namespace plovix
