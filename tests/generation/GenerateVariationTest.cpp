// Writing a variation's files: the file sets and their order per language, the questions that stop or limit
// the writing, the native-language copy, and failed writes that do not stop the following files.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "../corpus/CorpusCase.h"
#include "Golden.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/FileSystem.h"
#include "base/QuestionTexts.h"
#include "base/TextFile.h"
#include "entry/ConflictChecks.h"
#include "entry/GenerateVariation.h"
#include "entry/ManagerApp.h"
#include "hdl/Netlist.h"
#include "hdl/VhdlFileWriter.h"

namespace plovix {
namespace {

using plovix::testing::asked;
using plovix::testing::RecordingInterface;
using plovix::testing::reported;
using plovix::testing::TempDir;

class Generation : public ::testing::Test {
 protected:
  void SetUp() override {
    app.restoreDirectoryAtExit = false;
    app.projectDirectory = dir.dir();
  }

  // The run of a plug-in that left `cnxFile` (from the test data) beside the output file `fileName`.
  void prepare(const std::string& fileName, const std::string& cnxFile = "count8.cnx",
               const std::string& catalog = "") {
    ManagerRun& run = app.run;
    run.directory = dir.dir();
    run.fileTitle = fileName.substr(0, fileName.rfind('.'));
    run.extension = fileName.substr(fileName.rfind('.'));
    run.modulonName = "lpm_counter";
    std::filesystem::copy_file(std::string(PLOVIX_TEST_DATA_DIR "/") + cnxFile, run.cnxPath());
    run.description = std::make_unique<CnxDescription>();
    ASSERT_TRUE(
        testing::readCnxText(run.fileTitle, dir.read(run.fileTitle + ".cnx"), dir, ui, *run.description));
    run.catalog = std::make_unique<WizardCatalog>();
    if (!catalog.empty()) {
      dir.write("lib/wizard.lst", catalog);
      run.catalog->loadFrom(ui, dir.path("lib"), "");
    }
  }

  bool generate(bool writeDesign = true, bool writeSymbol = true) {
    app.run.outcome = RunOutcome{};
    return generateVariationFiles(app, ui, app.run.outputPath(), writeDesign, writeSymbol);
  }

  // The names in the output directory, sorted, without the work files and the catalog folder.
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : listDirectory(dir.dir())) {
      const std::string& name = entry.name;
      if (name == "lib" || name.ends_with(".cnx") || name.ends_with(".cnxerr")) continue;
      names.push_back(name);
    }
    return names;
  }

  using Names = std::vector<std::string>;

  // The run's written and not-written files, named relative to the output directory.
  Names written() const {
    Names names;
    for (const std::string& path : app.run.outcome.written) names.push_back(relative(path));
    return names;
  }
  Names notWritten() const {
    Names names;
    for (const RunOutcome::NotWritten& file : app.run.outcome.notWritten)
      names.push_back(relative(file.path));
    return names;
  }
  std::string relative(const std::string& path) const {
    return path.starts_with(dir.dir()) ? path.substr(dir.dir().size()) : path;
  }

  TempDir dir;
  ManagerApp app;
  RecordingInterface ui;
};

// A catalog whose lpm_counter entry (the last of that name) names VHDL as its native language.
const std::string kNativeVhdlCatalog =
    "[old]\nlpm_counter = old.sh\n<INFO>\n<NATIVE_HDL NAME=\"VERILOG\"></NATIVE_HDL>\n</INFO>\n"
    "[counters]\nlpm_counter = counter.sh\n<INFO>\n<NATIVE_HDL NAME=\" VHDL \"></NATIVE_HDL>\n</INFO>\n";

// Every file is written and recorded, in the fixed order.
TEST_F(Generation, FileSetOfEachLanguage) {
  const struct {
    const char* output;
    Names expected;  // in the order of writing
  } cases[] = {
      {"count8.tdf", {"count8.tdf", "count8.inc", "count8.cmp", "count8.sym", "count8_inst.tdf"}},
      {"count8.vhd", {"count8.vhd", "count8.inc", "count8.cmp", "count8.sym", "count8_inst.vhd"}},
      {"count8.v", {"count8.v", "count8.inc", "count8.cmp", "count8.sym", "count8_bb.v", "count8_inst.v"}},
  };
  for (const auto& c : cases) {
    for (const std::string& name : files()) std::filesystem::remove(dir.path(name));
    std::filesystem::remove(dir.path("count8.cnx"));
    ui.boxes.clear();
    prepare(c.output);
    EXPECT_TRUE(generate());
    EXPECT_EQ(written(), c.expected) << c.output;
    Names sorted = c.expected;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(files(), sorted) << c.output;
    EXPECT_EQ(app.run.outcome.exitStatus(), RunOutcome::kEveryFileWritten);
    EXPECT_TRUE(ui.boxes.empty()) << ui.boxes.front();
    EXPECT_TRUE(app.run.encPath.empty());
  }
}

// When every write fails (the output directory is missing), each file is still attempted, in order, and
// recorded as not written with the message the user saw.
TEST_F(Generation, FilesAreAttemptedInOrder) {
  for (const char* extension : {".tdf", ".v"}) {
    ui.boxes.clear();
    prepare(std::string("count8") + extension);
    app.run.directory = dir.path("missing/");
    generate();
    Names expected = {"missing/count8" + std::string(extension), "missing/count8.inc", "missing/count8.cmp",
                      "missing/count8.sym"};
    if (std::string(extension) == ".tdf") {
      expected.push_back("missing/count8_inst.tdf");
    } else {
      expected.push_back("missing/count8_bb.v");
      expected.push_back("missing/count8_inst.v");
    }
    EXPECT_EQ(notWritten(), expected);
    EXPECT_TRUE(written().empty());
    EXPECT_EQ(app.run.outcome.exitStatus(), RunOutcome::kSomeFileNotWritten);
    Names reports;
    for (const RunOutcome::NotWritten& file : app.run.outcome.notWritten) {
      EXPECT_EQ(file.reason, errorMessage(Msg::kFileNotOpened, file.path));
      reports.push_back("report: " + file.reason);
    }
    EXPECT_EQ(ui.boxes, reports);
    std::filesystem::remove(dir.path("count8.cnx"));
  }
}

TEST_F(Generation, CancelledOverwriteKeepsOnlyTheDesignFileAndNativeCopy) {
  dir.write("count8.inc", "old include");
  prepare("count8.v", "count8.cnx", kNativeVhdlCatalog);
  ui.answers = {false};
  EXPECT_TRUE(generate());
  EXPECT_EQ(files(), (Names{"count8.inc", "count8.v", "count8_enc.vhd"}));
  EXPECT_EQ(dir.read("count8.inc"), "old include");
  EXPECT_EQ(ui.boxes, Names{asked(listExistingOutputs(app.run, app.projectDirectory, true, true), false)});
  EXPECT_EQ(written(), (Names{"count8.v", "count8_enc.vhd"}));
  EXPECT_EQ(notWritten(), (Names{"count8.inc", "count8.cmp", "count8.sym", "count8_bb.v", "count8_inst.v"}));
  for (const RunOutcome::NotWritten& file : app.run.outcome.notWritten)
    EXPECT_EQ(file.reason, errorText(Msg::kOverwriteDeclined));
  EXPECT_EQ(app.run.outcome.exitStatus(), RunOutcome::kSomeFileNotWritten);
}

TEST_F(Generation, NativeCopyGoesThroughTheHostLibrary) {
  prepare("count8.tdf", "count8.cnx", kNativeVhdlCatalog);
  EXPECT_TRUE(generate());
  EXPECT_EQ(app.run.encPath, dir.path("count8_enc.vhd"));
  const Netlist netlist = buildNetlist(*app.run.description, "lpm_counter");
  const VhdlFileWriter vhdl(ui, dir.path("count8"), "lpm_counter", *app.run.description, netlist);
  const std::string text = vhdl.designText();
  EXPECT_NE(text.find("-- File Name: count8.vhd\n"), std::string::npos);
  EXPECT_EQ(text.find("Retrieval info:"), std::string::npos);
  EXPECT_EQ(dir.read("count8_enc.vhd"), toTextMode(text));
}

TEST_F(Generation, SameNameStopWritesOnlyTheNativeCopy) {
  dir.write("count8.vhd", "someone else's design");
  prepare("count8.tdf", "count8.cnx", kNativeVhdlCatalog);
  ui.answers = {false};
  EXPECT_FALSE(generate());
  EXPECT_EQ(files(), (Names{"count8.vhd", "count8_enc.vhd"}));
  EXPECT_EQ(dir.read("count8.vhd"), "someone else's design");
  EXPECT_EQ(ui.boxes, Names{asked(questions::sameNameFiles(1, "count8.vhd\n"), false)});
  EXPECT_EQ(written(), Names{"count8_enc.vhd"});
  EXPECT_EQ(app.run.outcome.exitStatus(), RunOutcome::kNotGenerated);
}

TEST_F(Generation, TwoDimensionalPortsRefusedWriteNothing) {
  prepare("mux.vhd", "mux2d.cnx");
  ASSERT_TRUE(app.run.description->uses2D);
  ui.answers = {false};
  EXPECT_TRUE(generate());
  EXPECT_TRUE(files().empty());
  EXPECT_EQ(app.run.outputPath(), dir.path("mux.vhd"));  // the name the run remembers and returns
  EXPECT_EQ(ui.boxes, Names{asked(questions::thdlFallback(), false)});
  EXPECT_EQ(app.run.outcome.exitStatus(), RunOutcome::kNotGenerated);
}

// Compares the generated files with their golden files in tests/generation/expected.
void expectGoldenFiles(const testing::TempDir& dir, const std::vector<std::string>& names) {
  for (const std::string& name : names)
    testing::expectGolden(dir.read(name), PLOVIX_SOURCE_DIR "/tests/generation/expected/" + name);
}

// The variation bears its module's name: it is renamed, and every file and text uses the new name. Module
// names that differ only in case are distinct names, so the include is written twice.
TEST_F(Generation, VariationNamedLikeItsModuleIsRenamed) {
  prepare("lpm_counter.tdf", "clash.cnx");
  app.run.fileTitle = resolveSubComponentClash(ui, app.run);
  ASSERT_EQ(app.run.fileTitle, "lpm_countea");
  EXPECT_TRUE(generate());
  EXPECT_EQ(files(), (Names{"lpm_countea.cmp", "lpm_countea.inc", "lpm_countea.sym", "lpm_countea.tdf",
                            "lpm_countea_inst.tdf"}));
  expectGoldenFiles(dir, {"lpm_countea.tdf", "lpm_countea.inc", "lpm_countea_inst.tdf"});
}

// A Verilog output with a two-dimensional port, accepted as THDL: the THDL set without component declaration.
TEST_F(Generation, TwoDimensionalPortsAcceptedAsThdl) {
  prepare("mux.v", "mux2d.cnx");
  EXPECT_TRUE(generate());
  EXPECT_EQ(app.run.extension, ".tdf");
  EXPECT_EQ(files(), (Names{"mux.inc", "mux.sym", "mux.tdf", "mux_inst.tdf"}));
  EXPECT_EQ(ui.boxes, Names{asked(questions::thdlFallback())});
  expectGoldenFiles(dir, {"mux.tdf", "mux.inc", "mux_inst.tdf"});
}

TEST_F(Generation, SymbolOnlyWritesTheSymbol) {
  dir.write("count8.inc", "old include");
  prepare("count8.tdf", "symbol_only.cnx");
  EXPECT_TRUE(generate(false, true));
  EXPECT_EQ(files(), (Names{"count8.inc", "count8.sym"}));
  EXPECT_TRUE(ui.boxes.empty());

  ui.answers = {false};
  std::filesystem::remove(dir.path("count8.sym"));
  dir.write("count8.sym", "old symbol");
  EXPECT_TRUE(generate(false, true));
  EXPECT_EQ(dir.read("count8.sym"), "old symbol");
  EXPECT_EQ(ui.boxes, Names{asked(listExistingOutputs(app.run, app.projectDirectory, false, true), false)});
  EXPECT_EQ(notWritten(), Names{"count8.sym"});
}

// A file that cannot be written is reported and the files after it are still written. Without write
// permission every write fails; a privileged user writes anyway, so there a directory blocks one file.
TEST_F(Generation, FailedFileDoesNotStopTheOthers) {
  prepare("count8.vhd");
  if (geteuid() != 0) {
    std::filesystem::permissions(dir.dir(),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_TRUE(generate());
    std::filesystem::permissions(dir.dir(), std::filesystem::perms::owner_all);
    size_t denied = 0;
    for (const RunOutcome::NotWritten& file : app.run.outcome.notWritten)
      denied += file.reason == errorMessage(Msg::kAccessDenied, file.path);
    EXPECT_EQ(denied, 4u);  // design, include, component declaration, template; the symbol has its own reason
    EXPECT_EQ(notWritten().size(), 5u);
    EXPECT_TRUE(files().empty());
    return;
  }
  std::filesystem::create_directory(dir.path("count8.inc"));
  EXPECT_TRUE(generate());
  EXPECT_EQ(files(), (Names{"count8.cmp", "count8.inc", "count8.sym", "count8.vhd", "count8_inst.vhd"}));
  EXPECT_TRUE(std::filesystem::is_directory(dir.path("count8.inc")));
  ASSERT_EQ(ui.boxes.size(), 2u);  // the overwrite question lists the blocked name, then the failure
  EXPECT_EQ(ui.boxes[1], reported(Msg::kUnknownFileError));
  EXPECT_EQ(notWritten(), Names{"count8.inc"});
  EXPECT_EQ(written(), (Names{"count8.vhd", "count8.cmp", "count8.sym", "count8_inst.vhd"}));
}

}  // namespace
}  // namespace plovix
