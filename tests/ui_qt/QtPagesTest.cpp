// Qt Test cases of the Qt pages: the frame's buttons and texts, the message boxes, the modulon page's checks
// and save-file dialog, and a whole run that creates a variation by clicking.
#include <sys/stat.h>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include <fstream>

#include "ModalDriver.h"
#include "TempDir.h"
#include "base/QuestionTexts.h"
#include "base/Report.h"
#include "catalog/WizardCatalog.h"
#include "entry/ManagerApp.h"
#include "entry/RunFlow.h"
#include "entry/StandardRunSteps.h"
#include "ui/QtModule.h"

namespace plovix {

using testing::answerBox;
using testing::clickChild;
using testing::ModalDriver;
using testing::TempDir;
using testing::typeInto;

namespace {

// A description of an eight-bit counter, as a plug-in leaves it.
constexpr const char* kCounterDescription =
    "GENERATION: STANDARD\n"
    "VERSION: WM1.0\n"
    "MODULE: lpm_counter\n"
    "PARAMETER: WIDTH NUMERIC 8\n"
    "USED_PORT: clock 0 0 0 0 INPUT NODEFVAL\n"
    "USED_PORT: q 8 0 0 0 OUTPUT NODEFVAL\n"
    "CONNECT: lpm_counter@clock 0 0 0 0 clock 0 0 0 0\n"
    "CONNECT: q 8 0 0 0 lpm_counter@q 8 0 0 0\n";

// Clicks the item of a tree or list widget whose first column shows `text`.
void clickItem(QWidget* parent, const char* objectName, const QString& text, bool twice = false) {
  auto* tree = parent->findChild<QTreeWidget*>(objectName);
  QVERIFY(tree != nullptr);
  const QList<QTreeWidgetItem*> found = tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
  QVERIFY2(!found.isEmpty(), qPrintable(text));
  tree->scrollToItem(found.front());
  const QPoint where = tree->visualItemRect(found.front()).center();
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, where);
  if (twice) QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, where);
}

// Double-clicks the row of the file list that shows `text` as a user would: two presses and releases sent to
// the window, which the window system's rules turn into a double-click.
void doubleClickRow(QWidget* dialog, const QString& text) {
  auto* list = dialog->findChild<QTreeWidget*>("fileList");
  QVERIFY(list != nullptr);
  const QList<QTreeWidgetItem*> found = list->findItems(text, Qt::MatchExactly);
  QVERIFY2(!found.isEmpty(), qPrintable(text));
  const QPoint where = list->viewport()->mapTo(dialog, list->visualItemRect(found.front()).center());
  QTest::mouseDClick(dialog->windowHandle(), Qt::LeftButton, {}, where);
}

}  // namespace

class QtPagesTest : public QObject {
  Q_OBJECT

 private:
  FrontEndOptions options;
  std::unique_ptr<FrontEnd> frontEnd;
  WizardCatalog catalog;
  WindowCorner corner;

 private slots:
  // The front end comes from the module, as the plovix command loads it.
  void initTestCase() {
    QtModuleLoad load = loadQtFrontEnd(options);
    QVERIFY2(load.frontEnd != nullptr, load.detail.c_str());
    frontEnd = std::move(load.frontEnd);
  }

  void frameButtonsAndActionPage() {
    PageContext context{*frontEnd, catalog, corner, "/", ""};
    ActionPage page;
    page.notice = questions::makerNotice();
    page.pageKind = PageKind::kFirst;
    page.setCaption("Plovix Plug-In Manager [page 1]");
    page.open();
    QRect geometry;
    ModalDriver driver;
    driver.on(
        "actionPage",
        [&](QWidget* dialog) {
          QCOMPARE(dialog->windowTitle(), QString("Plovix Plug-In Manager [page 1]"));
          auto* next = dialog->findChild<QPushButton*>("next");
          auto* back = dialog->findChild<QPushButton*>("back");
          auto* cancel = dialog->findChild<QPushButton*>("cancel");
          auto* finish = dialog->findChild<QPushButton*>("finish");
          QVERIFY(next && back && cancel && finish);
          QCOMPARE(next->text(), QString("&Next >"));
          QCOMPARE(back->text(), QString("< &Back"));
          QCOMPARE(finish->text(), QString("&Finish"));
          const int right = dialog->width();
          QCOMPARE(next->geometry(), QRect(right - 133, dialog->height() - 33, 60, 23));
          QCOMPARE(cancel->geometry().left(), right - 259);
          QCOMPARE(finish->geometry().right() + 1, right - 10);
          QVERIFY(!back->isEnabled());
          QVERIFY(!finish->isEnabled());
          QVERIFY(next->isDefault());
          QVERIFY(dialog->findChild<QRadioButton*>("create")->isChecked());
          geometry = dialog->geometry();
          clickChild(dialog, "edit");
          clickChild(dialog, "next");
        },
        "1-action-page");
    QCOMPARE(int(frontEnd->showActionPage(page, context)), int(PageResult::kNext));
    QVERIFY(driver.finished());
    QVERIFY(!page.createNew);
    QVERIFY(corner.known);
    QCOMPARE(corner.right, geometry.x() + geometry.width());
    QCOMPARE(corner.bottom, geometry.y() + geometry.height());

    // Escape cancels and keeps the stored corner.
    const WindowCorner before = corner;
    ModalDriver cancelling;
    cancelling.on("actionPage", [&](QWidget* dialog) {
      // The next page keeps the bottom-right corner the previous one left.
      QCOMPARE(dialog->geometry().x() + dialog->width(), before.right);
      QCOMPARE(dialog->geometry().y() + dialog->height(), before.bottom);
      QTest::keyClick(dialog, Qt::Key_Escape);
    });
    page.open();
    QCOMPARE(int(frontEnd->showActionPage(page, context)), int(PageResult::kCancel));
    QCOMPARE(corner.right, before.right);
  }

  void messageBoxes() {
    ModalDriver driver;
    driver.on("messageBox", [](QWidget* widget) {
      auto* box = qobject_cast<QMessageBox*>(widget);
      QCOMPARE(box->windowTitle(), QString("Plovix Plug-In Manager"));
      QCOMPARE(box->icon(), QMessageBox::Warning);
      QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
      QCOMPARE(box->text(), QString("a report"));
      answerBox(box, true);
    });
    driver.on(
        "messageBox",
        [](QWidget* widget) {
          auto* box = qobject_cast<QMessageBox*>(widget);
          QCOMPARE(box->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
          answerBox(box, false);
        },
        "message-box");
    frontEnd->report("a report");
    QVERIFY(!frontEnd->ask("a question"));
    QVERIFY(driver.finished());
  }

  // The plovix command's account at the end: one box when files were generated, none otherwise.
  void summaryBox() {
    ModalDriver driver;
    driver.answerOtherBoxesWithOk();
    frontEnd->showSummary(RunOutcome{});
    QVERIFY(driver.otherBoxes.isEmpty());
    RunOutcome outcome;
    outcome.generated = true;
    outcome.recordWrite("/work/count8.v", true, "");
    outcome.recordWrite("/work/count8.inc", false, "overwrite declined");
    outcome.warnings = {"a warning"};
    driver.on(
        "summaryBox",
        [&](QWidget* widget) {
          auto* box = qobject_cast<QMessageBox*>(widget);
          QCOMPARE(box->text(), QString::fromStdString(questions::runSummary(outcome)));
          QVERIFY(box->text().contains("/work/count8.inc"));
          answerBox(box, true);
        },
        "summary-box");
    frontEnd->showSummary(outcome);
    QVERIFY(driver.finished());
  }

  void modulonPageChecksFocusAndBrowse() {
    TempDir dir;
    dir.write("lib/a_wizard.lst", "[arithmetic|counters]\nlpm_counter=run\n");
    dir.write("sub/.keep", "");
    WizardCatalog loaded;
    loaded.loadFrom(*frontEnd, dir.path("lib"), "");
    PageContext context{*frontEnd, loaded, corner, dir.dir(), ""};
    ModulonSelectionPage page;
    page.directory = dir.dir();
    page.pageKind = PageKind::kMiddle;
    page.setCaption("Plovix Plug-In Manager [page 2a]");
    page.open(context);
    ModalDriver driver;
    driver.on("modulonPage", [](QWidget* dialog) {
      QCOMPARE(dialog->windowTitle(), QString("Plovix Plug-In Manager [page 2a]"));
      QVERIFY(dialog->findChild<QRadioButton*>("thdl")->isChecked());
      typeInto(dialog, "outputName", "");
      clickChild(dialog, "next");
    });
    driver.on("messageBox", [](QWidget* box) {
      QCOMPARE(qobject_cast<QMessageBox*>(box)->text(),
               QString::fromStdString(errorMessage(Msg::kSpecifyFileToCreate)));
      answerBox(box, true);
    });
    driver.on("modulonPage", [](QWidget* dialog) {
      QCOMPARE(dialog->focusWidget(), dialog->findChild<QLineEdit*>("outputName"));
      typeInto(dialog, "outputName", "sub/name.v");
      clickChild(dialog, "browse");
    });
    driver.on("saveFileDialog", [&](QWidget* widget) {
      auto* dialog = qobject_cast<QFileDialog*>(widget);
      QCOMPARE(dialog->windowTitle(), QString("Select file name"));
      QCOMPARE(dialog->nameFilters(), QStringList({"All Files (*.*)", "THDL Files (*.tdf)",
                                                   "VHDL Files (*.vhdl)", "Verilog Files (*.v)"}));
      QCOMPARE(dialog->directory().absolutePath() + "/", QString::fromStdString(dir.path("sub/")));
      auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
      QVERIFY(name != nullptr);
      QCOMPARE(name->text(), QString("name.v"));
      name->setText(QString::fromStdString(dir.path("chosen.vhd")));
      static_cast<QDialog*>(dialog)->accept();
    });
    driver.on("modulonPage", [&](QWidget* dialog) {
      QCOMPARE(dialog->findChild<QLineEdit*>("outputName")->text(),
               QString::fromStdString(dir.path("chosen.vhd")));
      clickItem(dialog, "modulonTree", "lpm_counter");
      clickChild(dialog, "vhdl");
      clickChild(dialog, "back");
    });
    QCOMPARE(int(frontEnd->showModulonPage(page, context)), int(PageResult::kBack));
    QVERIFY2(driver.finished(), qPrintable(driver.pending().join(",")));
    QCOMPARE(page.modulonName, std::string("lpm_counter"));
    QCOMPARE(page.extension, std::string(".vhd"));
  }

  // A double-click on a folder opens it; on a file it goes on as Next does.
  void browserDoubleClicks() {
    TempDir dir;
    dir.write("lib/a_wizard.lst", "lpm_counter=run\n");
    dir.write("proj/sub/count8.v", "// modulon wizard: %lpm_counter%\n");
    WizardCatalog loaded;
    loaded.loadFrom(*frontEnd, dir.path("lib"), "");
    PageContext context{*frontEnd, loaded, corner, dir.path("proj/"), ""};
    VariationBrowserPage page;
    page.directory = dir.path("proj/");
    page.pageKind = PageKind::kMiddle;
    page.open(context);
    ModalDriver driver;
    driver.on("browserPage", [](QWidget* dialog) { doubleClickRow(dialog, "sub"); });
    driver.on("browserPage", [](QWidget* dialog) { doubleClickRow(dialog, "count8.v"); });
    QCOMPARE(int(frontEnd->showBrowserPage(page, context)), int(PageResult::kNext));
    QVERIFY2(driver.finished(), qPrintable(driver.pending().join(",")));
    QCOMPARE(page.directory, dir.path("proj/sub/"));
    QCOMPARE(page.baseName + page.extension, std::string("count8.v"));
    QVERIFY(!page.newVariation);
  }

  // The Qt run end to end: a variation created by clicking (editing is the batch runs' and the browser
  // page tests').
  void createAVariationByClicking() {
    TempDir dir;
    dir.write("lib/count.cnx", kCounterDescription);
    dir.write("lib/fake-plugin",
              "#!/bin/sh\n"
              "cp \"$(dirname \"$0\")/count.cnx\" \"${1%.*}.cnx\"\n");
    chmod(dir.path("lib/fake-plugin").c_str(), 0755);
    dir.write("lib/test_wizard.lst",
              "[arithmetic|counters]\nlpm_counter=" + dir.path("lib/fake-plugin") + "\n");
    dir.write("proj/.keep", "");
    qputenv("PLOVIX_LIB_PATH", QByteArray::fromStdString(dir.path("lib")));
    qputenv("PLOVIX_USER_LIB_PATH", "");
    qputenv("PLOVIX_PROJECT_DIR", QByteArray::fromStdString(dir.path("proj")));

    ManagerApp app;
    app.restoreDirectoryAtExit = false;
    app.fetchProjectDirectory();
    StandardRunSteps steps(app, *frontEnd, *frontEnd);

    {
      ModalDriver create;
      create.answerOtherBoxesWithOk();
      create.on("actionPage", [](QWidget* dialog) { clickChild(dialog, "next"); });
      create.on("modulonPage", [](QWidget* dialog) {
        clickItem(dialog, "modulonTree", "lpm_counter");
        clickChild(dialog, "verilog");
        typeInto(dialog, "outputName", "count8");
      });
      create.on(
          "modulonPage", [](QWidget* dialog) { clickChild(dialog, "next"); }, "2a-modulon-page");
      runManager(app, *frontEnd, steps, nullptr, nullptr);
      QVERIFY2(create.finished(), qPrintable(create.pending().join(",")));
      for (const char* file :
           {"proj/count8.v", "proj/count8_inst.v", "proj/count8_bb.v", "proj/count8.sym"}) {
        QVERIFY2(!dir.read(file).empty(), file);
      }
      QVERIFY(!TempDir::readFile(dir.path("proj/count8.cnx")).size());
      QVERIFY(dir.read("proj/count8.v").find("lpm_counter") != std::string::npos);
    }
  }
};

}  // namespace plovix

QTEST_MAIN(plovix::QtPagesTest)
#include "QtPagesTest.moc"
