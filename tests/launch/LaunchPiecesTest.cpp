// Tests of the launch's pieces: command-line words, program search, %-codes, position reports, command line.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "LaunchFixture.h"
#include "entry/PluginLaunch.h"
#include "entry/PluginLaunchParts.h"
#include "platform/CommandLineWords.h"
#include "platform/PositionChannel.h"
#include "platform/ProgramSearch.h"
#include "plovix_position.h"

namespace plovix {
namespace {

using Words = std::vector<std::string>;

TEST(SplitCommandLine, FollowsTheWindowsRuntimeRules) {
  EXPECT_EQ(splitCommandLine("  prog\ta  b "), (Words{"prog", "a", "b"}));
  EXPECT_EQ(splitCommandLine("prog \"C:/a b/x.tdf\" -n "), (Words{"prog", "C:/a b/x.tdf", "-n"}));
  EXPECT_EQ(splitCommandLine("a\"b c\"d \"\" e"), (Words{"ab cd", "", "e"}));
  EXPECT_EQ(splitCommandLine("\\a\\\\b \\\\\"x y\" \\\"q"), (Words{"\\a\\\\b", "\\x y", "\"q"}));
  EXPECT_EQ(splitCommandLine("\"say \"\"hi\"\"\" \"open end"), (Words{"say \"hi\"", "open end"}));
  EXPECT_EQ(splitCommandLine("line\nbreak"), (Words{"line\nbreak"}));
  EXPECT_TRUE(splitCommandLine(" \t ").empty());
}

TEST(FindProgram, SearchesThePathWithTheExeRuleAndJavaFallback) {
  testing::TempDir dir;
  testing::writeScript(dir, "bin1/tool.exe", "exit 0\n");
  testing::writeScript(dir, "bin2/tool", "exit 0\n");
  testing::writeScript(dir, "bin2/java", "exit 0\n");
  dir.write("bin1/plain", "not executable");
  const std::string path = dir.path("bin1") + "::" + dir.path("bin2");
  EXPECT_EQ(findProgram("tool", path), dir.path("bin1/tool.exe"));
  EXPECT_EQ(findProgram("plain", path), "");
  EXPECT_EQ(findProgram("javaw", path), dir.path("bin2/java"));
  EXPECT_EQ(findProgram("javaw", dir.path("bin1")), "");
  EXPECT_EQ(findProgram(dir.path("bin1/tool"), ""), dir.path("bin1/tool.exe"));
  EXPECT_EQ(findProgram(dir.path("bin1/missing"), ""), dir.path("bin1/missing"));
}

TEST(PositionReport, ReadsOnlyWellFormedReports) {
  EXPECT_EQ(parsePositionReport(" 1034 640\t-480\n"), (PositionReport{640, -480}));
  for (const PositionReport corner : {PositionReport{0, 0}, PositionReport{-32768, 32767}})
    EXPECT_EQ(parsePositionReport(formatPositionReport(corner.right, corner.bottom)), corner);
  // Outside the screen's 16-bit range is no corner, so nothing downstream can overflow.
  for (const char* bad :
       {"1035 1 2", "1034 1", "1034 1 2 3", "1034 a 2", "1034 1 2147483648", "1034 +1 2", "1034 - 2",
        "1034 1x 2", "99999999999 1 2", "", "1034 32768 0", "1034 0 -32769", "1034 -2147483648 2147483647"}) {
    EXPECT_FALSE(parsePositionReport(bad).has_value()) << bad;
  }
  EXPECT_FALSE(parsePositionReport(std::string_view("1034 1 2\0", 9)).has_value());
  EXPECT_EQ(positionSocketName(4321), "plovix-4321");
}

class MacroTest : public testing::LaunchFixture {};

TEST_F(MacroTest, ReplacesEachCodeOnce) {
  writeCatalog("M=run\n");
  setenv("CLASSPATH", "/j/a.jar:/j/b.jar", 1);
  setenv("PLOVIX_TOP_FILE", "/proj/top.tdf", 1);
  app.run.encPath = "/out/var_enc.tdf";
  EXPECT_EQ(expand("%% %: %; %c|%f|%j|%o|%p|%v|%w"),
            "% ; ; /j/a.jar:/j/b.jar| -devicefamilynull|javaw| -projectnametop.tdf|" +
                toBackslashes(outputPath()) + "|\\out\\var_enc.tdf|" +
                lib.dir().substr(0, lib.dir().size() - 1));
  EXPECT_EQ(expand("%%p %x %J 50%"), "%p %x %J 50%");
  unsetenv("CLASSPATH");
  EXPECT_EQ(expand("[%c]"), "[]");
  unsetenv("PLOVIX_TOP_FILE");
}

class CommandLineTest : public testing::LaunchFixture {};

TEST_F(CommandLineTest, FindsTheProgramInTheCatalogDirectory) {
  testing::writeScript(lib, "wiz.exe", "exit 0\n");
  writeCatalog("M=wiz.exe -m %w#x\n");
  const std::string home = lib.dir().substr(0, lib.dir().size() - 1);
  EXPECT_EQ(arguments(77), (Words{lib.dir() + "wiz", "-m", home + "\nx", outputPath(), "-n", "-symbol",
                                  "-x500", "-y500", "-p2", "-h77"}));
}

TEST_F(CommandLineTest, OptionsFollowTheRunsFlags) {
  testing::writeScript(lib, "wiz", "exit 0\n");
  writeCatalog("M=  wiz\n");
  app.run.newFile = false;
  app.run.directLaunch = true;
  app.run.extraArguments = "-a \"b c\"";
  EXPECT_EQ(arguments(5), (Words{lib.dir() + "wiz", outputPath(), "-symbol", "-a", "b c"}));
  app.run.directLaunch = false;
  app.corner = {12, -3, true};
  EXPECT_EQ(arguments(5),
            (Words{lib.dir() + "wiz", outputPath(), "-symbol", "-a", "b c", "-x12", "-y-3", "-p2", "-h5"}));
}

TEST_F(CommandLineTest, ProgramsFoundNowhereLoseOnlyTheirExtension) {
  writeCatalog("J=%j -jar x.jar\nO=sub/other.exe arg\n");
  app.run.modulonName = "J";
  app.run.directLaunch = true;
  EXPECT_EQ(arguments(1), (Words{"javaw", "-jar", "x.jar", outputPath(), "-n", "-symbol"}));
  app.run.modulonName = "O";
  EXPECT_EQ(arguments(1), (Words{"sub/other", "arg", outputPath(), "-n", "-symbol"}));
}

// Words are split before the %-codes are expanded, and the manager's own arguments are whole words, so no
// path can split an argument or join two, whatever characters it holds.
TEST_F(CommandLineTest, NoValueSplitsOrJoinsWords) {
  writeCatalog("M=run -o%p \"%w/a b\" %c\n");
  setenv("CLASSPATH", "x \"y\" z", 1);
  app.run.directLaunch = true;
  for (const char* directory : {"/p/a\" -evil \"b/", "/p/it's $(x) `y`/", "/p/back\\\" q/"}) {
    app.run.directory = directory;
    const std::string home = lib.dir().substr(0, lib.dir().size() - 1);
    EXPECT_EQ(arguments(1), (Words{"run", "-o" + toBackslashes(outputPath()), home + "/a b", "x \"y\" z",
                                   outputPath(), "-n", "-symbol"}))
        << directory;
  }
  unsetenv("CLASSPATH");
}

}  // namespace
}  // namespace plovix
