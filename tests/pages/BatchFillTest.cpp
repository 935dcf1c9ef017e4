// Tests of the batch fill: the choice on the action page, the design file name, modulon and language on the
// modulon page, the signature's modulon on the browser page, and Cancel for a page left open or shown again.
#include <gtest/gtest.h>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "catalog/WizardCatalog.h"
#include "ui/BatchFrontEnd.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

class BatchFillTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir.write("lib/a_wizard.lst",
              "[a|b]\nCOUNTER=run counter\n<INFO>\n<ALIAS>OLD</ALIAS>\n</INFO>\nADDER=run adder\n");
    catalog.loadFrom(ui, dir.path("lib"), "");
    ASSERT_TRUE(ui.boxes.empty());
  }
  BatchFrontEnd frontEnd(const std::string& modulon, const std::string& language = "") {
    FrontEndOptions options;
    options.kind = FrontEndKind::kBatch;
    options.modulon = modulon;
    options.language = language;
    return BatchFrontEnd(options);
  }

  TempDir dir;
  RecordingInterface ui;
  WizardCatalog catalog;
  WindowCorner corner;
};

TEST_F(BatchFillTest, ActionPageCreatesOnlyWithAModulon) {
  PageContext context{ui, catalog, corner, dir.dir(), ""};
  ActionPage page;
  BatchFrontEnd withModulon = frontEnd("COUNTER");
  EXPECT_EQ(withModulon.showActionPage(page, context), PageResult::kNext);
  EXPECT_TRUE(page.createNew);
  ActionPage other;
  BatchFrontEnd without = frontEnd("");
  EXPECT_EQ(without.showActionPage(other, context), PageResult::kNext);
  EXPECT_FALSE(other.createNew);
}

TEST_F(BatchFillTest, ModulonPageTakesTheDesignFileTheModulonAndTheLanguage) {
  PageContext context{ui, catalog, corner, dir.dir(), dir.path("out/count8")};
  dir.write("out/.keep", "");
  ModulonSelectionPage page;
  page.directory = "/";
  BatchFrontEnd batch = frontEnd("OLD", "verilog");
  EXPECT_EQ(batch.showModulonPage(page, context), PageResult::kNext);
  EXPECT_EQ(page.modulonName, "COUNTER");
  EXPECT_EQ(page.baseName, "count8");
  EXPECT_EQ(page.extension, ".v");
  EXPECT_EQ(page.directory, dir.path("out/"));

  // Shown again after the plug-in went back: Cancel without a second fill.
  EXPECT_EQ(batch.showModulonPage(page, context), PageResult::kCancel);
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(BatchFillTest, PageLeftOpenAfterNextEndsWithCancel) {
  PageContext noFile{ui, catalog, corner, dir.dir(), dir.dir()};
  ModulonSelectionPage page;
  BatchFrontEnd batch = frontEnd("COUNTER");
  EXPECT_EQ(batch.showModulonPage(page, noFile), PageResult::kCancel);
  EXPECT_EQ(ui.boxes.size(), 1u);
  PageContext unknown{ui, catalog, corner, dir.dir(), dir.path("x.tdf")};
  ModulonSelectionPage second;
  BatchFrontEnd unknownModulon = frontEnd("MISSING");
  EXPECT_EQ(unknownModulon.showModulonPage(second, unknown), PageResult::kCancel);
  EXPECT_EQ(ui.boxes.back(), testing::reported(Msg::kSelectAvailableModulon));
}

TEST_F(BatchFillTest, BrowserPageUsesTheSignatureUnlessTheBatchNamesAModulon) {
  dir.write("v/adder.tdf", "-- modulon wizard: ADDER%\r\n");
  PageContext context{ui, catalog, corner, dir.dir(), ""};
  VariationBrowserPage page;
  page.directory = dir.path("v/");
  page.baseName = "adder";
  page.extension = ".tdf";
  BatchFrontEnd plain = frontEnd("");
  EXPECT_EQ(plain.showBrowserPage(page, context), PageResult::kNext);
  EXPECT_FALSE(page.newVariation);
  EXPECT_EQ(page.modulonName, "ADDER");
  EXPECT_TRUE(ui.boxes.empty());

  VariationBrowserPage other = page;
  BatchFrontEnd named = frontEnd("COUNTER");
  EXPECT_EQ(named.showBrowserPage(other, context), PageResult::kNext);
  EXPECT_TRUE(other.newVariation);
  EXPECT_EQ(other.modulonName, "COUNTER");
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_NE(ui.boxes[0].find("is currently based on the\nADDER modulon"), std::string::npos);
}

}  // namespace
}  // namespace plovix
