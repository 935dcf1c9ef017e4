// Tests of the browser page: opening, the list and its modes, columns and sorting, the events, renaming,
// Up One Level, Back and every check of Next.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/QuestionTexts.h"
#include "catalog/WizardCatalog.h"
#include "pages/PageHost.h"
#include "pages/VariationBrowserPage.h"

namespace plovix {
namespace {

using testing::asked;
using testing::RecordingInterface;
using testing::reported;
using testing::TempDir;
using Strings = std::vector<std::string>;

std::string signed_(const std::string& modulon) {
  return "-- Copyright line of the modulon wizard: " + modulon + "%VARIATION%\r\nbody\r\n";
}

class BrowserPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    catalogDir.write("lib/a_wizard.lst",
                     "COUNTER=run counter\n<INFO>\n<ALIAS>OLD_COUNTER</ALIAS>\n</INFO>\n"
                     "ADDER=run adder\n");
    catalog.loadFrom(ui, catalogDir.path("lib"), "");
    ASSERT_TRUE(ui.boxes.empty()) << ui.boxes.front();
    files.write("count.tdf", signed_("COUNTER"));
    files.write("Beta.v", signed_("ADDER"));
    files.write("old.vhd", signed_("OLD_COUNTER"));
    files.write("plain.vhd", "entity plain is end;\r\n");
    files.write("notes.txt", "1234567");
    files.write("sub/inner.v", signed_("COUNTER"));
    page.directory = files.dir();
    page.pageKind = PageKind::kMiddle;
  }

  Strings names() const {
    Strings result;
    for (const FileListItem& item : page.list.items()) result.push_back(item.name);
    return result;
  }
  Strings column(int which) const {
    Strings result;
    for (const FileListItem& item : page.list.items()) result.push_back(FileList::columnText(item, which));
    return result;
  }
  // Opens the page, types a name into the file name box and, when given, a modulon into the modulon box.
  void openWith(const std::string& fileName, const std::string& modulon = "") {
    page.open(context);
    page.changeFileName(fileName);
    if (!modulon.empty()) page.modulonText = modulon;
  }
  bool next() { return page.pressNext(context, std::nullopt); }

  TempDir catalogDir;
  TempDir files;
  RecordingInterface ui;
  WizardCatalog catalog;
  WindowCorner corner;
  PageContext context{ui, catalog, corner, "/", ""};
  VariationBrowserPage page;
};

TEST_F(BrowserPageTest, OpeningFillsTypesModulonsAndTheWizardOnlyList) {
  page.baseName = "count";
  page.extension = ".tdf";
  page.modulonName = "ADDER";
  page.open(context);
  EXPECT_EQ(page.caption, "Plovix Plug-In Manager [page 2b]");
  ASSERT_EQ(page.fileTypes.size(), 4u);
  EXPECT_EQ(page.fileTypes[0].second, "*.tdf, *.vhd, *.v");
  EXPECT_EQ(page.selectedFileType, 1);
  EXPECT_EQ(page.currentPattern(), "*.tdf");
  EXPECT_EQ(names(), (Strings{"count.tdf", "sub"}));
  EXPECT_EQ(page.fileNameText, "count.tdf");
  EXPECT_EQ(page.focusControl, kControlFileName);
  EXPECT_EQ(page.modulonItems, (Strings{"Not a wizard-generated file", "COUNTER", "ADDER"}));
  EXPECT_EQ(page.modulonText, "ADDER");
  EXPECT_FALSE(page.isEnabled(kControlFinish));
  EXPECT_FALSE(page.list.detailedView);

  page.extension = ".txt";
  page.modulonName = "UNLISTED";
  page.list.detailedView = true;
  page.directory = files.path("missing/");
  page.open(context);
  EXPECT_TRUE(names().empty());  // nothing of the earlier showing stays when the folder cannot be listed
  EXPECT_FALSE(page.list.detailedView);
  page.directory = files.dir();
  page.open(context);
  EXPECT_EQ(page.selectedFileType, 0);
  EXPECT_EQ(names(), (Strings{"Beta.v", "count.tdf", "old.vhd", "sub"}));
  EXPECT_EQ(page.modulonText, "Not a wizard-generated file");
}

TEST_F(BrowserPageTest, ClearingTheCheckBoxListsEveryFileWithItsColumns) {
  openWith("");
  page.clickWizardOnly(context);
  EXPECT_FALSE(page.showOnlyWizardFiles);
  EXPECT_EQ(page.currentPattern(), "*.*");
  EXPECT_EQ(names(), (Strings{"Beta.v", "count.tdf", "notes.txt", "old.vhd", "plain.vhd", "sub"}));
  EXPECT_EQ(column(kColumnType), (Strings{"Verilog HDL", "THDL", "", "VHDL", "", "Folder"}));
  EXPECT_EQ(column(kColumnSize)[2], "7");
  EXPECT_EQ(column(kColumnSize)[5], "");

  page.list.sortBy(kColumnType);
  EXPECT_EQ(names(), (Strings{"notes.txt", "plain.vhd", "sub", "count.tdf", "old.vhd", "Beta.v"}));
  page.list.sortBy(kColumnSize);
  EXPECT_EQ(names().front(), "sub");
  EXPECT_EQ(names()[1], "notes.txt");
  page.clickWizardOnly(context);
  EXPECT_EQ(names(), (Strings{"Beta.v", "count.tdf", "old.vhd", "sub"}));
}

TEST_F(BrowserPageTest, TimesUseTheTwelveHourClock) {
  const auto at = [](int month, int day, int year, int hour, int minute) {
    std::tm time{};
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_year = year - 1900;
    time.tm_hour = hour;
    time.tm_min = minute;
    return time;
  };
  const std::pair<std::tm, const char*> cases[] = {{at(3, 4, 2007, 0, 0), "3/04/07  12:00 AM"},
                                                   {at(3, 4, 2007, 12, 5), "3/04/07  12:05 PM"},
                                                   {at(12, 31, 2010, 23, 5), "12/31/10  11:05 PM"},
                                                   {at(12, 31, 2010, 9, 5), "12/31/10  9:05 AM"}};
  for (const auto& [time, text] : cases) EXPECT_EQ(formatLastModified(time), text);
}

TEST_F(BrowserPageTest, TypedFolderOrWildcardListsAndStaysWithoutAMessage) {
  openWith("sub/");
  EXPECT_FALSE(next());
  EXPECT_EQ(page.directory, files.path("sub/"));
  EXPECT_EQ(names(), Strings{"inner.v"});
  EXPECT_EQ(page.fileNameText, "");
  EXPECT_EQ(page.lookIn.selectedPath(), files.path("sub/"));

  page.changeFileName("../*.v");
  EXPECT_FALSE(next());
  EXPECT_EQ(page.directory, files.dir());
  EXPECT_EQ(names(), (Strings{"Beta.v", "sub"}));
  EXPECT_EQ(page.fileNameText, "*.v");
  EXPECT_EQ(page.selectedFileType, 0);
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(BrowserPageTest, FileTypeChoiceListsWithItsPatternAndKeepsTheTypedName) {
  openWith("count.tdf");
  page.selectFileType(context, 2);
  EXPECT_EQ(names(), (Strings{"old.vhd", "sub"}));
  EXPECT_EQ(page.fileNameText, "count.tdf");
  EXPECT_EQ(page.modulonText, "COUNTER");
}

TEST_F(BrowserPageTest, NameChecksInTheirOrder) {
  openWith("  ", "COUNTER");
  EXPECT_FALSE(next());
  page.changeFileName("my file.tdf");
  EXPECT_FALSE(next());
  page.changeFileName("notes.txt");
  EXPECT_FALSE(next());
  page.changeFileName("missing/x.txt");
  EXPECT_FALSE(next());  // the path could not be applied: no extension message
  page.changeFileName("new.tdf");
  page.modulonText = "Not a wizard-generated file";
  EXPECT_FALSE(next());
  EXPECT_EQ(page.focusControl, kControlModulonBox);
  EXPECT_EQ(ui.boxes,
            (Strings{reported(Msg::kSpecifyFileToEdit), reported(Msg::kBlanksInFileName),
                     reported(Msg::kIllegalExtension), reported(Msg::kDoesNotExist, "missing/x.txt"),
                     reported(Msg::kPathInvalid, "missing/x.txt"), reported(Msg::kSpecifyModulonName)}));
}

TEST_F(BrowserPageTest, VerdictsForMissingForeignAndOtherModulonFiles) {
  openWith("new.tdf", "COUNTER");
  ui.answers = {false, true};
  EXPECT_FALSE(next());
  EXPECT_TRUE(next());
  EXPECT_TRUE(page.newVariation);
  EXPECT_EQ(page.baseName, "new");
  EXPECT_EQ(page.extension, ".tdf");
  EXPECT_EQ(page.directory, files.dir());
  EXPECT_EQ(ui.boxes[0], asked(questions::fileDoesNotExistCreateIt(files.path("new.tdf")), false));

  ui.boxes.clear();
  openWith("plain.vhd");
  EXPECT_EQ(page.modulonText, "Not a wizard-generated file");  // the name's signature shows at once
  page.modulonText = "ADDER";
  EXPECT_TRUE(next());
  EXPECT_TRUE(page.newVariation);
  EXPECT_EQ(ui.boxes, Strings{asked(questions::notWizardGenerated(files.path("plain.vhd")))});

  ui.boxes.clear();
  openWith("count.tdf");
  page.modulonText = "ADDER";
  EXPECT_TRUE(next());
  EXPECT_TRUE(page.newVariation);
  EXPECT_EQ(page.modulonName, "ADDER");
  EXPECT_EQ(ui.boxes,
            Strings{asked(questions::basedOnOtherModulon(files.path("count.tdf"), "COUNTER", "ADDER"))});
}

TEST_F(BrowserPageTest, SameModulonEditsTheFileAndAliasesResolve) {
  openWith("count.tdf");
  EXPECT_EQ(page.modulonText, "COUNTER");
  EXPECT_TRUE(next());
  EXPECT_FALSE(page.newVariation);
  EXPECT_EQ(page.modulonName, "COUNTER");

  openWith("old.vhd");
  EXPECT_EQ(page.modulonText, "OLD_COUNTER");
  EXPECT_TRUE(next());
  EXPECT_FALSE(page.newVariation);
  EXPECT_EQ(page.modulonName, "COUNTER");
  EXPECT_EQ(page.extension, ".vhd");
  EXPECT_TRUE(ui.boxes.empty());

  openWith("count.tdf");
  page.modulonText = "COUNTER";
  files.write("count.tdf", signed_("GONE"));
  page.modulonText = "GONE";
  EXPECT_FALSE(next());
  EXPECT_EQ(ui.boxes, Strings{reported(Msg::kModulonNotListed, "GONE")});
  EXPECT_EQ(page.focusControl, kControlModulonBox);
}

TEST_F(BrowserPageTest, ClicksDoubleClicksAndUpOneLevel) {
  openWith("");
  page.clickItem(1);
  EXPECT_EQ(page.fileNameText, "count.tdf");
  EXPECT_EQ(page.modulonText, "COUNTER");
  page.clickItem(3);  // a folder leaves the name alone
  EXPECT_EQ(page.fileNameText, "count.tdf");
  EXPECT_FALSE(page.doubleClickItem(context, 3, std::nullopt));
  EXPECT_EQ(page.directory, files.path("sub/"));
  EXPECT_EQ(names(), Strings{"inner.v"});
  EXPECT_TRUE(page.doubleClickItem(context, 0, PixelRect{0, 0, 640, 480}));
  EXPECT_EQ(page.result, PageResult::kNext);
  EXPECT_EQ(page.baseName, "inner");
  EXPECT_EQ(corner.right, 640);

  page.upOneLevel(context);
  EXPECT_EQ(page.directory, files.dir());
  EXPECT_EQ(page.focusControl, kControlFileList);
  page.directory = "/";
  page.upOneLevel(context);
  EXPECT_EQ(page.directory, "/");
}

TEST_F(BrowserPageTest, RenamingChecksBothNames) {
  openWith("");
  EXPECT_EQ(page.renameTarget(), 0);
  EXPECT_FALSE(page.renameItem(context, 0, "sub"));
  EXPECT_TRUE(page.renameItem(context, 0, "counter2.tdf"));
  EXPECT_EQ(names()[0], "counter2.tdf");
  EXPECT_TRUE(TempDir::readFile(files.path("counter2.tdf")).size() > 0);
  std::remove(files.path("counter2.tdf").c_str());
  EXPECT_FALSE(page.renameItem(context, 0, "third.tdf"));
  EXPECT_EQ(ui.boxes,
            (Strings{reported(Msg::kAlreadyExists, "sub"), reported(Msg::kDoesNotExist, "counter2.tdf")}));
}

TEST_F(BrowserPageTest, BackGivesTheBoxesToTheRun) {
  openWith("sub\\inner.v");
  EXPECT_EQ(page.modulonText, "COUNTER");
  page.clickWizardOnly(context);
  EXPECT_TRUE(page.pressBack(context, std::nullopt));
  EXPECT_EQ(page.result, PageResult::kBack);
  EXPECT_EQ(page.modulonName, "COUNTER");
  EXPECT_FALSE(page.showOnlyWizardFiles);
  EXPECT_EQ(page.baseName, "inner");
  EXPECT_EQ(page.extension, ".v");
  EXPECT_EQ(page.directory, files.path("sub/"));
}

TEST_F(BrowserPageTest, NetworkMountsBecomeDrivesAndHoldTheirFolders) {
  const std::vector<NetworkDrive> drives = parseNetworkMounts(
      "/dev/sda1 / ext4 rw 0 0\n"
      "srv:/export/home /net/home nfs4 rw 0 0\n"
      "//files/team\\040share /mnt/team cifs rw 0 0\n"
      "proc /proc proc rw 0 0\n"
      "me@host:/data /mnt/ssh fuse.sshfs rw 0 0\n");
  ASSERT_EQ(drives.size(), 3u);
  EXPECT_EQ(drives[0].mountPoint, "/mnt/ssh");
  EXPECT_EQ(drives[1].mountPoint, "/mnt/team");
  EXPECT_EQ(drives[1].server, "files");
  EXPECT_EQ(drives[1].share, "team share");
  EXPECT_EQ(drives[2].server, "srv");
  EXPECT_EQ(drives[2].share, "/export/home");

  LookInBox box;
  box.collectDrives(ui, drives);
  box.fillFor("/mnt/team/a/b/");
  Strings shown;
  for (const LookInItem& item : box.items()) {
    shown.push_back(std::to_string(item.level) + " " + item.displayText + " " + item.path + " " +
                    std::to_string(item.icon));
  }
  EXPECT_EQ(shown, (Strings{"0 (/) / 1", "0 /data on 'me@host' (/mnt/ssh) /mnt/ssh/ 2",
                            "0 team share on 'files' (/mnt/team) /mnt/team/ 2", "1 a /mnt/team/a/ 4",
                            "2 b /mnt/team/a/b/ 5", "0 /export/home on 'srv' (/net/home) /net/home/ 2"}));
  EXPECT_EQ(box.selectedPath(), "/mnt/team/a/b/");
  box.fillFor("/");
  EXPECT_EQ(box.items().size(), 4u);
  EXPECT_EQ(box.selectedPath(), "/");

  box.collectDrives(ui, std::nullopt);
  EXPECT_EQ(ui.boxes, Strings{reported(Msg::kCannotEnumerateNetworkDrives)});
  box.fillFor("/usr/lib/");
  EXPECT_EQ(box.items().size(), 3u);
  EXPECT_EQ(box.rootOf("/mnt/team/x/"), "/");
}

}  // namespace
}  // namespace plovix
