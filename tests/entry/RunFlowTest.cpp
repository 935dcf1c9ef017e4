// Tests of the manager run: the first state from the file name, every transition of the loop, the run end.
#include <gtest/gtest.h>

#include "RecordingInterface.h"
#include "ScriptedRunSteps.h"
#include "TempDir.h"
#include "base/QuestionTexts.h"
#include "entry/RunFlow.h"

namespace plovix {
namespace {

using testing::asked;
using testing::RecordingInterface;
using testing::reported;
using testing::ScriptedRunSteps;
using testing::TempDir;
using Log = std::vector<std::string>;

const std::string kPage1 = "action:Plovix Plug-In Manager [page 1]";
const std::string kPage2a = "modulon:Plovix Plug-In Manager [page 2a]";

PageResult chooseCreate(ActionPage& page) {
  page.createNew = true;
  return PageResult::kNext;
}
PageResult chooseEdit(ActionPage& page) {
  page.createNew = false;
  return PageResult::kNext;
}

// A modulon page script that fills the page like a user and presses Next.
ScriptedRunSteps::PageScript<ModulonSelectionPage> pickModulon(std::string dir, std::string base,
                                                               std::string ext, std::string modulon) {
  return [=](ModulonSelectionPage& page) {
    page.directory = dir;
    page.baseName = base;
    page.extension = ext;
    page.modulonName = modulon;
    return PageResult::kNext;
  };
}

class RunFlowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    app.projectDirectory = temp.dir();
    app.restoreDirectoryAtExit = false;
  }
  void run(const char* fileName = nullptr) { runManager(app, ui, steps, fileName, nullptr); }

  TempDir temp;
  ManagerApp app;
  RecordingInterface ui;
  ScriptedRunSteps steps;
};

TEST_F(RunFlowTest, CreatingAVariationGoesThroughPagesLaunchAndGeneration) {
  steps.actionScript = {chooseCreate};
  steps.modulonScript = {pickModulon(temp.dir(), "count8", ".vhd", "lpm_counter")};
  steps.launches = {{true, 0}};
  run();
  const std::string out = temp.dir() + "count8";
  EXPECT_EQ(steps.log, (Log{"catalog", kPage1, kPage2a, "launch:lpm_counter new", "read:" + out + ".cnx",
                            "clash", "generate:" + out + ".vhd design symbol", "delete", "script"}));
  EXPECT_EQ(app.lastOutputPath, out + ".vhd");
  EXPECT_EQ(app.projectDirectory, temp.dir());
  EXPECT_FALSE(app.run.description) << "the run destroys its description";
  EXPECT_FALSE(app.run.catalog);
  EXPECT_EQ(app.run.pluginResult, 0);
}

TEST_F(RunFlowTest, CancelOnTheActionPageKeepsThePreviousOutputName) {
  app.lastOutputPath = "/old/dir/count4.tdf";
  run();
  EXPECT_EQ(steps.log, (Log{"catalog", kPage1}));
  EXPECT_EQ(app.lastOutputPath, temp.dir() + "count4.tdf");
  EXPECT_EQ(app.run.outputPath(), temp.dir() + "count4.tdf");
}

TEST_F(RunFlowTest, PluginResultCodesDecideTheNextState) {
  struct Case {
    int32_t exitCode;
    Log tail;
  };
  const std::string out = temp.dir() + "c";
  const Case cases[] = {
      {255, {"launch:m new", kPage2a}},  // Back returns to the modulon page, which is cancelled here
      {3, {"launch:m new", kPage2a}},
      {259, {"launch:m new", kPage2a}},  // low byte 3
      {1, {"launch:m new"}},             // ends the run
      {2, {"launch:m new"}},
      {-256,
       {"launch:m new", "read:" + out + ".cnx", "clash", "generate:" + out + ".tdf design symbol", "delete",
        "script"}},  // low byte 0
  };
  for (const Case& c : cases) {
    ScriptedRunSteps fresh;
    fresh.actionScript = {chooseCreate};
    fresh.modulonScript = {pickModulon(temp.dir(), "c", ".tdf", "m")};
    fresh.launches = {{true, c.exitCode}};
    runManager(app, ui, fresh, nullptr, nullptr);
    Log expected{"catalog", kPage1, kPage2a};
    expected.insert(expected.end(), c.tail.begin(), c.tail.end());
    EXPECT_EQ(fresh.log, expected) << "exit code " << c.exitCode;
  }
}

TEST_F(RunFlowTest, PluginThatCannotStartReturnsToTheVariationPage) {
  steps.actionScript = {chooseCreate};
  steps.modulonScript = {pickModulon(temp.dir(), "c", ".v", "m"), pickModulon(temp.dir(), "c", ".v", "m")};
  steps.launches = {{false, 0}, {true, 0}};
  run();
  const std::string out = temp.dir() + "c";
  EXPECT_EQ(steps.log,
            (Log{"catalog", kPage1, kPage2a, "launch:m new", kPage2a, "launch:m new", "read:" + out + ".cnx",
                 "clash", "generate:" + out + ".v design symbol", "delete", "script"}));
}

TEST_F(RunFlowTest, BackFromTheBrowserPluginReturnsToTheBrowser) {
  steps.actionScript = {chooseEdit};
  auto pickFile = [this](VariationBrowserPage& page) {
    page.directory = temp.dir();
    page.baseName = "x";
    page.extension = ".tdf";
    page.modulonName = "m";
    page.newVariation = true;
    return PageResult::kNext;
  };
  steps.browserScript = {pickFile, pickFile};
  steps.launches = {{true, 255}, {true, 2}};
  run();
  EXPECT_EQ(steps.log, (Log{"catalog", kPage1, "browser:" + temp.dir() + "|||", "launch:m new",
                            "browser:" + temp.dir() + "|x|.tdf|m", "launch:m new"}));
  EXPECT_TRUE(app.run.editMode);
}

TEST_F(RunFlowTest, BrowserBackGoesToTheActionPageAndCancelStaysPut) {
  steps.actionScript = {chooseEdit, chooseEdit};
  steps.browserScript = {[](VariationBrowserPage&) { return PageResult::kBack; }};
  run();
  EXPECT_EQ(steps.log, (Log{"catalog", kPage1, "browser:" + temp.dir() + "|||", kPage1,
                            "browser:" + temp.dir() + "|||"}));
  EXPECT_EQ(app.run.state, RunState::kBrowserPage) << "Cancel on the browser keeps its state";
}

TEST_F(RunFlowTest, SwitchingTheActionClearsTheRunFieldsButNotThePageEntries) {
  app.lastOutputPath = temp.dir() + "prev.tdf";
  // Edit first (the remembered choice is edit, so the preset survives), then back, then create.
  steps.actionScript = {chooseEdit, chooseCreate, chooseCreate};
  steps.browserScript = {[](VariationBrowserPage&) { return PageResult::kBack; }};
  ModulonSelectionPage* seen = nullptr;
  steps.modulonScript = {[&](ModulonSelectionPage& page) {
                           seen = &page;
                           page.outputText = "typed";
                           return PageResult::kBack;
                         },
                         [&](ModulonSelectionPage& page) {
                           EXPECT_EQ(&page, seen);
                           EXPECT_EQ(page.outputText, "typed") << "the page keeps its entries";
                           return PageResult::kCancel;
                         }};
  run();
  EXPECT_EQ(steps.log[2], "browser:" + temp.dir() + "|prev|.tdf|");
  EXPECT_EQ(app.run.fileTitle, "") << "the modulon page's empty fields were copied back";
}

TEST_F(RunFlowTest, ChangingTheOutputNameDeletesBothCnxFiles) {
  temp.write("old.cnx", "x");
  temp.write("new.cnx", "y");
  temp.write("other.cnx", "z");
  app.lastOutputPath = temp.dir() + "old.tdf";
  steps.actionScript = {chooseEdit};
  steps.browserScript = {[this](VariationBrowserPage& page) {
    page.directory = temp.dir();
    page.baseName = "new";
    page.extension = ".tdf";
    return PageResult::kNext;
  }};
  steps.launches = {{true, 2}};
  run();
  EXPECT_FALSE(std::filesystem::exists(temp.path("old.cnx")));
  EXPECT_FALSE(std::filesystem::exists(temp.path("new.cnx")));
  EXPECT_TRUE(std::filesystem::exists(temp.path("other.cnx")));
}

TEST_F(RunFlowTest, EditModePreparesTheDescriptionFromCnxOrVariationFile) {
  auto editExisting = [this](VariationBrowserPage& page) {
    page.directory = temp.dir();
    page.baseName = "v";
    page.extension = ".vhd";
    page.modulonName = "m";
    page.newVariation = false;
    return PageResult::kNext;
  };
  steps.actionScript = {chooseEdit};
  steps.browserScript = {editExisting};
  steps.launches = {{true, 2}};
  run();
  EXPECT_EQ(steps.log[3], "extract:" + temp.dir() + "v.vhd");

  ScriptedRunSteps withCnx;
  temp.write("v.cnx", "GENERATION: STANDARD\n");
  app.projectDirectory = temp.dir();
  withCnx.actionScript = {chooseEdit};
  withCnx.browserScript = {editExisting};
  withCnx.prepareResult = false;
  runManager(app, ui, withCnx, nullptr, nullptr);
  EXPECT_EQ(withCnx.log.back(), "strip:" + temp.dir() + "v.cnx") << "a failed preparation ends the run";
}

TEST_F(RunFlowTest, GenerationModeChoosesWhatIsWritten) {
  const std::string out = temp.dir() + "s";
  for (const auto& [mode, expected] :
       {std::pair<GenerationMode, std::string>{GenerationMode::kSymbolOnly,
                                               "generate:" + out + ".tdf symbol"},
        std::pair<GenerationMode, std::string>{GenerationMode::kInvalid, "delete"}}) {
    ScriptedRunSteps fresh;
    fresh.actionScript = {chooseCreate};
    fresh.modulonScript = {pickModulon(temp.dir(), "s", ".tdf", "m")};
    fresh.launches = {{true, 0}};
    fresh.generationMode = mode;
    runManager(app, ui, fresh, nullptr, nullptr);
    EXPECT_EQ(fresh.log[6], expected) << static_cast<int>(mode);
  }
}

TEST_F(RunFlowTest, FailedReadEndsTheRunAndKeepsTheWorkFiles) {
  steps.actionScript = {chooseCreate};
  steps.modulonScript = {pickModulon(temp.dir(), "c", ".tdf", "m")};
  steps.launches = {{true, 0}};
  steps.readResult = false;
  run();
  EXPECT_EQ(steps.log.back(), "read:" + temp.dir() + "c.cnx");
}

TEST_F(RunFlowTest, RenamedVariationIsRecordedAsTheOutput) {
  steps.actionScript = {chooseCreate};
  steps.modulonScript = {pickModulon(temp.dir(), "lpm_counter", ".v", "lpm_counter")};
  steps.launches = {{true, 0}};
  steps.renameTo = "lpm_countea";
  run();
  EXPECT_EQ(steps.log[6], "generate:" + temp.dir() + "lpm_countea.v design symbol");
  EXPECT_EQ(app.lastOutputPath, temp.dir() + "lpm_countea.v");
}

// The first state chosen from the file name given to the run.
class FirstStateTest : public RunFlowTest {};

// Each name leads to its box and, with OK, to the page the run then shows.
TEST_F(FirstStateTest, NameDecidesTheBoxAndThePage) {
  temp.write("plain.v", "module plain; endmodule\n");
  temp.write("g.v", "// modulon wizard: %lpm_gone%\n");
  const std::string missing = temp.path("count8.vhd");
  const std::string plain = temp.path("plain.v");
  const struct {
    std::string name;
    std::string box;  // empty when none is shown
    std::string page;
  } cases[] = {
      {"count8", asked(questions::noExtension()), "browser:|count8||"},
      {"*.vhd", "", "browser:|*|.vhd|"},
      {missing, asked(questions::fileDoesNotExistCreate(missing)), kPage2a},
      {plain, asked(questions::notWizardGenerated(plain)), "browser:" + temp.dir() + "|plain|.v|"},
      {temp.path("g.v"), reported(Msg::kModulonNotListed, "lpm_gone"),
       "browser:" + temp.dir() + "|g|.v|lpm_gone"},
  };
  for (const auto& c : cases) {
    ui.boxes.clear();
    steps.log.clear();
    run(c.name.c_str());
    EXPECT_EQ(ui.boxes, c.box.empty() ? Log{} : Log{c.box}) << c.name;
    ASSERT_EQ(steps.log.size(), 2u) << c.name;
    EXPECT_EQ(steps.log[1], c.page) << c.name;
  }
}

// A design file to create, named at the start, presets the modulon page with its path and language.
TEST_F(FirstStateTest, MissingFilePresetsTheModulonPage) {
  steps.modulonScript = {[this](ModulonSelectionPage& page) {
    EXPECT_EQ(page.outputText, temp.path("new/count9.v"));
    EXPECT_EQ(page.directory, temp.path("new/"));
    EXPECT_EQ(page.extension, ".v");
    return PageResult::kCancel;
  }};
  run(temp.path("new/../new/count9.v").c_str());
  EXPECT_TRUE(steps.modulonScript.empty());
}

TEST_F(FirstStateTest, CapitalisedExtensionIsIllegal) {
  ui.answers = {false};
  run("count8.TDF");
  EXPECT_EQ(ui.boxes, Log{asked(questions::illegalExtension(".TDF"), false)});
  EXPECT_EQ(steps.log, (Log{"catalog"})) << "cancelled: no page";
  EXPECT_EQ(app.lastOutputPath, "count8.TDF");
  EXPECT_EQ(app.projectDirectory, "") << "the run's empty directory becomes the project directory";
}

TEST_F(FirstStateTest, BlankNameStartsAtTheActionPage) {
  run("   ");
  EXPECT_EQ(steps.log[1], kPage1);
}

}  // namespace
}  // namespace plovix

namespace plovix {
namespace {

// Runs whose first state depends on the catalog: a recognised variation goes straight to its plug-in.
class ListedModulonTest : public RunFlowTest {
 protected:
  void SetUp() override {
    RunFlowTest::SetUp();
    temp.write("lib/wizard.lst", "lpm_counter=counter-wizard\n<INFO>\n<ALIAS>old_counter</ALIAS>\n</INFO>\n");
    const std::string library = temp.path("lib");
    steps.catalogLoader = [this, library](WizardCatalog& catalog) { catalog.loadFrom(ui, "", library); };
  }
};

TEST_F(ListedModulonTest, RecognisedVariationSkipsThePages) {
  temp.write("c.v", "// modulon wizard: %old_counter%\r\n");
  const std::string path = temp.path("c.v");
  steps.launches = {{true, 0}};
  run(path.c_str());
  const std::string out = temp.dir() + "c";
  EXPECT_TRUE(ui.boxes.empty());
  EXPECT_EQ(steps.log,
            (Log{"catalog", "extract:" + out + ".v", "launch:lpm_counter edit direct", "read:" + out + ".cnx",
                 "clash", "generate:" + out + ".v design symbol", "delete", "script"}));
}

TEST_F(ListedModulonTest, BackFromADirectLaunchOpensTheModulonPage) {
  temp.write("c.tdf", "-- modulon wizard: %lpm_counter%\r\n");
  const std::string path = temp.path("c.tdf");
  steps.launches = {{true, 3}};
  run(path.c_str());
  EXPECT_EQ(steps.log,
            (Log{"catalog", "extract:" + temp.dir() + "c.tdf", "launch:lpm_counter edit direct", kPage2a}));
}

}  // namespace
}  // namespace plovix
