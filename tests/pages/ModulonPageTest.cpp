// Tests of the modulon page: the tree from the catalog's sections, opening, Browse, Back and every check of
// Next in its order, with the control that gets the focus.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/QuestionTexts.h"
#include "catalog/WizardCatalog.h"
#include "pages/ModulonSelectionPage.h"
#include "pages/PageHost.h"

namespace plovix {
namespace {

using testing::asked;
using testing::RecordingInterface;
using testing::reported;
using testing::TempDir;
using Strings = std::vector<std::string>;

// The tree as indented lines ("  " per level, folders marked with "/").
Strings treeLines(const ModulonTree& tree) {
  Strings lines;
  for (const auto& [index, depth] : tree.displayOrder()) {
    const ModulonTree::Item& item = tree.item(index);
    lines.push_back(std::string(static_cast<size_t>(depth) * 2, ' ') + item.text +
                    (item.image == ModulonTree::kFolderImage ? "/" : ""));
  }
  return lines;
}

class ModulonPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    catalogDir.write("lib/a_wizard.lst",
                     "zeta=run z\n"
                     "[a|b]\n"
                     "COUNTER=run counter\n"
                     "[a]\n"
                     "Adder=run adder\n"
                     "[]\n"
                     "alpha=run alpha\n"
                     "[flat]\n"
                     "FLAT [-No2D]=run flat\n");
    catalog.loadFrom(ui, catalogDir.path("lib"), "");
    ASSERT_TRUE(ui.boxes.empty()) << ui.boxes.front();
    page.directory = out.dir();
    page.pageKind = PageKind::kMiddle;
  }

  // Opens the page, selects a modulon and types the output name.
  void prepare(const std::string& modulon, const std::string& text) {
    page.modulonName = modulon;
    page.open(context);
    page.editText = text;
  }
  bool next() { return page.pressNext(context, std::nullopt); }

  TempDir catalogDir;
  TempDir out;
  RecordingInterface ui;
  WizardCatalog catalog;
  WindowCorner corner;
  PageContext context{ui, catalog, corner, "/", ""};
  ModulonSelectionPage page;
};

TEST_F(ModulonPageTest, TreeNestsSectionsAndSortsSiblings) {
  page.open(context);
  EXPECT_EQ(treeLines(page.tree),
            (Strings{"a/", "  Adder", "  b/", "    COUNTER", "alpha", "flat/", "  FLAT", "zeta"}));
  EXPECT_EQ(page.tree.selected(), ModulonTree::kNoItem);
}

TEST_F(ModulonPageTest, TreeLooksUpFoldersByExactTextAndEntriesCanLandUnderEntries) {
  std::vector<CatalogEntry> entries;
  for (const auto& [name, section] : {std::pair{"x", "A|b"}, {"y", "a"}, {"b", "a"}, {"z", "a|b"}}) {
    entries.emplace_back();
    entries.back().name = name;
    entries.back().section = section;
  }
  ModulonTree tree;
  tree.build(entries, "b");
  EXPECT_EQ(treeLines(tree), (Strings{"A/", "  b/", "    x", "a/", "  b", "    z", "  y"}));
  EXPECT_TRUE(tree.selectedByName());
  EXPECT_EQ(tree.selectedText(), "b");
  EXPECT_TRUE(tree.hasChildren(tree.selected()));
}

TEST_F(ModulonPageTest, FirstOpeningShowsTheDirectoryTheLibrariesAndTheThdlButton) {
  page.open(context);
  EXPECT_EQ(page.editText, out.dir());
  EXPECT_EQ(page.outputText, out.dir());
  EXPECT_EQ(page.languageIndex, 0);
  EXPECT_EQ(page.libraryDirectories, Strings{catalogDir.path("lib/")});
  EXPECT_FALSE(page.isEnabled(kControlFinish));
  EXPECT_EQ(page.defaultButton(), kControlNext);
}

TEST_F(ModulonPageTest, BackKeepsTheEntriesForTheNextVisit) {
  prepare("COUNTER", "first.v");
  EXPECT_EQ(page.focusControl, kControlModulonTree);
  page.languageIndex = 1;
  EXPECT_TRUE(page.pressBack(context, PixelRect{0, 0, 500, 400}));
  EXPECT_EQ(page.result, PageResult::kBack);
  EXPECT_EQ(corner.right, 500);
  EXPECT_EQ(page.extension, ".vhd");
  EXPECT_EQ(page.modulonName, "COUNTER");
  page.open(context);
  EXPECT_EQ(page.editText, "first.v");
  EXPECT_EQ(page.languageIndex, 1);
  EXPECT_EQ(page.tree.selectedText(), "COUNTER");
}

TEST_F(ModulonPageTest, EmptyNameAndMissingOrFolderSelectionAreReportedFirst) {
  prepare("COUNTER", "  \t ");
  EXPECT_FALSE(next());
  EXPECT_EQ(page.focusControl, kControlOutputName);
  prepare("", "x.tdf");
  EXPECT_FALSE(next());
  EXPECT_EQ(page.focusControl, kControlModulonTree);
  prepare("", "x.tdf");
  page.tree.select(page.tree.findByText("a"));
  EXPECT_FALSE(next());
  EXPECT_EQ(ui.boxes, (Strings{reported(Msg::kSpecifyFileToCreate), reported(Msg::kSelectAvailableModulon),
                               reported(Msg::kSelectAvailableModulon)}));
}

TEST_F(ModulonPageTest, FileNameChecksInTheirOrder) {
  prepare("COUNTER", out.dir());
  EXPECT_FALSE(next());
  prepare("COUNTER", "my file.tdf");
  EXPECT_FALSE(next());
  prepare("COUNTER", "counter.txt");
  EXPECT_FALSE(next());
  prepare("COUNTER", "counter.TDF");
  EXPECT_FALSE(next());
  prepare("COUNTER", "1counter.vhd");
  EXPECT_FALSE(next());
  EXPECT_EQ(ui.boxes, (Strings{reported(Msg::kNoFileName), reported(Msg::kBlanksInFileName),
                               reported(Msg::kIllegalExtension), reported(Msg::kIllegalExtension),
                               reported(Msg::kIllegalVhdlName)}));
  EXPECT_EQ(page.focusControl, kControlOutputName);
  EXPECT_EQ(page.modulonName, "COUNTER");
}

TEST_F(ModulonPageTest, TypedExtensionOverridesTheButtonsAndAMissingOneTakesTheButton) {
  prepare("COUNTER", "plain");
  page.languageIndex = 1;
  EXPECT_TRUE(next());
  EXPECT_EQ(page.result, PageResult::kNext);
  EXPECT_EQ(page.baseName, "plain");
  EXPECT_EQ(page.extension, ".vhd");
  EXPECT_EQ(page.directory, out.dir());
  EXPECT_EQ(page.outputText, "plain");

  prepare("COUNTER", "sub/../typed.v");
  page.languageIndex = 0;
  EXPECT_TRUE(next());
  EXPECT_EQ(page.baseName, "typed");
  EXPECT_EQ(page.extension, ".v");
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(ModulonPageTest, TwoDimensionalFallbackIsAskedForVhdlAndVerilogOnly) {
  ui.answers = {false, true};
  prepare("FLAT", "flat.vhd");
  EXPECT_FALSE(next());
  EXPECT_EQ(page.extension, ".tdf");
  prepare("FLAT", "flat.v");
  EXPECT_TRUE(next());
  EXPECT_EQ(page.extension, ".tdf");
  prepare("FLAT", "flat.tdf");
  EXPECT_TRUE(next());
  ASSERT_EQ(ui.boxes.size(), 2u);
  EXPECT_EQ(ui.boxes[0], asked(questions::thdlFallback(), false));
}

TEST_F(ModulonPageTest, ExistingFileIsCheckedForWritingBeforeTheOverwriteQuestion) {
  out.write("old.tdf", "x");
  prepare("COUNTER", "old.tdf");
  ui.answers = {false};
  EXPECT_FALSE(next());
  EXPECT_EQ(ui.boxes.back(), asked(questions::overwriteFile(out.path("old.tdf")), false));
  EXPECT_TRUE(next());

  if (geteuid() != 0) {
    chmod(out.path("old.tdf").c_str(), 0444);
    ui.boxes.clear();
    EXPECT_FALSE(next());
    EXPECT_EQ(ui.boxes, Strings{reported(Msg::kWriteProtected, out.path("old.tdf"))});
    EXPECT_EQ(page.focusControl, kControlOutputName);
  }
}

TEST_F(ModulonPageTest, MissingDirectoryIsReportedAsAnIllegalPath) {
  prepare("COUNTER", "missing/deeper/x.tdf");
  EXPECT_FALSE(next());
  EXPECT_EQ(ui.boxes, (Strings{reported(Msg::kDoesNotExist, "missing/deeper/x.tdf"),
                               reported(Msg::kIllegalDirectoryPath)}));
  EXPECT_EQ(page.focusControl, kControlOutputName);
}

TEST_F(ModulonPageTest, BrowseStartsFromTheTypedPathAndShowsTheChoice) {
  out.write("sub/keep.txt", "");
  prepare("COUNTER", "sub/name.v");
  const SaveFileRequest request = page.browseRequest(context);
  EXPECT_EQ(request.title, "Select file name");
  EXPECT_EQ(
      request.filter,
      "All Files (*.*)|*.*|THDL Files (*.tdf)|*.tdf|VHDL Files (*.vhdl)|*.vhdl|Verilog Files (*.v)|*.v||");
  EXPECT_EQ(request.initialDirectory, out.path("sub/"));
  EXPECT_EQ(request.fileName, "name.v");
  page.editText = "";
  EXPECT_EQ(page.browseRequest(context).initialDirectory, out.dir());
  EXPECT_EQ(page.browseRequest(context).fileName, "");
  page.applyBrowseChoice("/a/b.v");
  EXPECT_EQ(page.editText, "/a/b.v");
}

}  // namespace
}  // namespace plovix
