// The checks before a variation is written: renaming on a sub-module clash, same-name design files and the
// overwrite question.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/QuestionTexts.h"
#include "entry/ConflictChecks.h"

namespace plovix {
namespace {

using plovix::testing::RecordingInterface;
using plovix::testing::TempDir;
using testing::asked;

ManagerRun runWithModules(const std::string& fileTitle, std::initializer_list<const char*> moduleNames) {
  ManagerRun run;
  run.fileTitle = fileTitle;
  run.description = std::make_unique<CnxDescription>();
  for (const char* name : moduleNames) {
    const Name module = run.description->names->intern(name);
    run.description->modules.push_back({module, module, Name()});
  }
  return run;
}

TEST(SubComponentClash, RenamesTheLastCharacter) {
  struct Case {
    const char* fileTitle;
    std::initializer_list<const char*> modules;
    const char* expected;
  };
  const Case cases[] = {
      {"count8", {"lpm_ff", "COUNT8"}, "counta"},  // differs only in case
      {"Alpha", {"alpha"}, "Alphb"},               // an "a" ending gets "b"
      {"x", {"X"}, "a"},                           // one character stays one character
      {"a", {"A"}, "b"},
      {"count8", {"count", "count80"}, "count8"},  // no match: unchanged
      {"count8", {}, "count8"},
  };
  for (const Case& c : cases) {
    RecordingInterface ui;
    const ManagerRun run = runWithModules(c.fileTitle, c.modules);
    EXPECT_EQ(resolveSubComponentClash(ui, run), c.expected) << c.fileTitle;
    if (std::string(c.expected) == c.fileTitle) {
      EXPECT_TRUE(ui.boxes.empty());
    } else {
      ASSERT_EQ(ui.boxes.size(), 1u);
      EXPECT_EQ(ui.boxes[0], "report: " + questions::renamedVariation(c.fileTitle, c.expected));
    }
  }
}

TEST(SameNameFiles, ListsOtherDesignFilesSortedByName) {
  TempDir dir;
  ManagerRun run;
  run.directory = dir.dir();
  run.fileTitle = "count8";
  run.extension = ".vhd";
  dir.write("count8.vhd", "");                              // the output's own extension
  dir.write("count8.txt", "");                              // no design extension
  dir.write("count8x.tdf", "");                             // another base name
  dir.write("Count8.tdf", "");                              // names are compared exactly
  std::filesystem::create_directory(dir.path("count8.v"));  // directories are skipped

  RecordingInterface ui;
  EXPECT_TRUE(confirmSameNameFiles(ui, run, "/nonexistent/"));
  EXPECT_TRUE(ui.boxes.empty());

  dir.write("count8.gdf", "");
  ui.answers = {false};
  EXPECT_FALSE(confirmSameNameFiles(ui, run, "/nonexistent/"));
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], asked(errorMessage(Msg::kSameNameFileQuestion, "count8.gdf\n"), false));

  dir.write("count8.tdf", "");
  ui.boxes.clear();
  EXPECT_TRUE(confirmSameNameFiles(ui, run, "/nonexistent/"));
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], asked(errorMessage(Msg::kSameNameFilesQuestion, "count8.gdf\ncount8.tdf\n")));
}

TEST(SameNameFiles, EmptyDirectoryMeansTheProjectDirectory) {
  TempDir dir;
  dir.write("count8.v", "");
  ManagerRun run;
  run.fileTitle = "count8";
  run.extension = ".tdf";
  RecordingInterface ui;
  ui.answers = {false};
  EXPECT_FALSE(confirmSameNameFiles(ui, run, dir.dir()));
  EXPECT_TRUE(confirmSameNameFiles(ui, run, dir.path("missing/")));  // cannot be listed: nothing there
  EXPECT_EQ(ui.boxes.size(), 1u);
}

TEST(ExistingOutputs, ListsCompanionsAndSymbolWithTheirPaths) {
  TempDir dir;
  ManagerRun run;
  run.directory = dir.dir();
  run.fileTitle = "count8";
  EXPECT_EQ(listExistingOutputs(run, "", true, true), "");

  dir.write("count8.sym", "");
  dir.write("count8.inc", "");
  dir.write("count8_inst.tdf", "");  // templates are never listed
  dir.write("count8.tdf", "");       // nor the design file
  const std::string base = dir.path("count8");
  const std::string note = errorText(Msg::kSymbolUpdateNote).data();
  const auto question = [](const std::string& list) {
    return errorMessage(Msg::kOverwriteOutputsQuestion, list);
  };
  EXPECT_EQ(listExistingOutputs(run, "", true, true),
            question("  " + base + ".inc\n  " + base + ".sym\n" + note));
  EXPECT_EQ(listExistingOutputs(run, "", false, true), question("  " + base + ".sym\n" + note));
  EXPECT_EQ(listExistingOutputs(run, "", true, false), question("  " + base + ".inc\n"));

  dir.write("count8.cmp", "");
  run.directory.clear();
  EXPECT_EQ(listExistingOutputs(run, dir.dir(), true, false),
            question("  " + base + ".inc\n  " + base + ".cmp\n"));
}

}  // namespace
}  // namespace plovix
